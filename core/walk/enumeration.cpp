#include "core/walk/enumeration.h"

#include "core/platform/filestatus.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"
#include "core/walk/fileplaces.h"
#include "core/walk/folderreader.h"
#include "core/walk/namepatterns.h"
#include "core/walk/ownfiles.h"
#include "core/walk/pathrules.h"

#include <QMap>
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
        , m_includeNames(options.includeNames)
        , m_excludeNames(options.excludeNames)
    {}

    /// Whether a file or folder of this name is to be left out.
    [[nodiscard]] bool excludesName(const QString &name) const { return m_excludeNames.match(name); }

    [[nodiscard]] bool accepts(const FolderItem &item) const
    {
        if (m_options.skipHidden && item.isHidden)
            return false;
        if (excludesName(item.name) || (!m_includeNames.isEmpty() && !m_includeNames.match(item.name)))
            return false;
        if (!m_include.isEmpty() || !m_exclude.isEmpty()) {
            const QString suffix = suffixOf(item.name);
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
    NamePatterns m_includeNames;
    NamePatterns m_excludeNames;
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
         QList<UnreadPath> *unread, FolderNotes &folders)
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
        takeSingleFiles();
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
                 !m_rules.isListed(root) && !m_rules.isListed(realPath) && !m_rules.isListed(status.identity)) {
            m_rootIdentity = status.identity;
            walkFolder(root, realPath);
        }
    }

    /// Through their folders, which list what the walk needs to know of a file without opening or following it.
    void takeSingleFiles()
    {
        QMap<QString, NamesByKey> namesByFolder;
        for (const QString &listed : m_options.files) {
            const QString file = cleanedPath(listed);
            const qsizetype slash = file.lastIndexOf(QLatin1Char('/'));
            const QString name = file.mid(slash + 1);
            if (slash >= 0)
                namesByFolder[cleanedPath(file.left(slash + 1))].insert(pathCaseKey(name), name);
        }
        for (auto it = namesByFolder.begin(); it != namesByFolder.end() && !isCancelled(m_cancelled); ++it)
            takeFilesOf(it.key(), it.value());
    }

    using NamesByKey = QMap<QString, QString>; ///< by pathCaseKey

    void takeFilesOf(const QString &folder, NamesByKey names)
    {
        const QString realPath = realPathOf(folder);
        if (m_visited.contains(pathCaseKey(folder)))
            return;
        if (isLeftOutWhole(folder, realPath)) {
            m_folders.leftOut.files += names.size();
            return;
        }
        OpenFolder open{
            folder.size(), realPath, placeOfTree(folder), FolderReader(folder), false, m_files.size(), true, false, {},
            false};
        FolderItem item;
        while (!names.isEmpty() && !isCancelled(m_cancelled) && open.reader.next(item)) {
            if (names.remove(pathCaseKey(item.name)) == 0)
                continue;
            const QString path = joinedPath(folder, item.name);
            if (!item.reason.isEmpty() || item.kind != FolderItem::Kind::File)
                note(path, item.reason.isEmpty() ? QStringLiteral("not a file") : item.reason);
            else
                static_cast<void>(take(path, open, item));
        }
        const QString &error = open.reader.errorText();
        for (const QString &name : std::as_const(names))
            note(joinedPath(folder, name), error.isEmpty() ? QStringLiteral("no such file") : error);
    }

    /// Whether single files of `folder` are left out with it: neither it nor a folder above it is a root.
    bool isLeftOutWhole(const QString &folder, const QString &realPath) const
    {
        const QStringList above = folder.split(QLatin1Char('/'), Qt::SkipEmptyParts);
        const auto isExcluded = [this](const QString &name) { return m_filter.excludesName(name); };
        return m_rules.excludes(folder, false) || (!realPath.isEmpty() && m_rules.excludes(realPath, false)) ||
               (m_rules.needsIdentities() && m_rules.isListed(fileStatus(folder).identity)) ||
               std::any_of(above.begin(), above.end(), isExcluded);
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
            if (!visit(joinedPath(m_path, item.name), current, item))
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
        if (folder.isPartial)
            m_folders.partial.append(m_path);
        else if (folder.isEmpty && folder.reader.errorText().isEmpty())
            m_folders.empty.append(m_path);
    }

    /// False when the folder is left out.
    bool enter(const QString &path, const OpenFolder &parent, const FolderItem &item)
    {
        QString realPath;
        if (item.isFolderLink)
            realPath = realPathOf(path);
        else if (!parent.realPath.isEmpty())
            realPath = joinedPath(parent.realPath, item.name);
        if (isLeftOut(path, realPath, item)) {
            ++m_folders.leftOut.folders;
            return false;
        }
        if (item.isFolderLink && !mayFollow(path))
            return false;
        const FilePlace place = item.isFolderLink && parent.place == FilePlace::Ordinary
                                    ? placeOfTree(path)
                                    : placeOfFolder(path, parent.place);
        push(path, realPath, place, item.isFolderLink);
        return true;
    }

    bool isLeftOut(const QString &path, const QString &realPath, const FolderItem &item) const
    {
        if (m_rules.excludes(path, item.isHidden) || m_filter.excludesName(item.name) ||
            (!realPath.isEmpty() && m_rules.excludes(realPath, false)))
            return true;
        if (!m_rules.needsIdentities() && !m_options.oneFileSystem)
            return false;
        const FileIdentity identity = fileStatus(path).identity;
        const bool isElsewhere = identity.isKnown && m_rootIdentity.isKnown && identity.volume != m_rootIdentity.volume;
        return (m_options.oneFileSystem && isElsewhere) || m_rules.isListed(identity);
    }

    /// The path without links that exclusions are compared with too; empty when that changes nothing.
    QString realPathOf(const QString &path) const
    {
        const QString real = m_rules.needsIdentities() ? canonicalPath(path) : QString();
        return real == path ? QString() : real;
    }

    /// Opens a folder for reading unless an overlapping root has been walked through it before.
    void push(const QString &path, const QString &realPath, FilePlace place, bool followsLink)
    {
        // One root alone overlaps with nothing, so a set of all its folders would be memory for nothing.
        if (m_options.roots.size() > 1 || !m_options.files.isEmpty()) {
            const QString key = pathCaseKey(path);
            if (m_visited.contains(key))
                return;
            m_visited.insert(key);
        }
        const bool isFlat = !m_flatFolders.isEmpty() && m_flatFolders.contains(path.toLower());
        FolderReader reader =
            m_stack.empty() ? FolderReader(path, followsLink) : FolderReader(m_stack.back().reader, path, followsLink);
        m_stack.push_back(
            {path.size(), realPath, place, std::move(reader), !isFlat, m_files.size(), true, false, {}, false});
        m_path = path;
        if (m_stack.size() > mostOpenFolders)
            m_stack[m_stack.size() - 1 - mostOpenFolders].reader.release();
    }

    /// Whether a folder link leads elsewhere than back to a folder that is being walked. Noted as unread when that is
    /// unknown, since following it might never end.
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
        if (!m_filter.accepts(item)) {
            ++m_folders.leftOut.files;
            return false;
        }
        if (item.isPlaceholder) {
            note(path, QStringLiteral("only in the cloud, not compared"));
            return false;
        }
        FileEntry file;
        file.path = path;
        file.size = item.sizeBytes;
        file.modifiedMs = item.modifiedMs;
        file.createdMs = item.createdMs;
        file.allocatedBytes = item.allocatedBytes;
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
    FolderNotes &m_folders;
    FileFilter m_filter;
    FolderRules m_rules;
    OwnFileRules m_own;
    QSet<QString> m_flatFolders; ///< locations without their subfolders, lower case
    QSet<QString> m_visited;     ///< folders walked so far; used only with several roots
    FileIdentity m_rootIdentity;
    std::vector<OpenFolder> m_stack;
    QString m_path; ///< of the innermost open folder
    QList<FileEntry> m_files;
};

} // namespace

QList<FileEntry> enumerateFiles(const ScanOptions &options, const FileCallback &onFile, const CancelQuery &cancelled,
                                QList<UnreadPath> *unread, FolderNotes *folders)
{
    FolderNotes ignored;
    return Walk(options, onFile, cancelled, unread, folders ? *folders : ignored).run();
}

} // namespace MirrixCore
