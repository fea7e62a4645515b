#include "ui/logic/asidethreads.h"

#include <QThreadPool>

namespace Mirrix {

Q_GLOBAL_STATIC(QThreadPool, pool)

QThreadPool *asideThreads()
{
    return pool;
}

} // namespace Mirrix
