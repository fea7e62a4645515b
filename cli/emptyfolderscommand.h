#pragma once

#include "cli/commandline.h"

namespace MirrixCli {

/// The option by which "clean" removes empty folders instead of surplus copies.
[[nodiscard]] bool wantsEmptyFolders(const QCommandLineParser &parser);

/// Declares it.
void addEmptyFoldersOption(QCommandLineParser &parser);

/// Runs "clean --empty-folders": names the empty folders and, when `isApplied`, removes them. Throws UsageError.
[[nodiscard]] ExitStatus cleanEmptyFolders(const QCommandLineParser &parser, bool isApplied);

} // namespace MirrixCli
