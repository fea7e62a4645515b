#pragma once

#include "actions/files/batch.h"
#include "actions/records/backupindex.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Mirrix {

// The folder into which files are moved instead of being destroyed. Whatever ends a batch, a crash included, each file
// is whole at its old path or at one that the index lists. Calls block; run long lists off the interface thread.
// Several programs may use one folder, one batch after the other.

/// Moves files into the backup folder, which is made as needed, under names that BackupPlaces gives, and lists them in
/// its index. Folders, links and files that lie in the backup folder already are left alone and reported. `digests` are
/// for the index: one for each path, as backupDigest makes them, empty where unknown; or none at all.
[[nodiscard]] BatchResult backupFiles(const QString &folder, const QStringList &paths, const BatchControl &control = {},
                                      const QStringList &digests = {});

/// The outcome of a restore.
struct RestoreResult : BatchResult
{
    QList<BackupEntry> restored; ///< located, in the order of the entries
    QStringList notes;           ///< what could not be tidied up after files that were restored, translated
};

/// Puts files back where they came from; an existing file there is never overwritten. Entries are not trusted: they
/// lead to files in the index's folder or to files set aside in their old folder, whatever else they say. A file whose
/// size or digest is not that of its entry is refused and stays. A file is restored, with a note, even when its backup
/// cannot be removed, as on a read-only volume; the entry stays then.
[[nodiscard]] RestoreResult restoreBackups(const QString &folder, const QList<BackupEntry> &entries,
                                           const BatchControl &control = {});

/// restoreBackups for one entry.
bool restoreBackup(const QString &folder, const BackupEntry &entry, QString *error = nullptr);

/// Finds places in the backup folder for the files of one batch, which begins now. The names are made of the local time
/// of the batch, eight random hex digits, and the file's own name. Thread-safe.
class BackupPlaces
{
public:
    explicit BackupPlaces(const QString &folder);

    /// The entry for the file `path`, which holds `sizeBytes`. Does not access the disk.
    [[nodiscard]] BackupEntry entryFor(const QString &path, qint64 sizeBytes, const QString &digest) const;

    /// The same for a file that is to be set aside in its own folder.
    [[nodiscard]] BackupEntry asideEntryFor(const QString &path, qint64 sizeBytes, const QString &digest) const;

private:
    QString m_folder;
    qint64 m_atMs;
    QString m_time; ///< asking for the local time is expensive
};

/// A planned entry after its file was moved: with the size that the file has now, and without the digest when that is
/// another than planned.
[[nodiscard]] BackupEntry storedEntry(const BackupEntry &planned);

/// Absolute clean form of a backup folder's path.
[[nodiscard]] QString backupFolderPath(const QString &folder);

/// The message for a file that could not be moved into the backup folder.
[[nodiscard]] QString backupFailureText(const QString &path);

} // namespace Mirrix
