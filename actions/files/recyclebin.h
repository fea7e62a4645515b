#pragma once

#include "actions/files/batch.h"

#include <QStringList>

#include <functional>

namespace Mirrix {

/// The system's Recycle Bin or trash, as the functions that a batch needs. Tests use their own.
struct RecycleBin
{
    /// What the system answers when it is handed files.
    struct Answer
    {
        int code = 0; ///< 0 = done
        bool isAborted = false;
        QStringList placed = {}; ///< where each file is now, in the order of the paths; empty where that is unknown
    };

    qsizetype batchSize = 1; ///< most files in one call of `send`

    /// Whether the file would really go into a bin; when not, `send` would delete it for good or take other files with
    /// it.
    std::function<bool(const QString &path)> canTake;

    /// Sends existing files. The disk, not the answer, shows the outcome for each.
    std::function<Answer(const QStringList &paths)> send;

    /// Puts a file back that was just sent, from `placed` where that is known. False when it stays in the bin.
    std::function<bool(const QString &path, const QString &placed)> putBack = {};
};

/// Looks up a file that was just sent to the system's bin and puts it back at its free path.
[[nodiscard]] bool putBackRecycled(const QString &path, const QString &placed);

/// The one of this system. `send` blocks until the files are gone.
[[nodiscard]] RecycleBin systemRecycleBin();

/// The message for a call of `send` that failed.
[[nodiscard]] QString binFailureText(int code, qsizetype fileCount);

/// Sends files to a bin in batches. Progress and guard are asked before each batch, for all its files. Counted is what
/// has left its place; what stays is named.
[[nodiscard]] BatchResult recycleInto(const RecycleBin &bin, const QStringList &paths, const BatchControl &control);

} // namespace Mirrix
