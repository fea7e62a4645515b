#include "core/match/folders.h"

namespace MirrixCore {

QList<FolderGroup> findDuplicateFolders(const QList<FileEntry> &, const QList<DuplicateGroup> &, const ScanOptions &)
{
    return {};
}

void keepGroupsOfDuplicateFolders(QList<DuplicateGroup> &groups, const QList<FileEntry> &)
{
    groups.clear();
}

QList<FileEntry> remainingFiles(const QList<FileEntry> &, const QList<DuplicateGroup> &, const ScanOptions &)
{
    return {};
}

} // namespace MirrixCore
