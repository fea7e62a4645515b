#include "ui/state/scanoptionsfrom.h"

#include "core/media/mediakinds.h"
#include "core/model/optiontable.h"
#include "ui/state/rulessettings.h"
#include "ui/texts/locationtext.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <functional>

using namespace Mirrix;
using namespace Qt::StringLiterals;

namespace {

using Change = std::function<void(LocationsState &, RulesState &)>;

QJsonObject optionsOf(const LocationsState &locations, const RulesState &rules)
{
    return MirrixCore::scanOptionsToJson(scanOptionsFrom(locations, rules));
}

/// The members of `after` that differ from `before`.
QJsonObject difference(const QJsonObject &before, const QJsonObject &after)
{
    QJsonObject changed;
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (before.value(it.key()) != it.value())
            changed.insert(it.key(), it.value());
    }
    return changed;
}

QByteArray text(const QJsonObject &json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

RulesState rulesOf(qint32 mode)
{
    RulesState rules;
    rules.mode = mode;
    return rules;
}

QStringList includedIn(const RulesState &rules)
{
    return scanOptionsFrom({}, rules).includeExtensions;
}

} // namespace

class TestScanOptionsFrom : public QObject
{
    Q_OBJECT

private slots:
    void defaults_data()
    {
        QTest::addColumn<QStringList>("included");
        QTest::addColumn<QByteArray>("others");
        QTest::newRow("general") << QStringList() << QByteArray();
        QTest::newRow("image") << MirrixCore::imageExtensions()
                               << QByteArray(R"(,"imageFindFlipped":true,"imageFindRotated":true,"imageMaxDistance":5,
                                  "imageSameAspect":true,"searchMode":1,"imageTags":[
                                  {"enabled":0,"name":"DateTimeOriginal"},{"enabled":0,"name":"Make"},
                                  {"enabled":0,"name":"Model"}])");
        QTest::newRow("audio") << MirrixCore::audioExtensions()
                               << QByteArray(R"(,"mediaCompareDepth":1,"searchMode":2,"audioTags":[
                                  {"enabled":0,"name":"Artist"},{"enabled":0,"name":"Title"},
                                  {"enabled":0,"name":"Album"}])");
        QTest::newRow("video") << MirrixCore::videoExtensions()
                               << QByteArray(R"(,"searchMode":3,"videoTags":[{"enabled":0,"name":"Title"},
                                  {"enabled":0,"name":"Date"},{"enabled":0,"name":"Director"}])");
    }

    void defaults()
    {
        QFETCH(QStringList, included);
        QFETCH(QByteArray, others);
        const QByteArray all =
            R"({"collapseHardLinks":true,"readFileIdentity":true,"skipHidden":true,"skipSystemFolders":true)";
        QJsonObject expected = QJsonDocument::fromJson(all + others + '}').object();
        if (!included.isEmpty())
            expected.insert(u"includeExtensions"_s, QJsonArray::fromStringList(included));
        const qint32 mode = expected.value(u"searchMode"_s).toInt();
        QCOMPARE(text(difference(MirrixCore::scanOptionsToJson({}), optionsOf({}, rulesOf(mode)))), text(expected));
    }

    void eachControl_data()
    {
        QTest::addColumn<qint32>("mode");
        QTest::addColumn<Change>("change");
        QTest::addColumn<QByteArray>("changed");
        const auto row = [](const char *name, qint32 mode, const Change &change, const QByteArray &changed) {
            QTest::newRow(name) << mode << change << "{" + changed + "}";
        };
#define ROW(mode, statement, changed)                                                                                  \
    row(                                                                                                               \
        #statement, mode, []([[maybe_unused]] LocationsState &l, [[maybe_unused]] RulesState &r) { statement; },       \
        changed)
        ROW(0, l.advanced.keepRule = 2, R"("keepRule":2)");
        ROW(0, l.advanced.skipHidden = false, R"("skipHidden":false)");
        ROW(0, l.advanced.skipSystemFolders = false, R"("skipSystemFolders":false)");
        ROW(0, l.advanced.backupBeforeDelete = false, "");
        ROW(0, (l.excludeFolders = {u"b"_s, u"a"_s}), R"("excludeFolders":["b","a"])");
        ROW(0, (l.rows = {{u"b"_s, false, false}, {u""_s, true, false}, {u""_s, true, true}}), "");
        // A protected row keeps its files out, whether another row covers it, is the same or lies below it.
        ROW(0, (l.excludeFolders = {u"x"_s}, l.rows = {{u"/a"_s, true, true}, {u"/b"_s, false, true}}),
            R"("excludeFolders":["x","/a","/b"])");
        ROW(0, (l.rows = {{u"/a"_s}, {u"/a/b"_s, true, true}, {u"/a/b/c"_s}, {u"/A/b"_s}, {u"/a/b2"_s}}),
            R"("roots":["/a","/a/b2"],"excludeFolders":["/a/b"],"locations":[
               {"path":"/a","includeSubfolders":true,"findKind":0,"showRemaining":false},
               {"path":"/a/b2","includeSubfolders":true,"findKind":0,"showRemaining":false}])");
        ROW(0, (l.rows = {{u"a"_s, true, false, false, 2, true}}),
            R"("roots":["a"],"locations":[{"path":"a","includeSubfolders":false,"findKind":2,"showRemaining":true}])");
        ROW(0, r.general.contentMatch = 2, R"("contentMatch":2)");
        ROW(0, r.general.similarPercent = 55, R"("similarPercent":55)");
        ROW(1, r.general.contentMatch = 2, "");
        ROW(1, r.general.similarPercent = 55, "");
        ROW(0, r.general.sameName = true, R"("sameName":true)");
        ROW(3, r.general.sameName = true, R"("sameName":true)");
        ROW(0, r.general.sameExtension = true, R"("sameExtension":true)");
        ROW(0, r.general.similarNames = true, R"("similarNames":true)");
        ROW(0, r.general.ignoreCopyWords = false, R"("ignoreCopyWords":false)");
        ROW(0, r.general.copyWordsInAllLanguages = true, R"("copyWordsInAllLanguages":true)");
        ROW(0, r.general.sameSize = true, R"("sameSize":true)");
        ROW(0, r.general.sizeTolerance = 7, R"("sizeTolerance":7)");
        ROW(0, (r.general.sizeTolerance = 7, r.general.sizeToleranceUnit = 1), R"("sizeTolerance":7168)");
        ROW(0, (r.general.sizeTolerance = 7, r.general.sizeToleranceUnit = 2), R"("sizeTolerance":7340032)");
        ROW(0, (r.general.sizeTolerance = 1048576, r.general.sizeToleranceUnit = 3),
            R"("sizeTolerance":1125899906842624)");
        ROW(0, r.general.sameCreated = true, R"("sameCreated":true)");
        ROW(0, r.general.createdDateOnly = true, R"("createdDateOnly":true)");
        ROW(0, r.general.sameModified = true, R"("sameModified":true)");
        ROW(0, r.general.modifiedDateOnly = true, R"("modifiedDateOnly":true)");
        ROW(0, r.general.sameDrive = true, R"("sameDrive":true)");
        ROW(0, r.general.sameFolderName = true, R"("sameFolderName":true)");
        ROW(0, r.general.fullPath = true, R"("sameFolderPath":true)");
        ROW(0, r.general.folderPathDepth = 4, R"("folderPathDepth":4)");
        ROW(0, r.general.pathUnderRoot = true, R"("samePathUnderRoot":true)");
        ROW(0, r.general.ignoreSameFolderGroups = true, R"("ignoreSameFolderGroups":true)");
        ROW(0, r.general.caseSensitive = true, R"("caseSensitive":true)");
        ROW(0, r.general.nameTolerance = 9, R"("nameTolerance":9)");
        ROW(1, r.image.similarityLevel = 0, R"("imageSimilarityLevel":0,"imageMaxDistance":0)");
        ROW(1, r.image.similarityLevel = 2, R"("imageSimilarityLevel":2,"imageMaxDistance":10)");
        ROW(1, r.image.similarityLevel = 3, R"("imageSimilarityLevel":3,"imageMaxDistance":15)");
        ROW(1, r.image.similarityLevel = 4, R"("imageSimilarityLevel":4,"imageMaxDistance":22)");
        ROW(0, r.image.similarityLevel = 4, "");
        ROW(1, r.image.sameDimensions = true, R"("imageSameDimensions":true)");
        ROW(1, r.image.dimensionTolerance = 3, R"("imageDimensionTolerance":3)");
        ROW(1, r.image.sameAspect = false, R"("imageSameAspect":false)");
        ROW(1, r.image.findRotated = false, R"("imageFindRotated":false)");
        ROW(1, r.image.findFlipped = false, R"("imageFindFlipped":false)");
        ROW(1, r.image.matchHistogram = true, R"("imageMatchHistogram":true)");
        ROW(1, r.image.groupByShotTime = true, R"("imageSameShotTime":true)");
        ROW(1, r.image.shotTimeSeconds = 60, R"("imageShotTimeTolerance":60)");
        ROW(1, r.image.groupByGps = true, R"("imageGroupByGps":true)");
        ROW(1, r.image.gpsMetres = 50, R"("imageGpsPrecision":50)");
        ROW(1, r.image.useRawPreview = false, R"("imageUseRawPreview":false)");
        ROW(1, r.image.useFeatureCache = false, R"("imageUseFeatureCache":false)");
        ROW(1, r.image.tags.enabled = false, R"("imageTags":[])");
        ROW(2, r.audio.method = 4, R"("mediaCompareDepth":4)");
        ROW(2, r.audio.matchDuration = true, R"("audioMatchDuration":true)");
        ROW(2, r.audio.durationToleranceMs = 1, R"("audioDurationTolerance":1)");
        ROW(2, (r.audio.tags.rows = {{u" Genre "_s, 1}, {u"Title"_s, 2}, {u"  "_s, 1}, {u"Year"_s, 0}}),
            R"("audioTags":[{"name":"Genre","enabled":1},{"name":"Year","enabled":0}])");
        ROW(3, r.video.method = 2, R"("mediaCompareDepthAlt":2)");
        ROW(3, r.video.matchDuration = true, R"("videoMatchDuration":true)");
        ROW(3, r.video.durationTolerance = QTime(1, 2, 3, 4), R"("videoDurationTolerance":"01:02:03.004")");
        ROW(3, r.video.tags.enabled = false, R"("videoTags":[])");
        ROW(0, r.fileTypes.excludeText = u".TMP; bak"_s, R"("excludeExtensions":["tmp","bak"])");
        ROW(0, (r.fileTypes.minMegabytes = 2, r.fileTypes.maxMegabytes = 4096), "");
        ROW(0, (r.fileTypes.anySize = false, r.fileTypes.minMegabytes = 2, r.fileTypes.maxMegabytes = 4096),
            R"("minSize":2097152,"maxSize":4294967296)");
        ROW(0, r.ignoreHardLinks = false, R"("collapseHardLinks":false)");
