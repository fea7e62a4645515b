#include "core/scan/metatypes.h"

#include "core/scan/scanoptions.h"
#include "core/scan/scanprogress.h"
#include "core/scan/scanresult.h"

namespace MirrixCore {

void registerScanMetaTypes()
{
    qRegisterMetaType<ScanOptions>();
    qRegisterMetaType<ScanProgress>();
    qRegisterMetaType<ScanResult>();
    qRegisterMetaType<FileEntry>();
}

} // namespace MirrixCore
