#include "core/match/imageclusters.h"
#include "tests/support/coretest.h"

#include <cstring>

namespace {

constexpr quint64 base = 0x0123456789ABCDEF;

ImageFeature featureOf(const QList<quint64> &variants)
{
    return {variants.value(0), variants, !variants.isEmpty(), {}};
}

/// The groups as a text such as "0 2 3|1 4".
QString groupsOf(const QList<ImageFeature> &features, const QByteArray &options = "{}")
{
    QList<FileEntry> files;
    for (qsizetype i = 0; i < features.size(); ++i)
        files.append(fileAt(QString::number(i)));
    QList<QStringList> groups;
    for (const DuplicateGroup &group :
         groupSimilarImages(files, {features.begin(), features.end()}, optionsFrom(options), {}))
        groups.append(pathsOf(group.files));
    return sortedText(groups);
}

FileEntry sized(qint32 width, qint32 height)
{
    FileEntry file;
    file.width = width;
    file.height = height;
    return file;
}

FileEntry shot(qint64 ms)
{
    FileEntry file;
    file.shotMs = ms;
    return file;
}

FileEntry placed(double latitude, double longitude)
{
    FileEntry file;
    file.latitude = latitude;
    file.longitude = longitude;
    file.hasGps = true;
    return file;
}

FileEntry made(const QString &make, const QString &model)
{
    FileEntry file;
    file.cameraMake = make;
    file.cameraModel = model;
    return file;
}

} // namespace

class ImageClustersTest : public QObject
{
    Q_OBJECT

private slots:
    void distancesAndBuckets_data()
    {
        const auto row = columns<QList<ImageFeature>, int, QString>({"features", "distance", "groups"});
        const ImageFeature picture = featureOf({base});
        const ImageFeature turned = featureOf({7});
        const auto differing = [](quint64 bits) { return featureOf({base ^ bits}); };
        row("equal", {picture, picture}, 0, u"0 1"_s);
        row("five bits at 5", {picture, differing(0x1F)}, 5, u"0 1"_s);
        row("six bits at 5", {picture, differing(0x3F)}, 5, {});
        row("chain", {picture, differing(0x7), differing(0x3F)}, 3, u"0 1 2"_s);
        row("chain through the last", {picture, differing(0x3F), differing(0x7)}, 3, u"0 1 2"_s);
        row("bits 48 to 63 are chained by 48 only", {picture, differing(1ULL << 48), differing(3ULL << 48)}, 22,
            u"0 1"_s);
        for (const int bit : {49, 55, 62, 63})
            row(qPrintable(u"bit %1"_s.arg(bit)), {picture, differing(1ULL << bit)}, 22, {});
        row("variants", {featureOf({base, 7}), featureOf({base ^ 0xFFFFFF, 9, 8, 5})}, 1, u"0 1"_s);
        row("a variant of another bucket", {featureOf({base, 1}), featureOf({~base, 1})}, 0, {});
        row("only a variant of the first", {featureOf({base, 7}), turned}, 0, u"0 1"_s);
        row("only a variant of the last", {turned, featureOf({base, 7})}, 0, u"0 1"_s);
        row("chain through a turned one", {featureOf({~base, 7}), turned, featureOf({base, 7})}, 0, u"0 1 2"_s);
        row("invalid", {picture, featureOf({}), picture}, 22, u"0 2"_s);
        row("two groups", {picture, differing(~0ULL), picture, differing(~0ULL)}, 5, u"0 2|1 3"_s);
    }

    void distancesAndBuckets()
    {
        QFETCH(QList<ImageFeature>, features);
        QFETCH(int, distance);
        QTEST(groupsOf(features, R"({"imageMaxDistance":)" + QByteArray::number(distance) + '}'), "groups");
    }

    void keyAndWaste()
    {
        const std::vector<ImageFeature> features{featureOf({0xAB0}), featureOf({0xAB1}), featureOf({0xAB0})};
        const QList<DuplicateGroup> groups =
            groupSimilarImages({fileAt(u"a"_s, 10), fileAt(u"b"_s, 50), fileAt(u"c"_s, 20)}, features, {}, {});
        QCOMPARE(groups.size(), 1);
        QCOMPARE(groups[0].key, u"img-0000000000000ab0"_s);
        QCOMPARE(groups[0].wastedBytes, 30);
    }

