#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"

namespace MirrixCore {

/// The folders below the roots of `options` that hold nothing, or nothing but such folders; sorted by path, the last
/// one first, so that each comes before the folder that contains it. A root is never one of them, nor are recycle bins,
/// backup folders, snapshots and what version control keeps (.git and the like, where an empty folder may have a
/// meaning). The options' rules on folders count; a folder with anything in it that they leave out, that is no folder
/// (hidden files and links, too) or that could not be read is not empty. The latter is appended to `unread`. Blocks.
[[nodiscard]] QStringList findEmptyFolders(const ScanOptions &options, const CancelQuery &cancelled,
                                           QList<UnreadPath> &unread);

} // namespace MirrixCore
