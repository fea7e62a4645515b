#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/platform/filestatus.h"
#include "core/platform/nativefileio.h"
#include "core/platform/nativepath.h"
#include "tests/support/jsonschema.h"
#include "tests/support/probes.h"
#include "tests/support/program.h"
#include "tests/support/temptree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 modifiedMs = 1234567890000;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

int filesBelow(const QString &folder)
{
    int count = 0;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext(); it.next())
        ++count;
    return count;
}

/// A text report with its only figure that is not the same each time replaced.
QByteArray withoutTime(const QByteArray &report)
{
    static const QRegularExpression time(u"scanned in [0-9]+\\.[0-9][0-9] s\n$"_s);
    return QString::fromUtf8(report).replace(time, u"scanned in T s\n"_s).toUtf8();
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

/// The paths of each group in a JSON report, sorted.
QList<QStringList> groupsIn(const QByteArray &report)
{
    QList<QStringList> groups;
    const QJsonArray items = jsonOf(report)[u"groups"_s].toArray();
    for (const QJsonValue &item : items) {
        QStringList paths;
        const QJsonArray files = item[u"files"_s].toArray();
        for (const QJsonValue &file : files)
            paths.append(file[u"path"_s].toString());
        paths.sort();
        groups.append(paths);
    }
    return groups;
}

} // namespace

class ScanCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void textReport();
    void textReportOfEmptyFiles();
    void rulesInsteadOfContent();
    void textReportOfFolders();
    void modes_data();
    void modes();
    void textReportOfNothing();
    void jsonReport();
    void jsonReportOfPlaces();
    void csvReport();
    void options_data();
    void options();
    void digestIsChosen_data();
    void digestIsChosen();
    void mistakes_data();
    void mistakes();
    void brokenOptionFiles_data();
    void brokenOptionFiles();
    void missingFoldersAreNamed();
    void filesOfTheKernel();
    void output_data();
    void output();
    void missingExclusionsAreMistakes();
    void relativeFolders_data();
    void relativeFolders();
    void oddNames_data();
    void oddNames();
    void namesOfBytes();

    void remembersDigests();
    void unwritableDataFolder();
    void usersDataFolder();
    void portableData_data();
    void portableData();

    void reportIntoFile();
    void reportIntoPipe();
    void reportIsNotAmongTheFiles();
    void reportCannotBeOpened();
    void reportOnFullDiskKeepsTheOld();
    void closedOutputIsAFailure();
    void helpAndVersion_data();
    void helpAndVersion();
    void interrupted();

private:
    /// Scans with a data directory of the program's own.
    [[nodiscard]] ProgramRun scan(const QStringList &arguments) const
    {
        return m_program->run(QStringList{u"scan"_s, u"--data-dir"_s, m_program->dataFolder()} + arguments);
    }
    [[nodiscard]] ProgramRun scanAsJson(const QStringList &arguments) const
    {
        return scan(QStringList{u"--format"_s, u"json"_s} + arguments);
    }

    std::unique_ptr<TempTree> m_tree;
    std::unique_ptr<Program> m_program;
};

/// Two equal files, each in a root of its own so that their order is known, and a third.
void ScanCommandTest::init()
{
    m_tree = std::make_unique<TempTree>();
    m_program = std::make_unique<Program>();
    m_tree->write(u"one/a.txt"_s, "abc");
    m_tree->write(u"two/b.dat"_s, "abc");
    m_tree->write(u"two/sub/other.txt"_s, "12345");
    for (const QString &file : {u"one/a.txt"_s, u"two/b.dat"_s, u"two/sub/other.txt"_s})
        m_tree->setModified(file, modifiedMs);
}

void ScanCommandTest::textReport()
{
    const ProgramRun run = scan({m_tree->path(u"one"_s), m_tree->path(u"two"_s)});
    const QString expected = u"2 files of 3 B each, 3 B reclaimable\n  %1/one/a.txt\n  %1/two/b.dat\n\n"
                             u"1 group, 3 B reclaimable; 3 files (11 B) scanned in T s\n"_s.arg(m_tree->path());
    QCOMPARE(withoutTime(run.output), expected.toUtf8());
    QCOMPARE(run.errors, "");
    QCOMPARE(run.status, 0);
}

void ScanCommandTest::textReportOfEmptyFiles()
{
    const QString empty = m_tree->write(u"two/sub/empty"_s, {});
    const QString location = u"locations=[{\"path\":\"%1\",\"findKind\":2}]"_s.arg(m_tree->path(u"two"_s));
    const ProgramRun run = scan({u"--set"_s, location, m_tree->path(u"one"_s), m_tree->path(u"two"_s)});
    const QString expected = u"1 empty file\n  %1\n\n1 group, 0 B reclaimable; 4 files (11 B) scanned in T s\n"_s;
    QCOMPARE(withoutTime(run.output), expected.arg(empty).toUtf8());
}

void ScanCommandTest::rulesInsteadOfContent()
{
    m_tree->write(u"one/Name.txt"_s, "first");
    m_tree->write(u"two/name.txt"_s, "second");
    const ProgramRun run =
        scan({u"--mode"_s, u"rules"_s, u"--set"_s, u"sameName=true"_s, u"--format"_s, u"json"_s, m_tree->path()});
    QCOMPARE(run.status, 0);
    const QJsonArray groups = QJsonDocument::fromJson(run.output).object()[u"groups"_s].toArray();
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups[0][u"key"_s].toString(), u"FN:name.txt"_s);
    QCOMPARE(groups[0][u"files"_s].toArray().size(), 2);
}

