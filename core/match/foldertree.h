#pragma once

#include "core/model/fileentry.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>
#include <QStringView>

#include <vector>

namespace MirrixCore {

/// The folders that hold files or nothing at all, and those above them up to the scan roots.
class FolderTree
{
public:
    static constexpr qint32 none = -1;

    struct Folder
    {
        QStringView path;
        qint32 parent = none;
    };

    /// The folders of `files` and `emptyFolders`, which must outlive the tree, below `roots` (cleaned).
    FolderTree(const QList<FileEntry> &files, const QStringList &emptyFolders, const QStringList &roots);

    /// Each folder behind its parent.
    [[nodiscard]] const std::vector<Folder> &folders() const { return m_folders; }

    /// The number of the folder that file `i` lies in.
    [[nodiscard]] qint32 folderOfFile(qsizetype i) const { return m_folderOfFile[static_cast<size_t>(i)]; }

    /// The number of the innermost folder that is `path` or holds it; none when there is none.
    [[nodiscard]] qint32 folderHolding(QStringView path) const;

private:
    qint32 add(QStringView path, const QSet<QStringView> &tops);

    std::vector<Folder> m_folders;
    std::vector<qint32> m_folderOfFile;
    QHash<QStringView, qint32> m_numbers;
};

} // namespace MirrixCore
