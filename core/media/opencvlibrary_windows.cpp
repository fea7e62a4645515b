#include "core/media/opencvfeature.h"

namespace MirrixCore {

OpenCvFeature openCvFeature()
{
    return &mirrixOpenCvFeature;
}

} // namespace MirrixCore
