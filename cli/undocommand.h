#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// Declares the options of "undo".
void addUndoOptions(QCommandLineParser &parser);

/// Runs "undo": prints which files of a cleaning run can be restored, or restores them. What cannot be restored is
/// named on standard error. Throws UsageError.
[[nodiscard]] ExitStatus runUndo(const QCommandLineParser &parser);

} // namespace MirrixCli
