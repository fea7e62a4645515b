#include "core/media/imagehash.h"

#include "core/media/decodebudget.h"
#include "core/media/headersize.h"
#include "core/media/opencvfeature.h"
#include "core/media/pictures.h"
#include "core/media/qtfeature.h"
#include "core/media/quietdecoding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace MirrixCore {

namespace {

constexpr size_t bins = 64;
constexpr qint64 mostPixels = qint64(1) << 28; // a gigabyte in colour; beyond lie bombs, not photographs

using Histogram = std::array<float, bins>;

/// std::popcount calls a function where the processor may lack the instruction, which takes three times as long.
int bitCount(quint64 bits)
{
    bits -= (bits >> 1) & 0x5555555555555555;
    bits = (bits & 0x3333333333333333) + ((bits >> 2) & 0x3333333333333333);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0F;
    return static_cast<int>((bits * 0x0101010101010101) >> 56);
}

Histogram histogramIn(const QByteArray &bytes)
{
    Histogram histogram{};
    std::memcpy(histogram.data(), bytes.constData(), sizeof histogram);
    return histogram;
}

} // namespace

ImageFeature imageFeatureOf(const QByteArray &bytes, const FeatureRequest &request, const CancelQuery &cancelled)
{
    ImageFeature feature;
    QSize size = pictureSize(bytes);
    const HeaderSize further = size.isValid() ? HeaderSize() : headerSizeOf(bytes);
    if (further.size.isValid())
        size = further.size;
    if (bytes.isEmpty() || qint64(size.width()) * size.height() > mostPixels)
        return feature;
    const bool isOfUnknownSize = further.isKnownFormat && !further.size.isValid(); // to be decoded alone
    const DecodeShare memory(isOfUnknownSize ? DecodeBudget::ofProcess().totalBytes() : decodingBytes(size), cancelled);
    if (!memory.isGranted())
        return feature;
    const QuietDecoding quiet;
    const OpenCvFeature byOpenCv = openCvFeature();
    if (!byOpenCv || !byOpenCv(bytes, request, feature))
        static_cast<void>(qtFeature(bytes, request, feature));
    return feature;
}

bool computeImageHash(const QString &path, quint64 &hash)
{
    hash = computeImageFeature(path, false, false).primary;
    return hash != 0;
}

ImageFeature computeImageFeature(const QString &path, bool allowRotation, bool allowMirror)
{
    FeatureRequest request;
    request.allowRotation = allowRotation;
    request.allowMirror = allowMirror;
    return imageFeatureOf(readPicture(path, request.useRawPreview).bytes, request);
}

QByteArray computeImageHistogram(const QString &path)
{
    FeatureRequest request;
    request.withHistogram = true;
    return imageFeatureOf(readPicture(path, request.useRawPreview).bytes, request).histogram;
}

bool histogramsMatch(const QByteArray &a, const QByteArray &b, double threshold)
{
    constexpr qsizetype needed = sizeof(Histogram);
    constexpr double leastLength = 1e-12;
    if (a.size() < needed || b.size() < needed)
        return false;
    const Histogram first = histogramIn(a);
    const Histogram second = histogramIn(b);
    double dot = 0;
    double firstSquares = 0;
    double secondSquares = 0;
    for (size_t i = 0; i < bins; ++i) {
        dot += double(first[i]) * double(second[i]);
        firstSquares += double(first[i]) * double(first[i]);
        secondSquares += double(second[i]) * double(second[i]);
    }
    const double lengths = std::sqrt(firstSquares * secondSquares);
    return lengths > leastLength && dot / lengths >= threshold;
}

bool variantsMatch(std::span<const quint64> a, std::span<const quint64> b, int maxDistance)
{
    return std::any_of(a.begin(), a.end(), [&](quint64 first) {
        return std::any_of(b.begin(), b.end(), [&](quint64 second) { return bitCount(first ^ second) <= maxDistance; });
    });
}

bool featuresMatch(const ImageFeature &a, const ImageFeature &b, int maxDistance, bool matchHistogram)
{
    if (matchHistogram && !histogramsMatch(a.histogram, b.histogram, leastHistogramCosine))
        return false;
    return a.isValid && b.isValid && variantsMatch(a.variants, b.variants, maxDistance);
}

int imageDistanceOfLevel(int level)
{
    constexpr std::array distances = {0, 5, 10, 15, 22};
    return distances[static_cast<size_t>(std::clamp(level, 0, 4))];
}

} // namespace MirrixCore
