#include "core/cache/imagefeaturecache.h"

#include "core/cache/cacheroot.h"
#include "tests/support/coretest.h"
#include "tests/support/disk.h"

#include <QFile>
#include <QFileInfo>

#include <memory>

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

    std::unique_ptr<TempTree> m_tree;

private slots:
    void init()
    {
        m_tree = std::make_unique<TempTree>();
        setCacheRoot(m_tree->path());
    }

    void cleanup() { setCacheRoot({}); }

    void entryHasItsForm();

    void roundTrip()
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

    void forgedEntries_data();

    void forgedEntries()
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

    void clearing()
    {
        QVERIFY(clearImageFeatureCache()); // nothing there
        storeImageFeature(picture, size, modified, feature);
        m_tree->write(u"fingerprint_cache/other"_s, "x");
        QVERIFY(clearImageFeatureCache());
        QVERIFY(!QFile::exists(m_tree->path(u"image_feature_cache"_s)));
        QVERIFY(QFile::exists(m_tree->path(u"fingerprint_cache/other"_s)));
        storeImageFeature(picture, size, modified, feature);
        QVERIFY(QFile::exists(m_tree->path(entryName)));
        setCacheRoot(m_tree->write(u"in the way"_s, {}));
        storeImageFeature(picture, size, modified, feature);
        ImageFeature loaded;
        QVERIFY(!loadImageFeature(picture, size, modified, loaded));
    }
};

// Not in the class, where the moc would take their raw strings apart and lose the slots behind them.

void ImageFeatureCacheTest::entryHasItsForm()
{
    storeImageFeature(picture, size, modified, feature);
    QCOMPARE(treeBelow(m_tree->path()).keys(), QStringList(entryName));
    QCOMPARE(contentOf(m_tree->path(entryName)), R"({"size":1234,"mtimeMs":1700000000123,"primary":"7fff00000000000a",)"
                                                 R"("variants":["7fff00000000000a","b"],"histogramValid":false})");
    ImageFeature withHistogram = feature;
    withHistogram.histogram = QByteArray(256, '\0');
    storeImageFeature(picture, size, modified, withHistogram);
    QVERIFY(contentOf(m_tree->path(entryName))
                .endsWith(R"("histogramValid":true,"histogram":")" + QByteArray(256, '\0').toBase64() + "\"}"));
}

void ImageFeatureCacheTest::forgedEntries_data()
{
    const auto row = columns<QByteArray, QList<quint64>>({"text", "variants"}); // none: a miss
    const auto rowOf = [&](const char *name, const QByteArray &members, const QList<quint64> &variants) {
        row(name, '{' + (R"("size":1234,"mtimeMs":1700000000123,)" + members) + '}', variants);
    };
    rowOf("as ours", R"("primary":"a","variants":["a","ffffffffffffffff"])", {0xA, 0xFFFFFFFFFFFFFFFF});
    rowOf("another order and spaces", R"( "variants" : [ "A" ] , "primary" : "a" )", {0xA});
    rowOf("no variants", R"("primary":"a","variants":[])", {});
    rowOf("variants of another type", R"("primary":"a","variants":[1,null,{}])", {});
    rowOf("no numbers", R"("primary":"a","variants":["xyz","","-","10000000000000000"])", {});
    rowOf("too many", R"("primary":"a","variants":["1","2","3","4","5","6","7","8","9"])", {});
    rowOf("cut off", R"("primary":"a","variants":"a)", {});
    rowOf("not ours at all", QByteArray(100000, '['), {});
    row("empty", "", {});
    row("array", "[1]", {});
    row("no state", R"({"primary":"a","variants":["a"]})", {});
    row("state as text", R"({"size":"1234","mtimeMs":"1700000000123","primary":"a","variants":["a"]})", {});
}

QTEST_GUILESS_MAIN(ImageFeatureCacheTest)
#include "tst_imagefeaturecache.moc"
