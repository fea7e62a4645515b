#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

// Commands for packagers, which the usage does not list.

/// Runs "completion SHELL": prints a script for that shell. Throws UsageError.
[[nodiscard]] ExitStatus runCompletion(const QCommandLineParser &parser);

/// Runs "manpage [COMMAND]": prints a manual page. With --all, writes all of them into a folder. Throws UsageError.
[[nodiscard]] ExitStatus runManpage(const QCommandLineParser &parser);

void addCompletionOptions(QCommandLineParser &parser);
void addManpageOptions(QCommandLineParser &parser);

} // namespace MirrixCli
