#pragma once

#include "core/scan/scanoptions.h"
#include "core/scan/scanprogress.h"
#include "core/scan/scanresult.h"

namespace MirrixCore::MediaMetadata {

/// Whether a rule of the options looks at media members: a mode that ignores content, a duration, dimension, shot-time
/// or GPS rule, or an enabled tag of the mode's own tag table.
[[nodiscard]] bool isNeeded(const ScanOptions &options);

/// Fills the media members of `files` in place. Not written yet: they stay empty.
void enrich(QList<FileEntry> &files, const ScanOptions &options, const ProgressCallback &progress,
            const CancelQuery &cancelled);

} // namespace MirrixCore::MediaMetadata
