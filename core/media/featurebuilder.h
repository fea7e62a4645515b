#pragma once

#include "core/media/imagehash.h"

#include <array>
#include <cstring>

namespace MirrixCore {

/// The number of grey levels in a histogram.
inline constexpr int histogramBins = 64;

/// Turns pixel counts into the stored form of a histogram.
inline QByteArray histogramFrom(const std::array<qint64, histogramBins> &counts, qint64 pixels)
{
    std::array<float, histogramBins> shares{};
    for (size_t i = 0; i < counts.size(); ++i)
        shares[i] = static_cast<float>(static_cast<double>(counts[i]) / static_cast<double>(pixels));
    return {reinterpret_cast<const char *>(shares.data()), sizeof shares};
}

/// The feature but for the histogram of a decoded grey picture, whichever library holds it. `Picture` offers hash(), 0
/// for none; turned(quarters), clockwise; and mirrored(), left and right exchanged.
template <typename Picture>
ImageFeature featureOfPicture(const Picture &picture, const FeatureRequest &request)
{
    ImageFeature feature;
    const auto addVariants = [&](const Picture &base) {
        for (int quarters = 0; quarters < (request.allowRotation ? 4 : 1); ++quarters) {
            const quint64 hash = quarters == 0 ? base.hash() : base.turned(quarters).hash();
            if (hash != 0 && !feature.variants.contains(hash))
                feature.variants.append(hash);
        }
    };
    addVariants(picture);
    if (request.allowMirror)
        addVariants(picture.mirrored());
    feature.isValid = !feature.variants.isEmpty();
    if (feature.isValid)
        feature.primary = feature.variants.constFirst();
    return feature;
}

} // namespace MirrixCore