void ScanCommandTest::textReportOfFolders()
{
    m_tree->write(u"three/sub/a.txt"_s, "abc");
    const ProgramRun run = scan({u"--set"_s, u"showRemaining=true"_s, m_tree->path(u"one"_s), m_tree->path(u"two"_s),
                                 m_tree->path(u"three"_s)});
    const QString expected =
        u"3 files of 3 B each, 6 B reclaimable\n  %1/one/a.txt\n  %1/two/b.dat\n  %1/three/sub/a.txt\n\n"
        u"2 equal folders of 1 file (3 B) each\n  %1/one\n  %1/three/sub\n\n"
        u"1 file in no group\n  %1/two/sub/other.txt\n\n"
        u"1 group, 6 B reclaimable; 4 files (14 B) scanned in T s\n"_s;
    QCOMPARE(withoutTime(run.output), expected.arg(m_tree->path()).toUtf8());
}

void ScanCommandTest::modes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<qsizetype>("folderGroups");
    QTest::addColumn<qsizetype>("remaining");
    const QString md5 = u"900150983cd24fb0d6963f7d28e17f72"_s;
    const QString opening = u"2f4fe09bb4f6bb9ad8ee6e7579e8f5e1"_s; // printf 3abc | md5sum
    const auto row = [](const QStringList &arguments, const QStringList &keys, qsizetype folders, qsizetype remaining) {
        QTest::newRow(qPrintable(arguments.join(u' '))) << arguments << keys << folders << remaining;
    };
    row({u"--mode"_s, u"content"_s}, {md5}, 1, 0);
    row({u"--set"_s, u"duplicateFoldersOnly=true"_s, u"--set"_s, u"showRemaining=true"_s}, {md5}, 1, 2);
    row({u"--mode"_s, u"similar-content"_s, u"--set"_s, u"similarPercent=60"_s}, {u"SIM:66%"_s}, 0, 0);
    const QString all = u"includeExtensions=txt,dat"_s;
    row({u"--mode"_s, u"audio"_s, u"--set"_s, all}, {md5}, 1, 0);
    row({u"--mode"_s, u"video"_s, u"--set"_s, all}, {opening}, 1, 0);
}

void ScanCommandTest::modes()
{
    QFETCH(QStringList, arguments);
    m_tree->write(u"two/c.dat"_s, "abd");
    m_tree->write(u"three/a.txt"_s, "abc");
    const ProgramRun run = scanAsJson(arguments + QStringList(m_tree->path()));
    QCOMPARE(run.errors, "");
    const QJsonObject report = jsonOf(run.output);
    QStringList keys;
    for (const QJsonValue &group : report[u"groups"_s].toArray())
        keys.append(group[u"key"_s].toString());
    QTEST(keys, "keys");
    QTEST(report[u"folderGroups"_s].toArray().size(), "folderGroups");
    QTEST(report[u"remaining"_s].toArray().size(), "remaining");
    if (!report[u"folderGroups"_s].toArray().isEmpty()) {
        const QJsonObject group = report[u"folderGroups"_s][0].toObject();
        QCOMPARE(group[u"fileCount"_s].toInt(), 1);
        QCOMPARE(group[u"size"_s].toInt(), 3);
        QCOMPARE(group[u"folders"_s].toArray().size(), 2);
    }
}

void ScanCommandTest::textReportOfNothing()
{
    const ProgramRun run = scan({m_tree->path(u"one"_s)});
    QCOMPARE(withoutTime(run.output), "No duplicates found; 1 file (3 B) scanned in T s\n");
    QCOMPARE(run.status, 0);
}

void ScanCommandTest::jsonReport()
{
    const ProgramRun run = scanAsJson({m_tree->path(u"one"_s), m_tree->path(u"two"_s)});
    QCOMPARE(run.status, 0);
    QJsonObject report = jsonOf(run.output);
    QVERIFY(report.take(u"elapsedMs"_s).toInteger(-1) >= 0);
    QJsonArray files;
    for (const QString &path : {m_tree->path(u"one/a.txt"_s), m_tree->path(u"two/b.dat"_s)}) {
        files.append(QJsonObject{{u"path"_s, path}, {u"size"_s, 3}, {u"modifiedMs"_s, modifiedMs}});
    }
    QJsonArray groups = report.take(u"groups"_s).toArray();
    QCOMPARE(groups.size(), 1);
    QJsonObject group = groups[0].toObject();
    QJsonArray found;
    for (const QJsonValue &file : group.take(u"files"_s).toArray()) {
        QJsonObject object = file.toObject();
        QVERIFY(object.take(u"createdMs"_s).isDouble()); // cannot be set everywhere
        if (namesAreBytes)
            QVERIFY(object.take(u"allocated"_s).isDouble()); // the file system's own affair
        found.append(object);
    }
    QCOMPARE(found, files);
    QCOMPARE(group, (QJsonObject{{u"key"_s, u"900150983cd24fb0d6963f7d28e17f72"_s}, {u"wastedBytes"_s, 3}}));
    QCOMPARE(report, (QJsonObject{{u"schemaVersion"_s, 1},
                                  {u"hidden"_s, QJsonObject{{u"files"_s, 0}, {u"folders"_s, 0}}},
                                  {u"unread"_s, QJsonArray()},
                                  {u"filesScanned"_s, 3},
                                  {u"totalBytes"_s, 11},
                                  {u"wastedBytes"_s, 3},
                                  {u"candidates"_s, 2},
                                  {u"folderGroups"_s, QJsonArray()},
                                  {u"remaining"_s, QJsonArray()}}));
}

void ScanCommandTest::jsonReportOfPlaces()
{
    m_tree->write(u"two/.Trash-1000/files/gone.txt"_s, "abc");
    m_tree->write(u"two/.snapshots/1/bb.txt"_s, "abc");
    m_tree->write(u"two/put away/backups.txt"_s, "abc");
    m_tree->write(u"two/put away/backup_index.json"_s, "[]");
    QMap<QString, QString> places;
    for (const QJsonValue &file : jsonOf(scanAsJson({m_tree->path()}).output)[u"groups"_s][0][u"files"_s].toArray())
        places.insert(QFileInfo(file[u"path"_s].toString()).fileName(), file[u"place"_s].toString(u"none"_s));
    QCOMPARE(places, (QMap<QString, QString>{{u"a.txt"_s, u"none"_s},
                                             {u"b.dat"_s, u"none"_s},
                                             {u"gone.txt"_s, u"recycleBin"_s},
                                             {u"bb.txt"_s, u"snapshot"_s},
                                             {u"backups.txt"_s, u"backupFolder"_s}}));
}

