#include "actions/files/fileoperations.h"

#include "actions/files/movefile.h"
#include "actions/files/recyclebin.h"
#include "core/platform/filereader.h"
#include "core/platform/nativepath.h"

#include <QCoreApplication>
#include <QDir>

namespace Mirrix {

namespace {

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

bool fail(QString *error, const QString &message)
{
    if (error)
        *error = message;
    return false;
}

bool isTaken(const QString &path)
{
    return pathState(path).kind != PathState::Kind::Missing;
}

/// What moving and copying share; `failure` is the source text of the last step's message.
bool transfer(const QString &path, const QString &folder, FileFault (*act)(const QString &, const QString &),
              const char *failure, QString *error)
{
    if (!makeFolders(folder))
        return fail(error, text(QT_TRANSLATE_NOOP("Mirrix", "无法创建目标目录: %1"), folder));
    const QString target = joinedPath(folder, fileNameOf(path));
    const FileFault fault = isTaken(target) ? FileFault::Occupied : act(path, target);
    if (fault == FileFault::Occupied)
        return fail(error, text(QT_TRANSLATE_NOOP("Mirrix", "目标已存在: %1"), target));
    return fault == FileFault::None || fail(error, text(failure, path));
}

FileFault copyPlainFile(const QString &from, const QString &to)
{
    return pathState(from).kind == PathState::Kind::File ? copyFile(from, to) : FileFault::Failed;
}

/// What making both kinds of links shares.
bool link(const QString &linkPath, const QString &targetPath, FileFault (*make)(const QString &, const QString &),
          const char *failure, QString *error)
{
    if (isTaken(linkPath))
        return fail(error, text(QT_TRANSLATE_NOOP("Mirrix", "链接路径已存在: %1"), linkPath));
    const QString target = MirrixCore::absolutePath(targetPath);
    const bool hasTarget = MirrixCore::fileStatus(target).kind == MirrixCore::FileStatus::Kind::File;
    const FileFault fault = hasTarget ? make(target, linkPath) : FileFault::Missing;
    if (fault == FileFault::NoRight)
        return fail(error, text(QT_TRANSLATE_NOOP("Mirrix", "没有创建符号链接的权限"
                                                            "（请启用开发人员模式或以管理员身份运行）: %1"),
                                linkPath));
    if (fault == FileFault::None && leadsTo(linkPath, target))
        return true;
    if (fault == FileFault::None)
        static_cast<void>(removeFile(linkPath));
    return fail(error, text(failure, linkPath));
}

/// The target as seen from the link, which then survives when both move together or the volume gets another name; only
/// where both lie on one volume. Links on the way make the text lead elsewhere, so those are resolved first.
FileFault makeShortestSymbolicLink(const QString &target, const QString &linkPath)
{
    const QString linkFolder = MirrixCore::canonicalPath(folderOf(MirrixCore::absolutePath(linkPath)));
    const QString targetFolder = MirrixCore::canonicalPath(folderOf(target));
    const bool isOneVolume =
        !linkFolder.isEmpty() && !targetFolder.isEmpty() &&
        MirrixCore::fileStatus(linkFolder).identity.volume == MirrixCore::fileStatus(targetFolder).identity.volume;
    const QString relative = QDir(linkFolder).relativeFilePath(joinedPath(targetFolder, fileNameOf(target)));
    if (!isOneVolume || QDir::isAbsolutePath(relative))
        return makeSymbolicLink(target, linkPath);
    const FileFault fault = makeSymbolicLink(relative, linkPath);
    if (fault != FileFault::None || leadsTo(linkPath, target))
        return fault;
    static_cast<void>(removeFile(linkPath));
    return makeSymbolicLink(target, linkPath);
}

bool deleteFile(const QString &path, QString *error)
{
    if (pathState(path).kind == PathState::Kind::File && removeFile(path) == FileFault::None)
        return true;
    return fail(error, text(QT_TRANSLATE_NOOP("Mirrix", "无法删除: %1"), path));
}

bool isLinking(RemovalMethod method)
{
    return method == RemovalMethod::SymbolicLink || method == RemovalMethod::HardLink;
}

bool removeOne(RemovalMethod method, const QString &path, const QString &targetFolder, const QString &linkTarget,
               QString *error)
{
    switch (method) {
    case RemovalMethod::Delete:
        return deleteFile(path, error);
    case RemovalMethod::Move:
        return moveToFolder(path, targetFolder, error);
    case RemovalMethod::SymbolicLink:
        return createSymbolicLink(path, linkTarget, error);
    case RemovalMethod::HardLink:
        return createHardLink(path, linkTarget, error);
    case RemovalMethod::Recycle:
        break;
    }
    return fail(error, text(QT_TRANSLATE_NOOP("Mirrix", "无法删除: %1"), path));
}

} // namespace

BatchResult recycleFiles(const QStringList &paths, const BatchControl &control)
{
    return recycleInto(systemRecycleBin(), paths, control);
}

bool moveToFolder(const QString &path, const QString &folder, QString *error)
{
    return transfer(path, folder, moveFile, QT_TRANSLATE_NOOP("Mirrix", "无法移动: %1"), error);
}

bool copyToFolder(const QString &path, const QString &folder, QString *error)
{
    return transfer(path, folder, copyPlainFile, QT_TRANSLATE_NOOP("Mirrix", "无法复制: %1"), error);
}

bool createHardLink(const QString &linkPath, const QString &targetPath, QString *error)
{
    return link(linkPath, targetPath, makeHardLink, QT_TRANSLATE_NOOP("Mirrix", "无法创建硬链接: %1"), error);
}

bool createSymbolicLink(const QString &linkPath, const QString &targetPath, QString *error)
{
    return link(linkPath, targetPath, makeShortestSymbolicLink, QT_TRANSLATE_NOOP("Mirrix", "无法创建符号链接: %1"),
                error);
}

BatchResult removeFiles(RemovalMethod method, const QStringList &paths, const QString &targetFolder,
                        const QString &linkTarget, const BatchControl &control)
{
    if (method == RemovalMethod::Recycle)
        return recycleFiles(paths, control);
    BatchResult result;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        result.isCancelled = !control.mayGoOn(i, paths.size());
        if (result.isCancelled)
            break;
        QString error = isLinking(method) ? QString() : control.refusal(paths[i]);
        if (error.isEmpty() && removeOne(method, paths[i], targetFolder, linkTarget, &error))
            ++result.count;
        else
            result.errors.append(error);
    }
    return result;
}

bool leadsTo(const QString &path, const QString &target)
{
    MirrixCore::FileReader reader;
    if (!reader.open(path) || !reader.readState())
        return false;
    const MirrixCore::FileIdentity reached = MirrixCore::fileStatus(path).identity;
    const MirrixCore::FileIdentity expected = MirrixCore::fileStatus(target).identity;
    return reached.isSameAs(expected) || (!reached.isOtherThan(expected) && haveSameContent(path, target));
}

} // namespace Mirrix
