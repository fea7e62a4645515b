#include "core/match/rulekeys.h"
#include "core/model/optiontable.h"

#include <QDateTime>
#include <QDir>
#include <QJsonDocument>
#include <QTest>
#include <QTimeZone>

using namespace MirrixCore;

namespace {

FileEntry fileAt(const QString &path, qint64 size = 10)
{
    FileEntry file;
    file.path = path;
    file.size = size;
    return file;
}

/// Options from JSON, as profiles write them.
ScanOptions optionsFrom(const char *json)
{
    ScanOptions options;
    const QString problem = scanOptionsFromJson(QJsonDocument::fromJson(json).object(), options);
    if (!problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    return options;
}

QString keyOf(const FileEntry &file, const char *json, bool includeMedia = false)
{
    return buildRuleKey(file, optionsFrom(json), includeMedia);
}

QStringList pathsOf(const DuplicateGroup &group)
{
    QStringList paths;
    for (const FileEntry &file : group.files)
        paths.append(file.path);
    return paths;
}

} // namespace

class RuleKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void plainParts_data();
    void plainParts();
    void timeParts();
    void daysAcrossAChangeOfClock();
    void mediaParts_data();
    void mediaParts();
    void partsComeInOrder();
    void noRuleGroupsNothing();
    void groupsByKey();
    void wasteLeavesTheLargest();
    void similarNamesTakeKeylessFiles();
    void refinesContentGroups();
    void refinementLeavesGroupsAloneWithoutRule();
    void sameFolderGroupsCanBeLeftOut();
    void hardLinksCollapse();
    void longKeys();
    void reportsProgress();
};

void RuleKeysTest::initTestCase()
{
    // Central European time: the clock changed on 2023-03-26 and 2023-10-29. Read before the first use of local time.
    qputenv("TZ", "Europe/Berlin");
}

void RuleKeysTest::plainParts_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *path, const char *options, const QString &expected) {
        QTest::newRow(name) << QString::fromUtf8(path) << QByteArray(options) << expected;
    };
    row("no rule", "C:/a/B.txt", "{}", QString());
    row("name", "C:/a/B.Txt", R"({"sameName":true})", QStringLiteral("FN:b.txt"));
    row("name, case counts", "C:/a/B.Txt", R"({"sameName":true,"caseSensitive":true})", QStringLiteral("FN:B.Txt"));
    row("number before the extension stays", "C:/a/b (1).jpg", R"({"sameName":true})", QStringLiteral("FN:b (1).jpg"));
    row("number at the end goes", "C:/a/b (1)", R"({"sameName":true})", QStringLiteral("FN:b"));
    row("unless copies count", "C:/a/b (1)", R"({"sameName":true,"ignoreCopyWords":false})",
        QStringLiteral("FN:b (1)"));
    row("name of nothing but a copy word", "C:/a/Copy", R"({"sameName":true})", QStringLiteral("FN:"));
    row("Turkish letter as Qt lowers it", "C:/İI.txt", R"({"sameName":true})",
        QLatin1String("FN:") + QString::fromUtf8("İI.txt").toLower());
    row("sharp s stays", "C:/STRAßE", R"({"sameName":true})", QStringLiteral("FN:straße"));
    row("extension", "C:/a.b/c.TAR.Gz", R"({"sameExtension":true,"caseSensitive":true})", QStringLiteral("EXT:gz"));
    row("no extension", "C:/a.b/c", R"({"sameExtension":true})", QStringLiteral("EXT:"));
    row("size", "C:/a", R"({"sameSize":true})", QStringLiteral("SZ:1024"));
    row("size within a bucket", "C:/a", R"({"sameSize":true,"sizeTolerance":1023})", QStringLiteral("SZ:1"));
    row("size just below the next", "C:/a", R"({"sameSize":true,"sizeTolerance":1024})", QStringLiteral("SZ:0"));
    row("negative tolerance", "C:/a", R"({"sameSize":true,"sizeTolerance":-5})", QStringLiteral("SZ:1024"));
    row("drive is always the system's", "Q:/a", R"({"sameDrive":true})", QLatin1String("DR:") + QDir::rootPath());
    row("folder name", "C:/One/Two/f", R"({"sameFolderName":true})", QStringLiteral("FD:two"));
    row("folder name at a drive's root", "C:/f", R"({"sameFolderName":true})", QStringLiteral("FD:"));
    row("folder path", "C:/One/Two/f", R"({"sameFolderPath":true})", QStringLiteral("FP:c:"));
    row("folder path, deeper", "C:/One/Two/f", R"({"sameFolderPath":true,"folderPathDepth":2,"caseSensitive":true})",
        QStringLiteral("FP:C:/One"));
    row("folder path, deeper than it is", "C:/One/f", R"({"sameFolderPath":true,"folderPathDepth":9})",
        QStringLiteral("FP:c:/one"));
    row("folder path, depth 0 is 1", "/home/me/f", R"({"sameFolderPath":true,"folderPathDepth":0})",
        QStringLiteral("FP:home"));
    row("folder path at a drive's root", "C:/f", R"({"sameFolderPath":true,"folderPathDepth":3})",
        QStringLiteral("FP:c:"));
    row("path under root", "C:/Data/x/F.txt", R"({"samePathUnderRoot":true,"roots":["D:/","c:/data/"]})",
        QStringLiteral("RP:/x/f.txt"));
    row("first root that fits", "C:/a/b/f", R"({"samePathUnderRoot":true,"roots":["C:/a","C:/a/b"]})",
        QStringLiteral("RP:/b/f"));
    row("no root fits", "C:/Data/f", R"({"samePathUnderRoot":true,"roots":["c:/data"],"caseSensitive":true})",
        QStringLiteral("RP:C:/Data/f"));
}