void ScanCommandTest::csvReport()
{
    const QString named = m_tree->write(u"two/c, d.txt"_s, "abc");
    m_tree->setModified(u"two/c, d.txt"_s, modifiedMs);
    const QStringList arguments = {u"--format"_s, u"csv"_s, u"--hash"_s, u"md5"_s, m_tree->path()};
    const ProgramRun run = scan(arguments);
    QCOMPARE(run.status, 0);
    QList<QByteArray> lines = run.output.split('\n');
    QCOMPARE(lines.takeFirst(), "group,path,size,modified,key");
    std::sort(lines.begin(), lines.end());
    const QByteArray tail = "\",3,1234567890000,900150983cd24fb0d6963f7d28e17f72"; // md5 of "abc"
    const QByteArray folder = m_tree->path().toUtf8();
    QCOMPARE(lines, (QList<QByteArray>{{},
                                       "1,\"" + folder + "/one/a.txt" + tail,
                                       "1,\"" + folder + "/two/b.dat" + tail,
                                       "1,\"" + named.toUtf8() + tail}));

    const TempTree elsewhere;
    const QString file = elsewhere.path(u"report.csv"_s);
    QCOMPARE(scan(QStringList{u"--output"_s, file} + arguments).output, "");
    QCOMPARE(contentOf(file), run.output);
}

void ScanCommandTest::options_data()
{
    QTest::addColumn<QStringList>("arguments"); // %1 is the folder of the tree
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("groups");
    const auto row = [](const char *name, const QStringList &arguments, int files, int groups) {
        QTest::newRow(name) << arguments << files << groups;
    };
    const QString all = u"%1"_s;
    row("whole tree", {all}, 5, 1);
    row("same folder twice", {all, u"%1/one"_s, u"%1//one/."_s}, 5, 1);
    row("after two dashes", {u"--"_s, all}, 5, 1);
    row("size", {u"--set"_s, u"minSize=4"_s, all}, 3, 0);
    row("assigned with equals sign", {u"--set=maxSize=3"_s, all}, 2, 1);
    row("extensions", {u"--set"_s, u"includeExtensions=txt,json"_s, all}, 4, 0);
    row("the last assignment counts", {u"--set"_s, u"minSize=9"_s, u"--set"_s, u"minSize=0"_s, all}, 5, 1);
    row("excluded folder", {u"--exclude"_s, u"%1/two/sub"_s, all}, 4, 1);
    row("two excluded folders", {u"--exclude"_s, u"%1/two/../two/sub/"_s, u"--exclude"_s, u"%1/one"_s, all}, 3, 0);
    row("excluded beside the option", {u"--set"_s, u"excludeFolders=%1/one"_s, u"--exclude"_s, u"%1/two"_s, all}, 2, 0);
    row("option file", {u"--options"_s, u"%1/options.json"_s, all}, 4, 1);
    row("option file names the folder", {u"--options"_s, u"%1/roots.json"_s}, 1, 0);
    row("folders add to the option file's", {u"--options"_s, u"%1/roots.json"_s, u"%1/two"_s}, 3, 1);
    row("assignment over option file", {u"--set"_s, u"maxSize=0"_s, u"--options"_s, u"%1/options.json"_s, all}, 5, 1);
    row("one thread", {u"--threads"_s, u"1"_s, all}, 5, 1);
    row("most threads", {u"--threads"_s, u"256"_s, all}, 5, 1);
    row("without subfolders",
        {u"--set"_s, u"locations=[{\"path\":\"%1/two\",\"includeSubfolders\":false}]"_s, u"%1/two"_s}, 1, 0);
    row("least size", {u"--min-size"_s, u"0.004K"_s, all}, 3, 0);
    row("greatest size", {u"--set"_s, u"maxSize=1"_s, u"--max-size"_s, u"4B"_s, all}, 2, 1);
    row("names", {u"--name"_s, u"*.TXT"_s, u"--name"_s, u"b.*"_s, all}, 3, 1);
    row("names left out", {u"--exclude-name"_s, u"*.json"_s, u"--exclude-name"_s, u"SUB"_s, all}, 2, 1);
    row("newer than a day", {u"--newer"_s, u"1d"_s, all}, 2, 0);
    row("newer than a date", {u"--newer"_s, u"2009-02-13"_s, all}, 5, 1);
    row("newer than another date", {u"--newer"_s, u"2009-02-15"_s, all}, 2, 0);
    row("one file system", {u"--one-file-system"_s, all}, 5, 1);
    row("listed", {u"--files-from"_s, u"%1/list"_s}, 3, 1);
    row("listed beside a folder", {u"--files-from"_s, u"%1/list"_s, u"%1/one"_s, u"--max-size"_s, u"4"_s}, 2, 1);
    row("empty files only", {u"--set"_s, u"locations=[{\"path\":\"%1\",\"findKind\":2}]"_s, all}, 5, 0);
}

