#include "core/match/mediakeys.h"

#include <QDateTime>
#include <QTime>

#include <algorithm>
#include <cmath>

namespace MirrixCore {

namespace {

bool isOneOf(const QString &name, std::initializer_list<const char *> names)
{
    return std::any_of(names.begin(), names.end(), [&](const char *candidate) {
        return name.compare(QString::fromUtf8(candidate), Qt::CaseInsensitive) == 0;
    });
}

bool contains(const QString &name, const char *part)
{
    return name.contains(QString::fromUtf8(part), Qt::CaseInsensitive);
}

bool startsWith(const QString &name, const char *part)
{
    return name.startsWith(QString::fromUtf8(part), Qt::CaseInsensitive);
}

QString audioField(const FileEntry &entry, const QString &name)
{
    if (isOneOf(name, {"艺术家", "Artist"}))
        return entry.artist;
    if (isOneOf(name, {"标题", "Title"}))
        return entry.title;
    if (isOneOf(name, {"专辑", "Album"}))
        return entry.album;
    return startsWith(name, "Track") ? entry.track : QString();
}

QString videoField(const FileEntry &entry, const QString &name)
{
    if (isOneOf(name, {"标题", "Title"}))
        return entry.title;
    if (isOneOf(name, {"日期", "Date"}))
        return entry.dateTaken;
    return isOneOf(name, {"导演", "Director"}) ? entry.artist : QString();
}

QString imageField(const FileEntry &entry, const QString &name)
{
    if (startsWith(name, "Make") || contains(name, "品牌"))
        return entry.cameraMake;
    if (startsWith(name, "Model") || contains(name, "型号"))
        return entry.cameraModel;
    if (contains(name, "DateTime") || contains(name, "拍摄时间"))
        return entry.dateTaken;
    return contains(name, "User") || contains(name, "Description") ? entry.album : QString();
}

using FieldOf = QString (*)(const FileEntry &, const QString &);

QStringList tagParts(const QString &prefix, const QList<TagEntry> &tags, const FileEntry &entry, FieldOf fieldOf)
{
    QStringList parts;
    for (const TagEntry &tag : tags) {
        const QString value = tag.enabled == 1 ? fieldOf(entry, tag.name) : QString();
        if (!value.isEmpty())
            parts.append(prefix + QLatin1Char(':') + tag.name + QLatin1Char(':') + value);
    }
    return parts;
}

QString numberPart(const char *prefix, qint64 value)
{
    return QLatin1String(prefix) + QString::number(value);
}

/// Milliseconds of a tolerance written as a time of day; a second when it is no time.
qint64 videoTolerance(const QString &text)
{
    const QTime time = QTime::fromString(text, QStringLiteral("HH:mm:ss.zzz"));
    return time.isValid() ? std::max(time.msecsSinceStartOfDay(), 1) : 1000;
}

/// Below 1 when the text is no date.
qint64 shotTime(const QString &text)
{
    const QDateTime iso = QDateTime::fromString(text, Qt::ISODate);
    const qint64 ms = iso.isValid() ? iso.toMSecsSinceEpoch() : 0;
    if (ms >= 1)
        return ms;
    const QDateTime other = QDateTime::fromString(text, Qt::TextDate);
    return other.isValid() ? other.toMSecsSinceEpoch() : 0;
}

QStringList audioParts(const FileEntry &entry, const ScanOptions &options)
{
    QStringList parts;
    if (options.audioMatchDuration && entry.durationMs >= 1)
        parts.append(numberPart("ADUR:", entry.durationMs / std::max(options.audioDurationTolerance, 1)));
    return parts + tagParts(QStringLiteral("AT"), options.audioTags, entry, audioField);
}

QStringList videoParts(const FileEntry &entry, const ScanOptions &options)
{
    QStringList parts;
    if (options.videoMatchDuration && entry.durationMs >= 1)
        parts.append(numberPart("VDUR:", entry.durationMs / videoTolerance(options.videoDurationTolerance)));
    return parts + tagParts(QStringLiteral("VT"), options.videoTags, entry, videoField);
}

QString gpsPart(const FileEntry &entry, const ScanOptions &options)
{
    constexpr double kilometresPerDegree = 111;
    const double step = std::max(options.imageGpsPrecision, 1) / 1000.0 / kilometresPerDegree;
    return QStringLiteral("IGPS:%1,%2")
        .arg(static_cast<qint64>(std::floor(entry.latitude / step)))
        .arg(static_cast<qint64>(std::floor(entry.longitude / step)));
}

QStringList imageParts(const FileEntry &entry, const ScanOptions &options)
{
    QStringList parts;
    if (options.imageSameDimensions && entry.width >= 1 && entry.height >= 1) {
        const qint64 bucket = qint64(std::max(options.imageDimensionTolerance, 0)) + 1;
        parts.append(QStringLiteral("IDIM:%1x%2").arg(entry.width / bucket).arg(entry.height / bucket));
    }
    if (options.imageSameShotTime && !entry.dateTaken.isEmpty()) {
        const qint64 ms = shotTime(entry.dateTaken);
        if (ms >= 1)
            parts.append(numberPart("ISHOT:", ms / (qint64(std::max(options.imageShotTimeTolerance, 1)) * 1000)));
    }
    if (options.imageGroupByGps && entry.hasGps)
        parts.append(gpsPart(entry, options));
    return parts + tagParts(QStringLiteral("IT"), options.imageTags, entry, imageField);
}

} // namespace

bool imageTagsDiffer(const FileEntry &a, const FileEntry &b, const ScanOptions &options)
{
    return std::any_of(options.imageTags.begin(), options.imageTags.end(), [&](const TagEntry &tag) {
        if (tag.enabled != 1)
            return false;
        const QString first = imageField(a, tag.name);
        const QString second = imageField(b, tag.name);
        return !first.isEmpty() && !second.isEmpty() && first != second;
    });
}

QStringList mediaKeyParts(const FileEntry &entry, const ScanOptions &options)
{
    switch (options.mode()) {
    case SearchMode::Images:
        return imageParts(entry, options);
    case SearchMode::Audio:
        return audioParts(entry, options);
    case SearchMode::Video:
        return videoParts(entry, options);
    case SearchMode::Files:
        break;
    }
    return {};
}

} // namespace MirrixCore
