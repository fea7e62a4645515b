#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// Declares the options of "log".
void addLogOptions(QCommandLineParser &parser);

/// Runs "log": prints the operations log, oldest first, in local time; as JSON an array of objects with "timeMs",
/// "action" and "detail". Throws UsageError.
[[nodiscard]] ExitStatus runLog(const QCommandLineParser &parser);

} // namespace MirrixCli
