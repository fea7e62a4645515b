#include "core/media/opencvfeature.h"

#include <QCoreApplication>
#include <QLibrary>

namespace MirrixCore {

namespace {

// Debian's OpenCV pulls in some 130 libraries, which takes 60 to 110 ms and 50 MB: too much for a program that only
// compares bytes.
QFunctionPointer resolveInModule(const char *name)
{
    const QString folder = QCoreApplication::applicationDirPath();
    for (const QString &place : {QStringLiteral("/"), QStringLiteral("/../lib/mirrix/")}) {
        QLibrary module(folder + place + QStringLiteral("libmirrix_opencv.so"));
        if (const QFunctionPointer function = module.resolve(name))
            return function;
    }
    return nullptr;
}

} // namespace

OpenCvFeature openCvFeature()
{
    static const auto function = reinterpret_cast<OpenCvFeature>(resolveInModule("mirrixOpenCvFeature"));
    return function;
}

QString openCvVersion()
{
    const auto version = reinterpret_cast<decltype(&mirrixOpenCvVersion)>(resolveInModule("mirrixOpenCvVersion"));
    return version ? QString::fromLatin1(version()) : QString();
}

} // namespace MirrixCore
