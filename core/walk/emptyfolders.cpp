#include "core/walk/emptyfolders.h"

#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"
#include "core/walk/fileplaces.h"
#include "core/walk/folderreader.h"
#include "core/walk/namepatterns.h"
#include "core/walk/pathrules.h"

#include <QSet>

#include <algorithm>
#include <vector>

namespace MirrixCore {

namespace {

struct OpenFolder
{
    QString path;
    FolderReader reader;
    bool isEmpty = true; ///< as far as it was read
};

class EmptyFolders
{
public:
    EmptyFolders(const ScanOptions &options, const CancelQuery &cancelled, QList<UnreadPath> &unread)
        : m_isOneFileSystem(options.oneFileSystem)
        , m_cancelled(cancelled)
        , m_unread(unread)
        , m_rules(options)
        , m_names(options.excludeNames + versionControlNames())
    {
        for (const QString &root : options.roots)
            m_roots.insert(cleanedPath(root));
    }

    QStringList run()
    {
        for (const QString &root : std::as_const(m_roots))
            walk(root);
        std::sort(m_found.begin(), m_found.end(),
                  [](const QString &a, const QString &b) { return compareCodePoints(a, b) > 0; });
        m_found.removeDuplicates();
        return m_found;
    }

private:
    void walk(const QString &root)
    {
        if (m_rules.excludes(root, false) || m_rules.excludes(canonicalPath(root), false) ||
            placeOfTree(root) != FilePlace::Ordinary)
            return;
        m_volume = fileStatus(root).identity;
        m_stack.push_back({root, FolderReader(root)});
        while (!m_stack.empty() && !isCancelled(m_cancelled)) {
            FolderItem item;
            if (m_stack.back().reader.next(item))
                look(m_stack.back(), item);
            else
                close();
        }
        m_stack.clear();
    }

    void look(OpenFolder &folder, const FolderItem &item)
    {
        const QString path = joinedPath(folder.path, item.name);
        if (!item.reason.isEmpty())
            m_unread.append({path, item.reason});
        if (item.kind == FolderItem::Kind::Folder && item.reason.isEmpty() && mayEnter(path, item))
            m_stack.push_back({path, FolderReader(path, false)});
        else
            folder.isEmpty = false;
    }

    [[nodiscard]] bool mayEnter(const QString &path, const FolderItem &item) const
    {
        if (item.isFolderLink || m_rules.excludes(path, item.isHidden) || m_names.match(item.name) ||
            placeOfFolder(path, FilePlace::Ordinary) != FilePlace::Ordinary)
            return false;
        if (!m_isOneFileSystem && !m_rules.needsIdentities())
            return true;
        const FileIdentity identity = fileStatus(path).identity;
        return !m_rules.isListed(identity) && (!m_isOneFileSystem || identity.volume == m_volume.volume);
    }

    void close()
    {
        OpenFolder folder = std::move(m_stack.back());
        m_stack.pop_back();
        if (!folder.reader.errorText().isEmpty()) {
            m_unread.append({folder.path, folder.reader.errorText()});
            folder.isEmpty = false; // the part that was not read may hold anything
        }
        if (folder.isEmpty && !m_roots.contains(folder.path))
            m_found.append(folder.path);
        else if (!m_stack.empty())
            m_stack.back().isEmpty = false;
    }

    const bool m_isOneFileSystem;
    const CancelQuery &m_cancelled;
    QList<UnreadPath> &m_unread;
    FolderRules m_rules;
    NamePatterns m_names; ///< of folders that are not entered
    QSet<QString> m_roots;
    FileIdentity m_volume; ///< of the root that is walked
    std::vector<OpenFolder> m_stack;
    QStringList m_found;
};

} // namespace

QStringList findEmptyFolders(const ScanOptions &options, const CancelQuery &cancelled, QList<UnreadPath> &unread)
{
    return EmptyFolders(options, cancelled, unread).run();
}

} // namespace MirrixCore
