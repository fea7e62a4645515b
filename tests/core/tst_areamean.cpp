#include "core/media/areamean.h"

#include <QTest>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <cmath>
#include <random>

using namespace MirrixCore;

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
    void wholeFactorsAreTheLibrarys_data();
    void wholeFactorsAreTheLibrarys();
    void otherFactorsAreExact_data();
    void otherFactorsAreExact();
    void rowsMayLieApart();
};

void AreaMeanTest::wholeFactorsAreTheLibrarys_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("levels");
    QTest::newRow("same size") << usualSide << usualSide << 256;
    QTest::newRow("one way only") << usualSide << 4 * usualSide << 256;
    QTest::newRow("product beside a half") << 7 * usualSide << 2 * usualSide << 256;
    QTest::newRow("many halves") << 640 << 480 << 2;
    QTest::newRow("all levels") << 640 << 480 << 256;
    QTest::newRow("large and white") << 64 << 300 * usualSide << 1;
    QTest::newRow("photograph") << 4000 << 3008 << 256;
}

void AreaMeanTest::wholeFactorsAreTheLibrarys()
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

void AreaMeanTest::otherFactorsAreExact_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("side");
    QTest::newRow("a bit larger") << 33 << 39 << 32;
    QTest::newRow("half pixels") << 80 << 48 << 32;
    QTest::newRow("whole one way") << 96 << 75 << 32;
    QTest::newRow("high") << 5 << 1201 << 4;
}

void AreaMeanTest::otherFactorsAreExact()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, side);
    for (const int levels : {1, 2, 256}) {
        const std::vector<uchar> pixels = noise(width, height, levels);
        QCOMPARE(areaMeans(pixels.data(), width, height, static_cast<size_t>(width), side),
                 meansOfPieces(pixels, width, height, side));
    }
}

void AreaMeanTest::rowsMayLieApart()
{
    const std::vector<uchar> pixels = noise(100, 75, 256);
    std::vector<uchar> apart(128 * 75);
    for (size_t y = 0; y < 75; ++y)
        std::copy_n(pixels.data() + y * 100, 100, apart.data() + y * 128);
    QCOMPARE(areaMeans(apart.data(), 100, 75, 128, usualSide), areaMeans(pixels.data(), 100, 75, 100, usualSide));
}

QTEST_APPLESS_MAIN(AreaMeanTest)
#include "tst_areamean.moc"
