#include "actions/recyclebin.h"

#include "core/platform/nativepath.h"

#include <QFile>

namespace Mirrix {

namespace {

/// Qt spells a name that is not UTF-8 in another way, and would take the wrong file or none.
bool isSpelledRight(const QString &path)
{
    return QFile::encodeName(path) == MirrixCore::pathBytes(path);
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
    return {1, isSpelledRight, moveToTrash};
}

} // namespace Mirrix
