#pragma once

#include "core/model/fileentry.h"

namespace MirrixCore {

/// Reads duration, artist, title, album and track number of an audio file, and with `withTags` year, genre, lyricist,
/// bit rate and sample rate. Leaves the record as it is when the file is no audio file that TagLib knows. Thread-safe.
void readAudioFacts(FileEntry &entry, bool withTags);

} // namespace MirrixCore
