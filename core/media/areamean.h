#pragma once

#include <QtGlobal>

#include <vector>

namespace MirrixCore {

/// Shrinks an 8-bit grey picture to `side` x `side` pixels, each the mean of the area it covers, rounded to the nearest
/// level, halves to the even one. No rounding comes before the last, so turning or mirroring the picture turns or
/// mirrors the result. Where both sides are multiples of `side`, each level is the one of OpenCV's area interpolation
/// (as far as that finds the factors whole, and but for a half, which it rounds otherwise). `strideBytes` lies between
/// the starts of two rows; width and height are `side` to 2^24.
[[nodiscard]] std::vector<uchar> areaMeans(const uchar *pixels, int width, int height, size_t strideBytes, int side);

} // namespace MirrixCore
