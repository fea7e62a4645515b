#pragma once

#include "actions/batch.h"
#include "core/scan/fileentry.h"

#include <QList>
#include <QString>

namespace Mirrix {

// What a scan found may no longer be so when it is acted on. Each answer costs one look at the file's record on the
// disk, and none at its content where nothing else is said. Texts are translated; empty means that nothing speaks
// against acting. Thread-safe.

/// Whether `file` still is a plain file of the size and modification time that the scan saw, and the same one where the
/// scan noted which it was: a folder on the way may have become a link to another.
[[nodiscard]] QString changeProblem(const MirrixCore::FileEntry &file);

/// The same for a surplus file and the one that is to stay, and whether they are two files: one file can be reached by
/// many paths, and where the system does not tell, it may be.
[[nodiscard]] QString surplusProblem(const MirrixCore::FileEntry &surplus, const MirrixCore::FileEntry &keeper);

/// The same before a surplus file is destroyed because the other holds its content: both are read and compared, since a
/// file can be written and given its old time again, before the scan, which believes what it remembers, and after it.
[[nodiscard]] QString finalSurplusProblem(const MirrixCore::FileEntry &surplus, const MirrixCore::FileEntry &keeper);

/// changeProblem for the paths of `files`; any other path is refused.
[[nodiscard]] PathGuard guardAgainstChanges(const QList<MirrixCore::FileEntry> &files);

} // namespace Mirrix
