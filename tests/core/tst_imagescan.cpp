#include "core/cache/cacheroot.h"
#include "core/cache/imagefeaturecache.h"
#include "core/media/opencvfeature.h"
#include "core/scan/duplicatescanner.h"
#include "tests/support/coretest.h"
#include "tests/support/mediafiles.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>

#include <memory>

namespace {

QByteArray encoded(const QImage &image, const char *format = "png", int quality = -1)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return image.save(&buffer, format, quality) ? bytes : QByteArray();
}

/// A scene of hills, a sun and clouds; another one for each number.
QImage scene(int number)
{
    QImage image(640, 480, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, 480);
    sky.setColorAt(0, QColor::fromHsv(200 + number * 31 % 90, 160, 250 - number * 57 % 130));
    sky.setColorAt(1, QColor::fromHsv(30 + number * 47 % 200, 120, 90 + number * 23 % 150));
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 12; ++i) {
        const int place = number * 7919 + i * 104729;
        painter.setBrush(QColor::fromHsv(place % 360, place / 7 % 256, place / 13 % 256));
        painter.drawEllipse(place % 640 - 60, place / 11 % 480 - 40, 60 + place / 17 % 160, 40 + place / 19 % 160);
    }
    return image;
}

QImage scaled(const QImage &image, int width, int height)
{
    return image.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

class ImageScanTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TempTree> m_tree;
    ScanOptions m_options;

    void write(const QString &name, const QByteArray &bytes) const { m_tree->write(u"photos/"_s + name, bytes); }

    [[nodiscard]] QString groups() const
    {
        return groupsText(DuplicateScanner::scan(m_options, {}, {}), *m_tree).remove(u"photos/"_s);
    }

private slots:
    void init()
    {
        m_tree = std::make_unique<TempTree>();
        setCacheRoot(m_tree->path(u"data"_s));
        m_options = optionsFor(*m_tree, {u"photos"_s});
        m_options.searchMode = static_cast<qint32>(SearchMode::Images);
    }

    void cleanup() { setCacheRoot({}); }

    void findsEditedCopies()
    {
        QVERIFY(openCvFeature());
        for (int number = 1; number <= 8; ++number)
            write(u"%1.png"_s.arg(number), encoded(scene(number)));
        write(u"1b.jpg"_s, encoded(scene(1), "jpg", 70));
        write(u"1c.bmp"_s, encoded(scaled(scene(1), 320, 240), "bmp"));
        write(u"2b.png"_s, encoded(scene(2).mirrored(true, false)));
        QCOMPARE(groups(), u"1.png 1b.jpg 1c.bmp"_s);
        m_options.imageFindFlipped = true;
        QCOMPARE(groups(), u"1.png 1b.jpg 1c.bmp|2.png 2b.png"_s);
        const ScanResult result = DuplicateScanner::scan(m_options, {}, {});
        QCOMPARE(result.candidates, 11);
        QVERIFY(result.unread.isEmpty());
        QVERIFY(result.groups[0].key.startsWith(u"img-"_s));
    }

    void aspectRatio()
    {
        write(u"a.png"_s, encoded(scene(1)));
        write(u"b.png"_s, encoded(scaled(scene(1), 640, 400)));
        QCOMPARE(groups(), u"a.png b.png"_s);
        m_options.imageSameAspect = true;
        QCOMPARE(groups(), QString()); // the features are cached, the sizes are not
    }

    void rawFilesByTheirPreview()
    {
        const QByteArray photo = encoded(scene(1), "jpg", 95);
        write(u"photo.jpg"_s, photo);
        write(u"photo.dng"_s, dngFile(photo, 640, 480));
        m_options.imageMaxDistance = 0;
        m_options.imageUseFeatureCache = false;
        QCOMPARE(groups(), u"photo.dng photo.jpg"_s);
        m_options.imageUseRawPreview = false;
        QCOMPARE(groups(), QString());
    }

    void secondScanReadsNothing()
    {
        write(u"a.png"_s, encoded(scene(1)));
        write(u"b.png"_s, encoded(scene(1)));
        m_tree->setModified(u"photos/b.png"_s, 1600000000000);
        QCOMPARE(groups(), u"a.png b.png"_s);
        // What cannot be recognised as no picture without reading it.
        write(u"b.png"_s, QByteArray(encoded(scene(1)).size(), 'x'));
        m_tree->setModified(u"photos/b.png"_s, 1600000000000);
        QCOMPARE(groups(), u"a.png b.png"_s);
        m_options.imageUseFeatureCache = false;
        QCOMPARE(groups(), QString());
        m_options.imageUseFeatureCache = true;
        m_tree->setModified(u"photos/b.png"_s, 1600000000001);
        QCOMPARE(groups(), QString());
        QVERIFY(clearImageFeatureCache());
        m_options.imageUseFeatureCache = false;
        QCOMPARE(groups(), QString());
        QVERIFY(!QFile::exists(m_tree->path(u"data/image_feature_cache"_s)));
    }

    /// Entries made for one request serve another, or are made again where they cannot.
    void cachedVariantsFitTheRequest()
    {
        write(u"a.png"_s, encoded(scene(1)));
        write(u"b.png"_s, encoded(scene(1).transformed(QTransform().rotate(180))));
        for (int round = 0; round < 16; ++round) {
            m_options.imageFindRotated = round & 1;
            m_options.imageMatchHistogram = round & 2;
            m_options.imageFindFlipped = round & 4;
            QCOMPARE(groups(), m_options.imageFindRotated ? u"a.png b.png"_s : QString());
        }
    }
};

QTEST_GUILESS_MAIN(ImageScanTest)
#include "tst_imagescan.moc"
