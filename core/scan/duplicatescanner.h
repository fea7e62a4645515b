#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"

namespace MirrixCore {

/// The engine's entry. Knows no state between scans; one scan at a time, since all share Qt's global thread pool.
class DuplicateScanner
{
public:
    /// Enumerates, reads metadata where the options need it, matches, and assembles the result. Blocks until the scan
    /// is over; parallel work runs on Qt's global thread pool. Cancelled while enumerating or reading metadata: the
    /// default result; later: the counts so far without groups. What cannot be read is left out of the groups and
    /// listed in ScanResult::unread. Throws only what a library or a callback throws. Both callbacks may be empty;
    /// `cancelled` is asked from many threads.
    [[nodiscard]] static ScanResult scan(const ScanOptions &options, const ProgressCallback &progress,
                                         const CancelQuery &cancelled);

    /// Single matchers, one line each; see core/match. Results as of a scan without its folders and its order.
    [[nodiscard]] static ScanResult scanExact(QList<FileEntry> files, const ScanOptions &options,
                                              const ProgressCallback &progress, const CancelQuery &cancelled);
    [[nodiscard]] static ScanResult scanSampledContent(QList<FileEntry> files, const ScanOptions &options,
                                                       const ProgressCallback &progress, const CancelQuery &cancelled,
                                                       qint64 prefixLimitBytes);
    [[nodiscard]] static ScanResult scanSimilarImages(QList<FileEntry> files, const ScanOptions &options,
                                                      const ProgressCallback &progress, const CancelQuery &cancelled);
};

} // namespace MirrixCore
