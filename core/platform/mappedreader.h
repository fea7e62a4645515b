#pragma once

#include <QCryptographicHash>
#include <QString>

#include <functional>

namespace MirrixCore {

inline constexpr qint64 mapThresholdBytes = 16777216; ///< files below are streamed
inline constexpr qint64 mapViewBytes = 67108864;      ///< most that is mapped at once

/// Receives successive parts of a file. Returns false to stop the reading.
using ByteSink = std::function<bool(const char *bytes, qint64 length)>;

/// Feeds the whole file to `sink` from memory-mapped views. A file that is cut short or whose drive fails during
/// reading ends the reading, not the program. Returns true when every byte was fed; false when mapping is not possible
/// or not wise here (always on POSIX, where a file cut short raises SIGBUS; on Windows for volumes that are not fixed
/// and local), when reading failed, or when the sink stopped it; the sink may then have seen a part. Thread-safe.
[[nodiscard]] bool mapFileIntoSink(const QString &path, const ByteSink &sink);

/// The same, into `hash`; on false its state is undefined.
[[nodiscard]] bool mapFileIntoHash(const QString &path, QCryptographicHash &hash);

} // namespace MirrixCore
