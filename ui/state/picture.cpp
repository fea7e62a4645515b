#include "ui/state/picture.h"

#include "app/text.h"
#include "core/media/decodebudget.h"
#include "core/media/mediakinds.h"
#include "core/media/rawfile.h"
#include "core/platform/pathtext.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

namespace Mirrix {

namespace {

bool exceedsLimit(QSize size)
{
    constexpr qint64 bytesPerPixel = 4;
    constexpr qint64 mega = 1024 * 1024;
    const int limit = QImageReader::allocationLimit();
    return limit > 0 && qint64(size.width()) * size.height() * bytesPerPixel > limit * mega;
}

/// A RAW file's picture in a format that Qt reads, opened.
bool openRaw(const QString &path, QBuffer &encoded)
{
    QByteArray bytes = MirrixCore::embeddedPreview(path);
    if (bytes.isEmpty())
        bytes = MirrixCore::developedRaw(path);
    encoded.setData(bytes);
    return !bytes.isEmpty() && encoded.open(QIODevice::ReadOnly);
}

/// The memory that decoding takes. Drawings are drawn at the size asked for; Qt itself keeps to its limit where the
/// size is not known before.
qint64 neededBytes(const QImageReader &reader, QSize size)
{
    constexpr qint64 mega = 1024 * 1024;
    if (!size.isValid())
        return QImageReader::allocationLimit() * mega;
    const bool isDrawing = reader.format().startsWith("svg");
    return MirrixCore::decodingBytes(isDrawing && reader.scaledSize().isValid() ? reader.scaledSize() : size);
}

Picture readFrom(QIODevice *device, QSize bounds)
{
    QImageReader reader(device);
    reader.setDecideFormatFromContent(true); // the suffix may be wrong
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (reader.transformation().testFlag(QImageIOHandler::TransformationRotate90))
        bounds.transpose();
    if (size.isValid() && (size.width() > bounds.width() || size.height() > bounds.height()))
        // A very narrow picture would be scaled to a side of 0.
        reader.setScaledSize(size.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const MirrixCore::DecodeShare memory(neededBytes(reader, size));
    const QImage image = memory.isGranted() ? reader.read() : QImage();
    if (!image.isNull())
        return {image, Picture::Problem::None};
    return {{}, !memory.isGranted() || exceedsLimit(size) ? Picture::Problem::TooLarge : Picture::Problem::Unreadable};
}

} // namespace

Picture readPicture(const QString &path, QSize bounds)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.exists() ? Picture::Problem::Unreadable : Picture::Problem::Missing};
    QBuffer encoded;
    if (MirrixCore::isRawFile(path) && openRaw(path, encoded))
        return readFrom(&encoded, bounds);
    return readFrom(&file, bounds);
}

bool isPicture(const QString &path)
{
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    return formats.contains(MirrixCore::suffixOf(path).toLatin1()) || MirrixCore::isRawFile(path);
}

QString problemText(Picture::Problem problem)
{
    switch (problem) {
    case Picture::Problem::Missing:
        return Text::tr("文件已不存在或无法访问");
    case Picture::Problem::TooLarge:
        return Text::tr("图片过大，无法预览");
    case Picture::Problem::Unreadable:
        return Text::tr("无法读取此图片");
    case Picture::Problem::None:
        break;
    }
    return {};
}

} // namespace Mirrix
