#include "actions/records/logrecords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUtf8StringView>

#include <utility>

namespace Mirrix {

namespace {

/// A JSON string, quotes included. Qt's writer keeps lone surrogates of file names, which toUtf8 would lose.
QByteArray jsonText(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

/// Reads a text exactly as withLogRecords writes it. A log of years is recognised as whole in this way in a fraction of
/// the time that building all its values takes.
class OwnForm
{
public:
    explicit OwnForm(QByteArrayView text)
        : m_at(text.begin())
        , m_end(text.end())
    {}

    [[nodiscard]] bool isArray()
    {
        if (!take("["))
            return false;
        bool isMore = !take("]");
        const bool isEmpty = !isMore;
        while (isMore) {
            if (!isRecord())
                return false;
            isMore = take(",");
        }
        return (isEmpty || take("]")) && m_at == m_end;
    }

private:
    [[nodiscard]] bool isRecord()
    {
        return take("{\"t\":") && isNumber() && take(",\"a\":") && isString() && take(",\"d\":") && isString() &&
               take("}");
    }

    [[nodiscard]] bool isNumber()
    {
        take("-");
        const char *begin = m_at;
        while (m_at != m_end && *m_at >= '0' && *m_at <= '9')
            ++m_at;
        return m_at != begin && (*begin != '0' || m_at - begin == 1);
    }

    [[nodiscard]] bool isString()
    {
        if (!take("\""))
            return false;
        for (; m_at != m_end; ++m_at) {
            if (*m_at == '"') {
                ++m_at;
                return true;
            }
            if (static_cast<unsigned char>(*m_at) < 0x20 || (*m_at == '\\' && !isEscape()))
                return false;
        }
        return false;
    }

    /// Stops at the escape's last character.
    [[nodiscard]] bool isEscape()
    {
        if (++m_at == m_end)
            return false;
        if (*m_at != 'u')
            return QByteArrayView("\"\\/bfnrt").contains(*m_at);
        for (int digit = 0; digit < 4; ++digit) {
            if (++m_at == m_end || !QByteArrayView("0123456789abcdefABCDEF").contains(*m_at))
                return false;
        }
        return true;
    }

    bool take(QByteArrayView expected)
    {
        if (!QByteArrayView(m_at, m_end).startsWith(expected))
            return false;
        m_at += expected.size();
        return true;
    }

    const char *m_at;
    const char *m_end;
};

bool isArray(const QByteArray &text)
{
    return (OwnForm(text).isArray() && QUtf8StringView(text).isValidUtf8()) || QJsonDocument::fromJson(text).isArray();
}

} // namespace

QList<LogEntry> logRecordsOf(const QByteArray &text)
{
    QList<LogEntry> records;
    const QJsonArray items = QJsonDocument::fromJson(text).array();
    for (const QJsonValue &item : items)
        records.append({item[QLatin1String("t")].toInteger(), item[QLatin1String("a")].toString(),
                        item[QLatin1String("d")].toString()});
    return records;
}

QByteArray withLogRecords(QByteArray text, const QList<LogEntry> &records)
{
    if (isArray(text)) {
        text.truncate(text.lastIndexOf(']'));
        text = std::move(text).trimmed();
    } else {
        text = "[";
    }
    for (const LogEntry &record : records) {
        if (!text.endsWith('['))
            text += ',';
        text += "{\"t\":" + QByteArray::number(record.timeMs) + ",\"a\":" + jsonText(record.action) +
                ",\"d\":" + jsonText(record.detail) + '}';
    }
    text += ']';
    return text;
}

} // namespace Mirrix
