#include "core/media/quietdecoding.h"

namespace MirrixCore {

void filterCStandardError() {}

} // namespace MirrixCore
