#pragma once

#include "core/scan/scanoptions.h"
#include "core/scan/scanprogress.h"
#include "core/scan/scanresult.h"

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

private:
    // The matchers: groups of `files` in a result with its own counts. Each lives in a file of its own in core/match.
    static ScanResult scanExact(QList<FileEntry> files, const ScanOptions &options, const ProgressCallback &progress,
                                const CancelQuery &cancelled);
    static ScanResult scanSampledContent(QList<FileEntry> files, const ScanOptions &options,
                                         const ProgressCallback &progress, const CancelQuery &cancelled,
                                         qint64 prefixLimitBytes);
    static ScanResult scanSimilarContent(QList<FileEntry> files, const ScanOptions &options,
                                         const ProgressCallback &progress, const CancelQuery &cancelled);
    static ScanResult scanSimilarImages(QList<FileEntry> files, const ScanOptions &options,
                                        const ProgressCallback &progress, const CancelQuery &cancelled);

    static ScanResult matchContent(const QList<FileEntry> &files, const ScanOptions &options,
                                   const ProgressCallback &progress, const CancelQuery &cancelled);
    static ScanResult matchKind(FindKind kind, const QList<FileEntry> &files, const ScanOptions &options,
                                const ProgressCallback &progress, const CancelQuery &cancelled);
    static ScanResult matchLocations(const QList<FileEntry> &files, const ScanOptions &options,
                                     const ProgressCallback &progress, const CancelQuery &cancelled);
};

} // namespace MirrixCore
