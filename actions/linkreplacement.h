#pragma once

#include "actions/batch.h"

#include <QList>
#include <QString>

namespace Mirrix {

/// A file to be replaced by a link.
struct LinkReplacement
{
    QString path;   ///< the file
    QString target; ///< another file, to which the link leads
};

enum class LinkKind
{
    Symbolic,
    Hard
};

/// What becomes of the files that links take the place of.
enum class Originals
{
    KeepInBackup, ///< they stay in the backup folder
    Discard       ///< they are set aside in their own folders and deleted once their links have proved good
};

/// Replaces files by links: each file is moved out of the way, the link made at its path and opened to see that it
/// leads to the target; when it does not, the file is put back. Whatever ends a batch, a crash included, each file is
/// whole at its old path, or reached through its link, or at a path that the index of the backup folder lists. Blocks;
/// run long lists off the interface thread.
[[nodiscard]] BatchResult replaceByLinks(const QString &backupFolder, const QList<LinkReplacement> &files,
                                         LinkKind kind, Originals originals, const BatchControl &control = {});

} // namespace Mirrix
