#pragma once

#include "core/media/imagehash.h"

namespace MirrixCore {

/// Computes the feature of a picture's encoded bytes with Qt's readers and a simpler hash; false when they cannot
/// decode it. Thread-safe.
[[nodiscard]] bool qtFeature(const QByteArray &bytes, const FeatureRequest &request, ImageFeature &feature);

} // namespace MirrixCore
