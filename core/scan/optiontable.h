#pragma once

#include "core/scan/scanoptions.h"

#include <QJsonObject>
#include <QStringList>

namespace MirrixCore {

// The one table that maps every option's name to its member. The console, saved profiles and tests all go through it.
// A new option is one line in optiontable.cpp. Thread-safe.

/// Every option with its current value. Whole numbers stay exact up to 64 bits.
[[nodiscard]] QJsonObject scanOptionsToJson(const ScanOptions &options);

/// Sets the options that `json` names and leaves the others as they are. Returns an empty text, or a message that names
/// the first option that is unknown or has a value of another type; `options` is then unchanged.
[[nodiscard]] QString scanOptionsFromJson(const QJsonObject &json, ScanOptions &options);

/// Sets one option from a text as a command line gives it. Texts are taken as they stand; lists of texts are either a
/// JSON array or parts separated by commas; everything else is JSON. Returns as scanOptionsFromJson does.
[[nodiscard]] QString setScanOption(ScanOptions &options, const QString &name, const QString &text);

/// The names of all options, in table order.
[[nodiscard]] QStringList scanOptionNames();

} // namespace MirrixCore
