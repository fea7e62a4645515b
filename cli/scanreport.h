#pragma once

#include "cli/output.h"
#include "core/model/scanresult.h"

#include <QStringList>

namespace MirrixCli {

enum class ReportFormat
{
    Text,
    Json,
    Csv,
    Nul
};

/// What a scan found.
struct ScanReport
{
    MirrixCore::ScanResult result;
    QStringList emptyFolders;
    bool hasFiles = true;    ///< whether files were looked at
    bool hasFolders = false; ///< whether empty folders were searched for
};

struct ReportStyle
{
    ReportFormat format = ReportFormat::Text;
    QString colour;       ///< as isColoured takes it; for Text
    bool isQuiet = false; ///< without the summary; for Text
};

/// Writes a result for people (Text), programs (Json: one object, as docs/scan.schema.json lays it down; Nul: the paths
/// of the groups and of empty folders, each ended by a NUL byte, an empty one between groups) or spreadsheets (Csv: the
/// groups as the window exports them). Group by group, so that a large result needs no second copy in memory.
void writeReport(const ScanReport &report, const ReportStyle &style, Output &output);

} // namespace MirrixCli
