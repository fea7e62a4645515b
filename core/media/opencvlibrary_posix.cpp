#include "core/media/opencvfeature.h"

#include <QCoreApplication>
#include <QLibrary>

namespace MirrixCore {

namespace {

// Debian's OpenCV brings some 130 libraries along, which takes 60 to 110 ms and 50 MB: too much for a program that
// only compares bytes.
OpenCvFeature loadModule()
{
    const QString folder = QCoreApplication::applicationDirPath();
    for (const QString &place : {QStringLiteral("/"), QStringLiteral("/../lib/mirrix/")}) {
        QLibrary module(folder + place + QStringLiteral("libmirrix_opencv.so"));
        if (const auto function = reinterpret_cast<OpenCvFeature>(module.resolve("mirrixOpenCvFeature")))
            return function;
    }
    return nullptr;
}

} // namespace

OpenCvFeature openCvFeature()
{
    static const OpenCvFeature function = loadModule();
    return function;
}

} // namespace MirrixCore
