#pragma once

#include "actions/cleaning/cleaningrun.h"

namespace Mirrix {

/// Removes folders that are empty at that moment, in the order given: a folder after those in it. It is a run as those
/// of runCleaning, with the method emptyFoldersMethod: what cannot be recorded is not done, and undoing makes the
/// folders again. Each is removed by the one call of the system that fails for a folder with anything in it, so nothing
/// is lost but the folder itself. What is a link by now, or is no longer empty, stays and is named. `undoOf` as in
/// CleaningPlan. Blocks; cancels between folders.
[[nodiscard]] CleaningResult removeEmptyFolders(const QStringList &folders, const CleaningServices &services,
                                                const BatchProgress &progress = {}, const QString &undoOf = {});

} // namespace Mirrix
