#include "core/media/rawfile.h"

#include "core/media/decodebudget.h"
#include "core/media/mediafacts.h"
#include "core/platform/nativepath.h"

#include <QDateTime>

#include <libraw/libraw.h>

#include <filesystem>
#include <memory>

namespace MirrixCore {

namespace {

QByteArray pixmap(int colours, int width, int height, const void *data, size_t length)
{
    if ((colours != 1 && colours != 3) || length != static_cast<size_t>(colours) * size_t(width) * size_t(height))
        return {};
    const char *kind = colours == 3 ? "P6" : "P5";
    return QByteArray(kind) + ' ' + QByteArray::number(width) + ' ' + QByteArray::number(height) + " 255\n" +
           QByteArray(static_cast<const char *>(data), static_cast<qsizetype>(length));
}

/// An open RAW file; the library's object is too large for a stack.
std::unique_ptr<LibRaw> opened(const QString &path)
{
    auto raw = std::make_unique<LibRaw>();
    raw->set_dataerror_handler(nullptr, nullptr); // else it writes to standard error
    const bool isOpen = raw->open_file(filesystemPath(path).c_str()) == LIBRAW_SUCCESS;
    return isOpen ? std::move(raw) : nullptr;
}

double degreesFrom(const float (&parts)[3], char reference, char negative)
{
    const double degrees = double(parts[0]) + double(parts[1]) / 60 + double(parts[2]) / 3600;
    return reference == negative ? -degrees : degrees;
}

void readPosition(const libraw_gps_info_t &gps, FileEntry &entry)
{
    if (entry.hasGps || !gps.gpsparsed || gps.latref == 0 || gps.longref == 0)
        return;
    setPosition(entry, degreesFrom(gps.latitude, gps.latref, 'S'), degreesFrom(gps.longitude, gps.longref, 'W'));
}

void readExposure(const LibRaw &raw, FileEntry &entry)
{
    const libraw_imgother_t &other = raw.imgdata.other;
    addTag(entry, Tag::lens, QString::fromUtf8(raw.imgdata.lens.Lens));
    addTag(entry, Tag::iso, shortNumber(other.iso_speed));
    addTag(entry, Tag::aperture, shortNumber(other.aperture));
    addTag(entry, Tag::exposureTime, exposureText(other.shutter));
    addTag(entry, Tag::focalLength, shortNumber(other.focal_len));
    addTag(entry, Tag::software, QString::fromUtf8(raw.imgdata.idata.software));
}

} // namespace

QByteArray embeddedPreview(const QString &path)
{
    const std::unique_ptr<LibRaw> raw = opened(path);
    if (!raw || raw->unpack_thumb() != LIBRAW_SUCCESS || !raw->imgdata.thumbnail.thumb)
        return {};
    const libraw_thumbnail_t &preview = raw->imgdata.thumbnail;
    if (preview.tformat == LIBRAW_THUMBNAIL_JPEG)
        return {preview.thumb, static_cast<qsizetype>(preview.tlength)};
    return preview.tformat == LIBRAW_THUMBNAIL_BITMAP
               ? pixmap(preview.tcolors, preview.twidth, preview.theight, preview.thumb, preview.tlength)
               : QByteArray();
}

QByteArray developedRaw(const QString &path, const CancelQuery &cancelled)
{
    const std::unique_ptr<LibRaw> raw = opened(path);
    if (!raw)
        return {};
    const DecodeShare memory(decodingBytes({raw->imgdata.sizes.raw_width, raw->imgdata.sizes.raw_height}), cancelled);
    if (!memory.isGranted())
        return {};
    raw->imgdata.params.half_size = 1;
    raw->imgdata.params.use_camera_wb = 1;
    raw->imgdata.params.output_bps = 8;
    if (raw->unpack() != LIBRAW_SUCCESS || raw->dcraw_process() != LIBRAW_SUCCESS)
        return {};
    const std::unique_ptr<libraw_processed_image_t, decltype(&LibRaw::dcraw_clear_mem)> image(
        raw->dcraw_make_mem_image(), &LibRaw::dcraw_clear_mem);
    if (!image || image->type != LIBRAW_IMAGE_BITMAP || image->bits != 8)
        return {};
    return pixmap(image->colors, image->width, image->height, image->data, image->data_size);
}

QSize rawSize(const QString &path)
{
    const std::unique_ptr<LibRaw> raw = opened(path);
    return raw ? QSize(raw->imgdata.sizes.width, raw->imgdata.sizes.height) : QSize();
}

void readRawFacts(FileEntry &entry, bool withTags)
{
    const std::unique_ptr<LibRaw> raw = opened(entry.path);
    if (!raw)
        return;
    setSize(entry, QSize(raw->imgdata.sizes.width, raw->imgdata.sizes.height));
    setIfEmpty(entry.cameraMake, QString::fromUtf8(raw->imgdata.idata.make));
    setIfEmpty(entry.cameraModel, QString::fromUtf8(raw->imgdata.idata.model));
    setIfEmpty(entry.album, QString::fromUtf8(raw->imgdata.other.desc));
    if (raw->imgdata.other.timestamp > 0)
        setShotTime(entry, QDateTime::fromSecsSinceEpoch(raw->imgdata.other.timestamp));
    readPosition(raw->imgdata.other.parsed_gps, entry);
    if (withTags)
        readExposure(*raw, entry);
}

} // namespace MirrixCore
