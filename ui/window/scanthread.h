#pragma once

#include "core/scan/scanworker.h"

#include <QThread>
#include <QTimer>

#include <memory>

namespace Mirrix {

/// The scan worker on a thread of its own. Ending it stops a running scan and waits for it.
class ScanThread : public QObject
{
    Q_OBJECT

public:
    explicit ScanThread(QObject *parent = nullptr);
    ~ScanThread() override;

    /// Starts a scan; exactly one of the worker's finished and failed follows. One scan at a time.
    void start(const MirrixCore::ScanOptions &options);

    /// Asks the running scan to stop; returns at once.
    void cancel();

    /// For connections to the worker's signals, which arrive queued.
    [[nodiscard]] MirrixCore::ScanWorker *worker() { return m_worker.get(); }

private:
    QThread m_thread;
    std::unique_ptr<MirrixCore::ScanWorker> m_worker; ///< lives longer than its thread runs
    QTimer m_cancelRetry; ///< repeats cancel(): a worker drops one that reaches it before it has started
};

} // namespace Mirrix
