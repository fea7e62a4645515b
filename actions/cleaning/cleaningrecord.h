#pragma once

#include "actions/backupindex.h"
#include "actions/cleaning/cleaningplan.h"
#include "actions/cleaning/discard.h"

#include <QStringList>

#include <optional>

namespace Mirrix {

class OperationsLog;

/// What is kept of a run while it goes on: the backup index lists each file that may be away from its place, and the
/// log gets its line at the end. One run, one thread.
class CleaningRecord
{
public:
    CleaningRecord(const CleaningPlan &plan, OperationsLog &log);

    /// Writes down what is going to happen. Empty, or the reasons for which nothing may be done.
    [[nodiscard]] QStringList begin();

    /// Where the file of an item goes: into the backup folder, or aside; empty where the method decides that itself.
    [[nodiscard]] QString placeOf(qsizetype item) const;

    /// What was done with an item.
    void note(qsizetype item, const CleaningOutcome &outcome);

    /// Writes down what has happened. The reasons for which that failed.
    [[nodiscard]] QStringList end(qsizetype doneCount);

private:
    [[nodiscard]] QList<BackupEntry> plannedEntries() const;

    const CleaningPlan &m_plan;
    OperationsLog &m_log;
    std::optional<BackupIndexSession> m_index;
    QList<BackupEntry> m_planned;
    QList<BackupEntry> m_kept;
};

} // namespace Mirrix
