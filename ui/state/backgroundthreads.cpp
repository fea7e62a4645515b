#include "ui/state/backgroundthreads.h"

#include <QCoreApplication>
#include <QThreadPool>

namespace Mirrix {

namespace {

/// While the application object goes: later, at the end of the process, libraries that the work uses may be gone.
void endWork()
{
    backgroundThreads()->clear();
    backgroundThreads()->waitForDone();
}

struct AsideThreads : QThreadPool
{
    AsideThreads() { qAddPostRoutine(endWork); }
};

Q_GLOBAL_STATIC(AsideThreads, pool)

} // namespace

QThreadPool *backgroundThreads()
{
    return pool;
}

} // namespace Mirrix
