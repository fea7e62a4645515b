#pragma once

#include "core/model/scanoptions.h"

#include <QJsonValue>

namespace MirrixCore {

// Conversions between one member of an options record and JSON. Each fromJson leaves its target alone and returns
// false when the value has another type, a fraction, or a number out of range. Thread-safe.

[[nodiscard]] QJsonValue toJson(bool value);
[[nodiscard]] QJsonValue toJson(qint32 value);
[[nodiscard]] QJsonValue toJson(qint64 value); ///< an exact integer, not a double
[[nodiscard]] QJsonValue toJson(const QString &value);
[[nodiscard]] QJsonValue toJson(const QStringList &value);
[[nodiscard]] QJsonValue toJson(const QList<ScanLocation> &value); ///< array of objects with the members' names
[[nodiscard]] QJsonValue toJson(const QList<TagEntry> &value);     ///< array of objects with the members' names

[[nodiscard]] bool fromJson(const QJsonValue &json, bool &value);
[[nodiscard]] bool fromJson(const QJsonValue &json, qint32 &value);
[[nodiscard]] bool fromJson(const QJsonValue &json, qint64 &value);
[[nodiscard]] bool fromJson(const QJsonValue &json, QString &value);
[[nodiscard]] bool fromJson(const QJsonValue &json, QStringList &value);
[[nodiscard]] bool fromJson(const QJsonValue &json, QList<ScanLocation> &value); ///< unknown members are refused
[[nodiscard]] bool fromJson(const QJsonValue &json, QList<TagEntry> &value);     ///< unknown members are refused

/// What a value of the member's type looks like, for error messages ("true or false", "an integer", ...).
[[nodiscard]] QString jsonTypeName(bool);
[[nodiscard]] QString jsonTypeName(qint32);
[[nodiscard]] QString jsonTypeName(qint64);
[[nodiscard]] QString jsonTypeName(const QString &);
[[nodiscard]] QString jsonTypeName(const QStringList &);
[[nodiscard]] QString jsonTypeName(const QList<ScanLocation> &);
[[nodiscard]] QString jsonTypeName(const QList<TagEntry> &);

} // namespace MirrixCore
