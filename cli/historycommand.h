#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// Declares the options of "history".
void addHistoryOptions(QCommandLineParser &parser);

/// Runs "history": prints the recorded cleaning runs, the latest first, in local time, or one run with its files. As
/// JSON an array of runs, or one run with the member "files". What is damaged is named on standard error. Throws
/// UsageError.
[[nodiscard]] ExitStatus runHistory(const QCommandLineParser &parser);

} // namespace MirrixCli
