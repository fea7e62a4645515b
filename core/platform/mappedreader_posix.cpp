#include "core/platform/mappedreader.h"

namespace MirrixCore {

bool mapFileIntoSink(const QString &, const ByteSink &)
{
    return false;
}

bool mapFileIntoHash(const QString &, QCryptographicHash &)
{
    return false;
}

} // namespace MirrixCore
