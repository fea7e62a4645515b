#include "core/media/decodebudget.h"
#include "core/media/headersize.h"
#include "core/media/imagehash.h"
#include "core/media/pictures.h"
#include "core/media/qtfeature.h"
#include "tests/support/coretest.h"
#include "tests/support/mediafiles.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <atomic>
#include <bit>
#include <cstring>
#include <functional>
#include <map>
#include <thread>

namespace {

using Formula = std::function<int(quint32 x, quint32 y)>;

/// The pictures of scripts/make-image-vectors.py.
const std::map<QString, Formula> formulas = {
    {u"gradient"_s, [](quint32 x, quint32 y) { return (x * 5 + y * 2) / 9 % 256; }},
    {u"xor"_s, [](quint32 x, quint32 y) { return (x ^ y) & 255; }},
    {u"rings"_s, [](quint32 x, quint32 y) { return (x * x + y * y) / 100 % 256; }},
    {u"noise"_s, [](quint32 x, quint32 y) { return ((x + 1000 * y) * 2654435761U) >> 24; }},
    {u"blocks"_s, [](quint32 x, quint32 y) { return 255 * ((x / 37 * 7 + y / 29 * 5) % 3) / 2; }},
};

QImage grey(int width, int height, const Formula &formula)
{
    QImage image(width, height, QImage::Format_Grayscale8);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.scanLine(y)[x] = static_cast<uchar>(formula(static_cast<quint32>(x), static_cast<quint32>(y)));
    }
    return image;
}

QByteArray encoded(const QImage &image, const char *format, int quality = -1, bool progressive = false)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    writer.setProgressiveScanWrite(progressive);
    return writer.write(image) ? bytes : QByteArray();
}

ImageFeature featureOf(const QByteArray &bytes, bool rotation = true, bool mirror = true)
{
    return imageFeatureOf(bytes, {rotation, mirror, true, true});
}

/// A PNG that claims to be this large and holds next to nothing.
QByteArray bomb(quint32 width, quint32 height)
{
    QByteArray bytes = encoded(grey(1, 1, formulas.at(u"xor"_s)), "png");
    const auto put = [&](qsizetype at, quint32 number) {
        for (int i = 0; i < 4; ++i)
            bytes[at + i] = static_cast<char>(number >> (24 - 8 * i));
    };
    put(16, width);
    put(20, height);
    quint32 crc = 0xFFFFFFFF; // of the head's chunk, which begins at byte 12
    for (qsizetype i = 12; i < 29; ++i) {
        crc ^= static_cast<uchar>(bytes[i]);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320U : 0);
    }
    put(29, ~crc);
    return bytes;
}

} // namespace

class ImageFeatureTest : public QObject
{
    Q_OBJECT

private slots:
    void vectors_data()
    {
        QTest::addColumn<QJsonObject>("vector");
        const QJsonArray vectors = QJsonDocument::fromJson(testData(u"core/data/image-vectors.json"_s)).array();
        QVERIFY(vectors.size() >= 10);
        for (const QJsonValue &item : vectors) {
            const QJsonObject vector = item.toObject();
            const QString name = u"%1 %2x%3"_s.arg(vector[u"formula"_s].toString())
                                     .arg(vector[u"width"_s].toInt())
                                     .arg(vector[u"height"_s].toInt());
            QTest::newRow(qPrintable(name)) << vector;
        }
    }

    void vectors()
    {
        QFETCH(QJsonObject, vector);
        const QImage image =
            grey(vector[u"width"_s].toInt(), vector[u"height"_s].toInt(), formulas.at(vector[u"formula"_s].toString()));
        const ImageFeature feature = featureOf(encoded(image, "png"));
        QList<quint64> expected;
        const QJsonArray variants = vector[u"variants"_s].toArray();
        for (const QJsonValue &variant : variants)
            expected.append(variant.toString().toULongLong(nullptr, 16));
        QCOMPARE(feature.variants, expected);
        QCOMPARE(feature.primary, expected[0]);
        const QJsonArray counts = vector[u"histogram"_s].toArray();
        for (qsizetype i = 0; i < counts.size(); ++i) {
            float share = 0;
            std::memcpy(&share, feature.histogram.constData() + i * qsizetype(sizeof share), sizeof share);
            QCOMPARE(share, static_cast<float>(counts[i].toInt() / 16384.0));
        }
    }

    void transformsGoWithTheRequest()
    {
        const QImage image = grey(333, 517, formulas.at(u"rings"_s));
        const QByteArray bytes = encoded(image, "png");
        const QList<quint64> all = featureOf(bytes).variants;
        QCOMPARE(all.size(), 8);
        QCOMPARE(featureOf(bytes, false, false).variants, all.first(1));
        QCOMPARE(featureOf(bytes, true, false).variants, all.first(4));
        QCOMPARE(featureOf(bytes, false, true).variants, (QList<quint64>{all[0], all[4]}));
        QVERIFY(imageFeatureOf(bytes, {}).histogram.isEmpty());
        const QImage turned = image.transformed(QTransform().rotate(90));
        QCOMPARE(featureOf(encoded(turned, "png")).primary, all[1]);
    }

