#include "core/match/folders.h"
#include "core/match/hardlinks.h"
#include "core/model/optiontable.h"

#include <QJsonDocument>
#include <QMap>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace MirrixCore;
using namespace Qt::StringLiterals;

namespace {

/// A scan of files given as "path=content" texts, content "-" standing for an empty file: files of equal content, two
/// or more, make a group.
struct MadeScan
{
    /// A number behind a content, as in "1#7", is the file's own: files that share it are names of one file.
    explicit MadeScan(const QStringList &texts)
    {
        QMap<QString, QList<FileEntry>> ofContent;
        for (const QString &text : texts) {
            FileEntry file;
            file.path = text.section(u'=', 0, 0);
            const QString content = text.section(u'=', 1).section(u'#', 0, 0);
            file.fileIndex = text.section(u'#', 1).toULongLong();
            file.hasFileId = file.fileIndex != 0;
            file.linkCount = file.hasFileId ? 2 : 1;
            file.size = content == u"-" ? 0 : content.size();
            files.append(file);
            if (file.size > 0)
                ofContent[content].append(file);
        }
        for (const QList<FileEntry> &members : ofContent) {
            if (members.size() >= 2)
                result.groups.append({u"key"_s, members, 0});
        }
        collapseHardLinks(result.groups);
    }

