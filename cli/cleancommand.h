#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// Declares the options of "clean".
void addCleanOptions(QCommandLineParser &parser);

/// Runs "clean": scans for identical files, marks all of each group but the one that the rule keeps, and lists what it
/// would do; with --apply it does it. What fails is named on standard error. Throws UsageError.
[[nodiscard]] ExitStatus runClean(const QCommandLineParser &parser);

} // namespace MirrixCli
