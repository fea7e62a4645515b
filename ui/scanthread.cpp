#include "ui/scanthread.h"

namespace Mirrix {

namespace {

constexpr int insistMs = 50;

}

ScanThread::ScanThread(QObject *parent)
    : QObject(parent)
    , m_worker(new MirrixCore::ScanWorker)
{
    m_worker->moveToThread(&m_thread);
    m_insist.setInterval(insistMs);
    connect(&m_insist, &QTimer::timeout, this, [this] { m_worker->cancel(); });
    connect(m_worker, &MirrixCore::ScanWorker::finished, &m_insist, &QTimer::stop);
    connect(m_worker, &MirrixCore::ScanWorker::failed, &m_insist, &QTimer::stop);
    connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread.start();
}

ScanThread::~ScanThread()
{
    m_thread.quit();
    do
        m_worker->cancel();
    while (!m_thread.wait(insistMs));
}

void ScanThread::start(const MirrixCore::ScanOptions &options)
{
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, options] { worker->start(options); }, Qt::QueuedConnection);
}

void ScanThread::cancel()
{
    m_worker->cancel();
    m_insist.start();
}

} // namespace Mirrix
