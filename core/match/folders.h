#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanresult.h"
#include "core/walk/enumeration.h"

namespace MirrixCore {

/// Groups of folders with the same content: the same paths below them, and behind each path files of one group, names
/// of one file, empty files or empty folders. A folder with any other file, with something that could not be read or
/// that the walk left out, has no duplicate. Folders that share all their files by hard links are no group while these
/// count once. Only the topmost are listed: folders whose parents are already grouped pair by pair are left out. Scan
/// roots and folders below them count. The matches must be of contents (identical, samples or openings); for any other
/// search, and in locations that look for something else, there are none. `scan` gives the file groups and what was
/// unread, `walked` what the walk noted about the folders. By reclaimable size, largest first; folders in the order of
/// `files`. Takes time linear in the files times the logarithm of the folders.
[[nodiscard]] QList<FolderGroup> findDuplicateFolders(const QList<FileEntry> &files, const FolderNotes &walked,
                                                      const ScanResult &scan, const ScanOptions &options);

/// Drops the groups without two members inside folders of `folderGroups`.
void keepGroupsOfDuplicateFolders(QList<DuplicateGroup> &groups, const QList<FolderGroup> &folderGroups);

/// The files in no group, in their order, of the locations that show them; without locations, all of them when
/// `showRemaining` is on.
[[nodiscard]] QList<FileEntry> remainingFiles(const QList<FileEntry> &files, const QList<DuplicateGroup> &groups,
                                              const ScanOptions &options);

} // namespace MirrixCore
