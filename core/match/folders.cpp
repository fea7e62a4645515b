#include "core/match/folders.h"

#include "core/match/foldertree.h"
#include "core/match/groups.h"
#include "core/match/locationkinds.h"
#include "core/platform/pathtext.h"

#include <QSet>

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace MirrixCore {

namespace {

/// Whether the matches of this search are matches of contents.
bool comparesContents(const ScanOptions &options)
{
    switch (options.mode()) {
    case SearchMode::Files:
        return options.contentMatch == static_cast<qint32>(ContentMatch::Exact);
    case SearchMode::Audio:
        return options.audioDepth() != AudioDepth::IgnoreContent;
    case SearchMode::Video:
        return options.videoDepth() != VideoDepth::IgnoreContent;
    case SearchMode::Images:
        break;
    }
    return false;
}

/// What lies in a folder under one name.
struct Item
{
    QStringView name;
    qint32 content = 0; ///< of a file its group or emptyFile, of a folder below that its class

    bool operator<(const Item &other) const { return std::tie(name, content) < std::tie(other.name, other.content); }
};

constexpr qint32 emptyFile = -1;
constexpr qint32 unequal = -2;          ///< known to be equal to nothing
constexpr qint32 firstFolderClass = -3; ///< and downwards, so that no folder has the number of a file's content

using Items = std::vector<Item>;

/// Brings folders of equal content together, from the leaves up: two folders are equal when they hold the same names,
/// each with the same content.
class FolderMatcher
{
public:
    FolderMatcher(const QList<FileEntry> &files, const FolderNotes &walked, const ScanResult &scan,
                  const ScanOptions &options)
        : m_kinds(options)
        , m_tree(files, walked.empty, cleanedPaths(options.roots))
        , m_states(m_tree.folders().size())
        , m_groupCount(static_cast<qint32>(scan.groups.size()))
        , m_contentCount(m_groupCount)
    {
        numberGroups(scan.groups);
        for (const UnreadPath &unread : scan.unread)
            markUnmatched(unread.path);
        for (const QString &folder : walked.partial)
            markUnmatched(folder);
        for (qsizetype i = 0; i < files.size(); ++i)
            take(files[i], m_states[static_cast<size_t>(m_tree.folderOfFile(i))]);
    }

    QList<FolderGroup> groups()
    {
        classify();
        QList<FolderGroup> groups;
        for (auto members = m_classes.rbegin(); members != m_classes.rend(); ++members) {
            if (members->size() >= 2 && hasCopies(members->front()) && !isImplied(*members))
                groups.append(groupOf(*members));
        }
        std::stable_sort(groups.begin(), groups.end(), [](const FolderGroup &a, const FolderGroup &b) {
            return a.size * (a.folders.size() - 1) > b.size * (b.folders.size() - 1);
        });
        return groups;
    }

private:
    struct State
    {
        Items items;
        qint64 fileCount = 0;
        qint64 linkCount = 0; ///< those of the files that are known for equal only as names of one file
        qint64 size = 0;
        qint32 contentClass = -1;
        bool hasUnmatched = false; ///< holds something that is equal to nothing
    };

    static QStringList cleanedPaths(QStringList paths)
    {
        for (QString &path : paths)
            path = cleanedPath(path);
        return paths;
    }

    bool isOfContentLocation(const QString &path) const
    {
        const FindKind kind = m_kinds.isUniform() ? m_kinds.uniformKind() : m_kinds.kindOf(path);
        return kind == FindKind::ContentDuplicates;
    }

    void numberGroups(const QList<DuplicateGroup> &groups)
    {
        for (qsizetype i = 0; i < groups.size(); ++i) {
            if (!isOfContentLocation(groups[i].files.constFirst().path))
                continue;
            for (const FileEntry &file : groups[i].files) {
                m_groupOfFile.insert(file.path, static_cast<qint32>(i));
                if (hasFurtherNames(file))
                    m_contentOfIdentity.try_emplace({file.volumeSerial, file.fileIndex}, static_cast<qint32>(i));
            }
        }
    }

    /// Whether the file's number on its volume identifies it, and it has other names.
    static bool hasFurtherNames(const FileEntry &file)
    {
        return file.hasFileId && file.fileIndex != 0 && file.linkCount > 1;
    }

    void markUnmatched(const QString &path)
    {
        const qint32 folder = m_tree.folderHolding(path);
        if (folder != FolderTree::none)
            m_states[static_cast<size_t>(folder)].hasUnmatched = true;
    }

    /// What the file has in common with others; `unequal` when nothing is known to be equal to it. Of the names of one
    /// file the groups may hold one, or none when there are no further copies.
    qint32 contentOf(const FileEntry &file)
    {
        const auto group = m_groupOfFile.constFind(file.path);
        if (group != m_groupOfFile.cend())
            return *group;
        if (!isOfContentLocation(file.path))
            return unequal;
        if (file.size == 0)
            return emptyFile;
        if (!hasFurtherNames(file))
            return unequal;
        const auto known = m_contentOfIdentity.try_emplace({file.volumeSerial, file.fileIndex}, m_contentCount);
        if (known.second)
            ++m_contentCount;
        return known.first->second;
    }

    void take(const FileEntry &file, State &folder)
    {
        if (folder.hasUnmatched)
            return;
        const qint32 content = contentOf(file);
        if (content == unequal) {
            folder.hasUnmatched = true;
            folder.items = {};
            return;
        }
        folder.items.push_back({nameOf(file.path), content});
        ++folder.fileCount;
        folder.linkCount += content >= m_groupCount ? 1 : 0;
        folder.size += file.size;
    }

    /// From the last folder to the first, so that each comes before its parent.
    void classify()
    {
        std::map<Items, qint32> classOfContent;
        for (size_t i = m_states.size(); i-- > 0;) {
            State &folder = m_states[i];
            const FolderTree::Folder &place = m_tree.folders()[i];
            State *parent = place.parent == FolderTree::none ? nullptr : &m_states[static_cast<size_t>(place.parent)];
            if (folder.hasUnmatched) {
                if (parent)
                    parent->hasUnmatched = true;
                continue;
            }
            std::sort(folder.items.begin(), folder.items.end());
            const auto next = static_cast<qint32>(m_classes.size());
            folder.contentClass = classOfContent.try_emplace(std::move(folder.items), next).first->second;
            folder.items = {};
            if (folder.contentClass == next)
                m_classes.emplace_back();
            m_classes[static_cast<size_t>(folder.contentClass)].push_back(static_cast<qint32>(i));
            if (parent) {
                parent->items.push_back({nameOf(place.path), firstFolderClass - folder.contentClass});
                parent->fileCount += folder.fileCount;
                parent->linkCount += folder.linkCount;
                parent->size += folder.size;
            }
        }
    }

    /// Whether the folder holds files, and not only names of files that its equals hold as well.
    bool hasCopies(qint32 folder) const
    {
        const State &state = m_states[static_cast<size_t>(folder)];
        return state.fileCount > state.linkCount;
    }

    /// Whether the folders' parents are equal too and all different ones: then each pair follows from theirs.
    bool isImplied(const std::vector<qint32> &members) const
    {
        QSet<qint32> parents;
        QSet<qint32> classes;
        for (const qint32 member : members) {
            const qint32 parent = m_tree.folders()[static_cast<size_t>(member)].parent;
            if (parent == FolderTree::none)
                return false;
            parents.insert(parent);
            classes.insert(m_states[static_cast<size_t>(parent)].contentClass);
        }
        return parents.size() == std::ssize(members) && classes.size() == 1 && !classes.contains(-1);
    }

    FolderGroup groupOf(const std::vector<qint32> &members) const
    {
        const State &any = m_states[static_cast<size_t>(members.front())];
        FolderGroup group{{}, any.fileCount, any.size};
        for (auto member = members.rbegin(); member != members.rend(); ++member) {
            const QStringView path = m_tree.folders()[static_cast<size_t>(*member)].path;
            group.folders.append({path.toString(), any.fileCount, any.size});
        }
        return group;
    }

    const LocationKinds m_kinds;
    const FolderTree m_tree;
    std::vector<State> m_states;
    QHash<QStringView, qint32> m_groupOfFile;
    std::map<std::pair<quint32, quint64>, qint32> m_contentOfIdentity; ///< of files with further names
    const qint32 m_groupCount;
    qint32 m_contentCount;                      ///< groups, then files with further names that are in none
    std::vector<std::vector<qint32>> m_classes; ///< folders of equal content, last first
};

} // namespace

QList<FolderGroup> findDuplicateFolders(const QList<FileEntry> &files, const FolderNotes &walked,
                                        const ScanResult &scan, const ScanOptions &options)
{
    return comparesContents(options) ? FolderMatcher(files, walked, scan, options).groups() : QList<FolderGroup>();
}

void keepGroupsOfDuplicateFolders(QList<DuplicateGroup> &groups, const QList<FolderGroup> &folderGroups)
{
    QSet<QStringView> duplicates;
    for (const FolderGroup &group : folderGroups) {
        for (const FolderEntry &folder : group.folders)
            duplicates.insert(folder.path);
    }
    const auto isInside = [&](const FileEntry &file) {
        for (QStringView path = file.path, folder = folderOf(path);; path = folder, folder = folderOf(path)) {
            if (duplicates.contains(folder))
                return true;
            if (folder.size() == path.size())
                return false;
        }
    };
    groups.removeIf([&](const DuplicateGroup &group) {
        return std::count_if(group.files.begin(), group.files.end(), isInside) < 2;
    });
}

QList<FileEntry> remainingFiles(const QList<FileEntry> &files, const QList<DuplicateGroup> &groups,
                                const ScanOptions &options)
{
    const LocationKinds locations(options);
    if (!locations.showRemaining())
        return {};
    QSet<QStringView> grouped;
    for (const DuplicateGroup &group : groups) {
        for (const FileEntry &file : group.files)
            grouped.insert(file.path);
    }
    QList<FileEntry> remaining;
    std::copy_if(files.begin(), files.end(), std::back_inserter(remaining), [&](const FileEntry &file) {
        return !grouped.contains(file.path) && locations.showRemainingOf(file.path);
    });
    return remaining;
}

} // namespace MirrixCore
