#pragma once

#include "actions/backupindex.h"
#include "actions/batch.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Mirrix {

// The folder into which files are moved instead of being destroyed. Whatever ends a batch, a crash included, each file
// is whole at its old path or at one that the index lists. Calls block; run long lists off the interface thread.
// Several programs may use one folder, one batch after the other.

/// Moves files into the backup folder, which is made as needed, under the names of backupName, and lists them in its
/// index. Folders, links and files that lie in the backup folder already are left alone and reported.
[[nodiscard]] BatchResult backupFiles(const QString &folder, const QStringList &paths,
                                      const BatchControl &control = {});

/// What became of a restore.
struct RestoreResult : BatchResult
{
    QList<BackupEntry> restored;
};

/// Puts files back where they came from; what stands there is never overwritten. Entries are not trusted: a backup path
/// that neither this folder nor a link replacement made is refused.
[[nodiscard]] RestoreResult restoreBackups(const QString &folder, const QList<BackupEntry> &entries,
                                           const BatchControl &control = {});

/// restoreBackups for one entry.
bool restoreBackup(const QString &folder, const BackupEntry &entry, QString *error = nullptr);

/// The line by which an entry is shown, chosen and logged: original and backup path.
[[nodiscard]] QString backupLine(const BackupEntry &entry);

/// The name of a file in the backup folder: local time of its batch, eight random hex digits, its own name.
[[nodiscard]] QString backupName(const QString &path, qint64 atMs);

/// The entries that a batch on `paths` would make, in their order, sizes included.
[[nodiscard]] QList<BackupEntry> plannedBackups(const QString &folder, const QStringList &paths);

/// Absolute clean form of a backup folder's path.
[[nodiscard]] QString backupFolderPath(const QString &folder);

/// The message for a file that could not be moved into the backup folder.
[[nodiscard]] QString backupFailureText(const QString &path);

} // namespace Mirrix
