#include "core/match/folders.h"
#include "core/match/hardlinks.h"
#include "tests/support/coretest.h"

#include <QMap>
#include <QRandomGenerator>

namespace {

/// A scan of files given as "path=content" texts, content "-" meaning an empty file: files of equal content, two or
/// more, make a group.
struct MadeScan
{
    /// A number behind a content, as in "1#7", is the file's own: files that share it are names of one file.
    explicit MadeScan(const QStringList &texts)
    {
        QMap<QString, QList<FileEntry>> ofContent;
        for (const QString &text : texts) {
            const QString content = text.section(u'=', 1).section(u'#', 0, 0);
            FileEntry file = fileAt(text.section(u'=', 0, 0), content == u"-" ? 0 : content.size());
            file.fileIndex = text.section(u'#', 1).toULongLong();
            file.hasFileId = file.fileIndex != 0;
            file.linkCount = file.hasFileId ? 2 : 1;
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

    explicit MadeScan(const QString &texts)
        : MadeScan(texts.split(u' '))
    {}

    /// The groups of duplicate folders, each as "path path (files,bytes)", paths sorted.
    QStringList folderGroups(ScanOptions options = {}, const QStringList &roots = {u"/r"_s}) const
    {
        options.roots = roots;
        QStringList texts;
        for (const FolderGroup &group : findDuplicateFolders(files, walked, result, options)) {
            QStringList paths;
            for (const FolderEntry &folder : group.folders) {
                const bool isAlike = folder.fileCount == group.fileCount && folder.size == group.size;
                paths.append(folder.path + (isAlike ? QString() : u"!"_s));
            }
            texts.append(u"%1 (%2,%3)"_s.arg(sortedText({paths})).arg(group.fileCount).arg(group.size));
        }
        return texts;
    }

    QList<FileEntry> files;
    ScanResult result;
    FolderNotes walked;
};

QString folderAbove(const QString &path)
{
    return path.section(u'/', 0, -2);
}

/// The groups that comparing the whole trees of every two folders gives, topmost only, sorted.
QStringList bruteForce(const QStringList &texts, const QString &root)
{
    QMap<QString, QMap<QString, QString>> trees; // path below the folder -> content
    QMap<QString, int> copies;
    for (const QString &text : texts) {
        const QString path = text.section(u'=', 0, 0);
        ++copies[text.section(u'=', 1)];
        for (QString folder = folderAbove(path); folder.startsWith(root); folder = folderAbove(folder))
            trees[folder].insert(path.mid(folder.size()), text.section(u'=', 1));
    }
    const auto isWhole = [&](const QString &folder) {
        const auto &tree = trees[folder];
        return std::all_of(tree.begin(), tree.end(),
                           [&](const QString &content) { return content == u"-" || copies[content] >= 2; });
    };
    const auto areEqual = [&](const QString &a, const QString &b) {
        return a != b && trees.contains(a) && trees.contains(b) && isWhole(a) && trees[a] == trees[b];
    };
    QStringList groups;
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
        if (hasNewPair)
            groups.append(u"%1 (%2,%3)"_s.arg(sortedText({same})).arg(trees[first].size()).arg(bytes));
    }
    groups.removeDuplicates();
    groups.sort();
    return groups;
}

const QString twoTrees = u"/r/a/x=1 /r/a/s/y=2 /r/b/x=1 /r/b/s/y=2"_s;
const QString whole = u"/r/a /r/b (2,2)"_s;
const QString below = u"/r/a/s /r/b/s (1,1)"_s;

} // namespace

class FoldersTest : public QObject
{
    Q_OBJECT

private slots:
    void findsDuplicates_data()
    {
        const auto rowIn = columns<QString, QString, QString>({"files", "expected", "roots"});
        const auto row = [&](const char *name, const QString &files, const QString &expected) {
            rowIn(name, files, expected, u"/r"_s);
        };
        row("other name", u"/r/a/x=1 /r/b/y=1"_s, {});
        row("a file of its own", u"/r/a/x=1 /r/b/x=1 /r/b/y=2"_s, {});
        row("empty files count", u"/r/a/x=1 /r/a/e=- /r/b/x=1"_s, {});
        row("and are equal", u"/r/a/x=1 /r/a/e=- /r/b/x=1 /r/b/e=-"_s, u"/r/a /r/b (2,1)"_s);
        row("topmost only", u"/r/a/s/t/x=1 /r/b/s/t/x=1"_s, u"/r/a /r/b (1,1)"_s);
        row("a third below keeps them", u"/r/a/s/x=1 /r/b/s/x=1 /r/c/s/x=1 /r/c/y=2"_s,
            u"/r/a/s /r/b/s /r/c/s (1,1)|/r/a /r/b (1,1)"_s);
        row("twins within keep them", u"/r/a/s/x=1 /r/a/t/x=1 /r/b/s/x=1 /r/b/t/x=1"_s,
            u"/r/a/s /r/a/t /r/b/s /r/b/t (1,1)|/r/a /r/b (2,2)"_s);
        row("at different depths", u"/r/a/x=1 /r/b/c/d/x=1"_s, u"/r/a /r/b/c/d (1,1)"_s);
        row("a file is no folder", u"/r/a/s=1 /r/b/s/x=1"_s, {});
        row("most to free first", u"/r/a/x=12 /r/b/x=12 /r/c/y=123 /r/d/y=123"_s, u"/r/c /r/d (1,3)|/r/a /r/b (1,2)"_s);
        row("a name of the other's file", u"/r/a/x=1#7 /r/a/y=2 /r/b/x=1#7 /r/b/y=2"_s, u"/r/a /r/b (2,2)"_s);
        row("a name of a copy's file", u"/r/a/x=1#7 /r/b/x=1#7 /r/c/x=1"_s, u"/r/a /r/b /r/c (1,1)"_s);
        row("names of other files", u"/r/a/x=1#7 /r/a/y=2 /r/b/x=3#8 /r/b/y=2"_s, {});
        row("only names of the same files", u"/r/a/x=1#7 /r/b/x=1#7"_s, {});
        rowIn("roots themselves", u"/r/x=1 /q/x=1"_s, u"/q /r (1,1)"_s, u"/r/ /q"_s);
        rowIn("nothing above the roots", u"/1/r/x=1 /2/r/x=1"_s, u"/1/r /2/r (1,1)"_s, u"/1/r /2/r"_s);
        rowIn("roots in each other", u"/r/s/x=1 /r/t/x=1 /r/y=2"_s, u"/r/s /r/t (1,1)"_s, u"/r/s /r"_s);
        rowIn("drives", u"C:/a/x=1 D:/a/x=1"_s, u"C:/ D:/ (1,1)"_s, u"C:/ D:/"_s);
    }

