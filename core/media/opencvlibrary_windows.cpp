#include "core/media/opencvfeature.h"

namespace MirrixCore {

OpenCvFeature openCvFeature()
{
    return &mirrixOpenCvFeature;
}

QString openCvVersion()
{
    return QString::fromLatin1(mirrixOpenCvVersion());
}

} // namespace MirrixCore