void ScanCommandTest::options()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, files);
    QFETCH(int, groups);
    m_tree->write(u"options.json"_s, "{\"maxSize\": 20}");
    m_tree->write(u"roots.json"_s, "{\"roots\": [\"" + m_tree->path(u"one"_s).toUtf8() + "\"]}");
    arguments.replaceInStrings(u"%1"_s, m_tree->path());
    if (arguments.contains(m_tree->path(u"list"_s)))
        m_tree->write(u"list"_s, u"%1/one/a.txt\r\n%1/two\n\n"_s.arg(m_tree->path()).toUtf8());
    const ProgramRun run = scanAsJson(arguments);
    QCOMPARE(run.errors, "");
    QCOMPARE(run.status, 0);
    QCOMPARE(jsonOf(run.output)[u"filesScanned"_s].toInt(-1), files);
    QList<QStringList> expected;
    if (groups > 0)
        expected.append({m_tree->path(u"one/a.txt"_s), m_tree->path(u"two/b.dat"_s)});
    QCOMPARE(groupsIn(run.output), expected);
}

void ScanCommandTest::digestIsChosen_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("key");
    const QString md5 = u"900150983cd24fb0d6963f7d28e17f72"_s;
    const QString blake3 = u"6437b3ac38465133ffb63b75273a8db548c558465d79db03fd359c6cd5bd9d85"_s;
    const QByteArray blake3Setting = R"({"contentHashAlgorithm": "blake3"})";
    const QStringList none;
    QTest::newRow("default") << QByteArray("{}") << none << md5;
    QTest::newRow("setting") << blake3Setting << none << blake3;
    QTest::newRow("switch") << QByteArray("{}") << QStringList{u"--hash"_s, u"blake3"_s} << blake3;
    QTest::newRow("switch over setting") << blake3Setting << QStringList{u"--hash"_s, u"md5"_s} << md5;
    QTest::newRow("broken settings") << QByteArray("{") << none << md5;
}

void ScanCommandTest::digestIsChosen()
{
    QFETCH(QByteArray, settings);
    QFETCH(QStringList, arguments);
    m_tree->write(u"data/settings.json"_s, settings);
    const ProgramRun run =
        m_program->run(QStringList{u"scan"_s, u"--format"_s, u"json"_s, u"--data-dir"_s, m_tree->path(u"data"_s),
                                   m_tree->path(u"one"_s), m_tree->path(u"two"_s)} +
                       arguments);
    QTEST(jsonOf(run.output)[u"groups"_s][0][u"key"_s].toString(), "key");
}

void ScanCommandTest::mistakes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const auto row = [](const QStringList &arguments, const QString &message) {
        QTest::newRow(arguments.isEmpty() ? "nothing" : qPrintable(arguments.join(u' '))) << arguments << message;
    };
    const QString threads = u"--threads must be a number from 0 to 256, not \"%1\""_s;
    row({}, u"no folder to scan"_s);
    row({u"/a"_s, QString()}, u"an empty folder name"_s);
    row({u"--exclude"_s, QString(), u"/a"_s}, u"an empty folder name"_s);
    row({u"--set"_s, u"minSize"_s, u"/a"_s}, u"--set takes NAME=VALUE, not \"minSize\""_s);
    row({u"--set"_s, u"=5"_s, u"/a"_s}, u"--set takes NAME=VALUE, not \"=5\""_s);
    row({u"--set"_s, u"noSuch=5"_s, u"/a"_s}, u"unknown option \"noSuch\""_s);
    row({u"--set"_s, u"minSize=1k"_s, u"/a"_s}, u"option \"minSize\" needs an integer, not \"1k\""_s);
    row({u"--set"_s, u"skipHidden=yes"_s, u"/a"_s}, u"option \"skipHidden\" needs true or false, not \"yes\""_s);
    row({u"--set"_s}, u"Missing value after '--set'."_s);
    row({u"--threads"_s, u"-1"_s, u"/a"_s}, threads.arg(u"-1"_s));
    row({u"--threads"_s, u"257"_s, u"/a"_s}, threads.arg(u"257"_s));
    row({u"--threads"_s, u"two"_s, u"/a"_s}, threads.arg(u"two"_s));
    row({u"--threads"_s, QString(), u"/a"_s}, threads.arg(QString()));
    row({u"--mode"_s, u"sound"_s, u"/a"_s},
        u"--mode must be content, similar-content, rules, images, audio or video, not \"sound\""_s);
    row({u"--hash"_s, u"BLAKE3"_s, u"/a"_s}, u"--hash must be md5 or blake3, not \"BLAKE3\""_s);
    row({u"--format"_s, u"xml"_s, u"/a"_s}, u"--format must be text, json, csv or nul, not \"xml\""_s);
    const QString size = u"--min-size must be a size such as 4096, 512K or 1.5M, not \"%1\""_s;
    for (const QString &text : {u""_s, u"1X"_s, u"-1"_s, u"1.5.1M"_s, u"99999999T"_s})
        row({u"--min-size"_s, text, u"/a"_s}, size.arg(text));
    const QString age = u"--newer must be an age such as 12h, 30d or 4w, or a date such as 2024-01-31, not \"%1\""_s;
    for (const QString &text : {u""_s, u"d"_s, u"30"_s, u"-2d"_s, u"2024-13-01"_s})
        row({u"--newer"_s, text, u"/a"_s}, age.arg(text));
    QFile missing(u"/no such file"_s);
    QVERIFY(!missing.open(QIODevice::ReadOnly));
    row({u"--files-from"_s, missing.fileName()}, u"cannot read /no such file: "_s + missing.errorString());
    row({u"--sort"_s, u"name"_s, u"/a"_s}, u"--sort must be waste, path, size or modified, not \"name\""_s);
    row({u"--color"_s, u"on"_s, u"/a"_s}, u"--color must be auto, always or never, not \"on\""_s);
    row({u"--recursive"_s, u"/a"_s}, u"Unknown option 'recursive'."_s);
    row({u"--mode"_s, u"rules"_s, u"/a"_s},
        u"without comparing contents a rule is needed, for example --set sameName=true"_s);
    const QMap<QString, QString> outside = {
        {u"searchMode=4"_s, u"searchMode must be from 0 to 3, not 4"_s},
        {u"contentMatch=-1"_s, u"contentMatch must be from 0 to 2, not -1"_s},
        {u"mediaCompareDepth=5"_s, u"mediaCompareDepth must be from 0 to 4, not 5"_s},
        {u"similarPercent=0"_s, u"similarPercent must be from 1 to 100, not 0"_s},
        {u"locations=[{\"path\":\"/a\",\"findKind\":7}]"_s, u"findKind must be from 0 to 2, not 7"_s},
        {u"includeExtensions=*.txt"_s, u"an extension is given as jpg, not as \"*.txt\""_s}};
    for (auto each = outside.begin(); each != outside.end(); ++each)
        row({u"--set"_s, each.key(), u"/a"_s}, each.value());
}