void RuleKeysTest::plainParts()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, options);
    const QString key = keyOf(fileAt(path, 1024), options.constData());
    QTEST(key, "expected");
}

void RuleKeysTest::timeParts()
{
    FileEntry file = fileAt(QStringLiteral("C:/f"));
    file.createdMs = 0;
    file.modifiedMs = 1700000000123;
    QCOMPARE(keyOf(file, R"({"sameCreated":true,"sameModified":true})"), QStringLiteral("CD:-1|MD:1700000000123"));
    QCOMPARE(keyOf(file, R"({"sameCreated":true,"createdDateOnly":true})"), QStringLiteral("CD:-1"));
}

void RuleKeysTest::daysAcrossAChangeOfClock()
{
    if (QTimeZone::systemTimeZone().offsetFromUtc(QDateTime::fromMSecsSinceEpoch(1688000000000)) != 7200)
        QSKIP("the time zone cannot be chosen here");
    const auto dayOf = [](const char *utc) {
        FileEntry file;
        file.path = QStringLiteral("C:/f");
        file.modifiedMs = QDateTime::fromString(QLatin1String(utc), Qt::ISODate).toMSecsSinceEpoch();
        return keyOf(file, R"({"sameModified":true,"modifiedDateOnly":true})");
    };
    // 2023-03-26 began at 2023-03-25T23:00Z and lasted 23 hours; 2023-10-29 began at 2023-10-28T22:00Z and lasted 25.
    QCOMPARE(dayOf("2023-03-25T23:00:00Z"), QStringLiteral("MD:1679785200000"));
    QCOMPARE(dayOf("2023-03-26T21:59:59Z"), QStringLiteral("MD:1679785200000"));
    QCOMPARE(dayOf("2023-03-26T22:00:00Z"), QStringLiteral("MD:1679868000000"));
    QCOMPARE(dayOf("2023-10-28T22:00:00Z"), QStringLiteral("MD:1698530400000"));
    QCOMPARE(dayOf("2023-10-29T22:59:59Z"), QStringLiteral("MD:1698530400000"));
}

