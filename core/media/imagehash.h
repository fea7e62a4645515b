#pragma once

#include "core/model/imagefeature.h"
#include "core/model/scanprogress.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <span>

namespace MirrixCore {

/// What to compute of a picture.
struct FeatureRequest
{
    bool allowRotation = false; ///< also hash it turned by 90, 180 and 270 degrees
    bool allowMirror = false;   ///< also hash it mirrored, and with allowRotation the mirror image turned
    bool withHistogram = false;
    bool useRawPreview = true; ///< take the JPEG embedded in a RAW file instead of developing it
};

/// The feature of a picture's encoded bytes, by OpenCV or, for what that cannot decode, by Qt; the two give different
/// hashes. Invalid for what neither decodes, for pictures of more than 2^28 pixels or of more memory than the process
/// may use for one (DecodeBudget). Waits for that memory while others decode; invalid when `cancelled` while waiting.
/// Decodes once. Thread-safe.
[[nodiscard]] ImageFeature imageFeatureOf(const QByteArray &bytes, const FeatureRequest &request,
                                          const CancelQuery &cancelled = {});

/// Reads and decodes a file for one of its values each; false or empty when that fails. Thread-safe.
[[nodiscard]] bool computeImageHash(const QString &path, quint64 &hash);
[[nodiscard]] ImageFeature computeImageFeature(const QString &path, bool allowRotation, bool allowMirror);
[[nodiscard]] QByteArray computeImageHistogram(const QString &path);

/// Whether the cosine of the angle between two histograms is at least `threshold`. Not for empty or all-zero ones.
[[nodiscard]] bool histogramsMatch(const QByteArray &a, const QByteArray &b, double threshold);

/// The least cosine for histograms of similar pictures.
inline constexpr double leastHistogramCosine = 0.9;

/// Whether a hash of `a` and one of `b` differ in at most `maxDistance` bits.
[[nodiscard]] bool variantsMatch(std::span<const quint64> a, std::span<const quint64> b, int maxDistance);

/// Whether both features are valid, have matching variants and, with `matchHistogram`, matching histograms.
[[nodiscard]] bool featuresMatch(const ImageFeature &a, const ImageFeature &b, int maxDistance, bool matchHistogram);

/// The greatest distance of a similarity level, 0 (exact) to 4 (loose); levels beyond count as the nearest.
[[nodiscard]] int imageDistanceOfLevel(int level);

} // namespace MirrixCore
