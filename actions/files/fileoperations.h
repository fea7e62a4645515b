#pragma once

#include "actions/files/batch.h"

#include <QString>
#include <QStringList>

namespace Mirrix {

// Operations on files that the user chose. None overwrites a file or link, none stops at a failure; messages are
// translated and name the path as given. They block; run long lists off the interface thread. Thread-safe.

/// How a file is removed; the numbers are those of the removal dialog and of the operations log.
enum class RemovalMethod : int
{
    Recycle = 0,
    Delete = 1,
    Move = 2,
    SymbolicLink = 3,
    HardLink = 4
};

/// Sends files to the Recycle Bin (Linux: the trash). A file for which there is no bin stays and is reported.
[[nodiscard]] BatchResult recycleFiles(const QStringList &paths, const BatchControl &control = {});

/// Moves a plain file into `folder`, which is made as needed, under its own name.
bool moveToFolder(const QString &path, const QString &folder, QString *error = nullptr);

/// Copies it instead, with its times.
bool copyToFolder(const QString &path, const QString &folder, QString *error = nullptr);

/// Makes the free path `linkPath` a further name of the file `targetPath`.
bool createHardLink(const QString &linkPath, const QString &targetPath, QString *error = nullptr);

/// Makes the free path `linkPath` a symbolic link to the existing file `targetPath`, relative where both lie on one
/// volume, and checks that it leads there.
bool createSymbolicLink(const QString &linkPath, const QString &targetPath, QString *error = nullptr);

/// Removes files one after the other by `method`. `targetFolder` is for Move, `linkTarget` for the links, which are
/// made only where the path is free already and so ask no guard.
[[nodiscard]] BatchResult removeFiles(RemovalMethod method, const QStringList &paths, const QString &targetFolder,
                                      const QString &linkTarget, const BatchControl &control = {});

/// Whether opening `path` opens the file `target`.
[[nodiscard]] bool leadsTo(const QString &path, const QString &target);

} // namespace Mirrix
