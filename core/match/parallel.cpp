#include "core/match/parallel.h"

#include <latch>
#include <system_error>
#include <thread>
#include <vector>

namespace MirrixCore {

int creatableThreads(int wanted)
{
    std::latch mayEnd(1); // all at once, as they will be needed
    std::vector<std::thread> threads;
    threads.reserve(static_cast<size_t>(std::max(wanted, 0)));
    try {
        while (std::ssize(threads) < wanted)
            threads.emplace_back([&mayEnd] { mayEnd.wait(); });
    } catch (const std::system_error &) { // what there is will do
    }
    mayEnd.count_down();
    for (std::thread &thread : threads)
        thread.join();
    return static_cast<int>(threads.size());
}

} // namespace MirrixCore
