#pragma once

#include "cli/scanreport.h"

#include <QJsonObject>

namespace MirrixCli {

/// Writes one JSON object that docs/scan.schema.json describes.
void writeJson(const ScanReport &report, Output &output);

/// The object for a file in such a report.
[[nodiscard]] QJsonObject jsonOf(const MirrixCore::FileEntry &file);

} // namespace MirrixCli
