#pragma once

#include "actions/batch.h"
#include "core/scan/fileentry.h"

#include <QList>
#include <QString>

namespace Mirrix {

// What a scan found may no longer be so when it is acted on. Each answer costs one look at the file's record on the
// disk, none at its content. Texts are translated; empty means that nothing speaks against acting. Thread-safe.

/// Whether `file` still is a plain file of the size and modification time that the scan saw.
[[nodiscard]] QString changeProblem(const MirrixCore::FileEntry &file);

/// The same for a surplus file and the one that is to stay, and whether they are two files: one file can be reached by
/// many paths, and where the system does not tell, it may be.
[[nodiscard]] QString surplusProblem(const MirrixCore::FileEntry &surplus, const MirrixCore::FileEntry &keeper);

/// changeProblem for the paths of `files`; any other path is refused.
[[nodiscard]] PathGuard guardAgainstChanges(const QList<MirrixCore::FileEntry> &files);

} // namespace Mirrix
