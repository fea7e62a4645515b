#include "core/platform/memory.h"

#include <QFile>

#include <algorithm>
#include <sys/resource.h>
#include <unistd.h>

namespace MirrixCore {

namespace {

/// The limit of the container that the process runs in; 0 for none.
qint64 containerBytes()
{
    QFile file(QStringLiteral("/sys/fs/cgroup/memory.max"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0; // "max" is no number
}

qint64 addressSpaceBytes()
{
    struct rlimit limit = {};
    const bool isLimited = getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
    return isLimited ? static_cast<qint64>(std::min<rlim_t>(limit.rlim_cur, qint64(1) << 62)) : 0;
}

} // namespace

qint64 memoryBytes()
{
    qint64 bytes = std::max<qint64>(0, qint64(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE));
    for (const qint64 limit : {containerBytes(), addressSpaceBytes()}) {
        if (limit > 0)
            bytes = bytes > 0 ? std::min(bytes, limit) : limit;
    }
    return bytes;
}

} // namespace MirrixCore
