#include "core/match/rulekeys.h"
#include "tests/support/coretest.h"

#include <QDateTime>
#include <QDir>
#include <QTimeZone>

namespace {

QString keyOf(const FileEntry &file, const QByteArray &options, bool includeMedia = false)
{
    return buildRuleKey(file, optionsFrom(options), includeMedia);
}

/// Groups as "key: path path, waste", in their order.
QStringList textsOf(const QList<DuplicateGroup> &groups)
{
    QStringList texts;
    for (const DuplicateGroup &group : groups)
        texts.append(u"%1: %2, %3"_s.arg(group.key, pathsOf(group.files).join(u' ')).arg(group.wastedBytes));
    return texts;
}

QString grouped(const QList<FileEntry> &files, const QByteArray &options)
{
    return textsOf(groupByRuleKeys(files, optionsFrom(options), false).groups).join(u'|');
}

QString refined(const DuplicateGroup &group, const QByteArray &options)
{
    return textsOf(refineGroupsByRuleKeys({group}, optionsFrom(options))).join(u'|');
}

} // namespace

class RuleKeysTest : public QObject
{
    Q_OBJECT

private slots:
    /// Central European time: the clock changed on 2023-03-26 and 2023-10-29. Read before the first use of local time.
    void initTestCase() { qputenv("TZ", "Europe/Berlin"); }

    void plainParts_data()
    {
        const auto row = columns<QString, QByteArray, QString>({"path", "options", "expected"});
        const QByteArray name = R"({"sameName":true})";
        row("no rule", u"C:/a/B.txt"_s, "{}", {});
        row("name", u"C:/a/B.Txt"_s, name, u"FN:b.txt"_s);
        row("name, case counts", u"C:/a/B.Txt"_s, R"({"sameName":true,"caseSensitive":true})", u"FN:B.Txt"_s);
        row("number before the extension stays", u"C:/a/b (1).jpg"_s, name, u"FN:b (1).jpg"_s);
        row("number at the end goes", u"C:/a/b (1)"_s, name, u"FN:b"_s);
        row("unless copies count", u"C:/a/b (1)"_s, R"({"sameName":true,"ignoreCopyWords":false})", u"FN:b (1)"_s);
        row("name of nothing but a copy word", u"C:/a/Copy"_s, name, u"FN:"_s);
        row("Turkish letter as Qt lowers it", u"C:/İI.txt"_s, name, u"FN:"_s + u"İI.txt"_s.toLower());
        row("sharp s stays", u"C:/STRAßE"_s, name, u"FN:straße"_s);
        row("long name", u"C:/"_s + u"n"_s.repeated(10000), name, u"FN:"_s + u"n"_s.repeated(10000));
        row("extension", u"C:/a.b/c.TAR.Gz"_s, R"({"sameExtension":true,"caseSensitive":true})", u"EXT:gz"_s);
        row("no extension", u"C:/a.b/c"_s, R"({"sameExtension":true})", u"EXT:"_s);
        row("size", u"C:/a"_s, R"({"sameSize":true})", u"SZ:1024"_s);
        row("size within a bucket", u"C:/a"_s, R"({"sameSize":true,"sizeTolerance":1023})", u"SZ:1"_s);
        row("size just below the next", u"C:/a"_s, R"({"sameSize":true,"sizeTolerance":1024})", u"SZ:0"_s);
        row("negative tolerance", u"C:/a"_s, R"({"sameSize":true,"sizeTolerance":-5})", u"SZ:1024"_s);
        row("drive is always the system's", u"Q:/a"_s, R"({"sameDrive":true})", u"DR:"_s + QDir::rootPath());
        row("folder name", u"C:/One/Two/f"_s, R"({"sameFolderName":true})", u"FD:two"_s);
        row("folder name at a drive's root", u"C:/f"_s, R"({"sameFolderName":true})", u"FD:"_s);
        row("folder path", u"C:/One/Two/f"_s, R"({"sameFolderPath":true})", u"FP:c:"_s);
        row("folder path, deeper", u"C:/One/Two/f"_s,
            R"({"sameFolderPath":true,"folderPathDepth":2,"caseSensitive":true})", u"FP:C:/One"_s);
        row("folder path, deeper than it is", u"C:/One/f"_s, R"({"sameFolderPath":true,"folderPathDepth":9})",
            u"FP:c:/one"_s);
        row("folder path, depth 0 is 1", u"/home/me/f"_s, R"({"sameFolderPath":true,"folderPathDepth":0})",
            u"FP:home"_s);
        row("folder path at a drive's root", u"C:/f"_s, R"({"sameFolderPath":true,"folderPathDepth":3})", u"FP:c:"_s);
        row("path under root", u"C:/Data/x/F.txt"_s, R"({"samePathUnderRoot":true,"roots":["D:/","c:/data/"]})",
            u"RP:/x/f.txt"_s);
        row("first root that fits", u"C:/a/b/f"_s, R"({"samePathUnderRoot":true,"roots":["C:/a","C:/a/b"]})",
            u"RP:/b/f"_s);
        row("no root fits", u"C:/Data/f"_s, R"({"samePathUnderRoot":true,"roots":["c:/data"],"caseSensitive":true})",
            u"RP:C:/Data/f"_s);
    }