void ScanCommandTest::mistakes()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const ProgramRun run = scan(arguments);
    QCOMPARE(run.errors, usageErrorText(message));
    QCOMPARE(run.output, "");
    QCOMPARE(run.status, 2);
    QVERIFY(!QFile::exists(m_program->dataFolder()));
}

void ScanCommandTest::brokenOptionFiles_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no JSON") << QByteArray("nonsense") << u"illegal value"_s;
    QTest::newRow("array") << QByteArray("[1]") << u"not a JSON object"_s;
    QTest::newRow("unknown option") << QByteArray(R"({"minsize": 1})") << u"unknown option \"minsize\""_s;
    QTest::newRow("wrong type") << QByteArray(R"({"minSize": "1"})") << u"option \"minSize\" needs an integer"_s;
}

void ScanCommandTest::brokenOptionFiles()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const QString file = m_tree->write(u"options.json"_s, text);
    const ProgramRun run = scan({u"--options"_s, file, m_tree->path()});
    QCOMPARE(run.errors, usageErrorText(file + u": "_s + reason));
    QCOMPARE(run.status, 2);
    const QString missing = m_tree->path(u"missing.json"_s);
    const ProgramRun none = scan({u"--options"_s, missing, m_tree->path()});
    QVERIFY2(none.errors.startsWith("mirrix-cli: cannot read " + missing.toUtf8() + ": "), none.errors.constData());
    QCOMPARE(none.status, 2);
}

void ScanCommandTest::missingFoldersAreNamed()
{
    const QString missing = m_tree->path(u"none here"_s);
    const QString file = m_tree->path(u"one/a.txt"_s);
    const ProgramRun run = scanAsJson({missing, m_tree->path(u"one"_s), file, m_tree->path(u"two"_s)});
    QCOMPARE(QString::fromUtf8(run.errors),
             u"mirrix-cli: %1: no such folder\nmirrix-cli: %2: not a folder\n"_s.arg(missing, file));
    QCOMPARE(groupsIn(run.output).size(), 1);
    QCOMPARE(jsonOf(run.output)[u"unread"_s].toArray(),
             (QJsonArray{QJsonObject{{u"path"_s, missing}, {u"reason"_s, u"no such folder"_s}},
                         QJsonObject{{u"path"_s, file}, {u"reason"_s, u"not a folder"_s}}}));
    QCOMPARE(run.status, 1);
}

/// Below / it is told without being a failure; named by the user it is one.
void ScanCommandTest::filesOfTheKernel()
{
    if (!namesAreBytes || !QFile::exists(u"/proc/self/status"_s))
        QSKIP("no such file system here");
    QStringList arguments = {u"/"_s};
    const QStringList others = QDir(u"/"_s).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString &folder : others) {
        if (folder != u"proc"_s)
            arguments += {u"--exclude"_s, u"/"_s + folder};
    }
    const QByteArray message = "mirrix-cli: /proc: a file system of the kernel, not scanned\n";
    const ProgramRun below = scan(arguments);
    QCOMPARE(below.errors, message);
    QCOMPARE(below.status, 0);
    const ProgramRun named = scan({u"/proc"_s});
    QCOMPARE(named.errors, message);
    QCOMPARE(named.status, 1);
}

/// On a group of three files of 3 bytes and a newer one of two files of 5 bytes.
void ScanCommandTest::output_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected"); // names; "|" stands for NUL, "^" for the escape character
    const QStringList nul = {u"--format"_s, u"nul"_s};
    QTest::newRow("by waste") << nul << u"three|one/a.txt|two/b.dat||a5|b5|"_s;
    for (const QString &order : {u"path"_s, u"size"_s, u"modified"_s})
        QTest::newRow(qPrintable(order)) << nul + QStringList{u"--sort"_s, order}
                                         << u"a5|b5||three|one/a.txt|two/b.dat|"_s;
    QTest::newRow("empty ones") << nul + QStringList{u"--empty-files"_s, u"--empty-folders"_s}
                                << u"none||empty|empty/sub|"_s;
    const QString quiet = u"%1%3 files of 3 B each, 6 B reclaimable%2\n  three\n  one/a.txt\n  two/b.dat\n\n"_s;
    const QStringList small = {u"--max-size"_s, u"4"_s, u"-q"_s};
    QTest::newRow("quiet") << small << quiet.arg(QString(), QString(), u"3"_s);
    QTest::newRow("coloured") << small + QStringList{u"--color"_s, u"always"_s}
                              << quiet.arg(u"^[1m"_s, u"^[0m"_s, u"3"_s);
    QTest::newRow("empty folders") << QStringList(u"--empty-folders"_s)
                                   << u"2 empty folders\n  empty\n  empty/sub\n\n2 empty folders\n"_s;
}

void ScanCommandTest::output()
{
    QFETCH(QStringList, arguments);
    for (const QString &name : {u"a5"_s, u"b5"_s})
        m_tree->write(name, "hello");
    m_tree->write(u"three"_s, "abc");
    m_tree->setModified(u"three"_s, modifiedMs);
    m_tree->write(u"none"_s, {});
    m_tree->makeFolder(u".git/heads"_s);
    m_tree->makeFolder(u"empty/sub"_s);
    const ProgramRun run = scan(arguments + QStringList(m_tree->path()));
    QString shown = QString::fromUtf8(run.output).replace(u'\0', u'|').replace(u'\x1b', u'^');
    QTEST(shown.remove(m_tree->path() + u'/'), "expected");
    QCOMPARE(run.errors, "");
}

