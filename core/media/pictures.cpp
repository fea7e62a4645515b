#include "core/media/pictures.h"

#include "core/media/mediakinds.h"
#include "core/media/quietdecoding.h"
#include "core/media/rawfile.h"
#include "core/platform/filereader.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace MirrixCore {

namespace {

constexpr qint64 mostFileBytes = qint64(1) << 30; // which are held in memory

} // namespace

PictureBytes readPicture(const QString &path, bool useRawPreview, const CancelQuery &cancelled)
{
    PictureBytes picture;
    FileReader reader;
    if (!reader.open(path) || !reader.readState() || reader.sizeBytes() > mostFileBytes)
        return picture;
    if (isRawFile(path)) {
        picture.bytes = useRawPreview ? embeddedPreview(path) : QByteArray();
        if (picture.bytes.isEmpty())
            picture.bytes = developedRaw(path, cancelled);
    }
    if (picture.bytes.isEmpty()) {
        picture.bytes.resize(reader.sizeBytes());
        const qint64 count = reader.readAt(0, picture.bytes.data(), picture.bytes.size());
        picture.bytes.truncate(std::max<qint64>(count, 0));
    }
    if (reader.isUnchanged()) {
        picture.sizeBytes = reader.sizeBytes();
        picture.modifiedMs = reader.modifiedMs();
    }
    return picture;
}

QSize pictureSize(const QByteArray &bytes)
{
    const QuietDecoding quiet;
    QBuffer buffer;
    buffer.setData(bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return {};
    return QImageReader(&buffer).size();
}

QSize pictureSizeOfFile(const QString &path)
{
    if (isRawFile(path)) {
        const QSize size = rawSize(path);
        if (size.isValid())
            return size;
    }
    constexpr qint64 headBytes = 256 * 1024; // holds nearly every head, even with a thumbnail in it
    const QByteArray head = readHead(path, headBytes);
    const QSize size = pictureSize(head);
    return size.isValid() || head.size() < headBytes ? size : pictureSize(readHead(path, mostFileBytes));
}

QByteArray readHead(const QString &path, qint64 mostBytes)
{
    FileReader reader;
    if (!reader.open(path) || !reader.readState())
        return {};
    QByteArray bytes(std::min(mostBytes, reader.sizeBytes()), Qt::Uninitialized);
    const qint64 count = reader.readAt(0, bytes.data(), bytes.size());
    bytes.truncate(std::max<qint64>(count, 0));
    return bytes;
}

} // namespace MirrixCore
