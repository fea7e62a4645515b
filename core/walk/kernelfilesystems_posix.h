#pragma once

#include <linux/magic.h>
#include <sys/statfs.h>

namespace MirrixCore {

/// File systems whose files are made up by the kernel: reading them is useless, hangs, or changes the system.
inline bool isKernelFileSystem(const struct statfs &info)
{
    switch (static_cast<unsigned long>(info.f_type)) {
    case PROC_SUPER_MAGIC:
    case SYSFS_MAGIC:
    case DEBUGFS_MAGIC:
    case TRACEFS_MAGIC:
    case SECURITYFS_MAGIC:
    case CGROUP_SUPER_MAGIC:
    case CGROUP2_SUPER_MAGIC:
    case BPF_FS_MAGIC:
    case PSTOREFS_MAGIC:
    case DEVPTS_SUPER_MAGIC:
        return true;
    default:
        return false;
    }
}

} // namespace MirrixCore
