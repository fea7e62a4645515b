#include "core/walk/systemplaces.h"

namespace MirrixCore {

bool isSystemPlace(const QString &)
{
    return false;
}

} // namespace MirrixCore
