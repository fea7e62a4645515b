#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "actions/cleaning/spaceaccount.h"
#include "actions/files/batch.h"
#include "actions/files/recyclebin.h"

#include <QString>

namespace Mirrix {

class OperationsLog;

/// What a run needs besides its plan.
struct CleaningServices
{
    OperationsLog &log;
    QString dataDirectory; ///< holds the journals of runs
    QString command;       ///< what asked for the run, for the record: "window" or the console's command line
    RecycleBin bin = systemRecycleBin();
};

struct CleaningResult : BatchResult
{
    Space space;   ///< of the files that were processed
    QString runId; ///< under which the run is recorded; empty when nothing was to be done
};

/// Carries a plan out, file by file: the only place where files are removed. What cannot be recorded is not done: when
/// the log or the index of the backup folder cannot be written, no file is touched. Each file is checked and, where the
/// group is to hold equal bytes, compared with the copy that stays before anything happens to it; see discard.h and
/// transfer.h for what is promised. No failure ends the run; each is named with its reason, and the file stays where it
/// was. Progress is reported before each file and during long comparisons; when the callback returns false, the run
/// stops and leaves no file half done. Blocks; one run at a time for each backup folder, others wait some seconds for
/// it.
[[nodiscard]] CleaningResult runCleaning(const CleaningPlan &plan, const CleaningServices &services,
                                         const BatchProgress &progress = {});

} // namespace Mirrix
