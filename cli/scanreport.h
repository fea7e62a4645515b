#pragma once

#include "cli/output.h"
#include "core/scan/scanresult.h"

namespace MirrixCli {

enum class ReportFormat
{
    Text,
    Json,
    Csv
};

/// Writes a result for people (Text), programs (Json: one object, described in the README) or spreadsheets (Csv: the
/// groups as the window exports them). Group by group, so that a large result needs no second copy in memory.
void writeReport(const MirrixCore::ScanResult &result, ReportFormat format, Output &output);

} // namespace MirrixCli
