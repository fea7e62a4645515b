#include "core/media/opencvfeature.h"

#include "core/media/areamean.h"
#include "core/media/featurebuilder.h"

#include <opencv2/core.hpp>
#include <opencv2/core/utils/logger.hpp>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace MirrixCore;

namespace {

/// The library divides twice to learn whether a side shrinks by a whole factor, and misses some, such as 49.
bool isWholeFactor(int pixels, int side)
{
    const double factor = 1 / (static_cast<double>(side) / pixels);
    return std::abs(factor - std::round(factor)) < std::numeric_limits<double>::epsilon();
}

/// Whether the library is needed for its very own result: what it enlarges it interpolates, halving has a rounding of
/// its own, and of whole factors it knows those it finds.
bool isForLibrary(const cv::Mat &grey, int side)
{
    const bool isHalved = grey.cols == 2 * side && grey.rows == 2 * side;
    const bool isWhole = grey.cols % side == 0 && grey.rows % side == 0;
    const bool isFoundWhole = isWholeFactor(grey.cols, side) && isWholeFactor(grey.rows, side);
    return std::min(grey.cols, grey.rows) < side || isHalved || (isWhole && !isFoundWhole);
}

/// The library's area interpolation, the quick way. By whole factors our sums give what the library gives, in half its
/// time and a twentieth for large pictures. Else it sums floating-point numbers, many times as slowly and equal to our
/// exact means but for a grey level in one of a hundred pictures.
cv::Mat shrunk(const cv::Mat &grey, int side)
{
    if (isForLibrary(grey, side)) {
        cv::Mat small;
        cv::resize(grey, small, cv::Size(side, side), 0, 0, cv::INTER_AREA);
        return small;
    }
    std::vector<uchar> means = areaMeans(grey.data, grey.cols, grey.rows, grey.step, side);
    return cv::Mat(side, side, CV_8U, means.data()).clone();
}

constexpr int hashedSide = 32;

/// A grey picture to be hashed.
class CvPicture
{
public:
    explicit CvPicture(const cv::Mat &grey)
        : m_grey(grey)
    {}

    /// Which of the 63 lowest frequencies but the constant one are stronger than their mean, in rows.
    [[nodiscard]] quint64 hash() const
    {
        constexpr int kept = 8;
        const cv::Mat small = shrunk(m_grey, hashedSide);
        if (isUniform(small))
            return 0; // rounding would make bits out of nothing
        cv::Mat values;
        small.convertTo(values, CV_32F);
        cv::Mat waves;
        cv::dct(values, waves);
        const auto wave = [&](int k) { return waves.at<float>((k + 1) / kept, (k + 1) % kept); };
        constexpr int count = kept * kept - 1;
        double sum = 0;
        for (int k = 0; k < count; ++k)
            sum += wave(k);
        quint64 bits = 0;
        for (int k = 0; k < count; ++k)
            bits |= static_cast<quint64>(wave(k) > sum / count) << k;
        return bits;
    }

    [[nodiscard]] CvPicture turned(int quarters) const
    {
        constexpr cv::RotateFlags flags[] = {cv::ROTATE_90_CLOCKWISE, cv::ROTATE_180, cv::ROTATE_90_COUNTERCLOCKWISE};
        cv::Mat result;
        cv::rotate(m_grey, result, flags[quarters - 1]);
        return CvPicture(result);
    }

    [[nodiscard]] CvPicture mirrored() const
    {
        constexpr int aboutVerticalAxis = 1;
        cv::Mat result;
        cv::flip(m_grey, result, aboutVerticalAxis);
        return CvPicture(result);
    }

private:
    static bool isUniform(const cv::Mat &picture)
    {
        double least = 0;
        double greatest = 0;
        cv::minMaxLoc(picture, &least, &greatest);
        return least == greatest;
    }

    cv::Mat m_grey;
};

QByteArray histogramOf(const cv::Mat &grey)
{
    constexpr int side = 128;
    const cv::Mat small = shrunk(grey, side);
    std::array<qint64, histogramBins> counts{};
    for (auto pixel = small.begin<uchar>(); pixel != small.end<uchar>(); ++pixel)
        ++counts[*pixel / 4];
    return histogramFrom(counts, side * side);
}

/// Once a process: no words of its own about broken files, and no threads besides those that call.
void configureLibrary()
{
    static const bool done = [] {
        cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
        cv::redirectError([](int, const char *, const char *, const char *, int, void *) { return 0; });
        cv::setNumThreads(1);
        return true;
    }();
    Q_UNUSED(done);
}

} // namespace

bool mirrixOpenCvFeature(const QByteArray &bytes, const FeatureRequest &request, ImageFeature &feature)
{
    configureLibrary();
    if (bytes.isEmpty() || bytes.size() > std::numeric_limits<int>::max())
        return false;
    try {
        const cv::Mat encoded(1, static_cast<int>(bytes.size()), CV_8U, const_cast<char *>(bytes.constData()));
        const cv::Mat grey = cv::imdecode(encoded, cv::IMREAD_GRAYSCALE);
        if (grey.empty() || grey.type() != CV_8U)
            return false;
        // Shrinking to means and turning may change places, and turning the small picture is cheaper by far.
        const bool isShrunk = std::min(grey.cols, grey.rows) >= hashedSide;
        feature = featureOfPicture(CvPicture(isShrunk ? shrunk(grey, hashedSide) : grey), request);
        if (request.withHistogram)
            feature.histogram = histogramOf(grey);
        return true;
    } catch (...) { // what a broken file makes the library throw
        return false;
    }
}

const char *mirrixOpenCvVersion()
{
    static const std::string version = cv::getVersionString();
    return version.c_str();
}
