#pragma once

#include "core/media/imagehash.h"

/// Computes the feature of a picture's encoded bytes with OpenCV; false when it cannot decode them. Never throws.
/// Thread-safe; runs on the calling thread alone.
extern "C" bool mirrixOpenCvFeature(const QByteArray &bytes, const MirrixCore::FeatureRequest &request,
                                    MirrixCore::ImageFeature &feature);

/// The version of OpenCV in use, such as "4.6.0".
extern "C" const char *mirrixOpenCvVersion();

namespace MirrixCore {

using OpenCvFeature = decltype(&mirrixOpenCvFeature);

/// The function above, null where OpenCV is missing. Where the libraries behind OpenCV are many and slow to load, it
/// lives in a module that the first call of this function loads. Thread-safe.
[[nodiscard]] OpenCvFeature openCvFeature();

/// The version of OpenCV; empty where it is missing. Thread-safe.
[[nodiscard]] QString openCvVersion();

} // namespace MirrixCore
