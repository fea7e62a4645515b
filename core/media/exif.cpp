#include "core/media/exif.h"

#include "core/media/mediafacts.h"

#include <libexif/exif-data.h>

#include <array>
#include <memory>

namespace MirrixCore {

namespace {

using Exif = std::unique_ptr<ExifData, decltype(&exif_data_unref)>;

Exif exifIn(const QByteArray &head)
{
    const bool isTiff = head.startsWith(QByteArray("II*\0", 4)) || head.startsWith(QByteArray("MM\0*", 4));
    const QByteArray block = isTiff ? QByteArray("Exif\0\0", 6) + head : head;
    const auto *bytes = reinterpret_cast<const unsigned char *>(block.constData());
    return {exif_data_new_from_data(bytes, static_cast<unsigned>(block.size())), &exif_data_unref};
}

const ExifEntry *entryOf(const Exif &exif, ExifIfd folder, int tag)
{
    return exif_content_get_entry(exif->ifd[folder], static_cast<ExifTag>(tag));
}

/// A text as the file has it. It should be ASCII, cameras write UTF-8.
QString textOf(const Exif &exif, ExifIfd folder, ExifTag tag)
{
    const ExifEntry *entry = entryOf(exif, folder, tag);
    if (!entry || entry->format != EXIF_FORMAT_ASCII || !entry->data)
        return {};
    const QByteArray bytes(reinterpret_cast<const char *>(entry->data), static_cast<qsizetype>(entry->size));
    return QString::fromUtf8(bytes.left(bytes.indexOf('\0'))).trimmed();
}

/// The comment names its own character set, which the library takes off.
QString commentOf(const Exif &exif)
{
    ExifEntry *entry = exif_content_get_entry(exif->ifd[EXIF_IFD_EXIF], EXIF_TAG_USER_COMMENT);
    std::array<char, 2048> text{};
    return entry && exif_entry_get_value(entry, text.data(), text.size()) ? QString::fromUtf8(text.data()) : QString();
}

/// The number at `index` of a tag's numbers; below 0 when there is none.
double numberOf(const Exif &exif, ExifIfd folder, int tag, unsigned long index = 0)
{
    constexpr double none = -1;
    const ExifEntry *entry = entryOf(exif, folder, tag);
    if (!entry || !entry->data || index >= entry->components)
        return none;
    const ExifByteOrder order = exif_data_get_byte_order(exif.get());
    if (entry->format == EXIF_FORMAT_RATIONAL && entry->size >= (index + 1) * 8) {
        const ExifRational value = exif_get_rational(entry->data + index * 8, order);
        return value.denominator == 0 ? none : double(value.numerator) / value.denominator;
    }
    if (entry->format == EXIF_FORMAT_SHORT && entry->size >= (index + 1) * 2)
        return exif_get_short(entry->data + index * 2, order);
    return none;
}

QDateTime timeOf(const Exif &exif)
{
    const QString format = QStringLiteral("yyyy:MM:dd HH:mm:ss");
    for (const ExifTag tag : {EXIF_TAG_DATE_TIME_ORIGINAL, EXIF_TAG_DATE_TIME_DIGITIZED}) {
        const QDateTime time = QDateTime::fromString(textOf(exif, EXIF_IFD_EXIF, tag).left(19), format);
        if (time.isValid())
            return time;
    }
    return QDateTime::fromString(textOf(exif, EXIF_IFD_0, EXIF_TAG_DATE_TIME).left(19), format);
}

/// Degrees of one coordinate, beyond any coordinate when it is missing.
double degreesOf(const Exif &exif, int tag, int referenceTag, QChar negative)
{
    constexpr double none = 1000;
    const QString reference = textOf(exif, EXIF_IFD_GPS, static_cast<ExifTag>(referenceTag));
    const double degrees = numberOf(exif, EXIF_IFD_GPS, tag, 0);
    if (reference.isEmpty() || degrees < 0)
        return none;
    const double minutes = std::max(numberOf(exif, EXIF_IFD_GPS, tag, 1), 0.0);
    const double seconds = std::max(numberOf(exif, EXIF_IFD_GPS, tag, 2), 0.0);
    const double sum = degrees + minutes / 60 + seconds / 3600;
    return reference.startsWith(negative) ? -sum : sum;
}

void readTags(const Exif &exif, FileEntry &entry)
{
    addTag(entry, Tag::lens, textOf(exif, EXIF_IFD_EXIF, static_cast<ExifTag>(0xA434))); // younger than the library
    addTag(entry, Tag::iso, shortNumber(numberOf(exif, EXIF_IFD_EXIF, EXIF_TAG_ISO_SPEED_RATINGS)));
    addTag(entry, Tag::aperture, shortNumber(numberOf(exif, EXIF_IFD_EXIF, EXIF_TAG_FNUMBER)));
    addTag(entry, Tag::exposureTime, exposureText(numberOf(exif, EXIF_IFD_EXIF, EXIF_TAG_EXPOSURE_TIME)));
    addTag(entry, Tag::focalLength, shortNumber(numberOf(exif, EXIF_IFD_EXIF, EXIF_TAG_FOCAL_LENGTH)));
    addTag(entry, Tag::software, textOf(exif, EXIF_IFD_0, EXIF_TAG_SOFTWARE));
    addTag(entry, Tag::userComment, commentOf(exif));
}

} // namespace

void readExif(const QByteArray &head, FileEntry &entry, bool withTags)
{
    if (head.isEmpty())
        return;
    const Exif exif = exifIn(head);
    if (!exif)
        return;
    setIfEmpty(entry.cameraMake, textOf(exif, EXIF_IFD_0, EXIF_TAG_MAKE));
    setIfEmpty(entry.cameraModel, textOf(exif, EXIF_IFD_0, EXIF_TAG_MODEL));
    setIfEmpty(entry.album, textOf(exif, EXIF_IFD_0, EXIF_TAG_IMAGE_DESCRIPTION));
    setIfEmpty(entry.album, commentOf(exif));
    setShotTime(entry, timeOf(exif));
    setPosition(entry, degreesOf(exif, EXIF_TAG_GPS_LATITUDE, EXIF_TAG_GPS_LATITUDE_REF, QLatin1Char('S')),
                degreesOf(exif, EXIF_TAG_GPS_LONGITUDE, EXIF_TAG_GPS_LONGITUDE_REF, QLatin1Char('W')));
    if (withTags)
        readTags(exif, entry);
}

} // namespace MirrixCore
