#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/platform/filestatus.h"
#include "core/platform/nativefileio.h"
#include "core/platform/nativepath.h"
#include "tests/cli/clitest.h"
#include "tests/support/jsonschema.h"

#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

namespace {

constexpr qint64 modifiedMs = 1234567890000;
const QString md5OfAbc = u"900150983cd24fb0d6963f7d28e17f72"_s;
const QString theTwo = u"one/a.txt|two/b.dat"_s; // the group that the test's tree holds

int filesBelow(const QString &folder)
{
    return int(treeBelow(folder).size());
}

QJsonObject jsonOf(const QByteArray &report)
{
    const QJsonObject object = QJsonDocument::fromJson(report).object();
    const JsonSchema schema(QJsonDocument::fromJson(testData(u"../docs/scan.schema.json"_s)).object());
    const QStringList faults = schema.faults(object);
    if (!faults.isEmpty())
        qWarning("not as the schema says: %s", qPrintable(faults.join(u"; "_s)));
    return faults.isEmpty() ? object : QJsonObject();
}

} // namespace

class ScanCommandTest : public CliTest
{
    Q_OBJECT

private slots:
    /// Two equal files, each in a root of its own so that their order is known, and a third.
    void init()
    {
        renew();
        m_tree->writeAll(u"one/a.txt two/b.dat"_s, "abc");
        m_tree->write(u"two/sub/other.txt"_s, "12345");
        for (const QString &file : {u"one/a.txt"_s, u"two/b.dat"_s, u"two/sub/other.txt"_s})
            m_tree->setModified(file, modifiedMs);
    }

    void textReport_data()
    {
        const auto row = columns<QString, QString>({"arguments", "expected"}); // without the time
        row("group", u"%1/one %1/two"_s,
            u"2 files of 3 B each, 3 B reclaimable\n  %1/one/a.txt\n  %1/two/b.dat\n\n"
            "1 group, 3 B reclaimable; 3 files (11 B) scanned"_s);
        row("empty file", uR"(--set locations=[{"path":"%1/none","findKind":2}] %1/one %1/none)"_s,
            u"1 empty file\n  %1/none/empty\n\n1 group, 0 B reclaimable; 2 files (3 B) scanned"_s);
        row("folders", u"--set showRemaining=true %1/one %1/two %1/three"_s,
            u"3 files of 3 B each, 6 B reclaimable\n  %1/one/a.txt\n  %1/two/b.dat\n  %1/three/sub/a.txt\n\n"
            "2 equal folders of 1 file (3 B) each\n  %1/one\n  %1/three/sub\n\n"
            "1 file in no group\n  %1/two/sub/other.txt\n\n"
            "1 group, 6 B reclaimable; 4 files (14 B) scanned"_s);
        row("nothing", u"%1/one"_s, u"No duplicates found; 1 file (3 B) scanned"_s);
    }

