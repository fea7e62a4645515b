#pragma once

namespace MirrixCore {

/// Registers the scan records as meta-types, so that they can travel in queued signals. Call once at start-up, before
/// the first connection; calling again does no harm.
void registerScanMetaTypes();

} // namespace MirrixCore
