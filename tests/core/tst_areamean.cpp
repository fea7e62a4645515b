#include "core/media/areamean.h"
#include "tests/support/coretest.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <cmath>
#include <random>

namespace {

constexpr int usualSide = 32;

/// Noise of the levels 0..`levels` - 1, spread up to white; few levels make many means end in a half.
std::vector<uchar> noise(int width, int height, int levels)
{
    std::minstd_rand random(1);
    std::vector<uchar> pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
    for (uchar &pixel : pixels)
        pixel = static_cast<uchar>(255 - static_cast<int>(random() >> 8) % levels);
    return pixels;
}

/// Each pixel cut into side x side equal pieces, and these added up one by one.
std::vector<uchar> meansOfPieces(const std::vector<uchar> &pixels, int width, int height, int side)
{
    std::vector<double> sums(static_cast<size_t>(side * side));
    for (int y = 0; y < height * side; ++y) {
        for (int x = 0; x < width * side; ++x)
            sums[static_cast<size_t>(y / height * side + x / width)] +=
                pixels[static_cast<size_t>(y / side * width + x / side)];
    }
    std::vector<uchar> means;
    for (const double sum : sums)
        means.push_back(static_cast<uchar>(std::nearbyint(sum / width / height)));
    return means;
}

} // namespace

class AreaMeanTest : public QObject
{
    Q_OBJECT

private slots:
    void wholeFactorsAreTheLibrarys_data()
    {
        const auto row = columns<int, int, int>({"width", "height", "levels"});
        row("same size", usualSide, usualSide, 256);
        row("one way only", usualSide, 4 * usualSide, 256);
        row("product beside a half", 7 * usualSide, 2 * usualSide, 256);
        row("many halves", 640, 480, 2);
        row("large and white", 64, 300 * usualSide, 1);
        row("photograph", 4000, 3008, 256);
    }

    void wholeFactorsAreTheLibrarys()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(int, levels);
        std::vector<uchar> pixels = noise(width, height, levels);
        std::vector<uchar> expected(usualSide * usualSide);
        cv::Mat small(usualSide, usualSide, CV_8U, expected.data());
        cv::resize(cv::Mat(height, width, CV_8U, pixels.data()), small, small.size(), 0, 0, cv::INTER_AREA);
        QCOMPARE(areaMeans(pixels.data(), width, height, static_cast<size_t>(width), usualSide), expected);
    }

    /// In rows that lie apart, too.
    void otherFactorsAreExact()
    {
        using Sizes = std::array<int, 3>; // width, height, side
        for (const auto &[width, height, side] :
             {Sizes{33, 39, 32}, Sizes{80, 48, 32}, Sizes{96, 75, 32}, Sizes{5, 1201, 4}}) {
            for (const int levels : {1, 2, 256}) {
                const std::vector<uchar> pixels = noise(width, height, levels);
                const auto length = static_cast<size_t>(width);
                std::vector<uchar> apart(static_cast<size_t>(height) * (length + 28));
                for (size_t y = 0; y < static_cast<size_t>(height); ++y)
                    std::copy_n(pixels.data() + y * length, length, apart.data() + y * (length + 28));
                const std::vector<uchar> expected = meansOfPieces(pixels, width, height, side);
                QCOMPARE(areaMeans(pixels.data(), width, height, length, side), expected);
                QCOMPARE(areaMeans(apart.data(), width, height, length + 28, side), expected);
            }
        }
    }
};

QTEST_APPLESS_MAIN(AreaMeanTest)
#include "tst_areamean.moc"
