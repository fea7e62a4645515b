#pragma once

#include <QSemaphore>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>

namespace MirrixCore {

/// While one lives, the global thread pool runs one task more than its size. Qt 6.4 fills large areas of a window on
/// that pool and waits for it: with every thread busy for long, the interface would freeze.
class SpareThread
{
public:
    SpareThread() { QThreadPool::globalInstance()->releaseThread(); }
    ~SpareThread() { QThreadPool::globalInstance()->reserveThread(); }
    SpareThread(const SpareThread &) = delete;
    SpareThread &operator=(const SpareThread &) = delete;
};

/// How many of `count` threads the system lets this process have now. Qt's pool counts a thread that the system has
/// refused as busy forever, so this is asked before the pool is.
[[nodiscard]] int creatableThreads(int count);

/// Calls `task(i)` for each i in 0..count-1 on Qt's global thread pool; returns when all are done. A task writes only
/// what belongs to its index. The calling thread takes no task unless the system refuses all others, so the pool's size
/// is the number of threads at work on them. An exception of a task is thrown again here, as what it was; tasks not yet
/// begun are then left out.
template <typename Task>
void forEachParallel(qsizetype count, Task task)
{
    QThreadPool &pool = *QThreadPool::globalInstance();
    const SpareThread spare;
    std::atomic<qsizetype> next = 0;
    std::mutex mutex;
    std::exception_ptr failure;
    QSemaphore ended;
    const auto work = [&] {
        try {
            for (qsizetype i = next++; i < count; i = next++)
                task(i);
        } catch (...) {
            next = count;
            const std::lock_guard lock(mutex);
            failure = std::current_exception();
        }
        ended.release();
    };
    // As many as threads, so that the spare thread finds none.
    const int lanes = creatableThreads(static_cast<int>(std::min<qsizetype>(count, pool.maxThreadCount())));
    for (int lane = 0; lane < lanes; ++lane)
        pool.start(work);
    if (lanes == 0)
        work();
    ended.acquire(std::max(lanes, 1));
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace MirrixCore
