#include "core/walk/fileplaces.h"

#include "core/platform/filestatus.h"
#include "core/platform/nativepath.h"

#include <algorithm>

namespace MirrixCore {

namespace {

const QString backupIndexName = QStringLiteral("backup_index.json");

bool isOneOf(QStringView name, std::initializer_list<QLatin1String> names)
{
    return std::any_of(names.begin(), names.end(), [name](QLatin1String other) {
        return name.size() == other.size() && name.compare(other, Qt::CaseInsensitive) == 0;
    });
}

/// ".Trash-1000": the bin of one user on a volume of its own.
bool isBinOfUser(QStringView name)
{
    const QLatin1String start(".Trash-");
    const QStringView user = name.mid(start.size());
    return name.startsWith(start, Qt::CaseInsensitive) && !user.isEmpty() &&
           std::all_of(user.begin(), user.end(), [](QChar unit) { return unit.isDigit(); });
}

bool isRecycleBin(const QString &path, QStringView name)
{
    if (isOneOf(name, {QLatin1String("$RECYCLE.BIN"), QLatin1String("RECYCLER"), QLatin1String("RECYCLED"),
                       QLatin1String(".Trash"), QLatin1String(".Trashes")}))
        return true;
    // Users have folders of this name, too; a trash by the freedesktop.org rules holds "files".
    if (isOneOf(name, {QLatin1String("Trash")}))
        return fileStatus(path + QLatin1String("/files")).kind == FileStatus::Kind::Folder;
    return isBinOfUser(name);
}

bool isSnapshot(const QString &path, QStringView name)
{
    return isOneOf(name, {QLatin1String("System Volume Information"), QLatin1String(".snapshots")}) ||
           name.startsWith(QLatin1String("@GMT-")) || path.endsWith(QLatin1String("/.zfs/snapshot"));
}

bool holdsBackupIndex(const QString &folder)
{
    return fileStatus(folder + QLatin1Char('/') + backupIndexName).kind == FileStatus::Kind::File;
}

/// By the folders of the path as it is written, the outermost first.
FilePlace placeAlong(const QString &path)
{
    // The two slashes of a share's name are no folder.
    qsizetype end = path.indexOf(QLatin1Char('/'), path.startsWith(QLatin1String("//")) ? 2 : 0);
    while (true) {
        const QString folder = end < 0 ? path : path.left(end);
        const FilePlace place = placeOfFolder(folder, FilePlace::Ordinary);
        if (place != FilePlace::Ordinary)
            return place;
        if (holdsBackupIndex(folder))
            return FilePlace::BackupFolder;
        if (end < 0)
            return FilePlace::Ordinary;
        end = path.indexOf(QLatin1Char('/'), end + 1);
    }
}

} // namespace

bool isBackupIndex(QStringView name)
{
    return name.size() == backupIndexName.size() && name.compare(backupIndexName, Qt::CaseInsensitive) == 0;
}

FilePlace placeOfFolder(const QString &path, FilePlace parent)
{
    if (parent != FilePlace::Ordinary)
        return parent;
    const QStringView name = QStringView(path).mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    if (isRecycleBin(path, name))
        return FilePlace::RecycleBin;
    return isSnapshot(path, name) ? FilePlace::Snapshot : FilePlace::Ordinary;
}

FilePlace placeOfTree(const QString &folder)
{
    const QString real = canonicalPath(folder);
    const FilePlace place = real.isEmpty() ? FilePlace::Ordinary : placeAlong(real);
    return place == FilePlace::Ordinary && real != folder ? placeAlong(folder) : place;
}

} // namespace MirrixCore
