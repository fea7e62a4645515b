#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"

namespace MirrixCore {

/// What every step of one scan works under. Refers to what the scan's caller owns; lives no longer than the scan.
struct ScanContext
{
    const ScanOptions &options;
    const ProgressCallback &progress;
    const CancelQuery &cancelled;

    /// Whether the scan is to stop. Thread-safe.
    [[nodiscard]] bool isCancelled() const { return MirrixCore::isCancelled(cancelled); }
};

} // namespace MirrixCore
