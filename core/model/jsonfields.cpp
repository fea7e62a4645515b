#include "core/model/jsonfields.h"

#include <QJsonArray>
#include <QJsonObject>

#include <limits>

namespace MirrixCore {

namespace {

QJsonObject objectOf(const ScanLocation &location)
{
    return {{QStringLiteral("path"), location.path},
            {QStringLiteral("includeSubfolders"), location.includeSubfolders},
            {QStringLiteral("findKind"), location.findKind},
            {QStringLiteral("showRemaining"), location.showRemaining}};
}

QJsonObject objectOf(const TagEntry &tag)
{
    return {{QStringLiteral("name"), tag.name}, {QStringLiteral("enabled"), tag.enabled}};
}

bool readMember(const QString &name, const QJsonValue &value, ScanLocation &location)
{
    if (name == QLatin1String("path"))
        return fromJson(value, location.path);
    if (name == QLatin1String("includeSubfolders"))
        return fromJson(value, location.includeSubfolders);
    if (name == QLatin1String("findKind"))
        return fromJson(value, location.findKind);
    return name == QLatin1String("showRemaining") && fromJson(value, location.showRemaining);
}

bool readMember(const QString &name, const QJsonValue &value, TagEntry &tag)
{
    if (name == QLatin1String("name"))
        return fromJson(value, tag.name);
    return name == QLatin1String("enabled") && fromJson(value, tag.enabled);
}

template <typename Record>
QJsonValue arrayOf(const QList<Record> &records)
{
    QJsonArray array;
    for (const Record &record : records)
        array.append(objectOf(record));
    return array;
}

template <typename Record>
bool readRecords(const QJsonValue &json, QList<Record> &records)
{
    if (!json.isArray())
        return false;
    QList<Record> read;
    const QJsonArray array = json.toArray();
    for (const QJsonValue &item : array) {
        if (!item.isObject())
            return false;
        const QJsonObject object = item.toObject();
        Record record;
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (!readMember(it.key(), it.value(), record))
                return false;
        }
        read.append(record);
    }
    records = read;
    return true;
}

} // namespace

QJsonValue toJson(bool value)
{
    return value;
}

QJsonValue toJson(qint32 value)
{
    return value;
}

QJsonValue toJson(qint64 value)
{
    return value;
}

QJsonValue toJson(const QString &value)
{
    return value;
}

QJsonValue toJson(const QStringList &value)
{
    return QJsonArray::fromStringList(value);
}

QJsonValue toJson(const QList<ScanLocation> &value)
{
    return arrayOf(value);
}

QJsonValue toJson(const QList<TagEntry> &value)
{
    return arrayOf(value);
}

bool fromJson(const QJsonValue &json, bool &value)
{
    if (!json.isBool())
        return false;
    value = json.toBool();
    return true;
}

bool fromJson(const QJsonValue &json, qint64 &value)
{
    // toInteger answers its default for fractions and for doubles beyond 64 bits; two different defaults distinguish
    // that from a value.
    if (!json.isDouble() || json.toInteger(0) != json.toInteger(1))
        return false;
    value = json.toInteger();
    return true;
}

bool fromJson(const QJsonValue &json, qint32 &value)
{
    qint64 wide = 0;
    if (!fromJson(json, wide) || wide < std::numeric_limits<qint32>::min() ||
        wide > std::numeric_limits<qint32>::max()) {
        return false;
    }
    value = static_cast<qint32>(wide);
    return true;
}

bool fromJson(const QJsonValue &json, QString &value)
{
    if (!json.isString())
        return false;
    value = json.toString();
    return true;
}

bool fromJson(const QJsonValue &json, QStringList &value)
{
    if (!json.isArray())
        return false;
    QStringList read;
    const QJsonArray array = json.toArray();
    for (const QJsonValue &item : array) {
        if (!item.isString())
            return false;
        read.append(item.toString());
    }
    value = read;
    return true;
}

bool fromJson(const QJsonValue &json, QList<ScanLocation> &value)
{
    return readRecords(json, value);
}

bool fromJson(const QJsonValue &json, QList<TagEntry> &value)
{
    return readRecords(json, value);
}

QString jsonTypeName(bool)
{
    return QStringLiteral("true or false");
}

QString jsonTypeName(qint32)
{
    return QStringLiteral("a 32-bit integer");
}

QString jsonTypeName(qint64)
{
    return QStringLiteral("an integer");
}

QString jsonTypeName(const QString &)
{
    return QStringLiteral("a string");
}

QString jsonTypeName(const QStringList &)
{
    return QStringLiteral("a list of strings");
}

QString jsonTypeName(const QList<ScanLocation> &)
{
    return QStringLiteral("a list of objects with path, includeSubfolders, findKind, showRemaining");
}

QString jsonTypeName(const QList<TagEntry> &)
{
    return QStringLiteral("a list of objects with name, enabled");
}

} // namespace MirrixCore
