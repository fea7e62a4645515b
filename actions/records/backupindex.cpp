#include "actions/records/backupindex.h"

#include "actions/files/exclusivelock.h"
#include "actions/files/movefile.h"
#include "actions/records/jsontext.h"
#include "app/storedfile.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <optional>

namespace Mirrix {

namespace {

constexpr char originalKey[] = "original";
constexpr char backupKey[] = "backup";
constexpr char sizeKey[] = "size";
constexpr char timeKey[] = "at";
constexpr char digestKey[] = "digest";

QString indexPath(const QString &folder)
{
    return joinedPath(folder, QStringLiteral("backup_index.json"));
}

/// The index as it is, empty when there is none. No value when it exists but cannot be read.
std::optional<QByteArray> indexText(const QString &folder)
{
    const QString path = indexPath(folder);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return pathState(path).kind == PathState::Kind::Missing ? std::optional(QByteArray()) : std::nullopt;
    const QByteArray text = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(text) : std::nullopt;
}

BackupEntry entryFrom(QJsonObject item)
{
    const auto taken = [&item](const char *key) { return item.take(QLatin1String(key)); };
    BackupEntry entry{taken(originalKey).toString(), taken(backupKey).toString(), taken(sizeKey).toInteger(),
                      taken(timeKey).toInteger(), taken(digestKey).toString()};
    entry.others = item;
    return entry;
}

QByteArray textOf(const BackupEntry &entry)
{
    JsonPieces members;
    members.add(timeKey, entry.atMs).add(backupKey, entry.backup);
    if (!entry.digest.isEmpty())
        members.add(digestKey, entry.digest);
    return members.add(originalKey, entry.original).add(sizeKey, entry.sizeBytes).addMembers(entry.others).object();
}

QList<BackupEntry> entriesIn(const QByteArray &text)
{
    QList<BackupEntry> entries;
    const QJsonArray items = QJsonDocument::fromJson(text).array();
    for (const QJsonValue &item : items)
        entries.append(entryFrom(item.toObject()));
    return entries;
}

bool isMissing(const QString &path)
{
    return pathState(path).kind == PathState::Kind::Missing;
}

/// Whether the file is at its old path and nowhere else: a crash came before it was moved or after it was restored.
bool isAtHome(const BackupEntry &located)
{
    if (!isMissing(located.backup))
        return false;
    const PathState original = pathState(located.original);
    return original.kind == PathState::Kind::File && original.sizeBytes == located.sizeBytes;
}

/// Whether the file was set aside beside its old path and is gone from there for certain: a crash came after it was
/// removed because its copy had proved equal.
bool isDiscarded(const BackupEntry &located)
{
    return isAsideName(fileNameOf(located.backup)) && isMissing(located.backup) &&
           pathState(folderOf(located.backup)).kind == PathState::Kind::Folder;
}

/// The entries of an index as locatedEntries gives them.
QList<BackupEntry> locatedIn(const QString &folder, const QByteArray &text)
{
    QList<BackupEntry> entries = entriesIn(text);
    for (BackupEntry &entry : entries)
        entry = locatedEntry(folder, entry);
    entries.removeIf([](const BackupEntry &entry) { return isAtHome(entry) || isDiscarded(entry); });
    return entries;
}

/// An index that holds no list would be overwritten as if it were empty; what it says may still be useful.
bool setDamagedAside(const QString &folder)
{
    const QString damagedPath = joinedPath(folder, QStringLiteral("backup_index.damaged%1.json"));
    FileFault fault = FileFault::Occupied;
    for (int number = 1; fault == FileFault::Occupied; ++number)
        fault = renameExclusively(indexPath(folder), damagedPath.arg(number));
    return fault == FileFault::None || fault == FileFault::Missing;
}

} // namespace

QString backupLine(const BackupEntry &entry)
{
    return QStringLiteral("%1  <-  %2").arg(entry.original, entry.backup);
}

QList<BackupEntry> loadBackupIndex(const QString &folder)
{
    return entriesIn(indexText(folder).value_or(QByteArray()));
}

QList<BackupEntry> locatedEntries(const QString &folder, bool *isRead)
{
    const std::optional<QByteArray> text = indexText(folder);
    if (isRead)
        *isRead = text.has_value();
    return locatedIn(folder, text.value_or(QByteArray()));
}

BackupEntry locatedEntry(const QString &folder, const BackupEntry &entry)
{
    // Only the name is taken from the entry: the folder may have been moved, and the index is not trusted.
    BackupEntry located = entry;
    const QString name = fileNameOf(entry.backup);
    const QString besideIndex = joinedPath(MirrixCore::cleanedPath(MirrixCore::absolutePath(folder)), name);
    const bool wasBesideOriginal = isAsideName(name) && folderOf(entry.backup) == folderOf(entry.original);
    if (!wasBesideOriginal || (isMissing(entry.backup) && !isMissing(besideIndex)))
        located.backup = besideIndex;
    return located;
}

bool hasBackupFile(const BackupEntry &located)
{
    const PathState::Kind kind = pathState(located.backup).kind;
    return kind == PathState::Kind::File || kind == PathState::Kind::Unknown; // what cannot be read is not gone
}

QList<BackupEntry> restorableEntries(const QString &folder, bool *isRead)
{
    QList<BackupEntry> entries = locatedEntries(folder, isRead);
    entries.removeIf([](const BackupEntry &entry) { return !hasBackupFile(entry); });
    return entries;
}

bool isAsideName(const QString &name)
{
    return name.startsWith(QLatin1String(".mirrix-")) && name.endsWith(QLatin1String(".aside"));
}

bool saveBackupIndex(const QString &folder, const QList<BackupEntry> &entries)
{
    QByteArrayList items;
    items.reserve(entries.size());
    for (const BackupEntry &entry : entries)
        items.append(textOf(entry));
    return makeFolders(folder) && replaceFile(indexPath(folder), '[' + items.join(',') + ']');
}

BackupIndexSession::BackupIndexSession(const QString &folder)
    : m_folder(folder)
{
    if (!makeFolders(folder))
        return;
    m_lock = std::make_unique<QLockFile>(joinedPath(folder, QStringLiteral("backup_index.lock")));
    m_isLocked = lockExclusively(*m_lock);
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
    QSet<QString> names; // not paths: where a file was found is no longer known here
    for (const BackupEntry &entry : restored)
        names.insert(fileNameOf(entry.backup));
    m_earlier.removeIf([&names](const BackupEntry &entry) { return names.contains(fileNameOf(entry.backup)); });
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
    m_earlier = locatedIn(m_folder, *text);
    return true;
}

} // namespace Mirrix
