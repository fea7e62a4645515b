#include "actions/files/trashfolders.h"

#include "actions/files/movefile.h"

#include <QStandardPaths>

#include <unistd.h>

namespace Mirrix {

namespace {

using MirrixCore::FileStatus;

QString nearestFolder(const QString &path)
{
    QString folder = folderOf(path);
    while (folder.size() > 1 && MirrixCore::fileStatus(folder).kind != FileStatus::Kind::Folder)
        folder = folderOf(folder);
    return folder;
}

quint32 volumeOf(const QString &path)
{
    return MirrixCore::fileStatus(path).identity.volume;
}

} // namespace

BinFolder homeTrash()
{
    return {BinFolder::Layout::Trash,
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/Trash"),
            {}};
}

BinFolder volumeTrash(const QString &path)
{
    QString top = nearestFolder(path);
    for (QString parent = folderOf(top); parent != top && volumeOf(parent) == volumeOf(top); parent = folderOf(top))
        top = parent;
    return {BinFolder::Layout::Trash, joinedPath(top, QStringLiteral(".Trash-%1").arg(geteuid())), top};
}

QList<BinFolder> binFoldersFor(const QString &path)
{
    const BinFolder own = volumeTrash(path);
    // The standard's other place, which an administrator makes for all users.
    const BinFolder shared = {own.layout, joinedPath(own.top, QStringLiteral(".Trash/%1").arg(geteuid())), own.top};
    return {homeTrash(), own, shared};
}

} // namespace Mirrix
