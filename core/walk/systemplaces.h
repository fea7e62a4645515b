#pragma once

#include <QString>

namespace MirrixCore {

/// Whether the absolute `path` lies where only the running system keeps things that are no user's files: on a file
/// system of the kernel, or in the memory behind /dev and /run. Of what has vanished, the nearest folder above is
/// asked. Always false on Windows. Thread-safe.
[[nodiscard]] bool isSystemPlace(const QString &path);

} // namespace MirrixCore
