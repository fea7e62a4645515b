#pragma once

#include "core/model/scanoptions.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

namespace MirrixCore {

// The one table that maps every option's name to its member. The console, saved profiles and tests all go through it.
// A new option is one line in optiontable.cpp. Thread-safe.

/// What the documentation says about an option.
struct ScanOptionInfo
{
    QString name;
    QString typeName;
    qint64 least = 0; ///< valid with hasRange
    qint64 most = -1; ///< valid with hasRange
    QJsonValue defaultValue;
    QString description; ///< one line of plain English

    /// Whether a scan refuses values beyond least and most.
    [[nodiscard]] bool hasRange() const { return least <= most; }
};

/// All options, in table order.
[[nodiscard]] QList<ScanOptionInfo> scanOptionInfos();

/// A message that names the first option whose value would be answered with an empty result; empty when there is none.
[[nodiscard]] QString scanOptionOutOfRange(const ScanOptions &options);

/// Every option with its current value. Whole numbers stay exact up to 64 bits.
[[nodiscard]] QJsonObject scanOptionsToJson(const ScanOptions &options);

/// Sets the options that `json` names and leaves the others as they are. Returns an empty text, or a message that names
/// the first option that is unknown or has a value of another type; `options` is then unchanged.
[[nodiscard]] QString scanOptionsFromJson(const QJsonObject &json, ScanOptions &options);

/// Sets one option from a text as a command line gives it. Strings are taken literally; lists of strings are either a
/// JSON array or parts separated by commas; everything else is JSON. Returns as scanOptionsFromJson does.
[[nodiscard]] QString setScanOption(ScanOptions &options, const QString &name, const QString &text);

/// The names of all options, in table order.
[[nodiscard]] QStringList scanOptionNames();

} // namespace MirrixCore
