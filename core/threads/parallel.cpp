#include "core/threads/parallel.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace MirrixCore {

int creatableThreads(int count)
{
    // All at once, as they will be needed. Not by std::latch, with which the MinGW library sometimes waits forever.
    std::mutex mutex;
    std::condition_variable changed;
    bool mayEnd = false;
    std::vector<std::thread> threads;
    threads.reserve(static_cast<size_t>(std::max(count, 0)));
    try {
        while (std::ssize(threads) < count)
            threads.emplace_back([&] {
                std::unique_lock lock(mutex);
                changed.wait(lock, [&] { return mayEnd; });
            });
    } catch (const std::system_error &) { // as many as the system allows
    }
    {
        const std::lock_guard lock(mutex);
        mayEnd = true;
    }
    changed.notify_all();
    for (std::thread &thread : threads)
        thread.join();
    return static_cast<int>(threads.size());
}

} // namespace MirrixCore
