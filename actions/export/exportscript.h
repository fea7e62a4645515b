#pragma once

#include "actions/export/exportrecords.h"

namespace Mirrix {

/// Writes a batch script for cmd.exe with one line for each file,
///
///     del /f /q "PATH"
///
/// that deletes exactly this file or none: the paths have native separators, percent signs are doubled, and a file that
/// such a line cannot name (what a wildcard, a name that Windows trims, or a line too long for cmd.exe would hit is
/// another one) is written as a remark and reported in `refusals`. Below "@echo off" the script turns cmd.exe to UTF-8
/// when a path needs it, ending where that fails, and turns the expansion of "!" off when a path has one. A script of
/// redacted paths is for reading: their asterisks name no folder. UTF-8, lines ended by "\r\n". False when the sink or
/// the progress ended it early. Thread-safe.
[[nodiscard]] bool writeDeletionScript(const ExportRecords &records, const ExportOptions &options, const ByteSink &sink,
                                       QStringList &refusals, const BatchProgress &progress = {});

} // namespace Mirrix