    void formats_data()
    {
        // By how many bits the hash may differ from that of the plain picture.
        const auto row = columns<QByteArray, int>({"bytes", "mostBits"});
        const QImage image = grey(333, 517, formulas.at(u"rings"_s));
        const auto png = [&](QImage::Format format) { return encoded(image.convertToFormat(format), "png"); };
        row("PGM", encoded(image, "pgm"), 0);
        row("BMP", encoded(image, "bmp"), 0);
        row("TIFF", encoded(image, "tiff"), 0);
        row("16 bit", png(QImage::Format_Grayscale16), 0);
        row("colour", png(QImage::Format_RGB32), 0);
        row("alpha", png(QImage::Format_ARGB32), 0);
        row("palette", png(QImage::Format_Indexed8), 5);
        row("JPEG", encoded(image, "jpg", 90), 5);
        row("JPEG, low quality", encoded(image, "jpg", 30), 10);
        row("progressive JPEG", encoded(image, "jpg", 90, true), 5);
        row("WebP", encoded(image, "webp", 90), 5);
        row("half size", encoded(image.scaled(166, 258, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), "png"), 5);
    }

    void formats()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, mostBits);
        if (bytes.isEmpty())
            QSKIP("Qt cannot write this format here");
        const ImageFeature feature = featureOf(bytes);
        const ImageFeature plain = featureOf(encoded(grey(333, 517, formulas.at(u"rings"_s)), "png"));
        const int bits = std::popcount(feature.primary ^ plain.primary);
        QVERIFY(feature.isValid);
        QVERIFY2(bits <= mostBits, qPrintable(QString::number(bits)));
    }

    /// 72 x 64 pixels are cells of 9 x 8 for one half and of 8 x 8 for the other. Only the upper four rows of each
    /// count.
    void qtHash()
    {
        ImageFeature feature;
        const auto hash = [&](const Formula &formula) {
            return qtFeature(encoded(grey(72, 64, formula), "png"), {}, feature) ? feature.primary : 0;
        };
        // Brighter to the right: each pixel less than its neighbour; the right half above the mean.
        QCOMPARE(hash([](quint32 x, quint32) { return x * 3; }), 0xF0F0F0F0FFFFFFFFU);
        QCOMPARE(hash([](quint32 x, quint32) { return 216 - x * 3; }), 0x0F0F0F0F00000000U);
        // The upper half bright.
        QCOMPARE(hash([](quint32, quint32 y) { return y < 32 ? 200 : 20; }), 0xFFFFFFFF00000000U);
        const QByteArray ramp = encoded(grey(72, 72, [](quint32 x, quint32) { return x * 3; }), "png");
        QVERIFY(qtFeature(ramp, {true, true, true, true}, feature));
        // Turned clockwise it is brighter below, which the upper rows say nothing of but that they are dark.
        QCOMPARE(feature.variants, (QList<quint64>{0xF0F0F0F0FFFFFFFF, 0x0F0F0F0F00000000, 0xFFFFFFFF00000000}));
        QCOMPARE(feature.histogram.size(), 256);
        // What only Qt decodes.
        const QImage right = grey(72, 64, [](quint32 x, quint32) { return x * 3; });
        QCOMPARE(featureOf(encoded(right.convertToFormat(QImage::Format_Indexed8), "xpm")).primary,
                 0xF0F0F0F0FFFFFFFFU);
    }

    void uniformPictureHasNoHash()
    {
        for (const int size : {1, 31, 100}) {
            const ImageFeature feature =
                featureOf(encoded(grey(size, size, [](quint32, quint32) { return 77; }), "png"));
            QVERIFY(!feature.isValid);
            QCOMPARE(feature.variants, QList<quint64>());
            QByteArray expected(256, '\0');
            const float whole = 1;
            std::memcpy(expected.data() + 4 * (77 / 4), &whole, sizeof whole);
            QCOMPARE(feature.histogram, expected);
        }
    }

    void brokenBytes_data()
    {
        const auto row = columns<QByteArray>({"bytes"});
        row("empty", "");
        row("one byte", "x");
        row("noise", patternBytes(100000));
        for (const char *head :
             {"\xFF\xD8\xFF\xE0", "\x89PNG\r\n\x1A\n", "BM", "GIF89a", "II*\0", "RIFF", "P5 9 9 255\n"})
            row(QByteArray(head).toHex().constData(), QByteArray(head) + patternBytes(1000));
        row("square bomb", bomb(60000, 60000));
        row("long bomb", bomb(2000000000, 1));
    }

    void brokenBytes()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!featureOf(bytes).isValid || bytes.startsWith("P5"));
    }

    /// No crash, whatever part is missing; what little is decoded of the picture may have a hash.
    void truncated()
    {
        const QImage image = grey(333, 517, formulas.at(u"rings"_s));
        for (const char *format : {"png", "jpg", "bmp", "webp", "tiff"}) {
            const QByteArray bytes = encoded(image, format, 90);
            for (int tenth = 0; tenth < 10; ++tenth) {
                const ImageFeature feature = featureOf(bytes.first(bytes.size() * tenth / 10));
                QCOMPARE(feature.isValid, !feature.variants.isEmpty());
            }
        }
    }

    void readsFiles()
    {
        const TempTree tree;
        const QImage image = grey(333, 517, formulas.at(u"rings"_s));
        const ImageFeature expected = featureOf(encoded(image, "png"));
        for (const QString &name : {u"a.png"_s, u"wrong.jpg"_s, u"no picture's.cr2"_s, u"日本 é"_s}) {
            const QString path = tree.write(name, encoded(image, "png"));
            QCOMPARE(computeImageFeature(path, true, true).variants, expected.variants);
            QCOMPARE(computeImageHistogram(path), expected.histogram);
            QCOMPARE(pictureSizeOfFile(path), QSize(333, 517));
        }
        quint64 hash = 1;
        QVERIFY(!computeImageHash(tree.path(u"missing.png"_s), hash));
    }

    void histograms()
    {
        const auto histogram = [](std::initializer_list<float> first) {
            QByteArray bytes(256, '\0');
            std::memcpy(bytes.data(), first.begin(), first.size() * sizeof(float));
            return bytes;
        };
        // The cosine of (1, 0) and (3, 4) is 3 / 5.
        QVERIFY(histogramsMatch(histogram({1, 0}), histogram({3, 4}), 0.6));
        QVERIFY(!histogramsMatch(histogram({1, 0}), histogram({3, 4}), 0.6001));
        QVERIFY(!histogramsMatch(histogram({0}), histogram({0}), 0));
        QVERIFY(!histogramsMatch(histogram({1}), histogram({1}).first(255), 0));
        QVERIFY(histogramsMatch(histogram({1}), histogram({1}) + "more", 1));
    }

    void headerSizes_data()
    {
        const auto row = columns<QByteArray>({"bytes"});
        const QByteArray sides = QByteArray::fromHex("0000012C000000C8"); // 300 and 200
        const QByteArray webp("RIFF\x1A\0\0\0WEBP", 12);
        const QByteArray rest(20, '\0');
        row("WebP", webp + QByteArray("VP8X\x0A\0\0\0\0\0\0\0\x2B\1\0\xC7\0\0", 18) + rest);
        row("WebP with loss", webp + QByteArray("VP8 \x0E\0\0\0\0\0\0\x9D\1\x2A\x2C\1\xC8\0", 18) + rest);
        row("WebP without loss",
            webp + QByteArray("VP8L\x0E\0\0\0\x2F\x2B\xC1\x31\0", 13) + rest + QByteArray(4, '\0'));
        TiffFile tiff;
        row("TIFF", tiff.finished({tiffShorts(256, {300}), tiffLong(257, 200)}));
        row("JPEG 2000", QByteArray("\0\0\0\x0CjP  ", 8) + QByteArray(70, '\0') +
                             QByteArray::fromHex("FF4FFF51002900000000013C000000D00000001000000008"));
        row("OpenEXR", QByteArray::fromHex("762F3101") + QByteArray("\2\0\0\0dataWindow\0box2i\0", 21) +
                           QByteArray::fromHex("10000000FEFFFFFF0000000029010000C7000000"));
        row("Sun raster", QByteArray::fromHex("59A66A95") + sides);
        row("Radiance", "#?RADIANCE\nEXPOSURE=1\n\n-Y 200 +X 300\n");
        row("float", "PF\n300 200\n-1.0\n");
        row("arbitrary", "P7\nWIDTH 300\nHEIGHT 200\nDEPTH 1\n");
    }

    void headerSizes()
    {
        QFETCH(QByteArray, bytes);
        QCOMPARE(headerSizeOf(bytes).size, QSize(300, 200));
        for (qsizetype length = 4; length < bytes.size() - 20; ++length)
            QVERIFY(headerSizeOf(bytes.first(length)).size.isEmpty());
    }

    /// Never more than the total is out, what is larger is out alone, and what is too large or cancelled is not out at
    /// all.
    void decodersShareMemory()
    {
        DecodeBudget budget(100);
        std::atomic<qint64> taken = 0;
        std::atomic<int> granted = 0;
        std::atomic<bool> isExceeded = false;
        std::vector<std::thread> threads;
        for (const qint64 bytes : {60, 60, 30, 150, 100, 40, 201}) {
            threads.emplace_back([&, bytes] {
                for (int round = 0; round < 200; ++round) {
                    const DecodeShare share(bytes, {}, budget);
                    if (!share.isGranted())
                        continue;
                    ++granted;
                    if ((taken += bytes) > std::max<qint64>(bytes, budget.totalBytes()))
                        isExceeded = true;
                    std::this_thread::yield();
                    taken -= bytes;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QVERIFY(!isExceeded);
        QCOMPARE(granted.load(), 6 * 200);
        const DecodeShare all(100, {}, budget);
        QVERIFY(all.isGranted());
        QVERIFY(!DecodeShare(
                     1, [] { return true; }, budget)
                     .isGranted());
    }
};

QTEST_GUILESS_MAIN(ImageFeatureTest)
#include "tst_imagefeature.moc"
