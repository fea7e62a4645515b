#pragma once

#include "cli/output.h"
#include "core/scan/scanresult.h"

namespace MirrixCli {

enum class ReportFormat
{
    Text,
    Json
};

/// Writes a result for people (Text) or programs (Json: one object, described in the README). Group by group, so that
/// a large result needs no second copy in memory.
void writeReport(const MirrixCore::ScanResult &result, ReportFormat format, Output &output);

} // namespace MirrixCli