    QList<FileEntry> files;
    ScanResult result;
    FolderNotes walked;
};

ScanOptions optionsFrom(const QByteArray &json)
{
    ScanOptions options;
    const QString problem = scanOptionsFromJson(QJsonDocument::fromJson(json).object(), options);
    if (!problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    return options;
}

/// Each group as "path path (files, bytes)", paths sorted.
QStringList groupTexts(const QList<FolderGroup> &groups)
{
    QStringList texts;
    for (const FolderGroup &group : groups) {
        QStringList paths;
        for (const FolderEntry &folder : group.folders) {
            paths.append(folder.path);
            if (folder.fileCount != group.fileCount || folder.size != group.size)
                paths.append(u"with other figures"_s);
        }
        paths.sort();
        texts.append(u"%1 (%2, %3)"_s.arg(paths.join(u' ')).arg(group.fileCount).arg(group.size));
    }
    return texts;
}

QStringList pathsOf(const QList<FileEntry> &files)
{
    QStringList paths;
    for (const FileEntry &file : files)
        paths.append(file.path);
    return paths;
}

QString folderAbove(const QString &path)
{
    return path.section(u'/', 0, -2);
}

/// What lies below each folder: path below it -> content. A folder below `root`, or it, is there when files are.
QMap<QString, QMap<QString, QString>> treesOf(const QStringList &texts, const QString &root)
{
    QMap<QString, QMap<QString, QString>> trees;
    for (const QString &text : texts) {
        const QString path = text.section(u'=', 0, 0);
        for (QString folder = folderAbove(path); folder.startsWith(root); folder = folderAbove(folder))
            trees[folder].insert(path.mid(folder.size()), text.section(u'=', 1));
    }
    return trees;
}

/// The groups that comparing the whole trees of every two folders gives, topmost only.
QSet<QString> bruteForce(const QStringList &texts, const QString &root)
{
    const auto trees = treesOf(texts, root);
    QMap<QString, int> copies;
    for (const QString &text : texts)
        ++copies[text.section(u'=', 1)];
    const auto isWhole = [&](const QString &folder) {
        const auto &tree = trees[folder];
        return std::all_of(tree.begin(), tree.end(),
                           [&](const QString &content) { return content == u"-" || copies[content] >= 2; });
    };
    const auto areEqual = [&](const QString &a, const QString &b) {
        return a != b && trees.contains(a) && trees.contains(b) && isWhole(a) && trees[a] == trees[b];
    };
    QSet<QString> groups;
    for (const QString &first : trees.keys()) {
        QStringList same{first};
        for (const QString &other : trees.keys()) {
            if (areEqual(first, other))
                same.append(other);
        }
        bool hasNewPair = false;
        for (const QString &a : std::as_const(same)) {
            for (const QString &b : std::as_const(same))
                hasNewPair |= a != b && !areEqual(folderAbove(a), folderAbove(b));
        }
        qsizetype bytes = 0;
        for (const QString &content : trees[first])
            bytes += content == u"-" ? 0 : content.size();
        same.sort();
        if (hasNewPair)
            groups.insert(u"%1 (%2, %3)"_s.arg(same.join(u' ')).arg(trees[first].size()).arg(bytes));
    }
    return groups;
}

} // namespace

class FoldersTest : public QObject
{
    Q_OBJECT

private slots:
    void findsDuplicates_data();
    void findsDuplicates();
    void equalsBruteForce_data();
    void equalsBruteForce();
    void needsContents_data();
    void needsContents();
    void heedsWhatHoldsNoFiles_data();
    void heedsWhatHoldsNoFiles();
    void ignoresFoldersWithUnreadThings();
    void keepsGroupsOfDuplicateFolders();
    void remaining_data();
    void remaining();
};

void FoldersTest::findsDuplicates_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("roots");
    const auto row = [](const char *name, const QStringList &files, const QStringList &expected,
                        const QStringList &roots = {u"/r"_s}) { QTest::newRow(name) << files << expected << roots; };
    row("two folders", {u"/r/a/x=1"_s, u"/r/b/x=1"_s}, {u"/r/a /r/b (1, 1)"_s});
    row("other name", {u"/r/a/x=1"_s, u"/r/b/y=1"_s}, {});
    row("a file of its own", {u"/r/a/x=1"_s, u"/r/b/x=1"_s, u"/r/b/y=2"_s}, {});
    row("empty files count", {u"/r/a/x=1"_s, u"/r/a/e=-"_s, u"/r/b/x=1"_s}, {});
    row("and are equal", {u"/r/a/x=1"_s, u"/r/a/e=-"_s, u"/r/b/x=1"_s, u"/r/b/e=-"_s}, {u"/r/a /r/b (2, 1)"_s});
    row("topmost only", {u"/r/a/s/t/x=1"_s, u"/r/b/s/t/x=1"_s}, {u"/r/a /r/b (1, 1)"_s});
    row("a third below keeps them", {u"/r/a/s/x=1"_s, u"/r/b/s/x=1"_s, u"/r/c/s/x=1"_s, u"/r/c/y=2"_s},
        {u"/r/a/s /r/b/s /r/c/s (1, 1)"_s, u"/r/a /r/b (1, 1)"_s});
    row("twins within keep them", {u"/r/a/s/x=1"_s, u"/r/a/t/x=1"_s, u"/r/b/s/x=1"_s, u"/r/b/t/x=1"_s},
        {u"/r/a/s /r/a/t /r/b/s /r/b/t (1, 1)"_s, u"/r/a /r/b (2, 2)"_s});
    row("at different depths", {u"/r/a/x=1"_s, u"/r/b/c/d/x=1"_s}, {u"/r/a /r/b/c/d (1, 1)"_s});
    row("a file is no folder", {u"/r/a/s=1"_s, u"/r/b/s/x=1"_s}, {});
    row("most to free first", {u"/r/a/x=12"_s, u"/r/b/x=12"_s, u"/r/c/y=123"_s, u"/r/d/y=123"_s},
        {u"/r/c /r/d (1, 3)"_s, u"/r/a /r/b (1, 2)"_s});
    row("roots themselves", {u"/r/x=1"_s, u"/q/x=1"_s}, {u"/q /r (1, 1)"_s}, {u"/r/"_s, u"/q"_s});
    row("nothing above the roots", {u"/1/r/x=1"_s, u"/2/r/x=1"_s}, {u"/1/r /2/r (1, 1)"_s}, {u"/1/r"_s, u"/2/r"_s});
    row("roots within each other", {u"/r/s/x=1"_s, u"/r/t/x=1"_s, u"/r/y=2"_s}, {u"/r/s /r/t (1, 1)"_s},
        {u"/r/s"_s, u"/r"_s});
    row("a name of the other's file", {u"/r/a/x=1#7"_s, u"/r/a/y=2"_s, u"/r/b/x=1#7"_s, u"/r/b/y=2"_s},
        {u"/r/a /r/b (2, 2)"_s});
    row("a name of a copy's file", {u"/r/a/x=1#7"_s, u"/r/b/x=1#7"_s, u"/r/c/x=1"_s}, {u"/r/a /r/b /r/c (1, 1)"_s});
    row("names of other files", {u"/r/a/x=1#7"_s, u"/r/a/y=2"_s, u"/r/b/x=3#8"_s, u"/r/b/y=2"_s}, {});
    row("only names of the same files", {u"/r/a/x=1#7"_s, u"/r/b/x=1#7"_s}, {});
    row("drives", {u"C:/a/x=1"_s, u"D:/a/x=1"_s}, {u"C:/ D:/ (1, 1)"_s}, {u"C:/"_s, u"D:/"_s});
}

void FoldersTest::findsDuplicates()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, roots);
    ScanOptions options;
    options.roots = roots;
    const MadeScan scan(files);
    QTEST(groupTexts(findDuplicateFolders(scan.files, scan.walked, scan.result, options)), "expected");
}

void FoldersTest::equalsBruteForce_data()
{
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("contents");
    QTest::addColumn<int>("depth");
    QTest::newRow("some contents") << 20 << 3 << 4;
    QTest::newRow("deep") << 40 << 2 << 6;
    QTest::newRow("many contents") << 60 << 40 << 3;
}

