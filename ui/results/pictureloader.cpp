#include "ui/results/pictureloader.h"

namespace Mirrix {

PictureLoader::PictureLoader(QObject *parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(2);
}

PictureLoader::~PictureLoader()
{
    request({});
    m_pool.waitForDone();
}

void PictureLoader::setPictureReader(PictureReader reader)
{
    const QMutexLocker lock(&m_mutex);
    m_readPicture = std::move(reader);
}

void PictureLoader::setFactsReader(FactsReader reader)
{
    const QMutexLocker lock(&m_mutex);
    m_readFacts = std::move(reader);
}

void PictureLoader::request(QList<PictureRequest> requests)
{
    const QMutexLocker lock(&m_mutex);
    m_pending = std::move(requests);
    while (m_workers < std::min<qsizetype>(m_pool.maxThreadCount(), m_pending.size())) {
        ++m_workers;
        m_pool.start([this] { work(); });
    }
}

void PictureLoader::work()
{
    for (QMutexLocker lock(&m_mutex);; lock.relock()) {
        if (m_pending.isEmpty()) {
            --m_workers;
            return;
        }
        const PictureRequest request = m_pending.takeFirst();
        const PictureReader readImage = m_readPicture;
        const FactsReader readFacts = m_readFacts;
        lock.unlock();
        LoadedPicture result{readFacts ? readFacts(request.file) : request.file, {}};
        if (isPicture(request.file.path))
            result.picture = readImage(request.file.path, request.bounds);
        QMetaObject::invokeMethod(
            this, [this, result] { emit loaded(result); }, Qt::QueuedConnection);
    }
}

} // namespace Mirrix
