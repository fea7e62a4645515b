// Micro-benchmark of comparing pictures: bench_images [PICTURES [FOLDER]]. Makes PICTURES JPEG images of 12 megapixels
// (default 8) and shows what decoding and the variants cost, what cached features cost, and how long grouping 200,000
// of them takes. Or only writes the images into FOLDER, for other tools.

#include "core/cache/cacheroot.h"
#include "core/cache/imagefeaturecache.h"
#include "core/match/imageclusters.h"
#include "core/media/pictures.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <cstdio>
#include <random>

using namespace MirrixCore;

namespace {

template <typename Work>
double secondsOf(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

/// Shapes with grain on them, so that the file is as large as a photograph's.
QByteArray photograph(quint32 seed)
{
    QImage image(4000, 3000, QImage::Format_RGB32);
    std::minstd_rand grain(seed + 1);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int level = static_cast<int>((quint32(x / 300) * 37 + quint32(y / 200) * 59 + seed * 91) % 200);
            const int shade = level + static_cast<int>(grain() % 24);
            line[x] = qRgb(shade, (shade + x / 40) % 256, 255 - shade);
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return image.save(&buffer, "jpg", 90) ? bytes : QByteArray();
}

int write(const QList<QByteArray> &pictures, const QString &folder)
{
    for (qsizetype i = 0; i < pictures.size(); ++i) {
        QFile file(folder + QStringLiteral("/%1.jpg").arg(i, 3, 10, QLatin1Char('0')));
        if (!file.open(QIODevice::WriteOnly) || file.write(pictures[i]) != pictures[i].size()) {
            std::fprintf(stderr, "bench_images: %s\n", qPrintable(file.errorString()));
            return 2;
        }
    }
    return 0;
}

void benchDecoding(const QList<QByteArray> &pictures)
{
    const auto measure = [&](const char *name, const FeatureRequest &request) {
        const double seconds = secondsOf([&] {
            for (const QByteArray &picture : pictures)
                (void)imageFeatureOf(picture, request);
        });
        std::printf("%-36s %8.1f ms a picture\n", name, seconds * 1e3 / static_cast<double>(pictures.size()));
    };
    (void)imageFeatureOf(pictures.constFirst(), {}); // loads the libraries
    measure("decode, 1 hash", {false, false, false, true});
    measure("decode, 1 hash, histogram", {false, false, true, true});
    measure("decode, 4 hashes", {true, false, false, true});
    measure("decode, 8 hashes, histogram", {true, true, true, true});
}

ImageFeature randomFeature(std::mt19937_64 &random)
{
    ImageFeature feature;
    for (qsizetype i = 0; i < mostVariants; ++i)
        feature.variants.append(random() >> 1 | 1);
    feature.primary = feature.variants.constFirst();
    feature.isValid = true;
    return feature;
}

void benchCache(const QString &folder, std::mt19937_64 &random)
{
    constexpr int count = 20000;
    setCacheRoot(folder);
    ImageFeature feature = randomFeature(random);
    feature.histogram = QByteArray(256, 'h');
    const auto pathOf = [](int i) { return QStringLiteral("/photos/%1.jpg").arg(i); };
    const auto show = [](const char *name, double seconds) {
        std::printf("%-36s %8.1f us a picture\n", name, seconds * 1e6 / count);
    };
    show("remember", secondsOf([&] {
             for (int i = 0; i < count; ++i)
                 storeImageFeature(pathOf(i), i, i, feature);
         }));
    show("recall", secondsOf([&] {
             for (int i = 0; i < count; ++i)
                 (void)loadImageFeature(pathOf(i), i, i, feature);
         }));
}

/// Random hashes: at the loosest level all hang together, at the second none do, and every candidate is compared.
void benchGrouping(int level, std::mt19937_64 &random)
{
    constexpr qsizetype count = 200000;
    std::vector<ImageFeature> features;
    for (qsizetype i = 0; i < count; ++i)
        features.push_back(randomFeature(random));
    ScanOptions options;
    options.imageMaxDistance = imageDistanceOfLevel(level);
    const QList<FileEntry> files(count);
    qsizetype groups = 0;
    const double seconds = secondsOf([&] { groups = groupSimilarImages(files, features, options, {}).size(); });
    std::printf("group 200,000 at level %d             %8.2f s (%lld groups)\n", level, seconds,
                static_cast<long long>(groups));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const int count = argc > 1 ? std::max(1, std::atoi(argv[1])) : 8;
    QList<QByteArray> pictures;
    for (int i = 0; i < count; ++i)
        pictures.append(photograph(static_cast<quint32>(i)));
    if (argc > 2)
        return write(pictures, QFile::decodeName(argv[2]));
    std::printf("%d pictures of 12 megapixels, %.1f MB each\n", count,
                static_cast<double>(pictures.constFirst().size()) / 1e6);
    benchDecoding(pictures);
    std::mt19937_64 random(1);
    const QTemporaryDir folder;
    benchCache(folder.path(), random);
    for (const int level : {1, 2, 3, 4})
        benchGrouping(level, random);
    return 0;
}
