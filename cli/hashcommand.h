#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// Declares the options of "hash".
void addHashOptions(QCommandLineParser &parser);

/// Runs "hash": a line "HEX  path" per file, in the order given, the files of a folder sorted by path. A file that
/// cannot be read is named on standard error. Throws UsageError.
[[nodiscard]] ExitStatus runHash(const QCommandLineParser &parser);

} // namespace MirrixCli