void ScanCommandTest::missingExclusionsAreMistakes()
{
    const QString missing = m_tree->path(u"tow"_s);
    const QString file = m_tree->path(u"one/a.txt"_s);
    for (const auto &[folder, reason] : {std::pair(missing, u"no such folder"_s), {file, u"not a folder"_s}}) {
        const QByteArray message = usageErrorText(u"cannot exclude %1: %2"_s.arg(folder, reason));
        for (const QStringList &option :
             {QStringList{u"--exclude"_s, folder}, {u"--set"_s, u"excludeFolders="_s + folder}}) {
            const ProgramRun run = scan(option + QStringList(m_tree->path()));
            QCOMPARE(run.errors, message);
            QCOMPARE(run.status, 2);
        }
    }
}

void ScanCommandTest::relativeFolders_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QStringList folders = {u"one"_s, u"./two/../two"_s};
    QTest::newRow("--exclude") << folders + QStringList{u"--exclude"_s, u"two/sub"_s};
    QTest::newRow("excludeFolders") << folders + QStringList{u"--set"_s, u"excludeFolders=two/sub"_s};
    QTest::newRow("locations") << folders + QStringList{u"--set"_s,
                                                        uR"(locations=[{"path":"two","includeSubfolders":false}])"_s};
    QTest::newRow("roots") << QStringList{u"--set"_s, u"roots=one,two"_s, u"--exclude"_s, u"two/sub"_s};
    QTest::newRow("option file's own folder") << QStringList{u"--options"_s, u"conf/options.json"_s};
}

void ScanCommandTest::relativeFolders()
{
    QFETCH(QStringList, arguments);
    m_tree->write(u"conf/options.json"_s, R"({"roots":["../one","../two"],"excludeFolders":["../two/sub"]})");
    const ProgramRun run =
        m_program->run(QStringList{u"scan"_s, u"--no-cache"_s, u"--format"_s, u"json"_s} + arguments, m_tree->path());
    QCOMPARE(run.errors, "");
    QCOMPARE(groupsIn(run.output), (QList<QStringList>{{m_tree->path(u"one/a.txt"_s), m_tree->path(u"two/b.dat"_s)}}));
    QCOMPARE(jsonOf(run.output)[u"filesScanned"_s].toInt(), 2);
}

void ScanCommandTest::oddNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("needsNamesOfBytes");
    QTest::newRow("blanks") << u" a  b .txt"_s << false;
    QTest::newRow("Unicode") << u"日本 é \u0301 😀"_s << false;
    QTest::newRow("per cent") << u"100%1 %s %n"_s << false;
    QTest::newRow("apostrophe and comma") << u"it's, #1 & [x]"_s << false;
    QTest::newRow("trailing dot") << u"name."_s << false;
    QTest::newRow("line break") << u"a\nb\r\tc"_s << true;
    QTest::newRow("backslash and quotes") << u"a\\n\"b\""_s << true;
    QTest::newRow("escape sequence") << u"\x1b[31m\x7f"_s << true;
}

void ScanCommandTest::oddNames()
{
    QFETCH(QString, name);
    QFETCH(bool, needsNamesOfBytes);
    if (needsNamesOfBytes && !namesAreBytes)
        QSKIP("no file can have this name here");
    const QString file = m_tree->writeExactly(u"one/"_s + name, "12345");
    const QString other = m_tree->path(u"two/sub/other.txt"_s);
    const QStringList folders = {m_tree->path(u"one"_s), m_tree->path(u"two/sub"_s)};
    QCOMPARE(groupsIn(scanAsJson(folders).output), (QList<QStringList>{{file, other}}));
    const QByteArray text = scan(folders).output;
    for (QString path : {file, other}) // a line break would forge a line
        QVERIFY2(text.contains("\n  " + path.replace(u'\n', u'?').replace(u'\r', u'?').toUtf8() + '\n'),
                 text.constData());
}

void ScanCommandTest::namesOfBytes()
{
    if (!namesAreBytes)
        QSKIP("names are not bytes here");
    const TempTree tree;
    const QString one = tree.writeNamedByBytes("caf\xE9", "12345");
    const QString other = tree.writeNamedByBytes("caf\xE8", "12345");
    QCOMPARE(groupsIn(scanAsJson({tree.path()}).output), (QList<QStringList>{{other, one}}));
    const QByteArray text = scan({tree.path()}).output;
    QVERIFY(text.contains("/caf\xE9\n") && text.contains("/caf\xE8\n"));

    // The user's own files under such names: options, report, and the folder of the cache.
    tree.writeNamedByBytes("\xE9.json", R"({"minSize": 6})");
    const QString odd = tree.path() + u'/' + one.section(u'/', -1);
    const QString command = u"d=$1/$(printf 'caf\\351'); exec \"$2\" scan --data-dir \"$d\"dir --output \"$d\"report "
                            "--options \"$1/$(printf '\\351').json\" \"$3\""_s;
    QProcess process; // which cannot pass such names itself
    process.start(u"sh"_s, {u"-c"_s, command, u"sh"_s, tree.path(), Program::builtExecutable(), m_tree->path()});
    QCOMPARE(Program::ended(process).errors, "");
    QFile report;
    QVERIFY(MirrixCore::openNatively(report, odd + u"report"_s, QIODevice::ReadOnly));
    QVERIFY(report.readAll().contains("scanned"));
    const MirrixCore::FileStatus cache = MirrixCore::fileStatus(odd + u"dir/fingerprint_cache"_s);
    QVERIFY(cache.kind == MirrixCore::FileStatus::Kind::Folder);
    // Records are not kept under such names, nor under another one.
    QProcess refused;
    refused.start(u"sh"_s, {u"-c"_s,
                            u"cd \"$1\"; cli=$2; shift 2; folder=$(printf 'x\\351'); for command; do "
                            "\"$cli\" $command \"$folder\" 2>&1 || echo status $?; done; ls"_s,
                            u"sh"_s, m_tree->path(), Program::builtExecutable(),
                            u"clean --keep newest --method backup --apply . --data-dir"_s, u"undo last --data-dir"_s,
                            u"history --data-dir"_s, u"log --data-dir"_s, u"restore --data-dir"_s,
                            u"clean --keep newest --method backup --apply . --target"_s, u"restore --target"_s});
    const QByteArray answers = Program::ended(refused).output;
    QCOMPARE(answers.count("x\xE9: its name is not UTF-8\n"), 7);
    QCOMPARE(answers.count("status 2\n"), 7);
    QVERIFY2(!answers.contains("\nx"), answers.constData());
}

