#pragma once

#include <QList>
#include <QLockFile>
#include <QString>

#include <memory>

namespace Mirrix {

/// One file in a backup folder.
struct BackupEntry
{
    QString original; ///< absolute path it had
    QString backup;   ///< absolute path it has now
    qint64 sizeBytes = 0;
    qint64 atMs = 0; ///< time of its batch, milliseconds since the Unix epoch

    bool operator==(const BackupEntry &) const = default;
};

/// The entries of the index file in a backup folder, in their order; none when it is missing or unusable. Thread-safe.
[[nodiscard]] QList<BackupEntry> loadBackupIndex(const QString &folder);

/// Those whose backup file is still there, as far as the system says, which can be restored. Looks at each file.
/// `isRead` becomes false when there is an index that cannot be read.
[[nodiscard]] QList<BackupEntry> restorableEntries(const QString &folder, bool *isRead = nullptr);

/// Replaces the index atomically, making the folder as needed. False, with the old index in place, when that failed.
bool saveBackupIndex(const QString &folder, const QList<BackupEntry> &entries);

/// Sole access to a backup folder for the length of a batch, and its index, kept so that no file in it is ever
/// unlisted: all entries of the batch are written before the first file moves, and those that came to nothing are taken
/// out at the end. Two writes, whatever the length. Entries whose file has gone are dropped on the way.
class BackupIndexSession
{
public:
    /// Makes the folder as needed and waits some seconds for other programs to be done with it.
    explicit BackupIndexSession(const QString &folder);

    /// Writes what was there and `planned`. False when the folder is in use or cannot be written: then nothing may be
    /// moved.
    [[nodiscard]] bool announce(const QList<BackupEntry> &planned);

    /// Writes what was there and `kept`. False leaves what was announced, which lists too much but nothing wrong.
    bool conclude(const QList<BackupEntry> &kept);

    /// Takes the entries with these backup paths out.
    bool remove(const QList<BackupEntry> &restored);

private:
    [[nodiscard]] bool takeOver();

    QString m_folder;
    std::unique_ptr<QLockFile> m_lock;
    bool m_isLocked = false;
    QList<BackupEntry> m_earlier;
};

} // namespace Mirrix
