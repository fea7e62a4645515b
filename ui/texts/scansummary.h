#pragma once

#include "core/model/scanoptions.h"

#include <QString>

namespace Mirrix {

/// What the question before a scan says about it: several lines, translated. Interface thread only.
[[nodiscard]] QString scanSummary(const MirrixCore::ScanOptions &options);

} // namespace Mirrix
