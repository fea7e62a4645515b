#include "core/scan/duplicatescanner.h"

namespace MirrixCore {

// Not written yet: finds nothing.
ScanResult DuplicateScanner::scanSimilarContent(QList<FileEntry>, const ScanOptions &, const ProgressCallback &,
                                                const CancelQuery &)
{
    return {};
}

} // namespace MirrixCore
