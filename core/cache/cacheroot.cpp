#include "core/cache/cacheroot.h"

#include "core/platform/nativepath.h"

#include <QCryptographicHash>

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

QString cacheEntryPath(const QString &cacheName, const QString &filePath)
{
    const QString folder = cacheRoot();
    if (folder.isEmpty())
        return {};
    const QByteArray digest = QCryptographicHash::hash(pathBytes(filePath), QCryptographicHash::Sha256).toHex();
    return folder + QLatin1Char('/') + cacheName + QLatin1Char('/') + QLatin1String(digest.first(2)) +
           QLatin1Char('/') + QLatin1String(digest) + QLatin1String(".json");
}

} // namespace MirrixCore