void ScanCommandTest::remembersDigests()
{
    const QStringList folders = {m_tree->path(u"one"_s), m_tree->path(u"two"_s)};
    const QString cache = m_program->dataFolder() + u"/fingerprint_cache"_s;
    QCOMPARE(scan(QStringList{u"--no-cache"_s} + folders).status, 0);
    QVERIFY(!QFile::exists(m_program->dataFolder()));
    QCOMPARE(scan(folders).status, 0);
    QCOMPARE(filesBelow(cache), 2); // the third file has a size of its own
    // Content that nobody could know without reading: it is found only if the cache is used.
    m_tree->write(u"two/b.dat"_s, "xyz");
    m_tree->setModified(u"two/b.dat"_s, modifiedMs);
    QCOMPARE(groupsIn(scanAsJson(folders).output).size(), 1);
    QCOMPARE(groupsIn(scanAsJson(QStringList{u"--no-cache"_s} + folders).output).size(), 0);
}

void ScanCommandTest::unwritableDataFolder()
{
    const QString inTheWay = m_tree->path(u"one/a.txt"_s);
    const ProgramRun run =
        m_program->run({u"scan"_s, u"--data-dir"_s, inTheWay, u"--format"_s, u"json"_s, m_tree->path()});
    const QString warning = u"mirrix-cli: cannot write to %1/fingerprint_cache; digests will not be cached\n"_s;
    QCOMPARE(QString::fromUtf8(run.errors), warning.arg(inTheWay));
    QCOMPARE(groupsIn(run.output).size(), 1);
    QCOMPARE(run.status, 0);
    QCOMPARE(contentOf(inTheWay), "abc");
}

void ScanCommandTest::usersDataFolder()
{
    const QString share = m_tree->path(u"share"_s);
    qputenv("XDG_DATA_HOME", QFile::encodeName(share));
    const bool isChosen = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) == share;
    qunsetenv("XDG_DATA_HOME");
    if (!isChosen)
        QSKIP("the environment does not choose the user's folders here");
    QProcess process;
    m_program->prepare(process, {u"scan"_s, m_tree->path(u"one"_s), m_tree->path(u"two"_s)});
    QProcessEnvironment environment = process.processEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, share);
    process.setProcessEnvironment(environment);
    process.start();
    QCOMPARE(Program::ended(process).status, 0);
    QCOMPARE(filesBelow(share + u"/Mirrix/Mirrix/Mirrix/fingerprint_cache"_s), 2);
}

void ScanCommandTest::portableData_data()
{
    QTest::addColumn<QString>("markerFile");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("switch") << QString() << QStringList{u"--portable"_s};
    QTest::newRow("Mirrix.portable") << u"Mirrix.portable"_s << QStringList();
    QTest::newRow("portable.txt") << u"portable.txt"_s << QStringList();
}

/// A copy of the program in a folder of its own: a marker file beside the built one would speak to other tests too.
void ScanCommandTest::portableData()
{
    QFETCH(QString, markerFile);
    QFETCH(QStringList, arguments);
    const QString suffix = QFile::exists(Program::builtExecutable()) ? QString() : u".exe"_s;
    const QString folder = m_tree->makeFolder(u"program"_s);
    QVERIFY(QFile::copy(Program::builtExecutable() + suffix, folder + u"/mirrix-cli"_s + suffix));
    if (!markerFile.isEmpty())
        m_tree->write(u"program/"_s + markerFile, {});
    const ProgramRun run = Program(folder + u"/mirrix-cli"_s)
                               .run(QStringList{u"scan"_s, m_tree->path(u"one"_s), m_tree->path(u"two"_s)} + arguments);
    QCOMPARE(run.errors, "");
    QCOMPARE(run.status, 0);
    QCOMPARE(filesBelow(folder + u"/Data/fingerprint_cache"_s), 2);
}

void ScanCommandTest::reportIntoFile()
{
    const QString report = m_tree->write(u"out/report.json"_s, "an old and longer report that must go altogether");
    const ProgramRun run = scanAsJson({u"--output"_s, report, m_tree->path(u"one"_s), m_tree->path(u"two"_s)});
    QCOMPARE(run.output, "");
    QCOMPARE(run.errors, "");
    QCOMPARE(run.status, 0);
    QCOMPARE(groupsIn(contentOf(report)).size(), 1);
    QCOMPARE(filesBelow(m_tree->path(u"out"_s)), 1);
}

void ScanCommandTest::reportIntoPipe()
{
    const QString pipe = m_tree->path(u"pipe"_s);
    if (!makePipe(pipe))
        QSKIP("no named pipes here");
    QProcess reader;
    reader.start(u"cat"_s, {pipe});
    QVERIFY(reader.waitForStarted());
    const ProgramRun run = scanAsJson({u"--output"_s, pipe, m_tree->path(u"one"_s), m_tree->path(u"two"_s)});
    QCOMPARE(run.status, 0);
    QVERIFY(reader.waitForFinished());
    QCOMPARE(groupsIn(reader.readAllStandardOutput()).size(), 1);
    QVERIFY2(!QFileInfo(pipe).isFile(), "a file has taken the place of what was written to");
}

