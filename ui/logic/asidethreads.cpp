#include "ui/logic/asidethreads.h"

#include <QCoreApplication>
#include <QThreadPool>

namespace Mirrix {

namespace {

/// While the application object goes: later, at the end of the process, libraries that the work uses may be gone.
void endWork()
{
    asideThreads()->clear();
    asideThreads()->waitForDone();
}

struct AsideThreads : QThreadPool
{
    AsideThreads() { qAddPostRoutine(endWork); }
};

Q_GLOBAL_STATIC(AsideThreads, pool)

} // namespace

QThreadPool *asideThreads()
{
    return pool;
}

} // namespace Mirrix
