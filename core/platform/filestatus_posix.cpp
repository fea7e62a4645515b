#include "core/platform/filestatus.h"

#include "core/platform/epochtime.h"
#include "core/platform/nativepath.h"
#include "core/platform/openpath_posix.h"

#include <cerrno>
#include <sys/stat.h>

namespace MirrixCore {

FileStatus fileStatus(const QString &path)
{
    FileStatus status;
    struct stat info = {};
    const auto read = [&info](int folder, const char *rest) { return fstatat(folder, rest, &info, 0); };
    if (atPath(pathBytes(path), read) != 0) {
        if (errno != ENOENT && errno != ENOTDIR)
            status.reason = systemErrorText(errno);
        return status;
    }
    status.kind = S_ISREG(info.st_mode)   ? FileStatus::Kind::File
                  : S_ISDIR(info.st_mode) ? FileStatus::Kind::Folder
                                          : FileStatus::Kind::Other;
    status.isHidden = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1).startsWith(QLatin1Char('.'));
    status.sizeBytes = info.st_size;
    status.modifiedMs = epochMsFrom(info.st_mtim.tv_sec, info.st_mtim.tv_nsec);
    status.identity = {static_cast<quint32>(info.st_dev), info.st_ino, static_cast<quint32>(info.st_nlink), true};
    return status;
}

} // namespace MirrixCore
