#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "actions/records/runhistory.h"

#include <QString>

namespace Mirrix {

// What the cleaning history says of runs and files, in the current language.

/// How the files of a run were removed, such as "Moved to backup + Symbolic link"; for an undo, that it is one.
[[nodiscard]] QString runMethodText(const RunHeader &run);

/// The same for a method.
[[nodiscard]] QString methodText(CleaningMethod method);

/// The method of the run that `run` undid; empty where it is no undo.
[[nodiscard]] QString undoneMethodText(const RunHeader &run);

/// Whether the run ended normally, was undone or undid another.
[[nodiscard]] QString runStateText(const RunSummary &run);

/// What a run did with a file, and why not where it failed.
[[nodiscard]] QString fileStateText(const RunHeader &run, const ItemOutcome &outcome);

} // namespace Mirrix
