#include "core/cache/cacheroot.h"
#include "core/cache/imagefeaturecache.h"
#include "core/media/opencvfeature.h"
#include "core/scan/duplicatescanner.h"
#include "tests/support/mediafiles.h"
#include "tests/support/scans.h"
#include "tests/support/temptree.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTest>

#include <memory>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

QByteArray encoded(const QImage &image, const char *format, int quality = -1)
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

} // namespace

class ImageScanTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void findsEditedCopies();
    void aspectRatio();
    void rawFilesByTheirPreview();
    void secondScanReadsNothing();
    void rememberedVariantsFitTheRequest();
    void cancelled();

private:
    void write(const QString &name, const QImage &image, const char *format = "png", int quality = -1) const
    {
        m_tree->write(u"photos/"_s + name, encoded(image, format, quality));
    }
    ScanOptions options() const
    {
        ScanOptions made = optionsFor(*m_tree, {u"photos"_s});
        made.searchMode = static_cast<qint32>(SearchMode::Images);
        return made;
    }
    QStringList groups(const ScanOptions &options) const
    {
        QStringList names;
        const ScanResult result = DuplicateScanner::scan(options, {}, {});
        for (const DuplicateGroup &group : result.groups) {
            QStringList members;
            for (const FileEntry &file : group.files)
                members.append(file.path.section(u'/', -1));
            members.sort();
            names.append(members.join(u' '));
        }
        names.sort();
        return names;
    }

    std::unique_ptr<TempTree> m_tree;
};

void ImageScanTest::init()
{
    m_tree = std::make_unique<TempTree>();
    setCacheRoot(m_tree->path(u"data"_s));
}

void ImageScanTest::cleanup()
{
    setCacheRoot({});
    m_tree.reset();
}

void ImageScanTest::findsEditedCopies()
{
    QVERIFY(openCvFeature());
    for (int number = 1; number <= 8; ++number)
        write(u"%1.png"_s.arg(number), scene(number));
    write(u"1b.jpg"_s, scene(1), "jpg", 70);
    write(u"1c.bmp"_s, scene(1).scaled(320, 240, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), "bmp");
    write(u"2b.png"_s, scene(2).mirrored(true, false));
    ScanOptions chosen = options();
    QCOMPARE(groups(chosen), QStringList{u"1.png 1b.jpg 1c.bmp"_s});
    chosen.imageFindFlipped = true;
    QCOMPARE(groups(chosen), QStringList({u"1.png 1b.jpg 1c.bmp"_s, u"2.png 2b.png"_s}));
    const ScanResult result = DuplicateScanner::scan(chosen, {}, {});
    QCOMPARE(result.candidates, 11);
    QVERIFY(result.unread.isEmpty());
    QVERIFY(result.groups[0].key.startsWith(u"img-"_s));
}

void ImageScanTest::aspectRatio()
{
    write(u"a.png"_s, scene(1));
    write(u"b.png"_s, scene(1).scaled(640, 400, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    ScanOptions chosen = options();
    QCOMPARE(groups(chosen), QStringList{u"a.png b.png"_s});
    chosen.imageSameAspect = true;
    QCOMPARE(groups(chosen), QStringList()); // the features are remembered, the sizes are not
}

void ImageScanTest::rawFilesByTheirPreview()
{
    const QByteArray photo = encoded(scene(1), "jpg", 95);
    m_tree->write(u"photos/photo.jpg"_s, photo);
    m_tree->write(u"photos/photo.dng"_s, dngFile(photo, 640, 480));
    ScanOptions chosen = options();
    chosen.imageMaxDistance = 0;
    chosen.imageUseFeatureCache = false;
    QCOMPARE(groups(chosen), QStringList{u"photo.dng photo.jpg"_s});
    chosen.imageUseRawPreview = false;
    QCOMPARE(groups(chosen), QStringList());
}

void ImageScanTest::secondScanReadsNothing()
{
    write(u"a.png"_s, scene(1));
    write(u"b.png"_s, scene(1));
    m_tree->setModified(u"photos/b.png"_s, 1600000000000);
    const ScanOptions chosen = options();
    QCOMPARE(groups(chosen), QStringList{u"a.png b.png"_s});
    // What nobody can know to be no picture without reading it.
    m_tree->write(u"photos/b.png"_s, QByteArray(encoded(scene(1), "png").size(), 'x'));
    m_tree->setModified(u"photos/b.png"_s, 1600000000000);
    QCOMPARE(groups(chosen), QStringList{u"a.png b.png"_s});
    ScanOptions without = chosen;
    without.imageUseFeatureCache = false;
    QCOMPARE(groups(without), QStringList());
    m_tree->setModified(u"photos/b.png"_s, 1600000000001);
    QCOMPARE(groups(chosen), QStringList());
    QVERIFY(clearImageFeatureCache());
    QCOMPARE(groups(without), QStringList());
    QVERIFY(!QFile::exists(m_tree->path(u"data/image_feature_cache"_s)));
}

/// Entries made for one request serve another, or are made anew where they cannot.
void ImageScanTest::rememberedVariantsFitTheRequest()
{
    write(u"a.png"_s, scene(1));
    write(u"b.png"_s, scene(1).transformed(QTransform().rotate(180)));
    ScanOptions chosen = options();
    for (int round = 0; round < 2; ++round) {
        for (const bool flipped : {false, true}) {
            for (const bool histogram : {false, true}) {
                chosen.imageFindFlipped = flipped;
                chosen.imageMatchHistogram = histogram;
                chosen.imageFindRotated = false;
                QCOMPARE(groups(chosen), QStringList());
                chosen.imageFindRotated = true;
                QCOMPARE(groups(chosen), QStringList{u"a.png b.png"_s});
            }
        }
    }
}

void ImageScanTest::cancelled()
{
    write(u"a.png"_s, scene(1));
    write(u"b.png"_s, scene(1));
    bool isOver = false;
    QStringList phases;
    const auto onProgress = [&](const ScanProgress &report) {
        phases.append(report.phase);
        isOver = report.phase == Phase::ImageHash;
    };
    const ScanResult result = DuplicateScanner::scan(options(), onProgress, [&] { return isOver; });
    QVERIFY(phases.contains(Phase::ImageHash));
    QCOMPARE(result.groups.size(), 0);
    QCOMPARE(result.filesScanned, 2);
}

QTEST_GUILESS_MAIN(ImageScanTest)
#include "tst_imagescan.moc"