    void plainParts()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, options);
        QTEST(keyOf(fileAt(path, 1024), options), "expected");
    }

    void timeParts()
    {
        FileEntry file = fileAt(u"C:/f"_s);
        file.modifiedMs = 1700000000123;
        QCOMPARE(keyOf(file, R"({"sameCreated":true,"sameModified":true})"), u"CD:-1|MD:1700000000123"_s);
        QCOMPARE(keyOf(file, R"({"sameCreated":true,"createdDateOnly":true})"), u"CD:-1"_s);
    }

    void daysAcrossAChangeOfClock()
    {
        if (QTimeZone::systemTimeZone().offsetFromUtc(QDateTime::fromMSecsSinceEpoch(1688000000000)) != 7200)
            QSKIP("the time zone cannot be chosen here");
        // 2023-03-26 began at 2023-03-25T23:00Z and lasted 23 hours; 2023-10-29 began at 2023-10-28T22:00Z and
        // lasted 25.
        const QList<std::pair<QString, qint64>> days = {{u"2023-03-25T23:00:00Z"_s, 1679785200000},
                                                        {u"2023-03-26T21:59:59Z"_s, 1679785200000},
                                                        {u"2023-03-26T22:00:00Z"_s, 1679868000000},
                                                        {u"2023-10-28T22:00:00Z"_s, 1698530400000},
                                                        {u"2023-10-29T22:59:59Z"_s, 1698530400000}};
        for (const auto &[utc, day] : days) {
            FileEntry file = fileAt(u"C:/f"_s);
            file.modifiedMs = QDateTime::fromString(utc, Qt::ISODate).toMSecsSinceEpoch();
            QCOMPARE(keyOf(file, R"({"sameModified":true,"modifiedDateOnly":true})"), u"MD:%1"_s.arg(day));
        }
    }

    void mediaParts_data()
    {
        const auto row = columns<QByteArray, QString>({"options", "expected"});
        row("audio duration", R"({"searchMode":2,"audioMatchDuration":true})", u"ADUR:2"_s);
        row("audio duration, tolerance 0 is 1",
            R"({"searchMode":2,"audioMatchDuration":true,"audioDurationTolerance":0})", u"ADUR:12345"_s);
        row("audio tags",
            R"({"searchMode":2,"audioTags":[{"name":"artist","enabled":1},{"name":"标题","enabled":1},)"
            R"({"name":"Album","enabled":0},{"name":"Track no.","enabled":1},{"name":"Year","enabled":1}]})",
            u"AT:artist:An|AT:标题:Ti|AT:Track no.:7"_s);
        row("video duration", R"({"searchMode":3,"videoMatchDuration":true})", u"VDUR:12345"_s);
        row("video duration, a tenth",
            R"({"searchMode":3,"videoMatchDuration":true,"videoDurationTolerance":"00:00:00.100"})", u"VDUR:123"_s);
        row("video duration, no time", R"({"searchMode":3,"videoMatchDuration":true,"videoDurationTolerance":"x"})",
            u"VDUR:12"_s);
        row("video tags",
            R"({"searchMode":3,"videoTags":[{"name":"导演","enabled":1},{"name":"DATE","enabled":1},)"
            R"({"name":"Title","enabled":2}]})",
            u"VT:导演:An|VT:DATE:2023-01-02T03:04:05"_s);
        row("image dimensions", R"({"searchMode":1,"imageSameDimensions":true,"imageDimensionTolerance":9})",
            u"IDIM:64x48"_s);
        row("image place", R"({"searchMode":1,"imageGroupByGps":true,"imageGpsPrecision":1000})", u"IGPS:5827,-1"_s);
        row("image tags",
            R"({"searchMode":1,"imageTags":[{"name":"Maker","enabled":1},{"name":"相机型号","enabled":1},)"
            R"({"name":"EXIF datetime","enabled":1},{"name":"ImageDescription","enabled":1}]})",
            u"IT:Maker:Mk|IT:相机型号:Md|IT:EXIF datetime:2023-01-02T03:04:05|IT:ImageDescription:Al"_s);
        row("files have none", R"({"searchMode":0,"imageSameDimensions":true,"audioMatchDuration":true})", {});
    }

    void mediaParts()
    {
        QFETCH(QByteArray, options);
        FileEntry file = fileAt(u"C:/f"_s);
        QCOMPARE(keyOf(file, options, true), QString()); // all unknown
        file.durationMs = 12345;
        file.width = 640;
        file.height = 480;
        file.artist = u"An"_s;
        file.title = u"Ti"_s;
        file.album = u"Al"_s;
        file.track = u"7"_s;
        file.cameraMake = u"Mk"_s;
        file.cameraModel = u"Md"_s;
        file.dateTaken = u"2023-01-02T03:04:05"_s;
        file.latitude = 52.5; // 52.5 x 111 = 5827.5
        file.longitude = -0.001;
        file.hasGps = true;
        QTEST(keyOf(file, options, true), "expected");
        QCOMPARE(keyOf(file, options, false), QString());
    }

    void partsComeInOrder()
    {
        FileEntry file = fileAt(u"C:/Dir/Name.Ext"_s, 5);
        file.createdMs = 6;
        file.modifiedMs = 7;
        file.durationMs = 8;
        QCOMPARE(keyOf(file,
                       R"({"sameName":true,"sameExtension":true,"sameSize":true,"sameCreated":true,)"
                       R"("sameModified":true,"sameDrive":true,"sameFolderName":true,"sameFolderPath":true,)"
                       R"("samePathUnderRoot":true,"roots":["C:/Dir"],"searchMode":2,)"
                       R"("audioMatchDuration":true,"audioDurationTolerance":1})",
                       true),
                 u"FN:name.ext|EXT:ext|SZ:5|CD:6|MD:7|DR:%1|FD:dir|FP:c:|RP:/name.ext|ADUR:8"_s.arg(QDir::rootPath()));
    }

    void groupsByKey()
    {
        const QList<FileEntry> files{fileAt(u"/a/x"_s, 1023), fileAt(u"/a/y"_s, 0), fileAt(u"/b/z"_s, 1024),
                                     fileAt(u"/b/x"_s, 500)};
        QCOMPARE(grouped(files, R"({"sameSize":true,"sizeTolerance":1023})"), u"SZ:0: /a/x /a/y /b/x, 500"_s);
        const ScanResult none = groupByRuleKeys(files, {}, true);
        QVERIFY(none.groups.isEmpty());
        QCOMPARE(none.filesScanned, 4);
        QCOMPARE(none.totalBytes, 2547);
    }

    void wasteLeavesTheLargest()
    {
        const QList<FileEntry> files{fileAt(u"/a/x"_s, 5), fileAt(u"/b/x"_s, 100), fileAt(u"/a/y"_s, 60),
                                     fileAt(u"/b/y"_s, 60)};
        const ScanOptions options = optionsFrom(R"({"sameName":true})");
        const ScanResult result = groupByRuleKeys(files, options, false);
        QCOMPARE(textsOf(result.groups).join(u'|'), u"FN:y: /a/y /b/y, 60|FN:x: /a/x /b/x, 5"_s);
        QCOMPARE(result.wastedBytes, 65);
    }

    void similarNamesTakeKeylessFiles()
    {
        const QList<FileEntry> files{fileAt(u"/a/report.doc"_s), fileAt(u"/b/Report-Copy.docx"_s),
                                     fileAt(u"/b/something"_s)};
        const QString paths = u"/a/report.doc /b/Report-Copy.docx, 10"_s;
        QCOMPARE(grouped(files, R"({"similarNames":true})"), u"|SFN:report: "_s + paths);
        QCOMPARE(grouped(files, R"({"similarNames":true,"sameSize":true})"), u"SZ:10|SFN:report: "_s + paths);
    }

    void refinesContentGroups()
    {
        const DuplicateGroup group{u"cafe"_s,
                                   {fileAt(u"/a/x.txt"_s), fileAt(u"/b/x.txt"_s), fileAt(u"/c/y.txt"_s),
                                    fileAt(u"/d/x.txt"_s), fileAt(u"/e/z.log"_s)},
                                   40};
        QCOMPARE(refined(group, R"({"sameName":true})"), u"cafe|FN:x.txt: /a/x.txt /b/x.txt /d/x.txt, 20"_s);
        QCOMPARE(refined(group, R"({"similarNames":true,"nameTolerance":1})"), // x, y, z are all one edit apart
                 u"cafe|SFN: /a/x.txt /b/x.txt /c/y.txt /d/x.txt /e/z.log, 40"_s);
        QCOMPARE(refined(group, R"({"similarNames":true,"sameExtension":true,"nameTolerance":1})"),
                 u"cafe|EXT:txt|SFN: /a/x.txt /b/x.txt /c/y.txt /d/x.txt, 30"_s);
        QCOMPARE(refined(group, R"({"searchMode":2,"audioMatchDuration":true,"caseSensitive":true})"),
                 textsOf({group}).join(u'|'));
    }

    void sameFolderGroupsCanBeLeftOut()
    {
        const DuplicateGroup inOne{u"k"_s, {fileAt(u"/a/x"_s), fileAt(u"/a/y"_s)}, 10};
        const DuplicateGroup inTwo{u"k"_s, {fileAt(u"/a/x"_s), fileAt(u"/A/y"_s)}, 10};
        QCOMPARE(refineGroupsByRuleKeys({inOne, inTwo}, optionsFrom(R"({"ignoreSameFolderGroups":true})")),
                 QList<DuplicateGroup>{inTwo});
    }

    void hardLinksCollapse()
    {
        QList<FileEntry> files{fileAt(u"/a/x"_s), fileAt(u"/b/x"_s), fileAt(u"/c/x"_s)};
        const auto groupsFor = [&](quint32 lastVolume, quint64 number) {
            for (FileEntry &file : files) {
                file.hasFileId = true;
                file.volumeSerial = 1;
                file.fileIndex = number;
            }
            files[2].volumeSerial = lastVolume;
            return grouped(files, R"({"sameName":true,"collapseHardLinks":true})");
        };
        QCOMPARE(groupsFor(2, 5), u"FN:x: /a/x /c/x, 10"_s);
        QCOMPARE(groupsFor(1, 5), QString());
        QCOMPARE(groupsFor(1, 0), u"FN:x: /a/x /b/x /c/x, 20"_s); // unknown, so neither the same nor others
    }

    /// Each file twice: once for its key, once for its name.
    void reportsProgress()
    {
        QList<FileEntry> files;
        for (int i = 0; i < 200; ++i)
            files.append(fileAt(u"/a/%1"_s.arg(i * 1000)));
        QList<qint64> counts;
        (void)groupByRuleKeys(files, optionsFrom(R"({"similarNames":true})"), false, {},
                              [&](const ScanProgress &report) {
                                  if (report.phase == Phase::Metadata && report.total == files.size())
                                      counts.append(report.processed);
                              });
        QCOMPARE(counts, QList<qint64>({64, 128, 192, 200, 64, 128, 192, 200}));
    }
};

QTEST_GUILESS_MAIN(RuleKeysTest)
#include "tst_rulekeys.moc"
