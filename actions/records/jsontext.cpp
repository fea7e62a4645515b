#include "actions/records/jsontext.h"

#include <QJsonDocument>

namespace Mirrix {

namespace {

bool isEscaped(QChar unit)
{
    return unit < u' ' || unit == u'"' || unit == u'\\';
}

void appendEscape(QByteArray &out, QChar unit)
{
    if (unit == u'"' || unit == u'\\')
        out.append('\\').append(static_cast<char>(unit.unicode()));
    else
        out.append("\\u").append(QByteArray::number(unit.unicode(), 16).rightJustified(4, '0'));
}

/// Most texts are ASCII without anything to escape. False, with nothing appended, for another.
bool appendPlain(QByteArray &out, const QString &text)
{
    const qsizetype begin = out.size();
    out.resize(begin + text.size());
    char *at = out.data() + begin;
    for (const QChar unit : text) {
        if (unit > u'~' || isEscaped(unit)) {
            out.truncate(begin);
            return false;
        }
        *at++ = static_cast<char>(unit.unicode());
    }
    return true;
}

} // namespace

void appendJsonText(QByteArray &out, const QString &text)
{
    out.append('"');
    if (!appendPlain(out, text)) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar unit = text[i];
            const bool isPair = unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
            if (isEscaped(unit) || (unit.isSurrogate() && !isPair))
                appendEscape(out, unit);
            else
                out.append(QStringView(text).sliced(i, isPair ? 2 : 1).toUtf8());
            i += isPair ? 1 : 0;
        }
    }
    out.append('"');
}

JsonPieces &JsonPieces::add(const QString &text)
{
    separate();
    appendJsonText(m_text, text);
    return *this;
}

JsonPieces &JsonPieces::add(qint64 number)
{
    separate();
    m_text.append(QByteArray::number(number));
    return *this;
}

JsonPieces &JsonPieces::addMembers(const QJsonObject &object)
{
    if (object.isEmpty())
        return *this;
    separate();
    m_text.append(QJsonDocument(object).toJson(QJsonDocument::Compact).sliced(1).chopped(1));
    return *this;
}

void JsonPieces::separate()
{
    if (!m_isFirst)
        m_text.append(',');
    m_isFirst = false;
}

} // namespace Mirrix
