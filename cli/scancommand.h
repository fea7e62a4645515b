#pragma once

#include "cli/commandline.h"
#include "core/scan/scanoptions.h"

namespace MirrixCli {

/// Declares the options of "scan".
void addScanOptions(QCommandLineParser &parser);

/// Runs "scan": one scan of the folders named, its report to standard output or a file, and what could not be read to
/// standard error. Throws UsageError.
[[nodiscard]] ExitStatus runScan(const QCommandLineParser &parser);

/// The scan that the command line asks for: --options first, then each --set in order, then the other options.
/// Throws UsageError.
[[nodiscard]] MirrixCore::ScanOptions scanOptionsOf(const QCommandLineParser &parser);

} // namespace MirrixCli
