#include "core/walk/pathrules.h"

#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <QDir>

#include <algorithm>

namespace MirrixCore {

namespace {

const QStringList &systemFolders()
{
    static const QStringList folders = {
        QStringLiteral("C:/Windows"),
        QStringLiteral("C:/Program Files"),
        QStringLiteral("C:/Program Files (x86)"),
        QStringLiteral("C:/ProgramData"),
        QStringLiteral("C:/$Recycle.Bin"),
        QStringLiteral("C:/System Volume Information"),
        QStringLiteral("C:/Recovery"),
        QStringLiteral("C:/PerfLogs"),
    };
    return folders;
}

/// With the system's separators only.
QString nativelyComparablePath(const QString &path)
{
    return cleanedPath(path).toLower();
}

QStringList nativelyComparablePaths(const QStringList &paths)
{
    QStringList comparable;
    for (const QString &path : paths) {
        if (!path.isEmpty())
            comparable.append(nativelyComparablePath(path));
    }
    return comparable;
}

} // namespace

bool isExcludedFolder(const QString &path, const ScanOptions &options)
{
    const auto covers = [&](const QString &folder) { return !folder.isEmpty() && isUnderFolder(path, folder); };
    const auto anyCovers = [&](const QStringList &folders) {
        return std::any_of(folders.begin(), folders.end(), covers);
    };
    return anyCovers(options.excludeFolders) || (options.skipSystemFolders && anyCovers(systemFolders())) ||
           (options.skipHidden && fileStatus(path).isHidden);
}

FolderRules::FolderRules(const ScanOptions &options)
    : m_excluded(nativelyComparablePaths(options.excludeFolders))
    , m_system(options.skipSystemFolders ? nativelyComparablePaths(systemFolders()) : QStringList())
    , m_skipHidden(options.skipHidden)
{
    // A walk may reach an excluded folder by another path: through a link, in other letter case, through a mount.
    for (const QString &folder : options.excludeFolders) {
        const FileIdentity identity = folder.isEmpty() ? FileIdentity() : fileStatus(folder).identity;
        if (!identity.isKnown)
            continue;
        m_identities.append(identity);
        const QString real = nativelyComparablePath(canonicalPath(folder));
        if (!real.isEmpty() && !m_excluded.contains(real))
            m_excluded.append(real);
    }
}

bool FolderRules::excludes(const QString &path, bool isHidden) const
{
    if (m_skipHidden && isHidden)
        return true;
    if (m_excluded.isEmpty() && m_system.isEmpty())
        return false;
    const QString comparable = nativelyComparablePath(path);
    const auto covers = [&](const QString &folder) { return isBelow(comparable, folder); };
    return std::any_of(m_excluded.begin(), m_excluded.end(), covers) ||
           std::any_of(m_system.begin(), m_system.end(), covers);
}

bool FolderRules::isListed(const QString &path) const
{
    return m_excluded.contains(nativelyComparablePath(path));
}

bool FolderRules::isListed(const FileIdentity &identity) const
{
    return std::any_of(m_identities.begin(), m_identities.end(),
                       [&](const FileIdentity &listed) { return listed.isSameAs(identity); });
}

} // namespace MirrixCore
