#pragma once

#include <QByteArray>
#include <QString>

namespace MirrixCore {

/// Encodes UTF-16 as UTF-8, handing each lone surrogate to `writeLone(char16_t, QByteArray &)`, which appends what
/// stands for it.
template <typename WriteLone>
QByteArray encodeWithSurrogates(const QString &text, WriteLone writeLone)
{
    const QByteArray plain = text.toUtf8();
    if (text.isValidUtf16())
        return plain;
    QByteArray bytes;
    bytes.reserve(plain.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        const bool isPair = unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (unit.isSurrogate() && !isPair) {
            writeLone(char16_t(unit.unicode()), bytes);
        } else {
            bytes += text.mid(i, isPair ? 2 : 1).toUtf8();
            i += isPair ? 1 : 0;
        }
    }
    return bytes;
}

} // namespace MirrixCore
