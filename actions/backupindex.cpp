#include "actions/backupindex.h"

#include "actions/movefile.h"
#include "actions/solelock.h"
#include "app/storedfile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <optional>

namespace Mirrix {

namespace {

const QString originalKey = QStringLiteral("original");
const QString backupKey = QStringLiteral("backup");
const QString sizeKey = QStringLiteral("size");
const QString timeKey = QStringLiteral("at");

QString indexPath(const QString &folder)
{
    return joinedPath(folder, QStringLiteral("backup_index.json"));
}

/// The index as it stands, empty when there is none. Nothing when it is there and cannot be read.
std::optional<QByteArray> indexText(const QString &folder)
{
    const QString path = indexPath(folder);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return pathState(path).kind == PathState::Kind::Missing ? std::optional(QByteArray()) : std::nullopt;
    const QByteArray text = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(text) : std::nullopt;
}

QList<BackupEntry> entriesIn(const QByteArray &text)
{
    QList<BackupEntry> entries;
    const QJsonArray items = QJsonDocument::fromJson(text).array();
    for (const QJsonValue &item : items)
        entries.append({item[originalKey].toString(), item[backupKey].toString(), item[sizeKey].toInteger(),
                        item[timeKey].toInteger()});
    return entries;
}

/// Whether the file has gone for certain. A folder that is away may be on a drive that comes back.
bool isGone(const BackupEntry &entry)
{
    return pathState(entry.backup).kind == PathState::Kind::Missing &&
           pathState(folderOf(entry.backup)).kind == PathState::Kind::Folder;
}

/// An index that holds no list would be overwritten as if it were empty; what it says may still be of use to somebody.
bool setDamagedAside(const QString &folder)
{
    const QString aside = joinedPath(folder, QStringLiteral("backup_index.damaged%1.json"));
    FileFault fault = FileFault::Occupied;
    for (int number = 1; fault == FileFault::Occupied; ++number)
        fault = renameExclusively(indexPath(folder), aside.arg(number));
    return fault == FileFault::None || fault == FileFault::Missing;
}

} // namespace

QList<BackupEntry> loadBackupIndex(const QString &folder)
{
    return entriesIn(indexText(folder).value_or(QByteArray()));
}

QList<BackupEntry> restorableEntries(const QString &folder, bool *isRead)
{
    const std::optional<QByteArray> text = indexText(folder);
    if (isRead)
        *isRead = text.has_value();
    QList<BackupEntry> entries = entriesIn(text.value_or(QByteArray()));
    entries.removeIf([](const BackupEntry &entry) {
        const PathState::Kind kind = pathState(entry.backup).kind;
        return kind != PathState::Kind::File && kind != PathState::Kind::Unknown;
    });
    return entries;
}

bool saveBackupIndex(const QString &folder, const QList<BackupEntry> &entries)
{
    QJsonArray items;
    for (const BackupEntry &entry : entries)
        items.append(QJsonObject{{originalKey, entry.original},
                                 {backupKey, entry.backup},
                                 {sizeKey, entry.sizeBytes},
                                 {timeKey, entry.atMs}});
    return makeFolders(folder) && replaceFile(indexPath(folder), QJsonDocument(items).toJson(QJsonDocument::Compact));
}

BackupIndexSession::BackupIndexSession(const QString &folder)
    : m_folder(folder)
{
    if (!makeFolders(folder))
        return;
    m_lock = std::make_unique<QLockFile>(joinedPath(folder, QStringLiteral("backup_index.lock")));
    m_isLocked = lockSolely(*m_lock);
}

bool BackupIndexSession::announce(const QList<BackupEntry> &planned)
{
    return takeOver() && saveBackupIndex(m_folder, m_earlier + planned);
}

bool BackupIndexSession::conclude(const QList<BackupEntry> &kept)
{
    return saveBackupIndex(m_folder, m_earlier + kept);
}

bool BackupIndexSession::remove(const QList<BackupEntry> &restored)
{
    if (!takeOver())
        return false;
    QSet<QString> paths;
    for (const BackupEntry &entry : restored)
        paths.insert(entry.backup);
    m_earlier.removeIf([&paths](const BackupEntry &entry) { return paths.contains(entry.backup); });
    return saveBackupIndex(m_folder, m_earlier);
}

bool BackupIndexSession::takeOver()
{
    // Read once: what could not be read now but is overwritten later would be lost to those who backed it up.
    const std::optional<QByteArray> text = m_isLocked ? indexText(m_folder) : std::nullopt;
    if (!text)
        return false;
    if (!text->isEmpty() && !QJsonDocument::fromJson(*text).isArray() && !setDamagedAside(m_folder))
        return false;
    m_earlier = entriesIn(*text);
    m_earlier.removeIf(isGone);
    return true;
}

} // namespace Mirrix
