#include "core/walk/enumeration.h"

#include "core/platform/nativepath.h"
#include "core/walk/fileplaces.h"
#include "core/walk/filestatus.h"
#include "core/walk/folderreader.h"
#include "core/walk/ownfiles.h"
#include "core/walk/pathrules.h"

#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace MirrixCore {

namespace {

/// Which files of a folder are taken.
class FileFilter
{
public:
    explicit FileFilter(const ScanOptions &options)
        : m_options(options)
        , m_include(comparableExtensions(options.includeExtensions))
        , m_exclude(comparableExtensions(options.excludeExtensions))
    {}

    [[nodiscard]] bool accepts(const FolderItem &item) const
    {
        if (m_options.skipHidden && item.isHidden)
            return false;
        if (!m_include.isEmpty() || !m_exclude.isEmpty()) {
            const QString suffix = lowerSuffix(item.name);
            if (m_exclude.contains(suffix) || (!m_include.isEmpty() && !m_include.contains(suffix)))
                return false;
        }
        return isWithin(item.sizeBytes, m_options.minSize, m_options.maxSize) &&
               isDateWithin(item.createdMs, m_options.createdFromMs, m_options.createdToMs) &&
               isDateWithin(item.modifiedMs, m_options.modifiedFromMs, m_options.modifiedToMs);
    }

private:
    static QSet<QString> comparableExtensions(const QStringList &extensions)
    {
        QSet<QString> comparable;
        for (const QString &extension : extensions)
            comparable.insert(extension.startsWith(QLatin1Char('.')) ? extension.mid(1).toLower()
                                                                     : extension.toLower());
        return comparable;
    }

    /// Both ends inclusive, each one off below 1.
    static bool isWithin(qint64 value, qint64 from, qint64 to)
    {
        return (from < 1 || value >= from) && (to < 1 || value <= to);
    }

    /// An unknown time is in no range.
    static bool isDateWithin(qint64 timeMs, qint64 fromMs, qint64 toMs)
    {
        return isWithin(timeMs, fromMs, toMs) && (timeMs >= 1 || toMs < 1);
    }

    const ScanOptions &m_options;
    QSet<QString> m_include;
    QSet<QString> m_exclude;
};

/// A folder being walked.
struct OpenFolder
{
    qsizetype pathLength; ///< of what the innermost folder's path begins with; deep trees have long paths
    QString realPath;     ///< without links, when something is excluded and it differs from the path; else empty
    FilePlace place;
    FolderReader reader;
    bool descends;          ///< whether its subfolders are walked
    qsizetype firstFile;    ///< how many files were taken before it was opened
    bool isEmpty = true;    ///< nothing was found in it so far
    bool isPartial = false; ///< something was left out of it
    FileIdentity identity;  ///< read when a folder link is met below
    bool hasIdentity = false;
};

/// One walk over all roots. Folders are kept on an explicit stack: a tree may be deeper than a thread's stack allows.
class Walk
{
public:
    Walk(const ScanOptions &options, const FileCallback &onFile, const CancelQuery &cancelled,
         QList<UnreadPath> *unread, FolderNotes *folders)
        : m_options(options)
        , m_onFile(onFile)
        , m_cancelled(cancelled)
        , m_unread(unread)
        , m_folders(folders)
        , m_filter(options)
        , m_rules(options)
        , m_own(ownFiles())
    {
        for (const ScanLocation &location : options.locations) {
            if (!location.includeSubfolders)
                m_flatFolders.insert(cleanedPath(location.path).toLower());
        }
    }

