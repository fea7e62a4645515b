#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace MirrixCore {

/// Called for each file taken, with the number of files so far. May be empty.
using FileCallback = std::function<void(const FileEntry &file, qint64 count)>;

/// What a walk reports besides the files that it takes.
struct FolderNotes
{
    QStringList partial; ///< folders of which something was left out: filtered, excluded, no plain file, not entered
    QStringList empty;   ///< folders that hold nothing at all
    LeftOut leftOut;     ///< what the filters left out
};

/// Walks the roots of `options` in their order, then takes its single files, and returns the files that pass its
/// filters, each path once even when roots overlap. The program's own files (setOwnFiles) are never among them. Missing
/// roots, excluded ones (only when listed themselves) and what cannot be read are left out; the latter, and files whose
/// content is not on this machine, are appended to `unread` when it is given; what else there is to report, to
/// `folders`. Stops early when `cancelled` answers true, which is asked per entry. Blocks; single-threaded; never opens
/// a file for its content.
[[nodiscard]] QList<FileEntry> enumerateFiles(const ScanOptions &options, const FileCallback &onFile,
                                              const CancelQuery &cancelled, QList<UnreadPath> *unread = nullptr,
                                              FolderNotes *folders = nullptr);

} // namespace MirrixCore
