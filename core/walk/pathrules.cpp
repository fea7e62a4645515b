#include "core/walk/pathrules.h"

#include "core/walk/filestatus.h"

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

QString comparablePath(const QString &path)
{
    return QDir::cleanPath(path).replace(QLatin1Char('\\'), QLatin1Char('/')).toLower();
}

/// Both in comparable form.
bool isBelow(const QString &path, const QString &folder)
{
    if (!path.startsWith(folder))
        return false;
    return path.size() == folder.size() || folder.endsWith(QLatin1Char('/')) || path[folder.size()] == QLatin1Char('/');
}

QStringList comparablePaths(const QStringList &paths)
{
    QStringList comparable;
    for (const QString &path : paths) {
        if (!path.isEmpty())
            comparable.append(comparablePath(path));
    }
    return comparable;
}

} // namespace

QString cleanedPath(const QString &path)
{
    const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
    // "C:" alone means the current folder of that drive to the system, and the whole drive to everybody else.
    const bool isBareDrive = clean.size() == 2 && clean[1] == QLatin1Char(':') && clean[0].isLetter();
    return isBareDrive ? clean + QLatin1Char('/') : clean;
}

bool isUnderFolder(const QString &path, const QString &folder)
{
    return isBelow(comparablePath(path), comparablePath(folder));
}

bool isExcludedFolder(const QString &path, const ScanOptions &options)
{
    const bool isHidden = options.skipHidden && fileStatus(path).isHidden;
    return FolderRules(options).excludes(path, isHidden);
}

QString lowerSuffix(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? QString() : name.mid(dot + 1).toLower();
}

FolderRules::FolderRules(const ScanOptions &options)
    : m_excluded(comparablePaths(options.excludeFolders))
    , m_system(options.skipSystemFolders ? comparablePaths(systemFolders()) : QStringList())
    , m_skipHidden(options.skipHidden)
{}

bool FolderRules::excludes(const QString &path, bool isHidden) const
{
    if (m_skipHidden && isHidden)
        return true;
    if (m_excluded.isEmpty() && m_system.isEmpty())
        return false;
    const QString comparable = comparablePath(path);
    const auto covers = [&](const QString &folder) { return isBelow(comparable, folder); };
    return std::any_of(m_excluded.begin(), m_excluded.end(), covers) ||
           std::any_of(m_system.begin(), m_system.end(), covers);
}

bool FolderRules::isListed(const QString &path) const
{
    return m_excluded.contains(comparablePath(path));
}

} // namespace MirrixCore