    QList<FileEntry> run()
    {
        for (const QString &root : m_options.roots) {
            if (isCancelled(m_cancelled))
                break;
            walkRoot(cleanedPath(root));
        }
        return std::move(m_files);
    }

private:
    void walkRoot(const QString &root)
    {
        if (root.isEmpty())
            return;
        const FileStatus status = fileStatus(root);
        if (status.kind == FileStatus::Kind::Missing)
            note(root, status.reason.isEmpty() ? QStringLiteral("no such folder") : status.reason);
        else if (status.kind != FileStatus::Kind::Folder)
            note(root, QStringLiteral("not a folder"));
        else if (m_own.isOwnOrBelow(root))
            note(root, QStringLiteral("the program's own files, not scanned"));
        else if (const QString realPath = realPathOf(root);
                 !m_rules.isListed(root) && !m_rules.isListed(realPath) && !m_rules.isListed(status.identity))
            walkFolder(root, realPath);
    }

    void walkFolder(const QString &folder, const QString &realFolder)
    {
        push(folder, realFolder, placeOfTree(folder), true);
        FolderItem item;
        while (!m_stack.empty()) {
            if (isCancelled(m_cancelled)) {
                m_stack.clear();
                return;
            }
            OpenFolder &current = m_stack.back();
            if (!current.reader.next(item)) {
                note(m_path, current.reader.errorText());
                noteFolder(current);
                m_stack.pop_back();
                m_path.truncate(m_stack.empty() ? 0 : m_stack.back().pathLength);
                continue;
            }
            current.isEmpty = false;
            const size_t depth = m_stack.size(); // entering a folder moves the others
            if (!visit(childPath(m_path, item.name), current, item))
                m_stack[depth - 1].isPartial = true;
        }
    }

    /// False when the entry is left out.
    bool visit(const QString &path, OpenFolder &folder, const FolderItem &item)
    {
        if (m_own.isOwn(m_path, item.name))
            return false;
        if (!item.reason.isEmpty()) {
            note(path, item.reason);
            return false;
        }
        switch (item.kind) {
        case FolderItem::Kind::Folder:
            return folder.descends && enter(path, folder, item);
        case FolderItem::Kind::File:
            return take(path, folder, item);
        case FolderItem::Kind::Other:
            break;
        }
        return false;
    }

    void noteFolder(const OpenFolder &folder)
    {
        if (m_folders && folder.isPartial)
            m_folders->partial.append(m_path);
        else if (m_folders && folder.isEmpty && folder.reader.errorText().isEmpty())
            m_folders->empty.append(m_path);
    }

    static QString childPath(const QString &folder, const QString &name)
    {
        return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
    }

    /// False when the folder is left out.
    bool enter(const QString &path, const OpenFolder &parent, const FolderItem &item)
    {
        if (m_rules.excludes(path, item.isHidden))
            return false;
        QString realPath;
        if (item.isFolderLink)
            realPath = realPathOf(path);
        else if (!parent.realPath.isEmpty())
            realPath = childPath(parent.realPath, item.name);
        if ((!realPath.isEmpty() && m_rules.excludes(realPath, false)) ||
            (m_rules.needsIdentities() && m_rules.isListed(fileStatus(path).identity)))
            return false;
        if (item.isFolderLink && !mayFollow(path))
            return false;
        const FilePlace place = item.isFolderLink && parent.place == FilePlace::Ordinary
                                    ? placeOfTree(path)
                                    : placeOfFolder(path, parent.place);
        push(path, realPath, place, item.isFolderLink);
        return true;
    }

    /// The path without links that exclusions are compared with too; empty when that changes nothing.
    QString realPathOf(const QString &path) const
    {
        const QString real = m_rules.needsIdentities() ? canonicalPath(path) : QString();
        return real == path ? QString() : real;
    }

