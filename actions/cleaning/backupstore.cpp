#include "actions/cleaning/backupstore.h"

#include "actions/cleaning/backupcheck.h"
#include "actions/files/movefile.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRandomGenerator>

namespace Mirrix {

namespace {

using MirrixCore::pathCaseKey;

/// Whether both paths lead to one folder, by their text or by what the system says.
bool isSameFolder(const QString &one, const QString &other)
{
    if (pathCaseKey(one) == pathCaseKey(other))
        return true;
    return MirrixCore::fileStatus(one).identity.isSameAs(MirrixCore::fileStatus(other).identity);
}

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

/// Empty when the file is back.
QString restoreOne(const BackupEntry &entry, bool &isLeft)
{
    const BackupState state = backupState(entry);
    if (state == BackupState::Damaged)
        return text(QT_TRANSLATE_NOOP("Mirrix", "备份文件已损坏，未恢复: %1"), entry.original);
    if (state != BackupState::Intact || !makeFolders(folderOf(entry.original)))
        return text(QT_TRANSLATE_NOOP("Mirrix", "恢复失败: %1"), entry.original);
    const bool isTaken = pathState(entry.original).kind != PathState::Kind::Missing;
    const FileFault fault = isTaken ? FileFault::Occupied : restoreFile(entry.backup, entry.original, isLeft);
    if (fault == FileFault::Occupied)
        return text(QT_TRANSLATE_NOOP("Mirrix", "原路径已存在文件，已取消恢复: %1"), entry.original);
    return fault == FileFault::None ? QString() : text(QT_TRANSLATE_NOOP("Mirrix", "恢复失败: %1"), entry.original);
}

} // namespace

BatchResult backupFiles(const QString &folder, const QStringList &paths, const BatchControl &control,
                        const QStringList &digests)
{
    BatchResult result;
    BackupIndexSession session(backupFolderPath(folder));
    const BackupPlaces places(folder);
    QList<BackupEntry> planned;
    for (const QString &path : paths)
        planned.append(places.entryFor(path, pathState(path).sizeBytes, digests.value(planned.size())));
    // Listed before any file moves, so that after a crash each can be found.
    if (!session.announce(planned)) {
        for (const QString &path : paths)
            result.errors.append(backupFailureText(path));
        return result;
    }
    QList<BackupEntry> kept;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        result.isCancelled = !control.mayGoOn(i, paths.size());
        if (result.isCancelled)
            break;
        QString problem = control.refusal(paths[i]);
        const bool isInside = isSameFolder(folderOf(planned[i].original), folderOf(planned[i].backup));
        if (problem.isEmpty() && (isInside || moveFile(paths[i], planned[i].backup) != FileFault::None))
            problem = backupFailureText(paths[i]);
        if (problem.isEmpty())
            kept.append(storedEntry(planned[i]));
        else
            result.errors.append(problem);
    }
    result.count = kept.size();
    session.conclude(kept);
    return result;
}

RestoreResult restoreBackups(const QString &folder, const QList<BackupEntry> &entries, const BatchControl &control)
{
    RestoreResult result;
    const QString absolute = backupFolderPath(folder);
    BackupIndexSession session(absolute);
    QList<BackupEntry> gone;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        result.isCancelled = !control.mayGoOn(i, entries.size());
        if (result.isCancelled)
            break;
        const BackupEntry entry = locatedEntry(absolute, entries[i]);
        bool isLeft = false;
        const QString problem = restoreOne(entry, isLeft);
        if (!problem.isEmpty()) {
            result.errors.append(problem);
            continue;
        }
        result.restored.append(entry);
        if (isLeft)
            result.notes.append(text(QT_TRANSLATE_NOOP("Mirrix", "已恢复，但备份无法删除: %1"), entry.backup));
        else
            gone.append(entry);
    }
    result.count = result.restored.size();
    if (!gone.isEmpty() && !session.remove(gone))
        result.notes.append(text(QT_TRANSLATE_NOOP("Mirrix", "备份索引无法写入: %1"), absolute));
    return result;
}

bool restoreBackup(const QString &folder, const BackupEntry &entry, QString *error)
{
    const RestoreResult result = restoreBackups(folder, {entry});
    if (error)
        *error = result.errors.value(0);
    return result.count == 1;
}

BackupPlaces::BackupPlaces(const QString &folder)
    : m_folder(backupFolderPath(folder))
    , m_atMs(QDateTime::currentMSecsSinceEpoch())
    , m_time(QDateTime::fromMSecsSinceEpoch(m_atMs).toString(QStringLiteral("yyyyMMdd_HHmmss")))
{}

BackupEntry BackupPlaces::entryFor(const QString &path, qint64 sizeBytes, const QString &digest) const
{
    constexpr qsizetype mostBytes = 255 - 27; // what file systems allow, less what precedes the name
    const quint32 random = QRandomGenerator::system()->generate();
    const QString name = QStringLiteral("%1__%2__").arg(m_time).arg(random, 8, 16, QLatin1Char('0')) +
                         shortenedName(fileNameOf(path), mostBytes);
    return {MirrixCore::cleanedPath(MirrixCore::absolutePath(path)), joinedPath(m_folder, name), sizeBytes, m_atMs,
            digest};
}

BackupEntry BackupPlaces::asideEntryFor(const QString &path, qint64 sizeBytes, const QString &digest) const
{
    const QString original = MirrixCore::cleanedPath(MirrixCore::absolutePath(path));
    return {original, temporaryName(original, QStringLiteral(".aside")), sizeBytes, m_atMs, digest};
}

BackupEntry storedEntry(const BackupEntry &planned)
{
    const PathState file = pathState(planned.backup);
    if (file.kind != PathState::Kind::File || file.sizeBytes == planned.sizeBytes)
        return planned;
    BackupEntry stored = planned;
    stored.sizeBytes = file.sizeBytes;
    stored.digest.clear();
    return stored;
}

QString backupFolderPath(const QString &folder)
{
    return folder.isEmpty() ? QString() : MirrixCore::cleanedPath(MirrixCore::absolutePath(folder));
}

QString backupFailureText(const QString &path)
{
    return text(QT_TRANSLATE_NOOP("Mirrix", "无法移动到备份目录: %1"), path);
}

} // namespace Mirrix
