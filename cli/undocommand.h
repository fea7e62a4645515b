#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// Declares the options of "undo".
void addUndoOptions(QCommandLineParser &parser);

/// Runs "undo": prints what of a cleaning run would come back, or brings it back. What cannot come back is named on
/// standard error. Throws UsageError.
[[nodiscard]] ExitStatus runUndo(const QCommandLineParser &parser);

} // namespace MirrixCli
