#pragma once

#include "actions/cleaning/cleaningrun.h"
#include "actions/cleaning/undo.h"
#include "actions/cleaning/undoitem.h"
#include "actions/records/backupindex.h"
#include "actions/records/operationslog.h"
#include "actions/records/runjournal.h"

#include <QElapsedTimer>
#include <QSet>
#include <QStringList>

#include <map>
#include <memory>

namespace Mirrix {

/// What is recorded of an undo in progress: its own journal, that of the run that is undone, the indexes of backup
/// folders, and at the end the log. Neither journal says that a file is back before its name is on the disk. One thread
/// at a time.
class UndoRecord
{
public:
    UndoRecord(const UndoPlan &plan, const CleaningServices &services);

    /// Writes down which items of the run are to be restored. Empty, or the reasons for which nothing may be done.
    [[nodiscard]] QStringList begin(const QList<qsizetype> &items);

    /// Keeps other programs from the backup folder that holds the source, if it lies in one.
    void reserve(const UndoSource &source);

    /// What was done with the item at `position` of the list given to begin. False when it could not be written down.
    [[nodiscard]] bool note(qsizetype position, const UndoSource &source, const UndoneItem &result);

    /// An item that is back already, in the journal of the run alone.
    [[nodiscard]] bool noteHome(qsizetype item);

    [[nodiscard]] const QString &runId() const { return m_own.id(); }

    /// Writes down what has happened. The reasons for which that failed.
    [[nodiscard]] QStringList end();

private:
    struct BackupFolder
    {
        explicit BackupFolder(const QString &path)
            : session(path)
        {}

        BackupIndexSession session;
        QList<BackupEntry> gone;
    };

    [[nodiscard]] bool writePending();

    const UndoPlan &m_plan;
    const CleaningServices &m_services;
    RunJournalWriter m_own;
    RunJournalWriter m_undone;
    QList<qsizetype> m_items;
    std::map<QString, std::unique_ptr<BackupFolder>> m_stores;
    QList<ItemOutcome> m_pending; ///< of the own journal
    QSet<QString> m_folders;      ///< those of pending files
    QElapsedTimer m_sinceWritten;
    QList<LogEntry> m_events;
};

/// "undo delete": the method by which the undo of a run is recorded.
[[nodiscard]] QString undoMethodName(const QString &method);

/// The method of the run that a run of this method undid; empty where it was no undo.
[[nodiscard]] QString undoneMethodName(const QString &method);

} // namespace Mirrix
