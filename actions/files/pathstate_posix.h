#pragma once

#include "actions/files/nativefile.h"
#include "core/platform/epochtime.h"

#include <sys/stat.h>

namespace Mirrix {

inline qint64 nanosecondsOf(const timespec &time)
{
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

/// The system's record of a path or an open file in our terms.
inline PathState pathStateFrom(const struct stat &info)
{
    PathState state;
    state.kind = S_ISREG(info.st_mode)   ? PathState::Kind::File
                 : S_ISLNK(info.st_mode) ? PathState::Kind::Link
                 : S_ISDIR(info.st_mode) ? PathState::Kind::Folder
                                         : PathState::Kind::Other;
    state.sizeBytes = info.st_size;
    state.allocatedBytes = qint64(info.st_blocks) * 512; // the unit everywhere
    state.modifiedMs = MirrixCore::epochMsFrom(info.st_mtim.tv_sec, info.st_mtim.tv_nsec);
    state.modifiedExact = nanosecondsOf(info.st_mtim);
    state.changedExact = nanosecondsOf(info.st_ctim);
    state.mode = info.st_mode & 07777;
    state.owner = info.st_uid;
    state.group = info.st_gid;
    state.identity = {static_cast<quint32>(info.st_dev), info.st_ino, static_cast<quint32>(info.st_nlink), true};
    return state;
}

} // namespace Mirrix
