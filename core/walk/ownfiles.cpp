#include "core/walk/ownfiles.h"

#include <algorithm>
#include <mutex>

namespace MirrixCore {

namespace {

struct Known
{
    std::mutex mutex;
    OwnFiles files;
};

Known &known()
{
    static Known instance;
    return instance;
}

} // namespace

void setOwnFiles(const OwnFiles &files)
{
    const std::lock_guard lock(known().mutex);
    known().files = files;
}

OwnFiles ownFiles()
{
    const std::lock_guard lock(known().mutex);
    return known().files;
}

OwnFileRules::OwnFileRules(const OwnFiles &files)
    : m_files(files)
{
    if (!files.folder.isEmpty())
        m_identity = fileStatus(files.folder).identity;
}

bool OwnFileRules::isOwn(const QString &folder, const QString &name) const
{
    return !m_files.folder.isEmpty() && hasOwnName(name) &&
           (folder == m_files.folder || fileStatus(folder).identity.isSameAs(m_identity));
}

bool OwnFileRules::isOwnOrBelow(const QString &path) const
{
    for (qsizetype slash = path.lastIndexOf(QLatin1Char('/')), end = path.size(); slash >= 0 && end > 0;
         end = slash, slash = end > 0 ? path.lastIndexOf(QLatin1Char('/'), end - 1) : -1) {
        if (isOwn(path.left(std::max<qsizetype>(slash, 1)), path.mid(slash + 1, end - slash - 1)))
            return true;
    }
    return false;
}

bool OwnFileRules::hasOwnName(const QString &name) const
{
    return m_files.names.contains(name) ||
           std::any_of(m_files.beginnings.begin(), m_files.beginnings.end(),
                       [&](const QString &beginning) { return name.startsWith(beginning); });
}

} // namespace MirrixCore
