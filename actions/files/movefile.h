#pragma once

#include "core/platform/pathtext.h"

#include "actions/files/nativefile.h"

#include <QString>

namespace Mirrix {

// Operations on whole files, safe against crashes, full disks and other programs at work: at any time the content lies
// whole at one of the two paths, and nothing is ever replaced. Thread-safe.

/// Moves the plain file `from` to the free path `to`, to another volume too: then it is copied under a temporary name,
/// written through, compared and renamed into place before the source is removed. On failure the source is as it was
/// and nothing is at `to`. A source that is marked read-only where that forbids deleting is only renamed.
[[nodiscard]] FileFault moveFile(const QString &from, const QString &to);

/// Puts the backup `from` back at the free path `to`. Unlike moveFile it copies whatever keeps the file from being
/// renamed, and keeps the copy when `from` cannot be removed, as on a read-only volume: that is success, and sets
/// `isLeft`.
[[nodiscard]] FileFault restoreFile(const QString &from, const QString &to, bool &isLeft);

/// Copies with times and attributes; `to` appears whole or not at all.
[[nodiscard]] FileFault copyFile(const QString &from, const QString &to);

/// Makes a folder with all its parents. True when it is there in the end.
[[nodiscard]] bool makeFolders(const QString &path);

/// Whether both can be read whole and hold the same bytes.
[[nodiscard]] bool haveSameContent(const QString &one, const QString &other);

/// nameOf and folderOf for paths that may have the system's own separators.
[[nodiscard]] QString fileNameOf(const QString &path);
[[nodiscard]] QString folderOf(const QString &path);

/// `name`, or where it takes more than `mostBytes` bytes of UTF-8 as much of it as fits, the last suffix kept.
[[nodiscard]] QString shortenedName(const QString &name, qsizetype mostBytes);

using MirrixCore::joinedPath;

/// A new name for a file that is in the folder of `path` only for a short time: ".mirrix-", 16 hex digits, and ".part"
/// or ".aside".
[[nodiscard]] QString temporaryName(const QString &path, const QString &suffix);

} // namespace Mirrix
