#include "core/media/metadata.h"

#include "core/media/audiofile.h"
#include "core/media/exif.h"
#include "core/media/mediafacts.h"
#include "core/media/mediainfo.h"
#include "core/media/mediakinds.h"
#include "core/media/pictures.h"
#include "core/media/rawfile.h"
#include "core/platform/filereader.h"
#include "core/threads/stage.h"

#include <algorithm>

namespace MirrixCore::MediaMetadata {

namespace {

using Stream = MediaInfoFile::Stream;

bool hasEnabledTag(const QList<TagEntry> &tags)
{
    return std::any_of(tags.begin(), tags.end(), [](const TagEntry &tag) { return tag.enabled == 1; });
}

constexpr qsizetype dateLength = 19; // without fractions of a second and time zone
const QString plainDate = QStringLiteral("yyyy-MM-dd HH:mm:ss");

QDateTime imageDate(const QString &text)
{
    const QDateTime iso = QDateTime::fromString(text, Qt::ISODate);
    if (iso.isValid())
        return iso;
    const QDateTime plain = QDateTime::fromString(text, plainDate);
    return plain.isValid() ? plain : QDateTime::fromString(text, Qt::TextDate);
}

QSize sizeOf(const MediaInfoFile &file, Stream stream)
{
    return {file.value(stream, QStringLiteral("Width")).toInt(), file.value(stream, QStringLiteral("Height")).toInt()};
}

/// What MediaInfo reports about a picture.
void readImageStream(FileEntry &entry)
{
    MediaInfoFile file;
    if (!file.open(entry.path))
        return;
    const QString date = file.value(Stream::Image, QStringLiteral("Recorded_Date")).left(dateLength);
    setShotTime(entry, imageDate(date));
    setIfEmpty(entry.dateTaken, date);
    bool hasLatitude = false;
    bool hasLongitude = false;
    const double latitude = file.value(Stream::General, QStringLiteral("Latitude")).toDouble(&hasLatitude);
    const double longitude = file.value(Stream::General, QStringLiteral("Longitude")).toDouble(&hasLongitude);
    if (hasLatitude && hasLongitude)
        setPosition(entry, latitude, longitude);
    setSize(entry, sizeOf(file, Stream::Image));
    setSize(entry, sizeOf(file, Stream::Video));
}

void readImage(FileEntry &entry, bool withTags)
{
    constexpr qint64 headBytes = 256 * 1024; // where EXIF blocks lie, which have at most 64 KiB
    if (isRawFile(entry.path))               // first: others take a RAW file's small preview for the picture
        readRawFacts(entry, withTags);
    readImageStream(entry);
    readExif(readHead(entry.path, headBytes), entry, withTags);
    if (entry.width < 1)
        setSize(entry, pictureSizeOfFile(entry.path));
}

void readVideo(FileEntry &entry)
{
    MediaInfoFile file;
    if (!file.open(entry.path))
        return;
    const double duration = file.value(Stream::General, QStringLiteral("Duration")).toDouble();
    if (duration > 0 && duration < 9e15)
        entry.durationMs = static_cast<qint64>(duration);
    setIfEmpty(entry.title, file.value(Stream::General, QStringLiteral("Title")));
    setIfEmpty(entry.artist, file.value(Stream::General, QStringLiteral("Director")));
    const QString date = file.value(Stream::General, QStringLiteral("Recorded_Date")).left(dateLength);
    setShotTime(entry, QDateTime::fromString(date, plainDate));
    setIfEmpty(entry.dateTaken, date);
}

/// A scan needs no dimensions of videos, people like to see them.
void readVideoSize(FileEntry &entry)
{
    MediaInfoFile file;
    if (file.open(entry.path))
        setSize(entry, sizeOf(file, Stream::Video));
}

} // namespace

bool isNeeded(const ScanOptions &options)
{
    switch (options.mode()) {
    case SearchMode::Images:
        return options.imageSameDimensions || options.imageSameShotTime || options.imageGroupByGps ||
               hasEnabledTag(options.imageTags);
    case SearchMode::Audio:
        return options.audioDepth() == AudioDepth::IgnoreContent || options.audioMatchDuration ||
               hasEnabledTag(options.audioTags);
    case SearchMode::Video:
        return options.videoDepth() == VideoDepth::IgnoreContent || options.videoMatchDuration ||
               hasEnabledTag(options.videoTags);
    case SearchMode::Files:
        break;
    }
    return false;
}

void enrich(QList<FileEntry> &files, const ScanOptions &options, const ProgressCallback &progress,
            const CancelQuery &cancelled)
{
    const auto kind = options.mode();
    FileEntry *const entries = files.data(); // detached once, before the threads start
    runStage(
        {options, progress, cancelled}, Phase::Metadata, files.size(), files.size(),
        [&](qsizetype i) {
            if (isMediaFile(entries[i].path, kind))
                enrich(entries[i], kind);
        },
        [&](qsizetype i) -> const QString & { return entries[i].path; });
}

void enrich(FileEntry &entry, SearchMode kind, bool withTags)
{
    switch (kind) {
    case SearchMode::Images:
        readImage(entry, withTags);
        break;
    case SearchMode::Audio:
        readAudioFacts(entry, withTags);
        break;
    case SearchMode::Video:
        readVideo(entry);
        break;
    case SearchMode::Files:
        break;
    }
}

FileEntry readPreviewFacts(const QString &path)
{
    FileEntry entry;
    entry.path = path;
    FileReader reader;
    if (!reader.open(path) || !reader.readState())
        return entry;
    entry.size = reader.sizeBytes();
    entry.modifiedMs = reader.modifiedMs();
    for (const SearchMode kind : {SearchMode::Images, SearchMode::Audio, SearchMode::Video}) {
        if (!isMediaFile(path, kind))
            continue;
        enrich(entry, kind, true);
        if (kind == SearchMode::Video)
            readVideoSize(entry);
        break;
    }
    return entry;
}

} // namespace MirrixCore::MediaMetadata
