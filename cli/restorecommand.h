#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// Declares the options of "restore".
void addRestoreOptions(QCommandLineParser &parser);

/// Runs "restore": lists what a backup folder holds, checks it, or puts back what is named. What fails is named on
/// standard error.
/// Throws UsageError.
[[nodiscard]] ExitStatus runRestore(const QCommandLineParser &parser);

} // namespace MirrixCli
