#pragma once

#include <QtGlobal>

namespace MirrixCore {

/// How much memory this process may use at most, in bytes: the machine's, or less where the system allows less; 0 when
/// it does not say. Thread-safe.
[[nodiscard]] qint64 memoryBytes();

} // namespace MirrixCore