    void findsDuplicates()
    {
        QFETCH(QString, files);
        QFETCH(QString, roots);
        QTEST(MadeScan(files).folderGroups({}, roots.split(u' ')).join(u'|'), "expected");
    }

    void equalsBruteForce_data()
    {
        const auto row = columns<int, int, int>({"files", "contents", "depth"});
        row("some contents", 20, 3, 4);
        row("deep", 40, 2, 6);
        row("many contents", 60, 40, 3);
    }

    /// Random trees, with random folders copied to random places, so that equal ones are frequent.
    void equalsBruteForce()
    {
        QFETCH(int, files);
        QFETCH(int, contents);
        QFETCH(int, depth);
        const QString root = u"/r"_s;
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
            QStringList groups = MadeScan(texts).folderGroups();
            groups.sort();
            QCOMPARE(groups, bruteForce(texts, root));
            found += groups.size();
        }
        QVERIFY(found > 60);
    }

    void needsContents_data()
    {
        const auto row = columns<QString>({"expected"}); // the names are the options
        const QString first = u"/r/a /r/b (1,1)"_s;
        const QString both = first + u"|/r/c /r/d (1,1)"_s;
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
            first);
    }

    void needsContents()
    {
        const MadeScan scan(u"/r/a/x=1 /r/b/x=1 /r/c/y=2 /r/d/y=2 /r/z=3"_s);
        QStringList found = scan.folderGroups(optionsFrom(QTest::currentDataTag()));
        found.sort();
        QTEST(found.join(u'|'), "expected");
    }

    /// Both in the notes of a walk: "-" marks a folder of which something was left out, the others are empty.
    void heedsWhatHoldsNoFiles_data()
    {
        const auto row = columns<QString, QString>({"noted", "expected"});
        row("left out elsewhere", u"-/r/c"_s, whole);
        row("left out above", u"-/r/a"_s, below);
        row("left out below", u"-/r/a/s"_s, {});
        row("left out of a folder without files", u"-/r/a/t"_s, below);
        row("empty in one", u"/r/a/t"_s, below);
        row("empty in both", u"/r/a/t /r/b/t"_s, whole);
        row("empty under other names", u"/r/a/t /r/b/u"_s, below);
        row("empty at other depths", u"/r/a/t /r/b/t/t"_s, below);
        row("empty ones alone are no group", u"/r/c/t /r/d/t"_s, whole);
    }

    void heedsWhatHoldsNoFiles()
    {
        QFETCH(QString, noted);
        MadeScan scan(twoTrees);
        for (const QString &note : noted.split(u' '))
            (note.startsWith(u'-') ? scan.walked.partial : scan.walked.empty).append(note.mid(note.startsWith(u'-')));
        QTEST(scan.folderGroups().join(u'|'), "expected");
    }

    void ignoresFoldersWithUnreadThings()
    {
        const QMap<QString, QString> expected = {{u"/other/x"_s, whole},
                                                 {u"/r/a/cloud"_s, below},
                                                 {u"/r/a/secret/x"_s, below},
                                                 {u"/r/a/s"_s, {}},
                                                 {u"/r/a/s/t/u"_s, {}}};
        for (auto unread = expected.begin(); unread != expected.end(); ++unread) {
            MadeScan scan(twoTrees);
            scan.result.unread.append({unread.key(), u"no"_s});
            QCOMPARE(scan.folderGroups().join(u'|'), unread.value());
        }
    }

    void keepsGroupsOfDuplicateFolders()
    {
        MadeScan scan(u"/r/a/s/x=1 /r/b/s/x=1 /r/y=1 /r/a/s/z=22 /r/b/s/z=22 /r/p=333 /r/q=333 /r/ab/s/z=55 "
                      "/r/c/z=55 /r/c/n=7"_s);
        keepGroupsOfDuplicateFolders(scan.result.groups, {{{{u"/r/a"_s, 2, 3}, {u"/r/b"_s, 2, 3}}, 2, 3}});
        QList<QStringList> kept;
        for (const DuplicateGroup &group : scan.result.groups)
            kept.append(pathsOf(group.files));
        QCOMPARE(sortedText(kept), u"/r/a/s/x /r/b/s/x /r/y|/r/a/s/z /r/b/s/z"_s);
    }

    void remaining_data()
    {
        const auto row = columns<QString>({"expected"}); // the names are the options
        row("{}", {});
        row(R"({"showRemaining": true})", u"/a/2 /b/2 /b/c/2"_s);
        row(R"({"locations": [{"path": "/a", "showRemaining": true}]})", u"/a/2"_s);
        row(R"({"showRemaining": true, "locations": [{"path": "/a"}]})", {});
        row(R"({"locations": [{"path": "/b/c"}, {"path": "/b/", "showRemaining": true}]})", u"/b/2"_s);
    }

    void remaining()
    {
        const MadeScan scan(u"/a/1=x /a/2=y /b/1=x /b/2=- /b/c/2=z"_s);
        const ScanOptions options = optionsFrom(QTest::currentDataTag());
        QTEST(pathsOf(remainingFiles(scan.files, scan.result.groups, options)).join(u' '), "expected");
    }
};

QTEST_APPLESS_MAIN(FoldersTest)
#include "tst_folders.moc"
