#include "ui/window/scanthread.h"

namespace Mirrix {

namespace {

constexpr int cancelRetryMs = 50;

}

ScanThread::ScanThread(QObject *parent)
    : QObject(parent)
    , m_worker(std::make_unique<MirrixCore::ScanWorker>())
{
    m_worker->moveToThread(&m_thread);
    m_cancelRetry.setInterval(cancelRetryMs);
    connect(&m_cancelRetry, &QTimer::timeout, this, [this] { m_worker->cancel(); });
    connect(m_worker.get(), &MirrixCore::ScanWorker::finished, &m_cancelRetry, &QTimer::stop);
    connect(m_worker.get(), &MirrixCore::ScanWorker::failed, &m_cancelRetry, &QTimer::stop);
    m_thread.start();
}

ScanThread::~ScanThread()
{
    m_thread.quit();
    do
        m_worker->cancel();
    while (!m_thread.wait(cancelRetryMs));
}

void ScanThread::start(const MirrixCore::ScanOptions &options)
{
    QMetaObject::invokeMethod(
        m_worker.get(), [worker = m_worker.get(), options] { worker->start(options); }, Qt::QueuedConnection);
}

void ScanThread::cancel()
{
    m_worker->cancel();
    m_cancelRetry.start();
}

} // namespace Mirrix