    void histogramsMustMatchWhenAsked()
    {
        ImageFeature dark = featureOf({1});
        dark.histogram = QByteArray(256, '\0');
        const float half = 0.5F;
        std::memcpy(dark.histogram.data(), &half, sizeof half);
        ImageFeature bright = dark;
        std::memcpy(bright.histogram.data() + 4, &half, sizeof half); // a cosine of 0.71
        const QByteArray options = R"({"imageMatchHistogram":true})";
        QCOMPARE(groupsOf({dark, bright}), u"0 1"_s);
        QCOMPARE(groupsOf({dark, bright, dark}, options), u"0 2"_s);
        QCOMPARE(groupsOf({dark, featureOf({1})}, options), QString());
    }

    void facts_data()
    {
        const auto row = columns<QByteArray, FileEntry, FileEntry, bool>({"options", "a", "b", "isAllowed"});
        const FileEntry photo = sized(600, 400);
        row("no rule", "{}", photo, sized(1, 100), true);
        const QByteArray same = R"({"imageSameDimensions":true,"imageDimensionTolerance":10})";
        row("within the tolerance", same, photo, sized(610, 406), true);
        row("width beyond it", same, photo, sized(611, 407), false);
        row("ratio too different", same, sized(100, 10), sized(100, 11), false);
        row("unknown size", same, photo, sized(0, 400), true);
        row("turned", same, photo, sized(400, 600), false);
        row("turned and looked for", R"({"imageSameDimensions":true,"imageFindRotated":true})", photo, sized(400, 600),
            true);
        const QByteArray aspect = R"({"imageSameAspect":true})";
        row("same ratio", aspect, photo, sized(300, 200), true);
        row("ratio 1.52", aspect, photo, sized(1519, 1000), true);
        row("ratio 1.5201", aspect, photo, sized(15201, 10000), false);
        const QByteArray time = R"({"imageSameShotTime":true,"imageShotTimeTolerance":2})";
        row("two seconds apart", time, shot(1000000), shot(1002000), true);
        row("a millisecond more", time, shot(1002001), shot(1000000), false);
        row("unknown time", time, shot(0), shot(1000000), true);
        row("tolerance 0 is a second", R"({"imageSameShotTime":true,"imageShotTimeTolerance":0})", shot(1), shot(1001),
            true);
        const QByteArray place = R"({"imageGroupByGps":true,"imageGpsPrecision":111})"; // 0.001 degrees of latitude
        row("north", place, placed(50, 8), placed(50.000999, 8), true);
        row("further north", place, placed(50, 8), placed(50.001001, 8), false);
        row("east at 60 degrees", place, placed(60, 8), placed(60, 8.00199), true); // half as far as at the equator
        row("further east", place, placed(60, 8), placed(60, 8.00201), false);
        row("at the pole", place, placed(90, 0), placed(90, 180), true);
        row("across the date line", place, placed(0, 179.9999), placed(0, -179.9999), false); // taken for a whole turn
        row("unknown place", place, placed(0, 0), {}, true);
        const QByteArray tags = R"({"imageTags":[{"name":"Make","enabled":1},{"name":"Model","enabled":0}]})";
        row("other model, only shown", tags, made(u"A"_s, u"1"_s), made(u"A"_s, u"2"_s), true);
        row("other make", tags, made(u"A"_s, u"1"_s), made(u"B"_s, u"1"_s), false);
        row("unknown make", tags, made(u"A"_s, {}), made({}, {}), true);
    }

    void facts()
    {
        QFETCH(QByteArray, options);
        QFETCH(FileEntry, a);
        QFETCH(FileEntry, b);
        QTEST(factsAllowPair(a, b, optionsFrom(options)), "isAllowed");
        QTEST(factsAllowPair(b, a, optionsFrom(options)), "isAllowed");
    }
};

QTEST_GUILESS_MAIN(ImageClustersTest)
#include "tst_imageclusters.moc"
