#pragma once

#include <QLockFile>

namespace Mirrix {

/// Waits up to five seconds for sole access among programs. False when another holds it for longer.
[[nodiscard]] inline bool lockExclusively(QLockFile &lock)
{
    constexpr int timeoutMs = 5000;
    // A program killed while it made the lock leaves an empty one, which only its age shows. The age of a lock that is
    // held does no harm: the system itself keeps others from taking it.
    constexpr int staleMs = 500;
    lock.setStaleLockTime(staleMs);
    if (lock.tryLock(0))
        return true;
    // Qt takes a stale lock away under a lock of its own, which a second kill may have left half-made in turn.
    QLockFile removal(lock.fileName() + QLatin1String(".rmlock"));
    removal.setStaleLockTime(staleMs);
    if (removal.tryLock(timeoutMs))
        removal.unlock();
    return lock.tryLock(timeoutMs);
}

} // namespace Mirrix
