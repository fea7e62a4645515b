#include "core/model/metatypes.h"

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"

namespace MirrixCore {

void registerScanMetaTypes()
{
    qRegisterMetaType<ScanOptions>();
    qRegisterMetaType<ScanProgress>();
    qRegisterMetaType<ScanResult>();
    qRegisterMetaType<FileEntry>();
}

} // namespace MirrixCore
