#include "actions/records/jsontext.h"

#include <algorithm>

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

} // namespace

void appendJsonText(QByteArray &out, const QString &text)
{
    out.append('"');
    if (std::none_of(text.begin(), text.end(), isEscaped) && text.isValidUtf16()) {
        out.append(text.toUtf8());
    } else {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar unit = text[i];
            const bool isPair = unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
            if (isEscaped(unit) || (unit.isSurrogate() && !isPair))
                appendEscape(out, unit);
            else
                out.append(text.mid(i, isPair ? 2 : 1).toUtf8());
            i += isPair ? 1 : 0;
        }
    }
    out.append('"');
}

} // namespace Mirrix
