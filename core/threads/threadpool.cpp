#include "core/threads/threadpool.h"

#include <QThread>
#include <QThreadPool>

#include <algorithm>

namespace MirrixCore {

int threadCountFor(qint32 requested, int ideal)
{
    return requested >= 1 ? requested : std::clamp(ideal, 1, 8);
}

void sizeThreadPool(const ScanOptions &options)
{
    QThreadPool::globalInstance()->setMaxThreadCount(threadCountFor(options.threads, QThread::idealThreadCount()));
}

} // namespace MirrixCore
