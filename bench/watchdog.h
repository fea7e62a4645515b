#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>

/// Prints how long the interface was blocked at most while something was done, the loops of dialogs included.
class Watchdog
{
public:
    /// Runs `step` from the event loop and then continues watching until `isOver`, asked again and again, says so and
    /// what is left to do has had time to settle.
    void run(const char *name, const std::function<void()> &step, const std::function<bool()> &isOver)
    {
        constexpr int tickMs = 1;
        constexpr int settleMs = 2500;
        QEventLoop loop;
        QTimer tick;
        QElapsedTimer whole;
        QElapsedTimer turn;
        qint64 longestUs = 0;
        double seconds = -1;
        bool hasReturned = false; // the step, which may keep a dialog open until then
        tick.setTimerType(Qt::PreciseTimer);
        QObject::connect(&tick, &QTimer::timeout, &loop, [&] {
            longestUs = std::max(longestUs, turn.nsecsElapsed() / 1000);
            if (hasReturned && seconds < 0 && isOver()) {
                seconds = static_cast<double>(whole.elapsed()) / 1e3;
                QTimer::singleShot(settleMs, &loop, &QEventLoop::quit);
            }
            turn.start();
        });
        QTimer::singleShot(20, &loop, [&] {
            step();
            hasReturned = true;
        });
        tick.start(tickMs);
        whole.start();
        turn.start();
        loop.exec();
        std::printf("%-28s longest block %7.1f ms %8.1f s\n", name, static_cast<double>(longestUs) / 1000, seconds);
        std::fflush(stdout);
    }

    void run(const char *name, const std::function<void()> &step)
    {
        run(name, step, [] { return true; });
    }
};
