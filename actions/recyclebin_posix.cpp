#include "actions/recyclebin.h"

#include "core/platform/nativepath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace Mirrix {

namespace {

/// Qt spells a name that is not UTF-8 in another way, and would take the wrong file or none.
bool isSpelledRight(const QString &path)
{
    return QFile::encodeName(path) == MirrixCore::pathBytes(path);
}

/// Without a usable trash in the home folder, which is also its last resort for other volumes, Qt takes the current
/// folder for the trash. It makes that folder, but not those above it.
bool hasHomeTrash()
{
    const QString trash =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/Trash");
    return QDir().mkpath(trash) && QFileInfo(trash).isWritable();
}

bool canTake(const QString &path)
{
    return isSpelledRight(path) && hasHomeTrash();
}

/// Qt renames into the trash of the file's own volume or fails; it neither copies nor deletes.
RecycleBin::Answer moveToTrash(const QStringList &paths)
{
    RecycleBin::Answer answer;
    for (const QString &path : paths) {
        QFile file(MirrixCore::absolutePath(path));
        if (!file.moveToTrash())
            answer.code = static_cast<int>(file.error());
    }
    return answer;
}

} // namespace

RecycleBin systemRecycleBin()
{
    return {1, canTake, moveToTrash};
}

} // namespace Mirrix
