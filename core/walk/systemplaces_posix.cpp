#include "core/walk/systemplaces.h"

#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"
#include "core/walk/kernelfilesystems_posix.h"

#include <cerrno>

namespace MirrixCore {

bool isSystemPlace(const QString &path)
{
    QString place = path;
    struct statfs info = {};
    while (statfs(pathBytes(place).constData(), &info) != 0) {
        if ((errno != ENOENT && errno != ENOTDIR) || place.lastIndexOf(QLatin1Char('/')) < 1)
            return false;
        place.truncate(place.lastIndexOf(QLatin1Char('/')));
    }
    const bool isInMemory = static_cast<unsigned long>(info.f_type) == TMPFS_MAGIC;
    const bool isOfSystem = isUnderFolder(path, QStringLiteral("/dev")) || isUnderFolder(path, QStringLiteral("/run"));
    return isKernelFileSystem(info) || (isInMemory && isOfSystem);
}

} // namespace MirrixCore
