#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// Declares the options of "options".
void addOptionsOptions(QCommandLineParser &parser);

/// Runs "options": what is to be known of each scan option, or of those named. Throws UsageError.
[[nodiscard]] ExitStatus runOptions(const QCommandLineParser &parser);

} // namespace MirrixCli