#undef ROW
    }

    void eachControl()
    {
        QFETCH(qint32, mode);
        QFETCH(Change, change);
        QFETCH(QByteArray, changed);
        LocationsState locations;
        RulesState rules = rulesOf(mode);
        const QJsonObject before = optionsOf(locations, rules);
        change(locations, rules);
        QCOMPARE(text(difference(before, optionsOf(locations, rules))),
                 text(QJsonDocument::fromJson(changed).object()));
    }

    void includeList()
    {
        RulesState rules = rulesOf(1);
        rules.fileTypes.includeText = u"jpg"_s;
        QCOMPARE(includedIn(rules), MirrixCore::imageExtensions());
        rules.fileTypes.useModeExtensions = false;
        QCOMPARE(includedIn(rules), QStringList(u"jpg"_s));
        rules.fileTypes.includeText = u"*"_s;
        QCOMPARE(includedIn(rules), MirrixCore::imageExtensions());
        rules.mode = 0;
        QCOMPARE(includedIn(rules), QStringList());
    }

    void rawOption()
    {
        RulesState rules = rulesOf(1);
        for (const char *extension : {"raw", "cr2", "nef", "arw", "dng", "rw2", "orf", "srw"})
            QCOMPARE(includedIn(rules).count(QString::fromLatin1(extension)), 1);
        rules.fileTypes.includeRaw = false;
        QVERIFY(includedIn(rules).contains(u"nef"_s));
        QVERIFY(includedIn(rules).contains(u"jpg"_s));
        QVERIFY(!includedIn(rules).contains(u"arw"_s));
    }

    void dateRanges()
    {
        RulesState rules;
        rules.fileTypes.createdFrom = QDate(2020, 2, 29);
        rules.fileTypes.modifiedTo = QDate(2021, 12, 31);
        QCOMPARE(scanOptionsFrom({}, rules), scanOptionsFrom({}, RulesState()));
        rules.fileTypes.anyDate = false;
        const MirrixCore::ScanOptions options = scanOptionsFrom({}, rules);
        QCOMPARE(QDateTime::fromMSecsSinceEpoch(options.createdFromMs), QDateTime(QDate(2020, 2, 29), QTime(0, 0)));
        QCOMPARE(QDateTime::fromMSecsSinceEpoch(options.modifiedToMs),
                 QDateTime(QDate(2021, 12, 31), QTime(23, 59, 59, 999)));
        QVERIFY(options.createdToMs > options.createdFromMs && options.modifiedFromMs > 0);
        rules.fileTypes.modifiedFrom = QDate();
        QCOMPARE(scanOptionsFrom({}, rules), scanOptionsFrom({}, RulesState()));
    }

    void keptSettings_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("sameRules"); // or at least the same scan