void RuleKeysTest::mediaParts_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *options, const char *expected) {
        QTest::newRow(name) << QByteArray(options) << QString::fromUtf8(expected);
    };
    row("audio duration", R"({"searchMode":2,"audioMatchDuration":true})", "ADUR:2");
    row("audio duration, tolerance 0 is 1", R"({"searchMode":2,"audioMatchDuration":true,"audioDurationTolerance":0})",
        "ADUR:12345");
    row("audio tags",
        R"({"searchMode":2,"audioTags":[{"name":"artist","enabled":1},{"name":"标题","enabled":1},)"
        R"({"name":"Album","enabled":0},{"name":"Track no.","enabled":1},{"name":"Year","enabled":1}]})",
        "AT:artist:An|AT:标题:Ti|AT:Track no.:7");
    row("video duration", R"({"searchMode":3,"videoMatchDuration":true})", "VDUR:12345");
    row("video duration, a tenth",
        R"({"searchMode":3,"videoMatchDuration":true,"videoDurationTolerance":"00:00:00.100"})", "VDUR:123");
    row("video duration, no time", R"({"searchMode":3,"videoMatchDuration":true,"videoDurationTolerance":"x"})",
        "VDUR:12");
    row("video tags",
        R"({"searchMode":3,"videoTags":[{"name":"导演","enabled":1},{"name":"DATE","enabled":1},{"name":"Title","enabled":2}]})",
        "VT:导演:An|VT:DATE:2023-01-02T03:04:05");
    row("image dimensions", R"({"searchMode":1,"imageSameDimensions":true,"imageDimensionTolerance":9})", "IDIM:64x48");
    row("image place", R"({"searchMode":1,"imageGroupByGps":true,"imageGpsPrecision":1000})", "IGPS:5827,-1");
    row("image tags",
        R"({"searchMode":1,"imageTags":[{"name":"Maker","enabled":1},{"name":"相机型号","enabled":1},)"
        R"({"name":"EXIF datetime","enabled":1},{"name":"ImageDescription","enabled":1}]})",
        "IT:Maker:Mk|IT:相机型号:Md|IT:EXIF datetime:2023-01-02T03:04:05|IT:ImageDescription:Al");
    row("files have none", R"({"searchMode":0,"imageSameDimensions":true,"audioMatchDuration":true})", "");
}

void RuleKeysTest::mediaParts()
{
    QFETCH(QByteArray, options);
    FileEntry file = fileAt(QStringLiteral("C:/f"));
    file.durationMs = 12345;
    file.width = 640;
    file.height = 480;
    file.artist = QStringLiteral("An");
    file.title = QStringLiteral("Ti");
    file.album = QStringLiteral("Al");
    file.track = QStringLiteral("7");
    file.cameraMake = QStringLiteral("Mk");
    file.cameraModel = QStringLiteral("Md");
    file.dateTaken = QStringLiteral("2023-01-02T03:04:05");
    file.latitude = 52.5; // 52.5 x 111 = 5827.5
    file.longitude = -0.001;
    file.hasGps = true;
    const QString key = keyOf(file, options.constData(), true);
    QTEST(key, "expected");
    QCOMPARE(keyOf(file, options.constData(), false), QString());
    const FileEntry unknown = fileAt(QStringLiteral("C:/f"));
    QCOMPARE(keyOf(unknown, options.constData(), true), QString());
}

void RuleKeysTest::partsComeInOrder()
{
    FileEntry file = fileAt(QStringLiteral("C:/Dir/Name.Ext"), 5);
    file.createdMs = 6;
    file.modifiedMs = 7;
    file.durationMs = 8;
    const QString expected = QLatin1String("FN:name.ext|EXT:ext|SZ:5|CD:6|MD:7|DR:") + QDir::rootPath() +
                             QLatin1String("|FD:dir|FP:c:|RP:/name.ext|ADUR:8");
    QCOMPARE(keyOf(file,
                   R"({"sameName":true,"sameExtension":true,"sameSize":true,"sameCreated":true,"sameModified":true,)"
                   R"("sameDrive":true,"sameFolderName":true,"sameFolderPath":true,"samePathUnderRoot":true,)"
                   R"("roots":["C:/Dir"],"searchMode":2,"audioMatchDuration":true,"audioDurationTolerance":1})",
                   true),
             expected);
}