/// Random trees, with random folders copied to random places, so that equal ones are frequent.
void FoldersTest::equalsBruteForce()
{
    QFETCH(int, files);
    QFETCH(int, contents);
    QFETCH(int, depth);
    const QString root = u"/r"_s;
    ScanOptions options;
    options.roots = QStringList(root);
    qsizetype found = 0;
    for (quint32 seed = 0; seed < 60; ++seed) {
        QRandomGenerator random(seed);
        QMap<QString, QString> contentOf;
        const auto randomFolder = [&](int most) {
            QString folder = root;
            for (int level = random.bounded(most); level > 0; --level)
                folder += u"/d%1"_s.arg(random.bounded(3));
            return folder;
        };
        for (int i = 0; i < files; ++i) {
            const int content = random.bounded(contents + 1);
            contentOf.insert(randomFolder(depth) + u"/f%1"_s.arg(random.bounded(2)),
                             content == 0 ? u"-"_s : QString(content, u'x'));
        }
        for (int copy = 0; copy < 3; ++copy) {
            const QString from = randomFolder(depth) + u'/';
            const QString to = randomFolder(depth) + u"/copy/"_s;
            const auto before = contentOf;
            for (auto file = before.begin(); file != before.end(); ++file) {
                if (file.key().startsWith(from))
                    contentOf.insert(to + file.key().mid(from.size()), file.value());
            }
        }
        QStringList texts;
        for (auto file = contentOf.begin(); file != contentOf.end(); ++file)
            texts.append(file.key() + u'=' + file.value());
        std::shuffle(texts.begin(), texts.end(), random);
        const MadeScan scan(texts);
        const QStringList groups = groupTexts(findDuplicateFolders(scan.files, scan.walked, scan.result, options));
        QCOMPARE(QSet<QString>(groups.begin(), groups.end()), bruteForce(texts, root));
        found += groups.size();
    }
    QVERIFY(found > 60);
}

void FoldersTest::needsContents_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const QByteArray &options, const QStringList &expected) {
        QTest::newRow(options.constData()) << options << expected;
    };
    const QStringList both{u"/r/c /r/d (1, 1)"_s, u"/r/a /r/b (1, 1)"_s};
    row(R"({"contentMatch": 0})", both);
    row(R"({"contentMatch": 1})", {});
    row(R"({"contentMatch": 2})", {});
    row(R"({"searchMode": 1})", {});
    row(R"({"searchMode": 2, "contentMatch": 2})", both);
    row(R"({"searchMode": 2, "mediaCompareDepth": 4})", {});
    row(R"({"searchMode": 3, "mediaCompareDepth": 4})", both);
    row(R"({"searchMode": 3, "mediaCompareDepthAlt": 2})", {});
    row(R"({"locations": [{"path": "/r", "findKind": 1}]})", {});
    row(R"({"locations": [{"path": "/r"}, {"path": "/r/c", "findKind": 1}, {"path": "/r/d", "findKind": 2}]})",
        {u"/r/a /r/b (1, 1)"_s});
}

