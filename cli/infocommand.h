#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// Declares the options of "info".
void addInfoOptions(QCommandLineParser &parser);

/// Runs "info": what is known of each file named, from the file system, its content and the caches. Throws UsageError.
[[nodiscard]] ExitStatus runInfo(const QCommandLineParser &parser);

} // namespace MirrixCli
