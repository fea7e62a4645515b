#include "core/match/foldertree.h"

#include "core/match/groups.h"
#include "core/platform/pathtext.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace MirrixCore {

namespace {

/// Those that lie in no other.
QSet<QStringView> outermost(const QStringList &roots)
{
    const QSet<QStringView> all(roots.begin(), roots.end());
    const auto isBelowAnother = [&](QStringView root) {
        for (QStringView above = folderOf(root); above.size() < root.size(); root = above, above = folderOf(above)) {
            if (all.contains(above))
                return true;
        }
        return false;
    };
    QSet<QStringView> outer;
    std::copy_if(all.begin(), all.end(), std::inserter(outer, outer.end()), std::not_fn(isBelowAnother));
    return outer;
}

} // namespace

FolderTree::FolderTree(const QList<FileEntry> &files, const QStringList &emptyFolders, const QStringList &roots)
{
    const QSet<QStringView> tops = outermost(roots);
    m_folderOfFile.reserve(static_cast<size_t>(files.size()));
    QStringView lastPath;
    qint32 last = none;
    for (const FileEntry &file : files) {
        const QStringView path = folderOf(file.path);
        if (last == none || path != lastPath) // a walk gives the files of a folder together
            last = add(path, tops);
        lastPath = path;
        m_folderOfFile.push_back(last);
    }
    for (const QString &folder : emptyFolders)
        add(folder, tops);
}

qint32 FolderTree::add(QStringView path, const QSet<QStringView> &tops)
{
    std::vector<QStringView> missing;
    qint32 parent = none;
    for (QStringView next = path;; next = folderOf(next)) {
        parent = m_numbers.value(next, none);
        if (parent != none)
            break;
        missing.push_back(next);
        if (next.endsWith(QLatin1Char('/')) || next.isEmpty() || tops.contains(next))
            break;
    }
    for (auto folder = missing.rbegin(); folder != missing.rend(); ++folder) {
        const auto number = static_cast<qint32>(m_folders.size());
        m_numbers.insert(*folder, number);
        m_folders.push_back({*folder, parent});
        parent = number;
    }
    return parent;
}

qint32 FolderTree::folderHolding(QStringView path) const
{
    while (!m_numbers.contains(path)) {
        const QStringView above = folderOf(path);
        if (above.size() == path.size())
            return none;
        path = above;
    }
    return m_numbers.value(path);
}

} // namespace MirrixCore
