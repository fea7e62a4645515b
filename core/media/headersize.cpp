#include "core/media/headersize.h"

#include <QRegularExpression>
#include <QtEndian>

#include <algorithm>
#include <limits>

namespace MirrixCore {

namespace {

constexpr qsizetype headBytes = 64 * 1024;

/// The number at `offset`; 0 where there is none.
template <typename Number, Number (*read)(const void *)>
qint64 numberAt(const QByteArray &bytes, qsizetype offset)
{
    const bool isInside = offset >= 0 && offset + qsizetype(sizeof(Number)) <= bytes.size();
    return isInside ? qint64(read(bytes.constData() + offset)) : 0;
}

constexpr auto bigAt = numberAt<quint32, qFromBigEndian<quint32>>;
constexpr auto littleAt = numberAt<qint32, qFromLittleEndian<qint32>>;
constexpr auto bigShortAt = numberAt<quint16, qFromBigEndian<quint16>>;
constexpr auto littleShortAt = numberAt<quint16, qFromLittleEndian<quint16>>;

/// Invalid unless both sides are at least 1; what no decoder could hold is cut to the largest number.
QSize sizeFrom(qint64 width, qint64 height)
{
    constexpr qint64 most = std::numeric_limits<int>::max();
    return width < 1 || height < 1 ? QSize() : QSize(int(std::min(width, most)), int(std::min(height, most)));
}

/// Of the canvas, or of the only picture with loss or without.
QSize webpSize(const QByteArray &head)
{
    constexpr qint64 low14 = 0x3FFF;
    constexpr qint64 low24 = 0xFFFFFF;
    constexpr qsizetype leastBytes =
        30; // the shortest sort of such a file may end earlier, but decodes to nothing large
    const QByteArray kind = head.mid(12, 4);
    if (head.size() < leastBytes)
        return {};
    if (kind == "VP8X")
        return sizeFrom((littleAt(head, 24) & low24) + 1, (littleAt(head, 26) >> 8 & low24) + 1);
    if (kind == "VP8L")
        return sizeFrom((littleAt(head, 21) & low14) + 1, (littleAt(head, 21) >> 14 & low14) + 1);
    return sizeFrom(littleShortAt(head, 26) & low14, littleShortAt(head, 28) & low14);
}

/// Of the first picture in the file.
QSize tiffSize(const QByteArray &bytes)
{
    constexpr qint64 widthTag = 256;
    constexpr qint64 heightTag = 257;
    constexpr qint64 shortType = 3;
    constexpr qsizetype fieldBytes = 12;
    const bool isLittle = bytes.startsWith("II");
    const auto shortAt = isLittle ? littleShortAt : bigShortAt;
    const auto longAt = isLittle ? numberAt<quint32, qFromLittleEndian<quint32>> : bigAt;
    const qsizetype folder = longAt(bytes, 4);
    QSize size;
    for (qsizetype i = 0; i < shortAt(bytes, folder); ++i) {
        const qsizetype field = folder + 2 + i * fieldBytes;
        const qint64 tag = shortAt(bytes, field);
        const qint64 value =
            shortAt(bytes, field + 2) == shortType ? shortAt(bytes, field + 8) : longAt(bytes, field + 8);
        if (tag == widthTag)
            size.setWidth(sizeFrom(value, 1).width());
        else if (tag == heightTag)
            size.setHeight(sizeFrom(1, value).height());
    }
    return size;
}

/// Of the codestream, which may lie inside other boxes: outer size less offset.
QSize jpeg2000Size(const QByteArray &head)
{
    const qsizetype at = head.indexOf(QByteArray("\xFF\x4F\xFF\x51"));
    return at < 0 ? QSize()
                  : sizeFrom(bigAt(head, at + 8) - bigAt(head, at + 16), bigAt(head, at + 12) - bigAt(head, at + 20));
}

QSize openExrSize(const QByteArray &head)
{
    const QByteArray window("dataWindow\0box2i\0", 17);
    const qsizetype found = head.indexOf(window);
    const qsizetype at = found + window.size() + 4;
    return found < 0 ? QSize()
                     : sizeFrom(littleAt(head, at + 8) - littleAt(head, at) + 1,
                                littleAt(head, at + 12) - littleAt(head, at + 4) + 1);
}

/// Two numbers that a text names as its width and height.
QSize sizeInText(const QByteArray &head, const QString &pattern)
{
    const QRegularExpressionMatch match = QRegularExpression(pattern).match(QString::fromLatin1(head));
    return sizeFrom(match.captured(QStringLiteral("w")).toLongLong(), match.captured(QStringLiteral("h")).toLongLong());
}

} // namespace

HeaderSize headerSizeOf(const QByteArray &bytes)
{
    const QByteArray head = bytes.first(std::min(headBytes, bytes.size()));
    if (head.startsWith("RIFF") && head.mid(8, 4) == "WEBP")
        return {true, webpSize(head)};
    if (head.startsWith(QByteArray("II*\0", 4)) || head.startsWith(QByteArray("MM\0*", 4)))
        return {true, tiffSize(bytes)};
    if (head.startsWith(QByteArray("II+\0", 4)) || head.startsWith(QByteArray("MM\0+", 4)))
        return {true, {}}; // for more than 4 GiB
    if (head.mid(4, 8) == "ftypavif")
        return {true, {}};
    if (head.startsWith(QByteArray("\0\0\0\x0CjP  ", 8)) || head.startsWith("\xFF\x4F\xFF\x51"))
        return {true, jpeg2000Size(head)};
    if (head.startsWith("\x76\x2F\x31\x01"))
        return {true, openExrSize(head)};
    if (head.startsWith("\x59\xA6\x6A\x95"))
        return {true, sizeFrom(bigAt(head, 4), bigAt(head, 8))};
    if (head.startsWith("#?R"))
        return {true, sizeInText(head, QStringLiteral("[-+]Y\\s+(?<h>\\d+)\\s+[-+]X\\s+(?<w>\\d+)"))};
    if (head.startsWith("PF") || head.startsWith("Pf"))
        return {true, sizeInText(head, QStringLiteral("^P[Ff]\\s+(?<w>\\d+)\\s+(?<h>\\d+)"))};
    if (head.startsWith("P7"))
        return {true, sizeInText(head, QStringLiteral("WIDTH\\s+(?<w>\\d+)\\s+HEIGHT\\s+(?<h>\\d+)"))};
    return {};
}

} // namespace MirrixCore
