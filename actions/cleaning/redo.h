#pragma once

#include "actions/cleaning/undo.h"

namespace Mirrix {

// Removes files again that an undo has restored.

/// The steps for a run that was an undo: each file that still is as it was before the run that was undone.
[[nodiscard]] QList<UndoStep> redoSteps(const StoredRun &undo, const BatchProgress &progress);

/// Carries them out as a cleaning run of its own, by the method of the run that was undone and with the kept copies
/// recorded, and notes in the journal of the undo what was removed again.
[[nodiscard]] UndoResult redo(const UndoPlan &plan, const QList<qsizetype> &items, const CleaningServices &services,
                              const BatchProgress &progress);

} // namespace Mirrix
