#include "core/media/quietdecoding.h"

namespace MirrixCore {

// A program with windows has no standard error here.
QuietDecoding::QuietDecoding() = default;
QuietDecoding::~QuietDecoding() = default;

} // namespace MirrixCore
