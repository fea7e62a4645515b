#pragma once

#include "core/model/fileplace.h"

#include <QString>
#include <QStringView>

namespace MirrixCore {

// Recognised by names and by what lies in a folder, without opening any file. Thread-safe.

/// Whether a file of this name makes the folder that holds it a backup folder.
[[nodiscard]] bool isBackupIndex(QStringView name);

/// The place of a folder whose parent lies in `parent`, as far as names show it: the parent's, unless that is ordinary.
/// Asks the disk only about a folder called "Trash".
[[nodiscard]] FilePlace placeOfFolder(const QString &path, FilePlace parent);

/// The place of an absolute folder by its name and those of all folders above it, and by the backup indexes in them;
/// where the path leads through links, by the folders above what it leads to first. Asks the disk once or twice for
/// each of them.
[[nodiscard]] FilePlace placeOfTree(const QString &folder);

} // namespace MirrixCore
