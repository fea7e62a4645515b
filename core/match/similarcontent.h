#pragma once

#include "core/model/scancontext.h"
#include "core/model/scanresult.h"

namespace MirrixCore {

inline constexpr qint64 similarMemoryBytes = 134217728; ///< enough for the samples of 6,500 files

/// Groups files of one size whose samples agree to `similarPercent` or more, directly or through others; the key states
/// the lowest percentage that joins two of them ("SIM:93%"). Each file is read once, at most 20 KiB; only of a size
/// with more files than `memoryBytes` hold, some are read again. Compares each pair of a size, in parallel: 20,000
/// files take seconds to minutes. Cancelled within milliseconds: counts without groups.
[[nodiscard]] ScanResult matchSimilarContent(const QList<FileEntry> &files, const ScanContext &context,
                                             qint64 memoryBytes = similarMemoryBytes);

} // namespace MirrixCore
