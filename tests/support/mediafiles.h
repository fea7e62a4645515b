#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <utility>

namespace MirrixTest {

// Media files made from their formats' definitions, so that tests know every byte of what readers are to find.

/// A field of a TIFF folder.
struct TiffField
{
    quint16 tag;
    quint16 type;
    quint32 count;
    QByteArray data;
};

[[nodiscard]] TiffField tiffText(quint16 tag, const QByteArray &text);
[[nodiscard]] TiffField tiffBytes(quint16 tag, const QByteArray &bytes, quint16 type = 1);
[[nodiscard]] TiffField tiffShorts(quint16 tag, const QList<quint16> &numbers);
[[nodiscard]] TiffField tiffLong(quint16 tag, quint32 number);
[[nodiscard]] TiffField tiffRationals(quint16 tag, const QList<std::pair<quint32, quint32>> &numbers);

/// A little-endian TIFF file, put together from its end: adding something returns the offset to refer to it by.
class TiffFile
{
public:
    TiffFile();

    [[nodiscard]] quint32 add(const QByteArray &data);
    [[nodiscard]] quint32 addFolder(QList<TiffField> fields);

    /// The file, whose first folder is this one.
    [[nodiscard]] QByteArray finished(const QList<TiffField> &fields);

private:
    QByteArray m_bytes;
};

/// A JPEG file with an EXIF block put in.
[[nodiscard]] QByteArray withExif(const QByteArray &jpeg, const QByteArray &tiff);

/// A RAW file of 256 x 192 grey pixels that show a ramp to the right, with `preview` embedded.
[[nodiscard]] QByteArray dngFile(const QByteArray &preview, int previewWidth, int previewHeight);

/// Silence: 16 bits, one channel, 8000 samples a second.
[[nodiscard]] QByteArray wavFile(int milliseconds);

/// An MP4 file with a track without pictures, a title and a date.
[[nodiscard]] QByteArray mp4File(quint32 milliseconds, const QByteArray &title, const QByteArray &date);

} // namespace MirrixTest
