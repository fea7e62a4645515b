#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace MirrixCore {

/// Encodes UTF-16 as UTF-8, handing each lone surrogate to `writeLone(char16_t, QByteArray &)`, which appends what
/// represents it.
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

/// Decodes valid UTF-8 to the letter. QString::fromUtf8 takes a byte order mark off the front, but in a name it counts.
inline QString decodeWholeUtf8(QByteArrayView bytes)
{
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    qsizetype marks = 0;
    while (bytes.sliced(marks * mark.size()).startsWith(mark))
        ++marks;
    const QString rest = QString::fromUtf8(bytes.sliced(marks * mark.size()));
    return marks == 0 ? rest : QString(marks, QChar(0xFEFF)) + rest;
}

} // namespace MirrixCore
