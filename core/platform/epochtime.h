#pragma once

#include <QtGlobal>

namespace MirrixCore {

/// A time of the system's file calls in milliseconds since the Unix epoch; 0, which is "unknown", for times before it.
[[nodiscard]] constexpr qint64 epochMsFrom(qint64 seconds, qint64 nanoseconds)
{
    return seconds < 0 ? 0 : seconds * 1000 + nanoseconds / 1000000;
}

} // namespace MirrixCore
