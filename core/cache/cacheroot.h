#pragma once

#include <QString>

namespace MirrixCore {

/// Tells the caches which folder to live in: the program's data directory. Call once at start-up, before the first
/// scan. An empty text, the state before the first call, turns the caches off: nothing is found and nothing is stored.
void setCacheRoot(const QString &dataDirectory);

/// The folder given last. Thread-safe.
[[nodiscard]] QString cacheRoot();

} // namespace MirrixCore
