#include "core/match/imageclusters.h"
#include "core/model/optiontable.h"

#include <QJsonDocument>
#include <QTest>

#include <cstring>

using namespace MirrixCore;
using namespace Qt::StringLiterals;

namespace {

ScanOptions optionsFrom(const QByteArray &json)
{
    ScanOptions options;
    const QString problem = scanOptionsFromJson(QJsonDocument::fromJson(json).object(), options);
    if (!problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    return options;
}

ImageFeature featureOf(std::initializer_list<quint64> variants)
{
    return {variants.size() == 0 ? 0 : *variants.begin(), variants, variants.size() > 0, {}};
}

QList<FileEntry> filesOfSizes(std::initializer_list<qint64> sizes)
{
    QList<FileEntry> files;
    for (const qint64 size : sizes) {
        FileEntry file;
        file.path = u"/p/%1"_s.arg(files.size());
        file.size = size;
        files.append(file);
    }
    return files;
}

/// The groups as texts such as "0 2 3".
QStringList groupsOf(const std::vector<ImageFeature> &features, const QByteArray &options = "{}")
{
    QList<FileEntry> files;
    for (size_t i = 0; i < features.size(); ++i)
        files += filesOfSizes({10});
    for (qsizetype i = 0; i < files.size(); ++i)
        files[i].path = QString::number(i);
    QStringList groups;
    for (const DuplicateGroup &group : groupSimilarImages(files, features, optionsFrom(options), {})) {
        QStringList members;
        for (const FileEntry &file : group.files)
            members.append(file.path);
        groups.append(members.join(u' '));
    }
    return groups;
}

} // namespace

class ImageClustersTest : public QObject
{
    Q_OBJECT

private slots:
    void distancesAndBuckets_data();
    void distancesAndBuckets();
    void keyAndWaste();
    void histogramsMustMatchWhenAsked();
    void facts_data();
    void facts();
};

void ImageClustersTest::distancesAndBuckets_data()
{
    QTest::addColumn<QList<ImageFeature>>("features");
    QTest::addColumn<int>("distance");
    QTest::addColumn<QStringList>("groups");
    const auto row = [](const char *name, const QList<ImageFeature> &features, int distance,
                        const QStringList &groups) { QTest::newRow(name) << features << distance << groups; };
    const quint64 base = 0x0123456789ABCDEF;
    const ImageFeature picture = featureOf({base});
    row("equal", {picture, picture}, 0, {u"0 1"_s});
    row("five bits at 5", {picture, featureOf({base ^ 0x1F})}, 5, {u"0 1"_s});
    row("six bits at 5", {picture, featureOf({base ^ 0x3F})}, 5, {});
    row("bit 48", {picture, featureOf({base ^ (quint64(1) << 48)})}, 1, {u"0 1"_s});
    row("chain", {picture, featureOf({base ^ 0x7}), featureOf({base ^ 0x3F})}, 3, {u"0 1 2"_s});
    row("chain through the last", {picture, featureOf({base ^ 0x3F}), featureOf({base ^ 0x7})}, 3, {u"0 1 2"_s});
    row("bits 48 to 63 are chained by 48 only",
        {picture, featureOf({base ^ (quint64(1) << 48)}), featureOf({base ^ (quint64(3) << 48)})}, 22, {u"0 1"_s});
    row("variants", {featureOf({base, 7}), featureOf({base ^ 0xFFFFFF, 9, 8, 5})}, 1, {u"0 1"_s});
    row("a variant of another bucket", {featureOf({base, 1}), featureOf({~base, 1})}, 0, {});
    const ImageFeature turned = featureOf({7});
    row("only a variant of the first", {featureOf({base, 7}), turned}, 0, {u"0 1"_s});
    row("only a variant of the last", {turned, featureOf({base, 7})}, 0, {u"0 1"_s});
    row("chain through a turned one", {featureOf({~base, 7}), turned, featureOf({base, 7})}, 0, {u"0 1 2"_s});
    row("invalid", {picture, featureOf({}), picture}, 22, {u"0 2"_s});
    row("two groups", {picture, featureOf({~base}), picture, featureOf({~base})}, 5, {u"0 2"_s, u"1 3"_s});
    for (const int bit : {49, 55, 62, 63})
        row(qPrintable(u"bit %1"_s.arg(bit)), {picture, featureOf({base ^ (quint64(1) << bit)})}, 22, {});
}

void ImageClustersTest::distancesAndBuckets()
{
    QFETCH(QList<ImageFeature>, features);
    QFETCH(int, distance);
    const QByteArray options = R"({"imageMaxDistance":)" + QByteArray::number(distance) + '}';
    QTEST(groupsOf({features.begin(), features.end()}, options), "groups");
}

void ImageClustersTest::keyAndWaste()
{
    const std::vector<ImageFeature> features{featureOf({0xAB0}), featureOf({0xAB1}), featureOf({0xAB0})};
    const QList<DuplicateGroup> groups = groupSimilarImages(filesOfSizes({10, 50, 20}), features, {}, {});
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups[0].key, u"img-0000000000000ab0"_s);
    QCOMPARE(groups[0].wastedBytes, 30);
}