void ScanCommandTest::reportIsNotAmongTheFiles()
{
    const QString report = m_tree->path(u"one/report.json"_s);
    QCOMPARE(scanAsJson({u"--output"_s, report, m_tree->path(u"one"_s)}).status, 0);
    QCOMPARE(jsonOf(contentOf(report))[u"filesScanned"_s].toInt(), 1);
    QCOMPARE(groupsIn(contentOf(report)), QList<QStringList>());
}

void ScanCommandTest::reportCannotBeOpened()
{
    for (const QString &report : {m_tree->path(u"missing/report"_s), m_tree->path(u"two"_s)}) {
        const ProgramRun run = scan({u"--output"_s, report, m_tree->path()});
        QVERIFY2(run.errors.startsWith("mirrix-cli: cannot write " + report.toUtf8() + ": "), run.errors.constData());
        QCOMPARE(run.status, 2);
    }
}

/// A shell's limit on the size of files ends a write in its middle, as a full disk does.
void ScanCommandTest::reportOnFullDiskKeepsTheOld()
{
    for (int i = 0; i < 200; ++i)
        m_tree->write(u"one/%1 with a name long enough for a large report"_s.arg(i), "abc");
    const QString report = m_tree->write(u"out/report"_s, "old");
    QProcess process;
    m_program->prepare(process,
                       {u"-c"_s, u"trap '' XFSZ && ulimit -f 8 && exec \"$0\" \"$@\""_s, Program::builtExecutable(),
                        u"scan"_s, u"--no-cache"_s, u"--output"_s, report, m_tree->path(u"one"_s)});
    process.setProgram(u"sh"_s);
    process.start();
    if (!process.waitForStarted())
        QSKIP("no shell that limits the size of files");
    const ProgramRun run = Program::ended(process);
    QVERIFY2(run.errors.startsWith("mirrix-cli: cannot write the report: "), run.errors.constData());
    QCOMPARE(run.status, 1);
    QCOMPARE(contentOf(report), "old");
    QCOMPARE(filesBelow(m_tree->path(u"out"_s)), 1);
}

void ScanCommandTest::closedOutputIsAFailure()
{
    if (!takesNothing(u"/dev/full"_s))
        QSKIP("no device that takes nothing");
    QProcess process;
    m_program->prepare(process, {u"scan"_s, u"--no-cache"_s, m_tree->path()});
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start();
    const ProgramRun run = Program::ended(process);
    QVERIFY2(run.errors.startsWith("mirrix-cli: cannot write the report: "), run.errors.constData());
    QCOMPARE(run.status, 1);
}

void ScanCommandTest::helpAndVersion_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("start");
    const QByteArray usage = "Usage: mirrix-cli COMMAND [OPTIONS] ...\n";
    QTest::newRow("--help") << QStringList{u"--help"_s} << usage;
    QTest::newRow("-h") << QStringList{u"-h"_s} << usage;
    QTest::newRow("help") << QStringList{u"help"_s} << usage;
    QTest::newRow("--version") << QStringList{u"--version"_s} << QByteArray("mirrix-cli 1.0.0\n");
    QTest::newRow("scan --version") << QStringList{u"scan"_s, u"--version"_s} << QByteArray("mirrix-cli 1.0.0\n");
    QTest::newRow("scan --help") << QStringList{u"scan"_s, u"--help"_s} << QByteArray("Usage: ");
}

void ScanCommandTest::helpAndVersion()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, start);
    const ProgramRun run = m_program->run(arguments);
    QVERIFY2(run.output.startsWith(start), run.output.constData());
    QCOMPARE(run.errors, "");
    QCOMPARE(run.status, 0);
    QCOMPARE(m_program->run({}).errors, usageErrorText(u"no command given"_s));
    QCOMPARE(m_program->run({u"find"_s, u"/a"_s}).errors, usageErrorText(u"unknown command \"find\""_s));
}

/// The request to end arrives while the first file is opened.
void ScanCommandTest::interrupted()
{
    const QString report = m_tree->write(u"out/report"_s, "old");
    const QString first = m_tree->path(u"one/a.txt"_s);
    QProcess process;
    m_program->prepare(process, {u"-E"_s,
                                 u"ASAN_OPTIONS=detect_leaks=0"_s,
                                 u"-f"_s,
                                 u"-qq"_s,
                                 u"-o"_s,
                                 u"/dev/null"_s,
                                 u"-P"_s,
                                 first,
                                 u"-e"_s,
                                 u"inject=openat:signal=SIGTERM:when=1"_s,
                                 Program::builtExecutable(),
                                 u"scan"_s,
                                 u"--data-dir"_s,
                                 m_program->dataFolder(),
                                 u"--threads"_s,
                                 u"1"_s,
                                 u"--output"_s,
                                 report,
                                 m_tree->path(u"one"_s),
                                 m_tree->path(u"two"_s)});
    process.setProgram(u"strace"_s);
    process.start();
    const ProgramRun run = Program::ended(process);
    if (process.error() == QProcess::FailedToStart)
        QSKIP("cannot trace processes");
    QCOMPARE(run.errors, "mirrix-cli: cancelled\n");
    QCOMPARE(run.status, 3);
    QCOMPARE(contentOf(report), "old");
    MirrixCore::setCacheRoot(m_program->dataFolder());
    const MirrixCore::Fingerprint known = MirrixCore::lookupFingerprint(first, 3, modifiedMs);
    QCOMPARE(known.quick, MirrixCore::quickHash(first)); // what was known is kept
}

QTEST_GUILESS_MAIN(ScanCommandTest)
#include "tst_scancommand.moc"
