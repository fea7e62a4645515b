#pragma once

#include "cli/scanreport.h"

namespace MirrixCli {

/// Writes one JSON object that docs/scan.schema.json describes.
void writeJson(const ScanReport &report, Output &output);

} // namespace MirrixCli
