#include "actions/cleaning/createdlink.h"

#include "actions/files/fileoperations.h"
#include "actions/files/movefile.h"
#include "actions/records/backupindex.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <QCryptographicHash>
#include <QDir>

namespace Mirrix {

namespace {

/// `path` without links and dots as far as it exists.
QString resolvedPath(const QString &path)
{
    const QString resolved = MirrixCore::canonicalPath(path);
    const QString folder = folderOf(path);
    if (!resolved.isEmpty() || folder.isEmpty() || folder == path)
        return resolved.isEmpty() ? path : resolved;
    return MirrixCore::cleanedPath(joinedPath(resolvedPath(folder), fileNameOf(path)));
}

/// Whether the text of a symbolic link names `target`, which may be gone.
bool names(const QString &link, const QString &target)
{
    const QString text = symbolicLinkText(link);
    const QString named = QDir::isAbsolutePath(text) ? text : joinedPath(folderOf(link), text);
    return !text.isEmpty() && resolvedPath(named) == resolvedPath(target);
}

/// A name of our own that stays the same for one file of one run, so that what a crash left can be found again.
QString ownPath(const RunItem &item, const QString &suffix)
{
    const QString seed = item.original + QLatin1Char('\n') + item.aside;
    const QByteArray digest = QCryptographicHash::hash(MirrixCore::pathBytes(seed), QCryptographicHash::Sha256);
    return joinedPath(folderOf(item.original),
                      QLatin1String(".mirrix-") + QString::fromLatin1(digest.toHex().left(16)) + suffix);
}

} // namespace

CreatedLink::CreatedLink(const RunItem &item, CleaningMethod method)
    : m_item(item)
    , m_method(method)
    , m_target(item.linkTarget.isEmpty() ? item.kept : item.linkTarget)
{}

bool CreatedLink::isOurs(const QString &path) const
{
    if (!isLinking(m_method) || m_target.isEmpty() || path == m_target)
        return false;
    const PathState there = pathState(path);
    const bool isHard = m_method == CleaningMethod::HardLink || m_method == CleaningMethod::BackupAndHardLink;
    if (isHard)
        return there.kind == PathState::Kind::File && there.identity.isSameAs(pathState(m_target).identity);
    return there.kind == PathState::Kind::Link && (leadsTo(path, m_target) || names(path, m_target));
}

bool CreatedLink::setAside() const
{
    if (!isInPlace())
        return true;
    if (!removeAside() || renameExclusively(m_item.original, asidePath()) != FileFault::None)
        return false;
    if (isOurs(asidePath()))
        return true;
    putBack();
    return false;
}

void CreatedLink::putBack() const
{
    if (isLinking(m_method))
        static_cast<void>(renameExclusively(asidePath(), m_item.original));
}

bool CreatedLink::removeAside() const
{
    if (!isLinking(m_method) || pathState(asidePath()).kind == PathState::Kind::Missing)
        return true;
    return isOurs(asidePath()) && removeFile(asidePath()) == FileFault::None;
}

QString CreatedLink::partPath() const
{
    return ownPath(m_item, QStringLiteral(".part"));
}

QString CreatedLink::asidePath() const
{
    return ownPath(m_item, QStringLiteral(".aside"));
}

} // namespace Mirrix
