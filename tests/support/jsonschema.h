#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace MirrixTest {

/// Checks a value against a JSON schema, as far as docs/scan.schema.json uses the language. A keyword that is not known
/// here is a fault, so that none is passed over.
class JsonSchema
{
public:
    explicit JsonSchema(const QJsonObject &root)
        : m_root(root)
    {}

    /// What is wrong with `value`, each with its place; empty when it is valid.
    [[nodiscard]] QStringList faults(const QJsonValue &value) const
    {
        QStringList faults;
        check(value, m_root, QStringLiteral("$"), faults);
        return faults;
    }

private:
    void check(const QJsonValue &value, const QJsonObject &schema, const QString &place, QStringList &faults) const
    {
        static const QStringList words = {QStringLiteral("$schema"), QStringLiteral("$defs"), QStringLiteral("title"),
                                          QStringLiteral("description")};
        for (auto it = schema.begin(); it != schema.end(); ++it) {
            if (!words.contains(it.key()) && !holds(it.key(), it.value(), value, schema, place, faults))
                faults.append(place + QLatin1String(": ") + it.key());
        }
    }

    bool holds(const QString &keyword, const QJsonValue &rule, const QJsonValue &value, const QJsonObject &schema,
               const QString &place, QStringList &faults) const
    {
        if (keyword == QLatin1String("$ref"))
            check(value, m_root[QLatin1String("$defs")][rule.toString().mid(8)].toObject(), place, faults);
        else if (keyword == QLatin1String("type"))
            return isOfType(value, rule.toString());
        else if (keyword == QLatin1String("const"))
            return value == rule;
        else if (keyword == QLatin1String("enum"))
            return rule.toArray().contains(value);
        else if (keyword == QLatin1String("minimum"))
            return value.toDouble() >= rule.toDouble();
        else if (keyword == QLatin1String("required"))
            return std::ranges::all_of(rule.toArray(),
                                       [&](auto name) { return !value[name.toString()].isUndefined(); });
        else if (keyword == QLatin1String("additionalProperties"))
            return std::ranges::all_of(value.toObject().keys(), [&](const QString &name) {
                return schema[QLatin1String("properties")].toObject().contains(name);
            });
        else if (keyword == QLatin1String("properties")) {
            for (const QString &name : value.toObject().keys())
                check(value[name], rule[name].toObject(), place + u'.' + name, faults);
        } else if (keyword == QLatin1String("items")) {
            for (qsizetype i = 0; i < value.toArray().size(); ++i)
                check(value[i], rule.toObject(), place + QStringLiteral("[%1]").arg(i), faults);
        } else
            return false;
        return true;
    }

    static bool isOfType(const QJsonValue &value, const QString &type)
    {
        if (type == QLatin1String("integer"))
            return value.toInteger(0) == value.toInteger(1) && value.isDouble();
        return type == QLatin1String("object")   ? value.isObject()
               : type == QLatin1String("array")  ? value.isArray()
               : type == QLatin1String("string") ? value.isString()
                                                 : type == QLatin1String("number") && value.isDouble();
    }

    QJsonObject m_root;
};

} // namespace MirrixTest