void ImageClustersTest::histogramsMustMatchWhenAsked()
{
    ImageFeature dark = featureOf({1});
    dark.histogram = QByteArray(256, '\0');
    const float half = 0.5F;
    std::memcpy(dark.histogram.data(), &half, sizeof half);
    ImageFeature bright = dark;
    std::memcpy(bright.histogram.data() + 4, &half, sizeof half); // a cosine of 0.71
    const QByteArray options = R"({"imageMatchHistogram":true})";
    QCOMPARE(groupsOf({dark, bright}), QStringList{u"0 1"_s});
    QCOMPARE(groupsOf({dark, bright, dark}, options), QStringList{u"0 2"_s});
    QCOMPARE(groupsOf({dark, featureOf({1})}, options), QStringList());
}

void ImageClustersTest::facts_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<FileEntry>("a");
    QTest::addColumn<FileEntry>("b");
    QTest::addColumn<bool>("isAllowed");
    const auto row = [](const char *name, const char *options, const FileEntry &a, const FileEntry &b, bool isAllowed) {
        QTest::newRow(name) << QByteArray(options) << a << b << isAllowed;
    };
    const auto sized = [](qint32 width, qint32 height) {
        FileEntry file;
        file.width = width;
        file.height = height;
        return file;
    };
    const FileEntry photo = sized(600, 400);
    row("no rule", "{}", photo, sized(1, 100), true);
    const char *same = R"({"imageSameDimensions":true,"imageDimensionTolerance":10})";
    row("within the tolerance", same, photo, sized(610, 406), true);
    row("width beyond it", same, photo, sized(611, 407), false);
    row("ratio too different", same, sized(100, 10), sized(100, 11), false);
    row("unknown size", same, photo, sized(0, 400), true);
    row("turned", same, photo, sized(400, 600), false);
    row("turned and looked for", R"({"imageSameDimensions":true,"imageFindRotated":true})", photo, sized(400, 600),
        true);
    row("same ratio", R"({"imageSameAspect":true})", photo, sized(300, 200), true);
    row("ratio 1.52", R"({"imageSameAspect":true})", photo, sized(1519, 1000), true);
    row("ratio 1.5201", R"({"imageSameAspect":true})", photo, sized(15201, 10000), false);

    const auto shot = [](qint64 ms) {
        FileEntry file;
        file.shotMs = ms;
        return file;
    };
    const char *time = R"({"imageSameShotTime":true,"imageShotTimeTolerance":2})";
    row("two seconds apart", time, shot(1000000), shot(1002000), true);
    row("a millisecond more", time, shot(1002001), shot(1000000), false);
    row("unknown time", time, shot(0), shot(1000000), true);
    row("tolerance 0 is a second", R"({"imageSameShotTime":true,"imageShotTimeTolerance":0})", shot(1), shot(1001),
        true);

    const auto placed = [](double latitude, double longitude) {
        FileEntry file;
        file.latitude = latitude;
        file.longitude = longitude;
        file.hasGps = true;
        return file;
    };
    const char *place = R"({"imageGroupByGps":true,"imageGpsPrecision":111})"; // a thousandth of a degree of latitude
    row("north", place, placed(50, 8), placed(50.000999, 8), true);
    row("further north", place, placed(50, 8), placed(50.001001, 8), false);
    row("east at 60 degrees", place, placed(60, 8), placed(60, 8.00199), true); // half as far as at the equator
    row("further east", place, placed(60, 8), placed(60, 8.00201), false);
    row("at the pole", place, placed(90, 0), placed(90, 180), true);
    row("across the date line", place, placed(0, 179.9999), placed(0, -179.9999), false); // taken for a whole turn
    row("unknown place", place, placed(0, 0), {}, true);

    const auto made = [](const QString &make, const QString &model) {
        FileEntry file;
        file.cameraMake = make;
        file.cameraModel = model;
        return file;
    };
    const char *tags = R"({"imageTags":[{"name":"Make","enabled":1},{"name":"Model","enabled":0}]})";
    row("other model, only shown", tags, made(u"A"_s, u"1"_s), made(u"A"_s, u"2"_s), true);
    row("other make", tags, made(u"A"_s, u"1"_s), made(u"B"_s, u"1"_s), false);
    row("unknown make", tags, made(u"A"_s, {}), made({}, {}), true);
}

void ImageClustersTest::facts()
{
    QFETCH(QByteArray, options);
    QFETCH(FileEntry, a);
    QFETCH(FileEntry, b);
    QTEST(factsAllowPair(a, b, optionsFrom(options)), "isAllowed");
    QTEST(factsAllowPair(b, a, optionsFrom(options)), "isAllowed");
}

QTEST_GUILESS_MAIN(ImageClustersTest)
#include "tst_imageclusters.moc"
