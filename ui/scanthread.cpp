#include "ui/scanthread.h"

namespace Mirrix {

ScanThread::ScanThread(QObject *parent)
    : QObject(parent)
    , m_worker(new MirrixCore::ScanWorker)
{
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    // The worker forgets a wish to cancel that reaches it before it has begun; here it is heard at the first report.
    const auto insist = [this] {
        if (m_cancelWanted)
            m_worker->cancel();
    };
    connect(m_worker, &MirrixCore::ScanWorker::progress, this, insist, Qt::DirectConnection);
    m_thread.start();
}

ScanThread::~ScanThread()
{
    cancel();
    m_thread.quit();
    m_thread.wait();
}

void ScanThread::start(const MirrixCore::ScanOptions &options)
{
    m_cancelWanted = false;
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, options] { worker->start(options); }, Qt::QueuedConnection);
}

void ScanThread::cancel()
{
    m_worker->cancel();
}

} // namespace Mirrix
