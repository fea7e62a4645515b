#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"

namespace MirrixCore::MediaMetadata {

/// Whether a rule of the options looks at media members: a mode that ignores content, a duration, dimension, shot-time
/// or GPS rule, or an enabled tag of the mode's own tag table.
[[nodiscard]] bool isNeeded(const ScanOptions &options);

/// Fills the media members of those `files` that are of the options' kind by their extension, in place and in parallel
/// on Qt's global thread pool; blocks until done. What a file does not state stays empty or 0, and nothing is reported
/// about files that cannot be read. Phase "metadata". Asks `cancelled` before each file.
void enrich(QList<FileEntry> &files, const ScanOptions &options, const ProgressCallback &progress,
            const CancelQuery &cancelled);

/// The same for one file whose `path` is set, whatever its extension. Images: dimensions, shot time, camera,
/// description, position; audio: duration, artist, title, album, track; video: duration, title, director, date.
/// `withTags` fills FileEntry::tags too. Thread-safe.
void enrich(FileEntry &entry, SearchMode kind, bool withTags = false);

/// What is known of one file for people to read: size and time, and the media members and tags of the kind that its
/// extension indicates; of videos also the dimensions. A missing file gives a record with nothing but its path. Opens
/// the file several times: not for the interface's thread. Thread-safe.
[[nodiscard]] FileEntry readPreviewFacts(const QString &path);

} // namespace MirrixCore::MediaMetadata
