#pragma once

#include "core/model/scancontext.h"
#include "core/threads/parallel.h"
#include "core/threads/threadpool.h"

#include <atomic>
#include <mutex>

namespace MirrixCore {

/// Counts the items that the tasks of one stage finish and passes every 64th and the last on, one thread at a time.
class StageProgress
{
public:
    /// `filesFound` is the matcher's input, `total` the number of items of this stage. An empty callback is allowed.
    StageProgress(const ProgressCallback &callback, const QString &phase, qint64 filesFound, qint64 total)
        : m_callback(callback)
        , m_report{filesFound, 0, total, {}, phase}
    {}

    /// Counts `items` items, worked on at `path`; an empty one leaves the last in the report. Thread-safe.
    void step(const QString &path, qint64 items = 1)
    {
        const qint64 before = m_done.fetch_add(items, std::memory_order_relaxed);
        const qint64 done = before + items;
        if (!m_callback || (done / itemsPerReport == before / itemsPerReport && done != m_report.total))
            return;
        const std::lock_guard lock(m_mutex);
        if (done < m_report.processed)
            return; // another thread was quicker to report a later count
        m_report.processed = done;
        if (!path.isEmpty())
            m_report.currentPath = path;
        m_callback(m_report);
    }

private:
    static constexpr qint64 itemsPerReport = 64;

    const ProgressCallback &m_callback;
    std::atomic<qint64> m_done = 0;
    std::mutex m_mutex;
    ScanProgress m_report;
};

/// One stage of a scan: `task(i)` for each i in 0..count-1 on the thread pool, sized by the options. Reports each item
/// under `phase` with `pathOf(i)`; once the scan is cancelled, the rest is left out. `filesFound` as for StageProgress.
template <typename Task, typename PathOf>
void runStage(const ScanContext &context, const QString &phase, qint64 filesFound, qsizetype count, Task task,
              PathOf pathOf)
{
    sizeThreadPool(context.options);
    StageProgress progress(context.progress, phase, filesFound, count);
    forEachParallel(count, [&](qsizetype i) {
        if (context.isCancelled())
            return;
        task(i);
        progress.step(pathOf(i));
    });
}

} // namespace MirrixCore