    /// Opens a folder for reading unless an overlapping root has been walked through it before.
    void push(const QString &path, const QString &realPath, FilePlace place, bool isLinkWanted)
    {
        if (m_options.roots.size() > 1) {
            const QString key = pathCaseKey(path);
            if (m_visited.contains(key))
                return;
            m_visited.insert(key);
        }
        const bool isFlat = !m_flatFolders.isEmpty() && m_flatFolders.contains(path.toLower());
        FolderReader reader = m_stack.empty() ? FolderReader(path, isLinkWanted)
                                              : FolderReader(m_stack.back().reader, path, isLinkWanted);
        m_stack.push_back(
            {path.size(), realPath, place, std::move(reader), !isFlat, m_files.size(), true, false, {}, false});
        m_path = path;
        if (m_stack.size() > mostOpenFolders)
            m_stack[m_stack.size() - 1 - mostOpenFolders].reader.release();
    }

    /// Whether a folder link leads anywhere but back to a folder that is being walked. Noted as unread when that cannot
    /// be told, since following it might never end.
    bool mayFollow(const QString &path)
    {
        const FileStatus target = fileStatus(path);
        if (!target.identity.isKnown || target.identity.index == 0) {
            note(path,
                 target.reason.isEmpty() ? QStringLiteral("a link of unknown target, not followed") : target.reason);
            return false;
        }
        return std::none_of(m_stack.begin(), m_stack.end(), [&](OpenFolder &open) {
            if (!open.hasIdentity)
                open.identity = fileStatus(m_path.left(open.pathLength)).identity;
            open.hasIdentity = true;
            return open.identity.isSameAs(target.identity);
        });
    }

    /// All that was taken since a folder was opened lies in it or below it.
    void markAsBackupFolder(OpenFolder &folder)
    {
        folder.place = FilePlace::BackupFolder;
        for (qsizetype i = folder.firstFile; i < m_files.size(); ++i)
            m_files[i].place = FilePlace::BackupFolder;
    }

    /// False when the file is left out.
    bool take(const QString &path, OpenFolder &folder, const FolderItem &item)
    {
        if (folder.place == FilePlace::Ordinary && isBackupIndex(item.name))
            markAsBackupFolder(folder);
        if (!m_filter.accepts(item))
            return false;
        if (item.isPlaceholder) {
            note(path, QStringLiteral("only in the cloud, not compared"));
            return false;
        }
        FileEntry file;
        file.path = path;
        file.size = item.sizeBytes;
        file.modifiedMs = item.modifiedMs;
        file.createdMs = item.createdMs;
        file.place = folder.place;
        if (m_options.readFileIdentity || m_options.collapseHardLinks)
            setIdentity(file, item.identity.isKnown ? item.identity : fileStatus(path).identity);
        m_files.append(file);
        if (m_onFile)
            m_onFile(file, m_files.size());
        return true;
    }

    static void setIdentity(FileEntry &file, const FileIdentity &identity)
    {
        if (!identity.isKnown)
            return;
        file.volumeSerial = identity.volume;
        file.fileIndex = identity.index;
        file.linkCount = identity.links;
        file.hasFileId = true;
    }

    void note(const QString &path, const QString &reason)
    {
        if (m_unread && !reason.isEmpty())
            m_unread->append({path, reason});
    }

    static constexpr size_t mostOpenFolders = 32; ///< a process may have few descriptors

    const ScanOptions &m_options;
    const FileCallback &m_onFile;
    const CancelQuery &m_cancelled;
    QList<UnreadPath> *m_unread;
    FolderNotes *m_folders;
    FileFilter m_filter;
    FolderRules m_rules;
    OwnFileRules m_own;
    QSet<QString> m_flatFolders; ///< locations without their subfolders, lower case
    QSet<QString> m_visited;     ///< folders walked so far; used only with several roots
    std::vector<OpenFolder> m_stack;
    QString m_path; ///< of the innermost open folder
    QList<FileEntry> m_files;
};

} // namespace

QList<FileEntry> enumerateFiles(const ScanOptions &options, const FileCallback &onFile, const CancelQuery &cancelled,
                                QList<UnreadPath> *unread, FolderNotes *folders)
{
    return Walk(options, onFile, cancelled, unread, folders).run();
}

} // namespace MirrixCore
