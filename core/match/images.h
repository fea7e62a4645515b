#pragma once

#include "core/model/scancontext.h"
#include "core/model/scanresult.h"

namespace MirrixCore {

/// Groups pictures that look similar; see groupSimilarImages. What cannot be decoded joins no group. Caches features
/// where a cache is set. Cancelled: counts without groups.
[[nodiscard]] ScanResult matchImages(QList<FileEntry> files, const ScanContext &context);

} // namespace MirrixCore