void RuleKeysTest::noRuleGroupsNothing()
{
    const QList<FileEntry> files{fileAt(QStringLiteral("/a/x")), fileAt(QStringLiteral("/b/x"))};
    const ScanResult result = groupByRuleKeys(files, {}, true);
    QVERIFY(result.groups.isEmpty());
    QCOMPARE(result.filesScanned, 2);
    QCOMPARE(result.totalBytes, 20);
}

void RuleKeysTest::groupsByKey()
{
    const QList<FileEntry> files{fileAt(QStringLiteral("/a/x"), 1023), fileAt(QStringLiteral("/a/y"), 0),
                                 fileAt(QStringLiteral("/b/z"), 1024), fileAt(QStringLiteral("/b/x"), 500)};
    const ScanResult result = groupByRuleKeys(files, optionsFrom(R"({"sameSize":true,"sizeTolerance":1023})"), false);
    QCOMPARE(result.groups.size(), 1);
    QCOMPARE(result.groups[0].key, QStringLiteral("SZ:0"));
    QCOMPARE(pathsOf(result.groups[0]),
             QStringList({QStringLiteral("/a/x"), QStringLiteral("/a/y"), QStringLiteral("/b/x")}));
}

void RuleKeysTest::wasteLeavesTheLargest()
{
    const QList<FileEntry> files{fileAt(QStringLiteral("/a/x"), 5), fileAt(QStringLiteral("/b/x"), 100),
                                 fileAt(QStringLiteral("/a/y"), 60), fileAt(QStringLiteral("/b/y"), 60)};
    const ScanResult result = groupByRuleKeys(files, optionsFrom(R"({"sameName":true})"), false);
    QCOMPARE(result.groups.size(), 2);
    QCOMPARE(result.groups[0].wastedBytes, 60);
    QCOMPARE(result.groups[1].wastedBytes, 5);
    QCOMPARE(result.wastedBytes, 65);
}

void RuleKeysTest::similarNamesTakeKeylessFiles()
{
    const QList<FileEntry> files{fileAt(QStringLiteral("/a/report.doc")),
                                 fileAt(QStringLiteral("/b/Report - Copy.docx")),
                                 fileAt(QStringLiteral("/b/something else"))};
    const ScanResult result = groupByRuleKeys(files, optionsFrom(R"({"similarNames":true})"), false);
    QCOMPARE(result.groups.size(), 1);
    QCOMPARE(result.groups[0].key, QStringLiteral("|SFN:report"));
    QCOMPARE(result.groups[0].files.size(), 2);
    const ScanResult withSize = groupByRuleKeys(files, optionsFrom(R"({"similarNames":true,"sameSize":true})"), false);
    QCOMPARE(withSize.groups.value(0).key, QStringLiteral("SZ:10|SFN:report"));
}

void RuleKeysTest::refinesContentGroups()
{
    const DuplicateGroup group{QStringLiteral("cafe"),
                               {fileAt(QStringLiteral("/a/x.txt")), fileAt(QStringLiteral("/b/x.txt")),
                                fileAt(QStringLiteral("/c/y.txt")), fileAt(QStringLiteral("/d/x.txt")),
                                fileAt(QStringLiteral("/e/z.log"))},
                               40};
    QList<DuplicateGroup> refined = refineGroupsByRuleKeys({group}, optionsFrom(R"({"sameName":true})"));
    QCOMPARE(refined.size(), 1);
    QCOMPARE(refined[0].key, QStringLiteral("cafe|FN:x.txt"));
    QCOMPARE(refined[0].wastedBytes, 20);
    refined = refineGroupsByRuleKeys({group}, optionsFrom(R"({"similarNames":true,"nameTolerance":1})"));
    QCOMPARE(refined.size(), 1); // one letter each: x, y, z are all one edit apart
    QCOMPARE(refined[0].key, QStringLiteral("cafe|SFN"));
    QCOMPARE(refined[0].files.size(), 5);
    refined =
        refineGroupsByRuleKeys({group}, optionsFrom(R"({"similarNames":true,"sameExtension":true,"nameTolerance":1})"));
    QCOMPARE(refined.size(), 1);
    QCOMPARE(refined[0].key, QStringLiteral("cafe|EXT:txt|SFN"));
}

