#pragma once

class QThreadPool;

namespace Mirrix {

/// The threads for what the window has done aside: reading, sorting, freeing. Not the global pool: a scan keeps that
/// one busy for minutes. Thread-safe.
[[nodiscard]] QThreadPool *asideThreads();

} // namespace Mirrix
