#include "ui/state/backgroundthreads.h"

#include <QCoreApplication>
#include <QThreadPool>

namespace Mirrix {

namespace {

/// Runs while the application object is destroyed: at the end of the process, libraries that the work uses may already
/// be unloaded.
void endWork()
{
    backgroundThreads()->clear();
    backgroundThreads()->waitForDone();
}

struct BackgroundPool : QThreadPool
{
    BackgroundPool() { qAddPostRoutine(endWork); }
};

Q_GLOBAL_STATIC(BackgroundPool, pool)

} // namespace

QThreadPool *backgroundThreads()
{
    return pool;
}

} // namespace Mirrix