void RuleKeysTest::refinementLeavesGroupsAloneWithoutRule()
{
    const DuplicateGroup group{
        QStringLiteral("cafe"), {fileAt(QStringLiteral("/a/x")), fileAt(QStringLiteral("/b/y"))}, 10};
    const ScanOptions media = optionsFrom(R"({"searchMode":2,"audioMatchDuration":true,"caseSensitive":true})");
    QCOMPARE(refineGroupsByRuleKeys({group}, media), QList<DuplicateGroup>{group});
}

void RuleKeysTest::sameFolderGroupsCanBeLeftOut()
{
    const ScanOptions options = optionsFrom(R"({"ignoreSameFolderGroups":true})");
    const DuplicateGroup inOne{
        QStringLiteral("k"), {fileAt(QStringLiteral("/a/x")), fileAt(QStringLiteral("/a/y"))}, 10};
    const DuplicateGroup inTwo{
        QStringLiteral("k"), {fileAt(QStringLiteral("/a/x")), fileAt(QStringLiteral("/A/y"))}, 10};
    QCOMPARE(refineGroupsByRuleKeys({inOne, inTwo}, options), QList<DuplicateGroup>{inTwo});
}

void RuleKeysTest::hardLinksCollapse()
{
    QList<FileEntry> files{fileAt(QStringLiteral("/a/x")), fileAt(QStringLiteral("/b/x")),
                           fileAt(QStringLiteral("/c/x"))};
    const auto identify = [&](int index, quint32 volume, quint64 number) {
        files[index].hasFileId = true;
        files[index].volumeSerial = volume;
        files[index].fileIndex = number;
    };
    const ScanOptions options = optionsFrom(R"({"sameName":true,"collapseHardLinks":true})");
    identify(0, 1, 5);
    identify(1, 1, 5);
    identify(2, 2, 5);
    ScanResult result = groupByRuleKeys(files, options, false);
    QCOMPARE(pathsOf(result.groups.value(0)), QStringList({QStringLiteral("/a/x"), QStringLiteral("/c/x")}));
    QCOMPARE(result.wastedBytes, 10);
    identify(2, 1, 5);
    QVERIFY(groupByRuleKeys(files, options, false).groups.isEmpty());
    for (int i = 0; i < 3; ++i)
        identify(i, 1, 0); // unknown, so neither the same nor others
    QCOMPARE(groupByRuleKeys(files, options, false).groups.value(0).files.size(), 3);
}

void RuleKeysTest::longKeys()
{
    const QString name(10000, QLatin1Char('n'));
    const QList<FileEntry> files{fileAt(QLatin1String("/a/") + name), fileAt(QLatin1String("/b/") + name)};
    const ScanResult result = groupByRuleKeys(files, optionsFrom(R"({"sameName":true})"), false);
    QCOMPARE(result.groups.value(0).key, QLatin1String("FN:") + name);
}

/// Each file twice: once for its key, once for its name.
void RuleKeysTest::reportsProgress()
{
    QList<FileEntry> files;
    for (int i = 0; i < 200; ++i)
        files.append(fileAt(QStringLiteral("/a/%1").arg(i * 1000)));
    ScanOptions options;
    options.similarNames = true;
    QList<qint64> counts;
    (void)groupByRuleKeys(files, options, false, {}, [&](const ScanProgress &report) {
        if (report.phase == Phase::Metadata && report.total == files.size())
            counts.append(report.processed);
    });
    QCOMPARE(counts, QList<qint64>({64, 128, 192, 200, 64, 128, 192, 200}));
}

QTEST_GUILESS_MAIN(RuleKeysTest)
#include "tst_rulekeys.moc"
