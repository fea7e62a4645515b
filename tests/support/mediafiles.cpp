#include "tests/support/mediafiles.h"

#include <QtEndian>

#include <algorithm>

namespace MirrixTest {

namespace {

template <typename Number>
QByteArray little(Number number)
{
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template <typename Number>
QByteArray big(Number number)
{
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray atom(const QByteArray &name, const QByteArray &content)
{
    return big(static_cast<quint32>(content.size() + 8)) + name + content;
}

QByteArray textAtom(const QByteArray &name, const QByteArray &text)
{
    return atom(name, atom("data", big(quint32(1)) + big(quint32(0)) + text));
}

} // namespace

TiffField tiffText(quint16 tag, const QByteArray &text)
{
    return {tag, 2, static_cast<quint32>(text.size() + 1), text + '\0'};
}

TiffField tiffBytes(quint16 tag, const QByteArray &bytes, quint16 type)
{
    return {tag, type, static_cast<quint32>(bytes.size()), bytes};
}

TiffField tiffShorts(quint16 tag, const QList<quint16> &numbers)
{
    TiffField field{tag, 3, static_cast<quint32>(numbers.size()), {}};
    for (const quint16 number : numbers)
        field.data += little(number);
    return field;
}

TiffField tiffLong(quint16 tag, quint32 number)
{
    return {tag, 4, 1, little(number)};
}

TiffField tiffRationals(quint16 tag, const QList<std::pair<quint32, quint32>> &numbers)
{
    TiffField field{tag, 5, static_cast<quint32>(numbers.size()), {}};
    for (const auto &[numerator, denominator] : numbers)
        field.data += little(numerator) + little(denominator);
    return field;
}

TiffFile::TiffFile()
    : m_bytes(QByteArray("II*\0", 4) + QByteArray(4, '\0'))
{}

quint32 TiffFile::add(const QByteArray &data)
{
    const auto offset = static_cast<quint32>(m_bytes.size());
    m_bytes += data + QByteArray(data.size() % 2, '\0');
    return offset;
}

quint32 TiffFile::addFolder(QList<TiffField> fields)
{
    std::sort(fields.begin(), fields.end(), [](const auto &a, const auto &b) { return a.tag < b.tag; });
    QByteArray folder = little(static_cast<quint16>(fields.size()));
    for (const TiffField &field : fields) {
        folder += little(field.tag) + little(field.type) + little(field.count);
        folder += field.data.size() > 4 ? little(add(field.data)) : field.data.leftJustified(4, '\0');
    }
    return add(folder + QByteArray(4, '\0'));
}

QByteArray TiffFile::finished(const QList<TiffField> &fields)
{
    const quint32 offset = addFolder(fields);
    return m_bytes.replace(4, 4, little(offset));
}

QByteArray withExif(const QByteArray &jpeg, const QByteArray &tiff)
{
    const QByteArray block = QByteArray("Exif\0\0", 6) + tiff;
    return jpeg.first(2) + "\xFF\xE1" + big(static_cast<quint16>(block.size() + 2)) + block + jpeg.sliced(2);
}

QByteArray dngFile(const QByteArray &preview, int previewWidth, int previewHeight)
{
    constexpr int width = 256;
    constexpr int height = 192;
    QByteArray pixels;
    for (int i = 0; i < width * height; ++i)
        pixels += little(static_cast<quint16>(i % width * 256));
    TiffFile file;
    const quint32 raw = file.addFolder({
        tiffLong(254, 0),
        tiffLong(256, width),
        tiffLong(257, height),
        tiffShorts(258, {16}),
        tiffShorts(259, {1}),     // not compressed
        tiffShorts(262, {32803}), // colour filters
        tiffLong(273, file.add(pixels)),
        tiffShorts(277, {1}),
        tiffLong(278, height),
        tiffLong(279, static_cast<quint32>(pixels.size())),
        tiffShorts(0x828D, {2, 2}),
        tiffBytes(0x828E, QByteArray("\0\1\1\2", 4)),
        tiffLong(0xC61D, 65535),
    });
    return file.finished({
        tiffLong(254, 1),
        tiffLong(256, static_cast<quint32>(previewWidth)),
        tiffLong(257, static_cast<quint32>(previewHeight)),
        tiffShorts(258, {8, 8, 8}),
        tiffShorts(259, {7}), // JPEG
        tiffShorts(262, {6}),
        tiffText(271, "Maker"),
        tiffText(272, "Model 5"),
        tiffLong(273, file.add(preview)),
        tiffShorts(277, {3}),
        tiffLong(278, static_cast<quint32>(previewHeight)),
        tiffLong(279, static_cast<quint32>(preview.size())),
        tiffText(306, "2021:03:04 05:06:07"),
        tiffLong(330, raw),
        tiffBytes(0xC612, QByteArray("\1\4\0\0", 4)),
        tiffText(0xC614, "Maker Model 5"),
    });
}

QByteArray wavFile(int milliseconds)
{
    constexpr quint32 rate = 8000;
    const QByteArray samples(static_cast<qsizetype>(milliseconds) * rate / 1000 * 2, '\0');
    const QByteArray format = little(quint16(1)) + little(quint16(1)) + little(rate) + little(rate * 2) +
                              little(quint16(2)) + little(quint16(16));
    const QByteArray content = "WAVEfmt " + little(static_cast<quint32>(format.size())) + format + "data" +
                               little(static_cast<quint32>(samples.size())) + samples;
    return "RIFF" + little(static_cast<quint32>(content.size())) + content;
}

QByteArray mp4File(quint32 milliseconds, const QByteArray &title, const QByteArray &date)
{
    const QByteArray length = QByteArray(12, '\0') + big(quint32(1000)) + big(milliseconds);
    const QByteArray header =
        length + big(quint32(0x10000)) + big(quint16(0x100)) + QByteArray(70, '\0') + big(quint32(1));
    const QByteArray trackHeader = big(quint32(1)) + QByteArray(8, '\0') + big(quint32(1)) + QByteArray(4, '\0') +
                                   big(milliseconds) + QByteArray(60, '\0');
    const QByteArray media =
        atom("mdhd", length + QByteArray(4, '\0')) + atom("hdlr", QByteArray(8, '\0') + "vide" + QByteArray(13, '\0'));
    const QByteArray track = atom("trak", atom("tkhd", trackHeader) + atom("mdia", media));
    const QByteArray handler = QByteArray(8, '\0') + "mdirappl" + QByteArray(9, '\0');
    const QByteArray items = atom("ilst", textAtom("\xA9nam", title) + textAtom("\xA9"
                                                                                "day",
                                                                                date));
    const QByteArray meta = atom("meta", QByteArray(4, '\0') + atom("hdlr", handler) + items);
    return atom("ftyp", "isom" + QByteArray(4, '\0') + "isom") + atom("mdat", QByteArray(64, '\0')) +
           atom("moov", atom("mvhd", header) + track + atom("udta", meta));
}

} // namespace MirrixTest
