#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "actions/cleaning/discard.h"
#include "actions/cleaning/spaceaccount.h"
#include "actions/records/backupindex.h"
#include "actions/records/runjournal.h"

#include <QStringList>

#include <optional>

namespace Mirrix {

struct CleaningServices;

/// What is recorded of a run in progress: the journal says for each file what was planned and done, the backup index
/// lists each file that may not be at its old path, and the log gets its line at the end. One run, one thread.
class CleaningRecord
{
public:
    CleaningRecord(const CleaningPlan &plan, const CleaningServices &services);

    /// Writes down what is going to happen. Empty, or the reasons for which nothing may be done.
    [[nodiscard]] QStringList begin();

    /// The path to which an item's file is moved or set aside; empty where the method decides that itself.
    [[nodiscard]] QString placeOf(qsizetype item) const;

    /// What was done with an item, and what that freed and holds. False when it could not be written down.
    [[nodiscard]] bool note(qsizetype item, const CleaningOutcome &outcome, const Space &space);

    [[nodiscard]] const QString &runId() const { return m_journal.id(); }

    /// Writes down what has happened. The reasons for which that failed.
    [[nodiscard]] QStringList end(qsizetype doneCount);

private:
    [[nodiscard]] bool beginJournal(const QList<PathState> &states);
    [[nodiscard]] QList<RunItem> plannedItems(const QList<PathState> &states) const;
    [[nodiscard]] QList<BackupEntry> plannedEntries(const QList<PathState> &states) const;

    const CleaningPlan &m_plan;
    const CleaningServices &m_services;
    RunJournalWriter m_journal;
    std::optional<BackupIndexSession> m_index;
    QList<BackupEntry> m_planned;
    QList<BackupEntry> m_kept;
};

} // namespace Mirrix
