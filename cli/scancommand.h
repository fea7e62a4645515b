#pragma once

#include "cli/commandline.h"
#include "core/model/scanoptions.h"
#include "core/model/scanresult.h"

namespace MirrixCli {

/// Declares the options of "scan".
void addScanOptions(QCommandLineParser &parser);

/// Runs "scan": one scan of the folders named, its report to standard output or a file, and what could not be read to
/// standard error. Throws UsageError.
[[nodiscard]] ExitStatus runScan(const QCommandLineParser &parser);

/// The scan that the command line asks for: --options first, then each --set in order, then the other options.
/// Throws UsageError.
[[nodiscard]] MirrixCore::ScanOptions scanOptionsOf(const QCommandLineParser &parser);

// What "scan" shares with commands that scan first.

/// Declares the options that prepareScan reads.
void addPreparationOptions(QCommandLineParser &parser);

/// Chooses digest and cache as the command line asks, and notes Ctrl-C from now on. Throws UsageError.
void prepareScan(const QCommandLineParser &parser);

/// Scans, with a progress line unless `isQuiet`, and names what could not be read on standard error.
[[nodiscard]] MirrixCore::ScanResult scanAndReportUnread(const MirrixCore::ScanOptions &options, bool isQuiet);

/// Looks for empty files instead of duplicates.
void seekEmptyFiles(MirrixCore::ScanOptions &options);

/// Declares --quiet and --color.
void addOutputOptions(QCommandLineParser &parser);
[[nodiscard]] bool isQuiet(const QCommandLineParser &parser);

} // namespace MirrixCli
