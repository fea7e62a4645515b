#include "core/platform/memory.h"

#include "core/platform/win32.h"

#include <algorithm>

namespace MirrixCore {

qint64 memoryBytes()
{
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    // The address space is the smaller one where a job or a 32-bit system limits it.
    return GlobalMemoryStatusEx(&status) ? static_cast<qint64>(std::min(status.ullTotalPhys, status.ullTotalVirtual))
                                         : 0;
}

} // namespace MirrixCore
