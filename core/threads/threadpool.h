#pragma once

#include "core/model/scanoptions.h"

namespace MirrixCore {

/// The number of threads a parallel stage uses: `requested` when it is 1 or more, else `ideal` clamped to 1..8.
[[nodiscard]] int threadCountFor(qint32 requested, int ideal);

/// Sizes Qt's global thread pool for `options`. Call before each parallel stage.
void sizeThreadPool(const ScanOptions &options);

} // namespace MirrixCore
