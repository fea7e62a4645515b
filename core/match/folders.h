#pragma once

#include "core/scan/scanoptions.h"
#include "core/scan/scanresult.h"

namespace MirrixCore {

/// Groups of folders with the same content, from finished file groups. Not written yet: finds none.
[[nodiscard]] QList<FolderGroup> findDuplicateFolders(const QList<FileEntry> &files,
                                                      const QList<DuplicateGroup> &groups, const ScanOptions &options);

/// Drops the groups without two members inside duplicate folders. Not written yet: no folder counts as a duplicate, so
/// every group is dropped.
void keepGroupsOfDuplicateFolders(QList<DuplicateGroup> &groups, const QList<FileEntry> &files);

/// The files in no group, of the locations that show them. Not written yet: none.
[[nodiscard]] QList<FileEntry> remainingFiles(const QList<FileEntry> &files, const QList<DuplicateGroup> &groups,
                                              const ScanOptions &options);

} // namespace MirrixCore
