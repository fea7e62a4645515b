#include "core/platform/filestatus.h"

#include "core/platform/epochtime.h"
#include "core/platform/nativepath.h"
#include "core/platform/openpath_posix.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace MirrixCore {

namespace {

/// 0, or the system's error number.
int readStatus(const QByteArray &path, struct stat &info)
{
    if (path.size() < PATH_MAX)
        return stat(path.constData(), &info) == 0 ? 0 : errno;
    const int descriptor = openPath(path, O_PATH | O_CLOEXEC);
    if (descriptor < 0)
        return errno;
    const int failure = fstat(descriptor, &info) == 0 ? 0 : errno;
    close(descriptor);
    return failure;
}

} // namespace

FileStatus fileStatus(const QString &path)
{
    FileStatus status;
    struct stat info = {};
    if (const int failure = readStatus(pathBytes(path), info); failure != 0) {
        if (failure != ENOENT && failure != ENOTDIR)
            status.reason = systemErrorText(failure);
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
