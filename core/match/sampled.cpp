#include "core/scan/duplicatescanner.h"

namespace MirrixCore {

// Not written yet: finds nothing.
ScanResult DuplicateScanner::scanSampledContent(QList<FileEntry>, const ScanOptions &, const ProgressCallback &,
                                                const CancelQuery &, qint64)
{
    return {};
}

} // namespace MirrixCore
