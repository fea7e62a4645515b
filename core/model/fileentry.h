#pragma once

#include "core/model/fileplace.h"

#include <QMap>
#include <QMetaType>
#include <QString>

namespace MirrixCore {

/// One enumerated file. A plain value; a list of a million of them is the largest thing a scan keeps in memory.
struct FileEntry
{
    QString path;               ///< absolute, cleaned, forward slashes; see core/platform/nativepath.h for odd names
    qint64 size = 0;            ///< bytes
    qint64 modifiedMs = 0;      ///< milliseconds since the Unix epoch (UTC); below 1 = unknown
    qint64 createdMs = 0;       ///< creation time, same unit; below 1 = unknown
    qint64 allocatedBytes = -1; ///< what the content takes on the volume; below 0 = unknown

    qint64 durationMs = 0; ///< length of audio or video; 0 = unknown

    quint32 volumeSerial = 0; ///< volume the file lies on; valid with hasFileId
    quint64 fileIndex = 0;    ///< the file's number on that volume; valid with hasFileId, 0 = unknown
    quint32 linkCount = 1;    ///< number of hard links; 1 when not read
    bool hasFileId = false;   ///< whether the three members above were read

    qint64 shotMs = 0; ///< recording time of a picture or video, milliseconds since the Unix epoch; 0 = unknown
    qint32 width = 0;  ///< pixels; 0 = unknown
    qint32 height = 0; ///< pixels; 0 = unknown

    QString artist; ///< artist of audio, director of video
    QString title;
    QString album; ///< album of audio, description of a picture
    QString track; ///< decimal text
    QString cameraMake;
    QString cameraModel;
    QString dateTaken; ///< "yyyy-MM-dd HH:mm:ss" in local time, or as the file states it when that is no date

    double latitude = 0;  ///< degrees, north positive; valid with hasGps
    double longitude = 0; ///< degrees, east positive; valid with hasGps
    bool hasGps = false;

    FilePlace place = FilePlace::Ordinary; ///< whether the file lies in a bin, backup or snapshot

    QMap<QString, QString> tags; ///< further tag values by name; empty unless a rule or the preview asks for them

    bool operator==(const FileEntry &) const = default;
};

/// The space freed when a content of `sizeBytes` is removed that takes `allocatedBytes` on the volume: holes take none.
/// What a volume takes beyond the content, and what is unknown (below 0), is not counted.
[[nodiscard]] constexpr qint64 freeableBytes(qint64 sizeBytes, qint64 allocatedBytes)
{
    return allocatedBytes < 0 || allocatedBytes > sizeBytes ? sizeBytes : allocatedBytes;
}

} // namespace MirrixCore

Q_DECLARE_TYPEINFO(MirrixCore::FileEntry, Q_RELOCATABLE_TYPE);
Q_DECLARE_METATYPE(MirrixCore::FileEntry)
