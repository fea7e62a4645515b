#include "core/cache/cacheroot.h"
#include "core/cache/imagefeaturecache.h"
#include "tests/support/temptree.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

const QString picture = u"/photos/a b.jpg"_s;
constexpr qint64 size = 1234;
constexpr qint64 modified = 1700000000123;
const ImageFeature feature{0x7FFF00000000000A, {0x7FFF00000000000A, 0xB}, true, {}};

/// sha256sum of the path gives this.
const QString entryName =
    u"image_feature_cache/92/925f81773be2775b57dd9f839889bb7d6f583a43a18eba43f193aa183cc76aae.json"_s;

} // namespace

class ImageFeatureCacheTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void entryHasItsForm();
    void roundTrip();
    void forgedEntries_data();
    void forgedEntries();
    void clearing();

private:
    QByteArray entry() const;

    std::unique_ptr<TempTree> m_tree;
};

void ImageFeatureCacheTest::init()
{
    m_tree = std::make_unique<TempTree>();
    setCacheRoot(m_tree->path());
}

void ImageFeatureCacheTest::cleanup()
{
    setCacheRoot({});
    m_tree.reset();
}

QByteArray ImageFeatureCacheTest::entry() const
{
    QFile file(m_tree->path(entryName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ImageFeatureCacheTest::entryHasItsForm()
{
    storeImageFeature(picture, size, modified, feature);
    QCOMPARE(entry(), QByteArray(R"({"size":1234,"mtimeMs":1700000000123,"primary":"7fff00000000000a",)"
                                 R"("variants":["7fff00000000000a","b"],"histogramValid":false})"));
    ImageFeature withHistogram = feature;
    withHistogram.histogram = QByteArray(256, '\0');
    storeImageFeature(picture, size, modified, withHistogram);
    QVERIFY(entry().endsWith(R"("histogramValid":true,"histogram":")" + QByteArray(256, '\0').toBase64() + "\"}"));
    QCOMPARE(
        QDir(m_tree->path(u"image_feature_cache/"_s + entryName.section(u'/', 1, 1))).entryList(QDir::Files).size(), 1);
}

void ImageFeatureCacheTest::roundTrip()
{
    ImageFeature stored = feature;
    stored.histogram = patternBytes(256);
    ImageFeature loaded;
    QVERIFY(!loadImageFeature(picture, size, modified, loaded));
    storeImageFeature(picture, size, modified, stored);
    QVERIFY(loadImageFeature(picture, size, modified, loaded));
    QCOMPARE(loaded, stored);
    QVERIFY(!loadImageFeature(picture, size + 1, modified, loaded));
    QCOMPARE(loaded, ImageFeature());
    QVERIFY(!loadImageFeature(u"/photos/A b.jpg"_s, size, modified, loaded));
    storeImageFeature(picture, size, modified + 1, feature);
    QVERIFY(loadImageFeature(picture, size, modified + 1, loaded));
    QCOMPARE(loaded, feature);
    QVERIFY(!loadImageFeature(picture, size, modified, loaded));
}

void ImageFeatureCacheTest::forgedEntries_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<quint64>>("variants"); // none: a miss
    const auto row = [](const char *name, const QByteArray &rest, const QList<quint64> &variants) {
        QTest::newRow(name) << QByteArray(R"({"size":1234,"mtimeMs":1700000000123,)") + rest << variants;
    };
    row("as ours", R"("primary":"a","variants":["a","ffffffffffffffff"]})", {0xA, 0xFFFFFFFFFFFFFFFF});
    row("another order and spaces", R"( "variants" : [ "A" ] , "primary" : "a" } )", {0xA});
    row("no variants", R"("primary":"a","variants":[]})", {});
    row("variants of another type", R"("primary":"a","variants":[1,null,{}]})", {});
    row("no hexadecimal numbers", R"("primary":"a","variants":["xyz","","-","10000000000000000"]})", {});
    row("more than there can be", R"("primary":"a","variants":["1","2","3","4","5","6","7","8","9"]})", {});
    row("cut off", R"("primary":"a","variants":["a")", {});
    row("not ours at all", QByteArray(100000, '['), {});
    QTest::newRow("empty") << QByteArray() << QList<quint64>();
    QTest::newRow("array") << QByteArray("[1]") << QList<quint64>();
    QTest::newRow("no state") << QByteArray(R"({"primary":"a","variants":["a"]})") << QList<quint64>();
    QTest::newRow("state as text") << QByteArray(
                                          R"({"size":"1234","mtimeMs":"1700000000123","primary":"a","variants":["a"]})")
                                   << QList<quint64>();
}

void ImageFeatureCacheTest::forgedEntries()
{
    QFETCH(QByteArray, text);
    QFETCH(QList<quint64>, variants);
    m_tree->write(entryName, text);
    ImageFeature loaded;
    QCOMPARE(loadImageFeature(picture, size, modified, loaded), !variants.isEmpty());
    QCOMPARE(loaded.variants, variants);
    storeImageFeature(picture, size, modified, feature);
    QVERIFY(loadImageFeature(picture, size, modified, loaded));
    QCOMPARE(loaded, feature);
}

void ImageFeatureCacheTest::clearing()
{
    QVERIFY(clearImageFeatureCache()); // nothing there
    ImageFeature loaded;
    setCacheRoot(m_tree->write(u"in the way"_s, {}));
    storeImageFeature(picture, size, modified, feature);
    QVERIFY(!loadImageFeature(picture, size, modified, loaded));
    setCacheRoot(m_tree->path());
    storeImageFeature(picture, size, modified, feature);
    m_tree->write(u"fingerprint_cache/other"_s, "x");
    QVERIFY(clearImageFeatureCache());
    QVERIFY(!QFile::exists(m_tree->path(u"image_feature_cache"_s)));
    QVERIFY(QFile::exists(m_tree->path(u"fingerprint_cache/other"_s)));
    storeImageFeature(picture, size, modified, feature);
    QVERIFY(!entry().isEmpty());
}

QTEST_GUILESS_MAIN(ImageFeatureCacheTest)
#include "tst_imagefeaturecache.moc"