    void textReport()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, expected);
        m_tree->write(u"three/sub/a.txt"_s, "abc");
        m_tree->write(u"none/empty"_s, {});
        const ProgramRun done = run(u"scan "_s + arguments);
        static const QRegularExpression time(u" in [0-9]+\\.[0-9][0-9] s\n$"_s);
        QVERIFY(time.match(QString::fromUtf8(done.output)).hasMatch());
        QCOMPARE(QString::fromUtf8(done.output).remove(time), expected.replace(u"%1"_s, path()));
        QCOMPARE(done.errors, "");
        QCOMPARE(done.status, 0);
    }

    void modes_data()
    {
        const auto row = columns<QString, qsizetype, qsizetype>({"keys", "folderGroups", "remaining"});
        row("--mode content", md5OfAbc, 1, 0);
        row("--set duplicateFoldersOnly=true --set showRemaining=true", md5OfAbc, 1, 3);
        row("--mode similar-content --set similarPercent=60", u"SIM:66%"_s, 0, 0);
        row("--mode rules --set sameName=true", u"FN:a.txt FN:c.dat"_s, 0, 0);
        row("--mode audio --set includeExtensions=txt,dat", md5OfAbc, 1, 0);
        row("--mode video --set includeExtensions=txt,dat", u"2f4fe09bb4f6bb9ad8ee6e7579e8f5e1"_s, 1, 0); // of "3abc"
    }

    void modes()
    {
        m_tree->write(u"two/c.dat"_s, "abd");
        m_tree->write(u"two/sub/C.DAT"_s, "unlike");
        m_tree->write(u"three/a.txt"_s, "abc");
        const ProgramRun done = scan(QLatin1String(QTest::currentDataTag()) + u" %1"_s);
        QCOMPARE(done.errors, "");
        QCOMPARE(done.status, 0);
        const QJsonObject report = jsonOf(done.output);
        QStringList keys;
        for (const QJsonValue &group : report[u"groups"_s].toArray())
            keys.append(group[u"key"_s].toString());
        keys.sort();
        QTEST(keys.join(u' '), "keys");
        QTEST(report[u"folderGroups"_s].toArray().size(), "folderGroups");
        QTEST(report[u"remaining"_s].toArray().size(), "remaining");
        if (!report[u"folderGroups"_s].toArray().isEmpty()) {
            const QJsonObject group = report[u"folderGroups"_s][0].toObject();
            QCOMPARE(group[u"fileCount"_s], 1);
            QCOMPARE(group[u"size"_s], 3);
            QCOMPARE(group[u"folders"_s].toArray().size(), 2);
        }
    }

    void jsonReport()
    {
        QJsonObject report = jsonOf(scan(u"%1/one %1/two"_s).output);
        QVERIFY(report.take(u"elapsedMs"_s).toInteger(-1) >= 0);
        QJsonArray files;
        for (const QJsonValue &file : report[u"groups"_s][0][u"files"_s].toArray()) {
            QJsonObject object = file.toObject();
            QVERIFY(object.take(u"createdMs"_s).isDouble()); // cannot be set everywhere
            if (namesAreBytes)
                QVERIFY(object.take(u"allocated"_s).isDouble()); // the file system's own affair
            files.append(object);
        }
        QJsonArray groups = report.take(u"groups"_s).toArray();
        QCOMPARE(groups.size(), 1);
        QJsonObject group = groups[0].toObject();
        group[u"files"_s] = files;
        const QJsonObject expectedGroup =
            objectOf(R"({"key": "900150983cd24fb0d6963f7d28e17f72", "wastedBytes": 3, "files": [
                {"path": "%1/one/a.txt", "size": 3, "modifiedMs": 1234567890000},
                {"path": "%1/two/b.dat", "size": 3, "modifiedMs": 1234567890000}]})");
        QCOMPARE(group, expectedGroup);
        const QJsonObject expected =
            objectOf(R"({"schemaVersion": 1, "hidden": {"files": 0, "folders": 0}, "unread": [], "filesScanned": 3,
                "totalBytes": 11, "wastedBytes": 3, "candidates": 2, "folderGroups": [], "remaining": []})");
        QCOMPARE(report, expected);
    }

    void jsonReportOfPlaces()
    {
        m_tree->writeAll(u"two/.Trash-1000/files/gone.txt two/.snapshots/1/bb.txt two/away/backups.txt"_s, "abc");
        m_tree->write(u"two/away/backup_index.json"_s, "[]");
        QStringList places;
        for (const QJsonValue &file : jsonOf(scan(u"%1"_s).output)[u"groups"_s][0][u"files"_s].toArray())
            places.append(QFileInfo(file[u"path"_s].toString()).fileName() + u' ' +
                          file[u"place"_s].toString(u"none"_s));
        places.sort();
        QCOMPARE(places.join(u'|'),
                 u"a.txt none|b.dat none|backups.txt backupFolder|bb.txt snapshot|gone.txt recycleBin"_s);
    }

    void csvReport()
    {
        m_tree->write(u"two/c, d.txt"_s, "abc");
        m_tree->setModified(u"two/c, d.txt"_s, modifiedMs);
        const ProgramRun done = run(u"scan --format csv --hash md5 %1"_s);
        QCOMPARE(done.status, 0);
        QStringList lines = QString::fromUtf8(done.output).remove(path()).split(u'\n');
        QCOMPARE(lines.takeFirst(), u"group,path,size,modified,key"_s);
        lines.sort();
        const QString tail = u"\",3,1234567890000,"_s + md5OfAbc;
        QCOMPARE(
            lines,
            (QStringList{{}, u"1,\"/one/a.txt"_s + tail, u"1,\"/two/b.dat"_s + tail, u"1,\"/two/c, d.txt"_s + tail}));

        const TempTree elsewhere;
        const QString file = elsewhere.path(u"report.csv"_s);
        QCOMPARE(run(u"scan --format csv --hash md5 %1 --output "_s + file).output, "");
        QCOMPARE(contentOf(file), done.output);
    }

    void options_data()
    {
        const auto row = columns<int, bool>({"files", "isGroupFound"});
        row("%1", 5, true);
        row("%1 %1/one %1//one/.", 5, true);
        row("-- %1", 5, true);
        row("--set minSize=4 %1", 3, false);
        row("--set=maxSize=3 %1", 2, true);
        row("--set includeExtensions=txt,json %1", 4, false);
        row("--set minSize=9 --set minSize=0 %1", 5, true);
        row("--exclude %1/two/sub %1", 4, true);
        row("--exclude %1/two/../two/sub/ --exclude %1/one %1", 3, false);
        row("--set excludeFolders=%1/one --exclude %1/two %1", 2, false);
        row("--options %1/options.json %1", 4, true);
        row("--options %1/roots.json", 1, false);
        row("--options %1/roots.json %1/two", 3, true);
        row("--set maxSize=0 --options %1/options.json %1", 5, true);
        row("--threads 1 %1", 5, true);
        row("--threads 256 %1", 5, true);
        row(R"(--set locations=[{"path":"%1/two","includeSubfolders":false}] %1/two)", 1, false);
        row("--min-size 0.004K %1", 3, false);
        row("--set maxSize=1 --max-size 4B %1", 2, true);
        row("--name *.TXT --name b.* %1", 3, true);
        row("--exclude-name *.json --exclude-name SUB %1", 2, true);
        row("--newer 1d %1", 2, false);
        row("--newer 2009-02-13 %1", 5, true);
        row("--newer 2009-02-15 %1", 2, false);
        row("--one-file-system %1", 5, true);
        row("--files-from %1/list", 3, true);
        row("--files-from %1/list %1/one --max-size 4", 2, true);
        row(R"(--set locations=[{"path":"%1","findKind":2}] %1)", 5, false);
    }

    void options()
    {
        QFETCH(bool, isGroupFound);
        const QString line = QLatin1String(QTest::currentDataTag());
        m_tree->write(u"options.json"_s, "{\"maxSize\": 20}");
        m_tree->write(u"roots.json"_s, "{\"roots\": [\"" + path(u"one"_s).toUtf8() + "\"]}");
        if (line.contains(u"list"_s))
            m_tree->write(u"list"_s, u"%1/one/a.txt\r\n%1/two\n\n"_s.arg(path()).toUtf8());
        const ProgramRun done = scan(line);
        QCOMPARE(done.errors, "");
        QCOMPARE(done.status, 0);
        QTEST(jsonOf(done.output)[u"filesScanned"_s].toInt(-1), "files");
        QCOMPARE(groupsIn(done.output), isGroupFound ? theTwo : QString());
    }

    void digestIsChosen_data()
    {
        const auto row = columns<QByteArray, QString, QString>({"settings", "arguments", "key"});
        const QString blake3 = u"6437b3ac38465133ffb63b75273a8db548c558465d79db03fd359c6cd5bd9d85"_s;
        const QByteArray blake3Setting = R"({"contentHashAlgorithm": "blake3"})";
        row("default", "{}", {}, md5OfAbc);
        row("setting", blake3Setting, {}, blake3);
        row("switch", "{}", u" --hash blake3"_s, blake3);
        row("switch over setting", blake3Setting, u" --hash md5"_s, md5OfAbc);
        row("broken settings", "{", {}, md5OfAbc);
    }

    void digestIsChosen()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QString, arguments);
        m_tree->write(u"data/settings.json"_s, settings);
        const ProgramRun done =
            m_program->run(words(u"scan --format json --data-dir %1/data %1/one %1/two"_s + arguments));
        QTEST(jsonOf(done.output)[u"groups"_s][0][u"key"_s].toString(), "key");
    }

    void mistakes_data()
    {
        const auto add = columns<QString>({"message"});
        const auto row = [&add](const QString &line, const QString &message) { add(qPrintable(line), message); };
        row(u"scan"_s, u"no folder to scan"_s);
        row(u"scan /a "_s, u"an empty folder name"_s);
        row(u"scan --exclude  /a"_s, u"an empty folder name"_s);
        row(u"scan --set"_s, u"Missing value after '--set'."_s);
        row(u"scan --mode sound /a"_s,
            u"--mode must be content, similar-content, rules, images, audio or video, not \"sound\""_s);
        row(u"scan --hash BLAKE3 /a"_s, u"--hash must be md5 or blake3, not \"BLAKE3\""_s);
        row(u"scan --format xml /a"_s, u"--format must be text, json, csv or nul, not \"xml\""_s);
        row(u"scan --sort name /a"_s, u"--sort must be waste, path, size or modified, not \"name\""_s);
        row(u"scan --color on /a"_s, u"--color must be auto, always or never, not \"on\""_s);
        row(u"scan --recursive /a"_s, u"Unknown option 'recursive'."_s);
        row(u"scan --mode rules /a"_s,
            u"without comparing contents a rule is needed, for example --set sameName=true"_s);
        QFile missing(u"/missing"_s);
        QVERIFY(!missing.open(QIODevice::ReadOnly));
        row(u"scan --files-from /missing"_s, u"cannot read /missing: "_s + missing.errorString());
        const auto rows = [&row](const QString &option, const QStringList &values, const QString &message) {
            for (const QString &value : values)
                row(u"scan %1 %2 /a"_s.arg(option, value), QString(message).replace(u"%1"_s, value));
        };
        rows(u"--threads"_s, {u"-1"_s, u"257"_s, u"two"_s, {}},
             u"--threads must be a number from 0 to 256, not \"%1\""_s);
        rows(u"--min-size"_s, {{}, u"1X"_s, u"-1"_s, u"1.5.1M"_s, u"99999999T"_s},
             u"--min-size must be a size such as 4096, 512K or 1.5M, not \"%1\""_s);
        rows(u"--newer"_s, {{}, u"d"_s, u"30"_s, u"-2d"_s, u"2024-13-01"_s},
             u"--newer must be an age such as 12h, 30d or 4w, or a date such as 2024-01-31, not \"%1\""_s);
        rows(u"--set"_s, {u"minSize"_s, u"=5"_s}, u"--set takes NAME=VALUE, not \"%1\""_s);
        const QMap<QString, QString> outside = {
            {u"noSuch=5"_s, u"unknown option \"noSuch\""_s},
            {u"minSize=1k"_s, u"option \"minSize\" needs an integer, not \"1k\""_s},
            {u"skipHidden=yes"_s, u"option \"skipHidden\" needs true or false, not \"yes\""_s},
            {u"searchMode=4"_s, u"searchMode must be from 0 to 3, not 4"_s},
            {u"contentMatch=-1"_s, u"contentMatch must be from 0 to 2, not -1"_s},
            {u"mediaCompareDepth=5"_s, u"mediaCompareDepth must be from 0 to 4, not 5"_s},
            {u"similarPercent=0"_s, u"similarPercent must be from 1 to 100, not 0"_s},
            {uR"(locations=[{"path":"/a","findKind":7}])"_s, u"findKind must be from 0 to 2, not 7"_s},
            {u"includeExtensions=*.txt"_s, u"an extension is given as jpg, not as \"*.txt\""_s}};
        for (auto each = outside.begin(); each != outside.end(); ++each)
            rows(u"--set"_s, {each.key()}, each.value());
    }

    void mistakes()
    {
        QFETCH(QString, message);
        const ProgramRun done = run(QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(done.errors, usageErrorText(message));
        QCOMPARE(done.output, "");
        QCOMPARE(done.status, 2);
        QVERIFY(!QFile::exists(dataFolder()));
    }

    void brokenOptionFiles_data()
    {
        const auto row = columns<QByteArray, QString>({"text", "reason"});
        row("no JSON", "nonsense", u"illegal value"_s);
        row("array", "[1]", u"not a JSON object"_s);
        row("unknown option", R"({"minsize": 1})", u"unknown option \"minsize\""_s);
        row("wrong type", R"({"minSize": "1"})", u"option \"minSize\" needs an integer"_s);
    }

    void brokenOptionFiles()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, reason);
        const QString file = m_tree->write(u"options.json"_s, text);
        const ProgramRun done = run(u"scan --options %1/options.json %1"_s);
        QCOMPARE(done.errors, usageErrorText(file + u": "_s + reason));
        QCOMPARE(done.status, 2);
        const ProgramRun none = run(u"scan --options %1/missing.json %1"_s);
        QVERIFY2(none.errors.startsWith("mirrix-cli: cannot read " + path(u"missing.json"_s).toUtf8() + ": "),
                 none.errors.constData());
        QCOMPARE(none.status, 2);
    }

    void missingFoldersAreNamed()
    {
        const ProgramRun done = scan(u"%1/none %1/one %1/one/a.txt %1/two"_s);
        QCOMPARE(QString::fromUtf8(done.errors).remove(path()),
                 u"mirrix-cli: /none: no such folder\nmirrix-cli: /one/a.txt: not a folder\n"_s);
        QCOMPARE(groupsIn(done.output), theTwo);
        const QJsonObject expected = objectOf(R"({"unread": [{"path": "%1/none", "reason": "no such folder"},
            {"path": "%1/one/a.txt", "reason": "not a folder"}]})");
        QCOMPARE(jsonOf(done.output)[u"unread"_s].toArray(), expected[u"unread"_s].toArray());
        QCOMPARE(done.status, 1);
    }

    /// Below / it is told without being a failure; named by the user it is one.
    void filesOfTheKernel()
    {
        if (!namesAreBytes || !QFile::exists(u"/proc/self/status"_s))
            QSKIP("no such file system here");
        QStringList excluded;
        for (const QString &folder : QDir(u"/"_s).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
            if (folder != u"proc"_s)
                excluded += {u"--exclude"_s, u"/"_s + folder};
        }
        const QByteArray message = "mirrix-cli: /proc: a file system of the kernel, not scanned\n";
        const ProgramRun below = run(u"scan /"_s, excluded);
        QCOMPARE(below.errors, message);
        QCOMPARE(below.status, 0);
        const ProgramRun named = run(u"scan /proc"_s);
        QCOMPARE(named.errors, message);
        QCOMPARE(named.status, 1);
    }

    /// On a group of three files of 3 bytes and a newer one of two files of 5 bytes.
    void output_data()
    {
        const auto row = columns<QString>({"expected"}); // names; "|" stands for NUL, "^" for the escape character
        row("--format nul", u"three|one/a.txt|two/b.dat||a5|b5|"_s);
        for (const char *order : {"path", "size", "modified"})
            row(qPrintable(u"--format nul --sort "_s + QLatin1String(order)), u"a5|b5||three|one/a.txt|two/b.dat|"_s);
        row("--format nul --empty-files --empty-folders", u"none||empty|empty/sub|"_s);
        const QString quiet = u"%1%3 files of 3 B each, 6 B reclaimable%2\n  three\n  one/a.txt\n  two/b.dat\n\n"_s;
        row("--max-size 4 -q", quiet.arg(QString(), QString(), u"3"_s));
        row("--max-size 4 -q --color always", quiet.arg(u"^[1m"_s, u"^[0m"_s, u"3"_s));
        row("--empty-folders", u"2 empty folders\n  empty\n  empty/sub\n\n2 empty folders\n"_s);
    }

    void output()
    {
        m_tree->writeAll(u"a5 b5"_s, "hello");
        m_tree->write(u"three"_s, "abc");
        m_tree->setModified(u"three"_s, modifiedMs);
        m_tree->write(u"none"_s, {});
        m_tree->makeFolder(u".git/heads"_s);
        m_tree->makeFolder(u"empty/sub"_s);
        const ProgramRun done = run(u"scan %1 "_s + QLatin1String(QTest::currentDataTag()));
        QString shown = QString::fromUtf8(done.output).replace(u'\0', u'|').replace(u'\x1b', u'^');
        QTEST(shown.remove(path() + u'/'), "expected");
        QCOMPARE(done.errors, "");
    }

    void missingExclusionsAreMistakes()
    {
        for (const auto &[name, reason] :
             {std::pair(u"tow"_s, u"no such folder"_s), {u"one/a.txt"_s, u"not a folder"_s}}) {
            for (const QString &option : {u"--exclude "_s, u"--set excludeFolders="_s}) {
                const ProgramRun done = run(u"scan %1 "_s + option + path(name));
                QCOMPARE(done.errors, usageErrorText(u"cannot exclude %1: %2"_s.arg(path(name), reason)));
                QCOMPARE(done.status, 2);
            }
        }
    }

    void relativeFolders()
    {
        m_tree->write(u"conf/options.json"_s, R"({"roots":["../one","../two"],"excludeFolders":["../two/sub"]})");
        for (const QString &given :
             {u"one ./two/../two --exclude two/sub"_s, u"one ./two/../two --set excludeFolders=two/sub"_s,
              uR"(one ./two/../two --set locations=[{"path":"two","includeSubfolders":false}])"_s,
              u"--set roots=one,two --exclude two/sub"_s, u"--options conf/options.json"_s}) {
            const ProgramRun done = m_program->run(words(u"scan --no-cache --format json "_s + given), path());
            QCOMPARE(done.errors, "");
            QCOMPARE(groupsIn(done.output), theTwo);
            QVERIFY2(jsonOf(done.output)[u"filesScanned"_s] == 2, qPrintable(given));
        }
    }

    void oddNames_data()
    {
        const auto row = columns<QString, bool>({"name", "needsNamesOfBytes"});
        row("blanks", u" a  b .txt"_s, false);
        row("Unicode", u"日本 é \u0301 😀"_s, false);
        row("per cent", u"100%1 %s %n"_s, false);
        row("apostrophe and comma", u"it's, #1 & [x]"_s, false);
        row("trailing dot", u"name."_s, false);
        row("line break", u"a\nb\r\tc"_s, true);
        row("backslash and quotes", u"a\\n\"b\""_s, true);
        row("escape sequence", u"\x1b[31m\x7f"_s, true);
    }

    void oddNames()
    {
        QFETCH(QString, name);
        QFETCH(bool, needsNamesOfBytes);
        if (needsNamesOfBytes && !namesAreBytes)
            QSKIP("no file can have this name here");
        const QString file = m_tree->writeExactly(u"one/"_s + name, "12345");
        QCOMPARE(groupsIn(scan(u"%1/one %1/two/sub"_s).output), u"one/"_s + name + u"|two/sub/other.txt"_s);
        const QByteArray text = run(u"scan %1/one %1/two/sub"_s).output;
        for (QString shown : {file, path(u"two/sub/other.txt"_s)}) // a line break would forge a line
            QVERIFY2(text.contains("\n  " + shown.replace(u'\n', u'?').replace(u'\r', u'?').toUtf8() + '\n'),
                     text.constData());
    }

    void namesOfBytes()
    {
        if (!namesAreBytes)
            QSKIP("names are not bytes here");
        const TempTree tree;
        const QString one = tree.writeNamedByBytes("caf\xE9", "12345");
        const QString other = tree.writeNamedByBytes("caf\xE8", "12345");
        QCOMPARE(groupsIn(scan(tree.path()).output), other + u'|' + one);
        const QByteArray text = run(u"scan "_s + tree.path()).output;
        QVERIFY(text.contains("/caf\xE9\n") && text.contains("/caf\xE8\n"));

        // The user's own files under such names: options, report, and the folder of the cache.
        tree.writeNamedByBytes("\xE9.json", R"({"minSize": 6})");
        const QString odd = tree.path() + u'/' + one.section(u'/', -1);
        const auto inShell = [](const QString &script, const QStringList &given) {
            QProcess process; // which cannot pass such names itself
            process.start(u"sh"_s, QStringList{u"-c"_s, script, u"sh"_s, Program::builtExecutable()} + given);
            return Program::ended(process);
        };
        QCOMPARE(inShell(u"d=$2/$(printf 'caf\\351'); exec \"$1\" scan --data-dir \"$d\"dir --output \"$d\"report "
                         "--options \"$2/$(printf '\\351').json\" \"$3\""_s,
                         {tree.path(), path()})
                     .errors,
                 "");
        QFile report;
        QVERIFY(MirrixCore::openNatively(report, odd + u"report"_s, QIODevice::ReadOnly));
        QVERIFY(report.readAll().contains("scanned"));
        const MirrixCore::FileStatus cache = MirrixCore::fileStatus(odd + u"dir/fingerprint_cache"_s);
        QVERIFY(cache.kind == MirrixCore::FileStatus::Kind::Folder);
        // Records are not kept under such names, nor under another one.
        const QString backup = u"clean --keep newest --method backup --apply . "_s;
        const QByteArray answers =
            inShell(u"cli=$1; cd \"$2\"; shift 2; folder=$(printf 'x\\351'); for command; do "
                    "\"$cli\" $command \"$folder\" 2>&1 || echo status $?; done; ls"_s,
                    {path(), backup + u"--data-dir"_s, u"undo last --data-dir"_s, u"history --data-dir"_s,
                     u"log --data-dir"_s, u"restore --data-dir"_s, backup + u"--target"_s, u"restore --target"_s})
                .output;
        QCOMPARE(answers.count("x\xE9: its name is not UTF-8\n"), 7);
        QCOMPARE(answers.count("status 2\n"), 7);
        QVERIFY2(!answers.contains("\nx"), answers.constData());
    }

    void remembersDigests()
    {
        QCOMPARE(run(u"scan --no-cache %1/one %1/two"_s).status, 0);
        QVERIFY(!QFile::exists(dataFolder()));
        QCOMPARE(run(u"scan %1/one %1/two"_s).status, 0);
        QCOMPARE(filesBelow(dataFolder() + u"/fingerprint_cache"_s), 2); // the third file has a size of its own
        // Content that nobody could know without reading: it is found only if the cache is used.
        m_tree->write(u"two/b.dat"_s, "xyz");
        m_tree->setModified(u"two/b.dat"_s, modifiedMs);
        QCOMPARE(groupsIn(scan(u"%1/one %1/two"_s).output), theTwo);
        QCOMPARE(groupsIn(scan(u"--no-cache %1/one %1/two"_s).output), QString());
    }

    void unwritableDataFolder()
    {
        const ProgramRun done = m_program->run(words(u"scan --data-dir %1/one/a.txt --format json %1"_s));
        QCOMPARE(QString::fromUtf8(done.errors).remove(path()),
                 u"mirrix-cli: cannot write to /one/a.txt/fingerprint_cache; digests will not be cached\n"_s);
        QCOMPARE(groupsIn(done.output), theTwo);
        QCOMPARE(done.status, 0);
        QCOMPARE(contentOf(path(u"one/a.txt"_s)), "abc");
    }

    void usersDataFolder()
    {
        const QString share = path(u"share"_s);
        qputenv("XDG_DATA_HOME", QFile::encodeName(share));
        const bool isChosen = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) == share;
        qunsetenv("XDG_DATA_HOME");
        if (!isChosen)
            QSKIP("the environment does not choose the user's folders here");
        QProcess process;
        m_program->prepare(process, words(u"scan %1/one %1/two"_s));
        QProcessEnvironment environment = process.processEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, share);
        process.setProcessEnvironment(environment);
        process.start();
        QCOMPARE(Program::ended(process).status, 0);
        QCOMPARE(filesBelow(share + u"/Mirrix/Mirrix/Mirrix/fingerprint_cache"_s), 2);
    }

    void portableData_data()
    {
        const auto row = columns<QString, QString>({"markerFile", "option"});
        row("switch", {}, u" --portable"_s);
        row("Mirrix.portable", u"Mirrix.portable"_s, {});
        row("portable.txt", u"portable.txt"_s, {});
    }

    /// A copy of the program in a folder of its own: a marker file beside the built one would speak to other tests too.
    void portableData()
    {
        QFETCH(QString, markerFile);
        QFETCH(QString, option);
        const QString suffix = QFile::exists(Program::builtExecutable()) ? QString() : u".exe"_s;
        const QString folder = m_tree->makeFolder(u"program"_s);
        QVERIFY(QFile::copy(Program::builtExecutable() + suffix, folder + u"/mirrix-cli"_s + suffix));
        if (!markerFile.isEmpty())
            m_tree->write(u"program/"_s + markerFile, {});
        const ProgramRun done = Program(folder + u"/mirrix-cli"_s).run(words(u"scan %1/one %1/two"_s + option));
        QCOMPARE(done.errors, "");
        QCOMPARE(done.status, 0);
        QCOMPARE(filesBelow(folder + u"/Data/fingerprint_cache"_s), 2);
    }

    void reportIntoFile()
    {
        const QString report = m_tree->write(u"out/report"_s, "an old and longer report that must go altogether");
        const ProgramRun done = scan(u"--output %1/out/report %1/one %1/two"_s);
        QCOMPARE(done.output, "");
        QCOMPARE(done.errors, "");
        QCOMPARE(done.status, 0);
        QCOMPARE(groupsIn(contentOf(report)), theTwo);
        QCOMPARE(filesBelow(path(u"out"_s)), 1);

        QCOMPARE(scan(u"--output %1/one/report %1/one"_s).status, 0); // is not among the files
        QCOMPARE(jsonOf(contentOf(path(u"one/report"_s)))[u"filesScanned"_s], 1);

        for (const QString &name : {u"missing/report"_s, u"two"_s}) {
            const ProgramRun refused = run(u"scan %1 --output %1/"_s + name);
            QVERIFY2(refused.errors.startsWith("mirrix-cli: cannot write " + path(name).toUtf8() + ": "),
                     refused.errors.constData());
            QCOMPARE(refused.status, 2);
        }
    }

    void reportIntoPipe()
    {
        if (!makePipe(path(u"pipe"_s)))
            QSKIP("no named pipes here");
        QProcess reader;
        reader.start(u"cat"_s, {path(u"pipe"_s)});
        QVERIFY(reader.waitForStarted());
        QCOMPARE(scan(u"--output %1/pipe %1/one %1/two"_s).status, 0);
        QVERIFY(reader.waitForFinished());
        QCOMPARE(groupsIn(reader.readAllStandardOutput()), theTwo);
        QVERIFY2(!QFileInfo(path(u"pipe"_s)).isFile(), "a file has taken the place of what was written to");
    }

    /// A shell's limit on the size of files ends a write in its middle, as a full disk does.
    void reportOnFullDiskKeepsTheOld()
    {
        for (int i = 0; i < 200; ++i)
            m_tree->write(u"one/%1 with a name long enough for a large report"_s.arg(i), "abc");
        const QString report = m_tree->write(u"out/report"_s, "old");
        QProcess process;
        m_program->prepare(process, QStringList{u"-c"_s, u"trap '' XFSZ && ulimit -f 8 && exec \"$0\" \"$@\""_s,
                                                Program::builtExecutable()} +
                                        words(u"scan --no-cache --output %1/out/report %1/one"_s));
        process.setProgram(u"sh"_s);
        process.start();
        if (!process.waitForStarted())
            QSKIP("no shell that limits the size of files");
        const ProgramRun done = Program::ended(process);
        QVERIFY2(done.errors.startsWith("mirrix-cli: cannot write the report: "), done.errors.constData());
        QCOMPARE(done.status, 1);
        QCOMPARE(contentOf(report), "old");
        QCOMPARE(filesBelow(path(u"out"_s)), 1);
    }

    void closedOutputIsAFailure()
    {
        if (!takesNothing(u"/dev/full"_s))
            QSKIP("no device that takes nothing");
        const ProgramRun done = runOntoFullDevice(u"scan --no-cache %1"_s);
        QVERIFY2(done.errors.startsWith("mirrix-cli: cannot write the report: "), done.errors.constData());
        QCOMPARE(done.status, 1);
    }

    void helpAndVersion_data()
    {
        const auto row = columns<QByteArray>({"start"});
        for (const char *line : {"--help", "-h", "help"})
            row(line, "Usage: mirrix-cli COMMAND [OPTIONS] ...\n");
        for (const char *line : {"--version", "scan --version"})
            row(line, "mirrix-cli 1.0.0\n");
        row("scan --help", "Usage: ");
    }

    void helpAndVersion()
    {
        QFETCH(QByteArray, start);
        const ProgramRun done = m_program->run(words(QLatin1String(QTest::currentDataTag())));
        QVERIFY2(done.output.startsWith(start), done.output.constData());
        QCOMPARE(done.errors, "");
        QCOMPARE(done.status, 0);
        QCOMPARE(m_program->run({}).errors, usageErrorText(u"no command given"_s));
        QCOMPARE(m_program->run({u"find"_s, u"/a"_s}).errors, usageErrorText(u"unknown command \"find\""_s));
    }

    /// The request to end arrives while the first file is opened.
    void interrupted()
    {
        const QString report = m_tree->write(u"out/report"_s, "old");
        const QString first = path(u"one/a.txt"_s);
        ProgramRun done;
        if (!traced(u"-o /dev/null -P %1/one/a.txt -e inject=openat:signal=SIGTERM:when=1"_s,
                    u"scan --threads 1 --output %1/out/report %1/one %1/two"_s, done))
            QSKIP("cannot trace processes");
        QCOMPARE(done.errors, "mirrix-cli: cancelled\n");
        QCOMPARE(done.status, 3);
        QCOMPARE(contentOf(report), "old");
        MirrixCore::setCacheRoot(dataFolder());
        const MirrixCore::Fingerprint known = MirrixCore::lookupFingerprint(first, 3, modifiedMs);
        QCOMPARE(known.quick, MirrixCore::quickHash(first)); // what was known is kept
    }

private:
    [[nodiscard]] ProgramRun scan(const QString &line) const { return run(u"scan --format json "_s + line); }

    /// JSON in which %1 stands for the tree's folder.
    [[nodiscard]] QJsonObject objectOf(const QByteArray &text) const
    {
        return QJsonDocument::fromJson(QByteArray(text).replace("%1", path().toUtf8())).object();
    }

    /// The groups of a JSON report, in the form "one/a.txt|two/b.dat||three|four".
    [[nodiscard]] QString groupsIn(const QByteArray &report) const
    {
        QStringList groups;
        for (const QJsonValue &item : jsonOf(report)[u"groups"_s].toArray()) {
            QStringList paths;
            for (const QJsonValue &file : item[u"files"_s].toArray())
                paths.append(file[u"path"_s].toString().remove(path() + u'/'));
            paths.sort();
            groups.append(paths.join(u'|'));
        }
        return groups.join(u"||"_s);
    }
};

QTEST_GUILESS_MAIN(ScanCommandTest)
#include "tst_scancommand.moc"
