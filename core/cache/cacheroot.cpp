#include "core/cache/cacheroot.h"

#include <mutex>

namespace MirrixCore {

namespace {

struct Root
{
    std::mutex mutex;
    QString folder;
};

Root &root()
{
    static Root instance;
    return instance;
}

} // namespace

void setCacheRoot(const QString &dataDirectory)
{
    const std::lock_guard lock(root().mutex);
    root().folder = dataDirectory;
}

QString cacheRoot()
{
    const std::lock_guard lock(root().mutex);
    return root().folder;
}

QStringList cacheFolders()
{
    const QString folder = cacheRoot();
    if (folder.isEmpty())
        return {};
    return {folder + QLatin1Char('/') + fingerprintCacheName, folder + QLatin1Char('/') + imageFeatureCacheName};
}

} // namespace MirrixCore