void FoldersTest::needsContents()
{
    QFETCH(QByteArray, options);
    const MadeScan scan({u"/r/a/x=1"_s, u"/r/b/x=1"_s, u"/r/c/y=2"_s, u"/r/d/y=2"_s, u"/r/z=3"_s});
    ScanOptions parsed = optionsFrom(options);
    parsed.roots = QStringList(u"/r"_s);
    QStringList found = groupTexts(findDuplicateFolders(scan.files, scan.walked, scan.result, parsed));
    QFETCH(QStringList, expected);
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

/// Both in the notes of a walk: "-" marks a folder of which something was left out, the others are empty.
void FoldersTest::heedsWhatHoldsNoFiles_data()
{
    QTest::addColumn<QStringList>("noted");
    QTest::addColumn<QStringList>("expected");
    const QString whole = u"/r/a /r/b (2, 2)"_s;
    const QString below = u"/r/a/s /r/b/s (1, 1)"_s;
    QTest::newRow("nothing") << QStringList() << QStringList(whole);
    QTest::newRow("left out elsewhere") << QStringList(u"-/r/c"_s) << QStringList(whole);
    QTest::newRow("left out above") << QStringList(u"-/r/a"_s) << QStringList(below);
    QTest::newRow("left out below") << QStringList(u"-/r/a/s"_s) << QStringList();
    QTest::newRow("left out of a folder without files") << QStringList(u"-/r/a/t"_s) << QStringList(below);
    QTest::newRow("empty in one") << QStringList(u"/r/a/t"_s) << QStringList(below);
    QTest::newRow("empty in both") << QStringList({u"/r/a/t"_s, u"/r/b/t"_s}) << QStringList(whole);
    QTest::newRow("empty under other names") << QStringList({u"/r/a/t"_s, u"/r/b/u"_s}) << QStringList(below);
    QTest::newRow("empty at other depths") << QStringList({u"/r/a/t"_s, u"/r/b/t/t"_s}) << QStringList(below);
    QTest::newRow("empty ones alone are no group") << QStringList({u"/r/c/t"_s, u"/r/d/t"_s}) << QStringList(whole);
}

void FoldersTest::heedsWhatHoldsNoFiles()
{
    QFETCH(QStringList, noted);
    MadeScan scan({u"/r/a/x=1"_s, u"/r/a/s/y=2"_s, u"/r/b/x=1"_s, u"/r/b/s/y=2"_s});
    for (const QString &note : noted)
        (note.startsWith(u'-') ? scan.walked.partial : scan.walked.empty).append(note.mid(note.startsWith(u'-')));
    ScanOptions options;
    options.roots = QStringList(u"/r"_s);
    QTEST(groupTexts(findDuplicateFolders(scan.files, scan.walked, scan.result, options)), "expected");
}

void FoldersTest::ignoresFoldersWithUnreadThings()
{
    const QString whole = u"/r/a /r/b (2, 2)"_s;
    const QString below = u"/r/a/s /r/b/s (1, 1)"_s;
    const QMap<QString, QStringList> expected = {{u"/other/x"_s, {whole}},
                                                 {u"/r/a/cloud"_s, {below}},
                                                 {u"/r/a/secret/x"_s, {below}},
                                                 {u"/r/a/s"_s, {}},
                                                 {u"/r/a/s/t/u"_s, {}}};
    ScanOptions options;
    options.roots = QStringList(u"/r"_s);
    for (auto unread = expected.begin(); unread != expected.end(); ++unread) {
        MadeScan scan({u"/r/a/x=1"_s, u"/r/a/s/y=2"_s, u"/r/b/x=1"_s, u"/r/b/s/y=2"_s});
        scan.result.unread.append({unread.key(), u"no"_s});
        QCOMPARE(groupTexts(findDuplicateFolders(scan.files, scan.walked, scan.result, options)), unread.value());
    }
}

void FoldersTest::keepsGroupsOfDuplicateFolders()
{
    MadeScan scan({u"/r/a/s/x=1"_s, u"/r/b/s/x=1"_s, u"/r/y=1"_s, u"/r/a/s/z=22"_s, u"/r/b/s/z=22"_s, u"/r/p=333"_s,
                   u"/r/q=333"_s, u"/r/ab/s/z=55"_s, u"/r/c/z=55"_s, u"/r/c/n=7"_s});
    const QList<FolderGroup> folders{{{{u"/r/a"_s, 2, 3}, {u"/r/b"_s, 2, 3}}, 2, 3}};
    keepGroupsOfDuplicateFolders(scan.result.groups, folders);
    QCOMPARE(scan.result.groups.size(), 2);
    QCOMPARE(pathsOf(scan.result.groups[0].files), QStringList({u"/r/a/s/x"_s, u"/r/b/s/x"_s, u"/r/y"_s}));
    QCOMPARE(pathsOf(scan.result.groups[1].files), QStringList({u"/r/a/s/z"_s, u"/r/b/s/z"_s}));
}

void FoldersTest::remaining_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("not asked for") << QByteArray("{}") << QStringList();
    QTest::newRow("asked for") << QByteArray(R"({"showRemaining": true})")
                               << QStringList({u"/a/2"_s, u"/b/2"_s, u"/b/c/2"_s});
    QTest::newRow("one location") << QByteArray(R"({"locations": [{"path": "/a", "showRemaining": true}]})")
                                  << QStringList({u"/a/2"_s});
    QTest::newRow("locations count when there are some")
        << QByteArray(R"({"showRemaining": true, "locations": [{"path": "/a"}]})") << QStringList();
    QTest::newRow("innermost counts") << QByteArray(R"({"locations": [{"path": "/b/c"},
                                                       {"path": "/b/", "showRemaining": true}]})")
                                      << QStringList({u"/b/2"_s});
}

void FoldersTest::remaining()
{
    QFETCH(QByteArray, options);
    const MadeScan scan({u"/a/1=x"_s, u"/a/2=y"_s, u"/b/1=x"_s, u"/b/2=-"_s, u"/b/c/2=z"_s});
    QTEST(pathsOf(remainingFiles(scan.files, scan.result.groups, optionsFrom(options))), "expected");
}

QTEST_APPLESS_MAIN(FoldersTest)
#include "tst_folders.moc"
