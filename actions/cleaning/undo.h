#pragma once

#include "actions/cleaning/cleaningrun.h"
#include "actions/files/batch.h"
#include "actions/records/runhistory.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Mirrix {

/// One file of a run and whether it can be restored.
struct UndoStep
{
    qsizetype item = 0; ///< index in the run's list
    QString problem;    ///< why the file cannot be restored, translated; empty when it can, as far as a check shows
    QString from = {};  ///< the file that is moved back, or the kept copy of which it is made again; may be empty
};

/// What undoing a run would do. A plain value: nothing has been done yet.
struct UndoPlan
{
    StoredRun run;
    QList<UndoStep> steps;      ///< for each file that is not in its place because of the run, in the run's order
    QList<qsizetype> home = {}; ///< files that are back though the run's record does not say so
    QString backupFolder = {};  ///< as given to planUndo
};

/// Whether the run brought files back; undoing it removes them again.
[[nodiscard]] bool isUndoing(const RunHeader &run);

/// The method by which the files of a run were removed, or those of the run that it undid; of a journal that cannot be
/// read any method.
[[nodiscard]] CleaningMethod cleaningMethod(const RunHeader &run);

/// Reads a run and looks where its files are; contents are not read. Files that the run did not touch, that are back
/// already or that are in their places have no step. What an interrupted run did with a file is found out from the
/// disk. For a run that was an undo itself the steps are to remove the files again, if nothing has changed since. Not
/// for journals that cannot be read: see run.summary. `backupFolder` is that of the settings, where backups are looked
/// for, too, when the run's own folder is gone. Blocks; cancelled by `progress`: then the steps are not all.
[[nodiscard]] UndoPlan planUndo(const QString &dataDirectory, const QString &runId, const BatchProgress &progress = {},
                                const QString &backupFolder = {});

struct UndoResult : BatchResult
{
    QStringList notes; ///< what could not be tidied up after files that are back, translated
    QString runId;     ///< under which the undo is recorded; empty when nothing was to be done
};

/// Brings files of a run back to their old paths with the old times and permissions, never over anything that is there:
/// from the backup folder, the folder they were moved to, or the bin; what was replaced by a link or deleted for good
/// is made again from the kept copy when that still has the content that was proved equal. `steps` are those of
/// planUndo, or some of them. Recorded as a run of its own, with "undo " before the method, and refused where that is
/// not possible. What an undo restored is removed again by runCleaning, with its proof. No failure ends it. Blocks.
[[nodiscard]] UndoResult undoRun(const UndoPlan &plan, const QList<UndoStep> &steps, const CleaningServices &services,
                                 const BatchProgress &progress = {});

/// Deletes what a run has left in the backup folder, for good, and notes that in its journal and in the index of the
/// folder. The number of files and messages; blocks.
[[nodiscard]] BatchResult freeBackups(const StoredRun &run, const CleaningServices &services,
                                      const BatchProgress &progress = {});

/// Bytes that a run's files take in the backup folder now, going by the records.
[[nodiscard]] qint64 heldInBackup(const RunSummary &run);

} // namespace Mirrix
