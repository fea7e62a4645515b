#pragma once

#include <QJsonObject>
#include <QList>
#include <QLockFile>
#include <QString>

#include <memory>

namespace Mirrix {

/// One file in a backup folder.
struct BackupEntry
{
    QString original; ///< absolute path it had
    QString backup;   ///< absolute path it was given; only its name counts once the folder may have moved
    qint64 sizeBytes = 0;
    qint64 atMs = 0;         ///< time of its batch, milliseconds since the Unix epoch
    QString digest = {};     ///< of its content, as backupDigest makes it; empty = unknown
    QJsonObject others = {}; ///< what else the index says of it, which stays when the index is written

    bool operator==(const BackupEntry &) const = default;
};

/// The line by which an entry is shown, chosen and logged: original and backup path.
[[nodiscard]] QString backupLine(const BackupEntry &entry);

/// The entries of the index file in a backup folder, in their order and as they are written there; none when it is
/// missing or unusable. Thread-safe.
[[nodiscard]] QList<BackupEntry> loadBackupIndex(const QString &folder);

/// The same with `backup` as the path where the file is now or, if it is missing, should be: beside the index, wherever
/// the folder was when it was written. A file set aside beside its old path is looked for there first. Entries of a
/// crashed batch whose file never left its old path are left out. `isRead` becomes false when there is an index that
/// cannot be read.
[[nodiscard]] QList<BackupEntry> locatedEntries(const QString &folder, bool *isRead = nullptr);

/// The same for one entry of the index in `folder`. Applied again it changes nothing.
[[nodiscard]] BackupEntry locatedEntry(const QString &folder, const BackupEntry &entry);

/// Whether the file of a located entry is there, as far as the system says. Looks at the file.
[[nodiscard]] bool hasBackupFile(const BackupEntry &located);

/// Those of locatedEntries whose backup file is there, which can be restored.
[[nodiscard]] QList<BackupEntry> restorableEntries(const QString &folder, bool *isRead = nullptr);

/// Whether a file of this name was set aside by this program.
[[nodiscard]] bool isAsideName(const QString &name);

/// Replaces the index atomically, making the folder as needed. False, with the old index in place, when that failed.
bool saveBackupIndex(const QString &folder, const QList<BackupEntry> &entries);

/// Sole access to a backup folder for the length of a batch, and its index, kept so that no file in it is ever
/// unlisted: all entries of the batch are written before the first file moves, and those that were not used are taken
/// out at the end. Two writes, whatever the length. An entry whose file is missing stays, unless its old path still
/// holds a file of its size: then a crash kept it from being moved, or from being taken out once it was restored.
class BackupIndexSession
{
public:
    /// Makes the folder as needed and waits some seconds for other programs to finish with it.
    explicit BackupIndexSession(const QString &folder);

    /// Writes what was there and `planned`. False when the folder is in use or cannot be written: then nothing may be
    /// moved.
    [[nodiscard]] bool announce(const QList<BackupEntry> &planned);

    /// Writes what was there and `kept`. False leaves what was announced, which lists too much but nothing wrong.
    bool conclude(const QList<BackupEntry> &kept);

    /// Takes the entries with these names of backups out.
    bool remove(const QList<BackupEntry> &restored);

private:
    [[nodiscard]] bool takeOver();

    QString m_folder;
    std::unique_ptr<QLockFile> m_lock;
    bool m_isLocked = false;
    QList<BackupEntry> m_earlier;
};

} // namespace Mirrix