#define ROW(statement, same)                                                                                           \
    QTest::newRow(#statement) << Change([](LocationsState &, [[maybe_unused]] RulesState &r) { statement; }) << same
        ROW(static_cast<void>(r), true);
        ROW((r.fileTypes.useModeExtensions = false, r.fileTypes.includeText = u"b, a"_s), true);
        ROW((r.fileTypes.useModeExtensions = false, r.fileTypes.includeText = u"*"_s), false);
        ROW((r.fileTypes.excludeText = u"tmp, bak"_s), true);
        ROW((r.fileTypes.anySize = false, r.fileTypes.maxMegabytes = 3), true);
        ROW((r.fileTypes.minMegabytes = 3), false);
#undef ROW
    }

    void keptSettings()
    {
        QFETCH(Change, change);
        QFETCH(bool, sameRules);
        for (qint32 mode = 0; mode <= 3; ++mode) {
            LocationsState locations;
            RulesState rules = rulesOf(mode);
            change(locations, rules);
            Settings settings;
            storeRules(scanOptionsFrom(locations, rules), settings);
            RulesState kept = rulesStateFrom(settings);
            QCOMPARE(kept.mode, 0);
            kept.mode = mode;
            QCOMPARE(scanOptionsFrom(locations, kept), scanOptionsFrom(locations, rules));
            QCOMPARE(kept == rules, sameRules);
        }
    }

    void storesOptions()
    {
        LocationsState locations;
        locations.advanced = {3, false, false, true, QString()};
        RulesState rules = rulesOf(1);
        rules.image.similarityLevel = 4;
        Settings settings;
        settings.minFileBytes = 5;
        settings.largeFileMinBytes = 5;
        storeRules(scanOptionsFrom(locations, rules), settings);
        QCOMPARE(settings.keepRule, 3);
        QVERIFY(!settings.skipHidden && !settings.skipSystemDirs);
        QCOMPARE(settings.similarThreshold, 22);
        QCOMPARE(settings.largeFileMinBytes, 104857600);
        QCOMPARE(settings.minFileBytes, 0);

        settings.minFileBytes = (1 << 20) + 1; // no whole MB: the range must not lose a file
        settings.maxFileBytes = (1 << 20) + 1;
        QCOMPARE(rulesStateFrom(settings).fileTypes.minMegabytes, 1);
        QCOMPARE(rulesStateFrom(settings).fileTypes.maxMegabytes, 2);
    }

    void takesFoldersOfTheCommandLine()
    {
        const QString root = QDir::rootPath();
        QCOMPARE(foldersAmong({QString(), u"no such folder"_s, u"."_s, root}),
                 QStringList({locationPath(u"."_s), locationPath(root)}));
    }
};

QTEST_GUILESS_MAIN(TestScanOptionsFrom)
#include "tst_scanoptionsfrom.moc"
