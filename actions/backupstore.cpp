#include "actions/backupstore.h"

#include "actions/movefile.h"
#include "core/platform/nativepath.h"
#include "core/walk/pathrules.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QUuid>

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

bool isAsideName(const QString &name)
{
    return name.startsWith(QLatin1String(".mirrix-")) && name.endsWith(QLatin1String(".aside"));
}

/// Whether the entry can be one of ours: from the flat backup folder, or a file set aside beside its old path, to a
/// path that says plainly where it leads.
bool isTrustworthy(const BackupEntry &entry, const QString &folder)
{
    const QString original = MirrixCore::cleanedPath(entry.original);
    // The system's calls would end a path at a zero.
    if (original.contains(QChar::Null) || entry.backup.contains(QChar::Null) || original != entry.original ||
        !QDir::isAbsolutePath(original) || fileNameOf(original).isEmpty())
        return false;
    const QString place = folderOf(entry.backup);
    if (isAsideName(fileNameOf(entry.backup)))
        return place == folderOf(original) || isSameFolder(place, folder);
    return !place.isEmpty() && isSameFolder(place, folder);
}

bool restoreOne(const QString &folder, const BackupEntry &entry, QString *error)
{
    const auto failed = [&entry, error](const char *source) {
        *error = QCoreApplication::translate("Mirrix", source).arg(entry.original);
        return false;
    };
    if (!isTrustworthy(entry, folder) || !makeFolders(folderOf(entry.original)))
        return failed(QT_TRANSLATE_NOOP("Mirrix", "恢复失败: %1"));
    const bool isTaken = pathState(entry.original).kind != PathState::Kind::Missing;
    const FileFault fault = isTaken ? FileFault::Occupied : moveFile(entry.backup, entry.original);
    if (fault == FileFault::Occupied)
        return failed(QT_TRANSLATE_NOOP("Mirrix", "原路径已存在文件，已取消恢复: %1"));
    return fault == FileFault::None || failed(QT_TRANSLATE_NOOP("Mirrix", "恢复失败: %1"));
}

} // namespace

BatchResult backupFiles(const QString &folder, const QStringList &paths, const BatchControl &control)
{
    BatchResult result;
    BackupIndexSession session(backupFolderPath(folder));
    const QList<BackupEntry> planned = plannedBackups(folder, paths);
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
            kept.append(planned[i]);
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
    for (qsizetype i = 0; i < entries.size(); ++i) {
        result.isCancelled = !control.mayGoOn(i, entries.size());
        if (result.isCancelled)
            break;
        QString error;
        if (restoreOne(absolute, entries[i], &error))
            result.restored.append(entries[i]);
        else
            result.errors.append(error);
    }
    result.count = result.restored.size();
    if (result.count > 0)
        session.remove(result.restored);
    return result;
}

bool restoreBackup(const QString &folder, const BackupEntry &entry, QString *error)
{
    const RestoreResult result = restoreBackups(folder, {entry});
    if (error)
        *error = result.errors.value(0);
    return result.count == 1;
}

QString backupLine(const BackupEntry &entry)
{
    return QStringLiteral("%1  <-  %2").arg(entry.original, entry.backup);
}

QString backupName(const QString &path, qint64 atMs)
{
    constexpr qsizetype mostBytes = 255 - 27; // what file systems allow, and what stands before the name
    return QStringLiteral("%1__%2__%3")
        .arg(QDateTime::fromMSecsSinceEpoch(atMs).toString(QStringLiteral("yyyyMMdd_HHmmss")),
             QUuid::createUuid().toString(QUuid::Id128).left(8), shortenedName(fileNameOf(path), mostBytes));
}

QList<BackupEntry> plannedBackups(const QString &folder, const QStringList &paths)
{
    const qint64 atMs = QDateTime::currentMSecsSinceEpoch();
    const QString absolute = backupFolderPath(folder);
    QList<BackupEntry> planned;
    planned.reserve(paths.size());
    for (const QString &path : paths)
        planned.append({MirrixCore::cleanedPath(MirrixCore::absolutePath(path)),
                        joinedPath(absolute, backupName(path, atMs)), pathState(path).sizeBytes, atMs});
    return planned;
}

QString backupFolderPath(const QString &folder)
{
    return folder.isEmpty() ? QString() : MirrixCore::cleanedPath(MirrixCore::absolutePath(folder));
}

QString backupFailureText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "无法移动到备份目录: %1").arg(path);
}

} // namespace Mirrix
