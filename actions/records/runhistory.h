#pragma once

#include "actions/records/runrecord.h"

#include <QList>
#include <QString>

namespace Mirrix {

// What the journals of cleaning runs say. One that was cut or damaged is read up to its last whole record; nothing in
// it is trusted before it has proved authentic. Messages are translated and name the journal.

/// A run without its files.
struct RunSummary
{
    RunHeader header; ///< id and, where nothing else is known, time are those of the file's name
    RunTally::Totals totals;
    bool isReadable = false; ///< also when nothing was written yet: such a run did nothing
    bool isComplete = false; ///< the run ended normally, or was cancelled
    bool isDamaged = false;  ///< the journal contains more than can be read
    QString message;         ///< on what is damaged or cannot be read; empty otherwise
};

/// A run with its files.
struct StoredRun
{
    RunSummary summary;
    QList<RunItem> items;        ///< fewer than planned when the journal was cut among them: then nothing was done
    QList<ItemOutcome> outcomes; ///< the latest of each item, in the items' order
};

/// Reads a journal. Blocks; linear in its length. Re-entrant.
[[nodiscard]] StoredRun readRun(const QString &path);

/// All runs of a data directory, the latest first. Reads every journal once; memory: 24 bytes a file of one run.
/// Re-entrant.
[[nodiscard]] QList<RunSummary> listRuns(const QString &dataDirectory);

/// Deletes a journal. False when it cannot be, or a program writes to it.
[[nodiscard]] bool removeRun(const QString &dataDirectory, const QString &id);

/// The message for a journal of which nothing can be read.
[[nodiscard]] QString unreadableRunText(const QString &path);

} // namespace Mirrix
