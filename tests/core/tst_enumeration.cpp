#include "core/walk/enumeration.h"

#include "core/platform/filereader.h"
#include "core/platform/filestatus.h"
#include "tests/support/coretest.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryFile>

#include <array>

namespace {

/// What the walk takes, in alphabetical order; a file taken twice is listed twice.
QString walked(const TempTree &tree, const ScanOptions &options)
{
    return sortedText({relativePaths(enumerateFiles(options, {}, {}), tree)});
}

/// Options for the whole tree with more of them in JSON.
ScanOptions optionsWith(const TempTree &tree, const QByteArray &json)
{
    ScanOptions options = optionsFrom(json);
    options.roots = QStringList(tree.path());
    return options;
}

} // namespace

class EnumerationTest : public QObject
{
    Q_OBJECT

private slots:
    void walksEverythingByDefault()
    {
        const TempTree tree;
        tree.writeAll(u"a.txt b/.c b/d/e/f.JPG"_s, "123");
        tree.makeFolder(u"empty"_s);
        tree.setModified(u"b/d/e/f.JPG"_s, 1234567890123);
        QCOMPARE(walked(tree, optionsFor(tree)), u"a.txt b/.c b/d/e/f.JPG"_s);
        const QList<FileEntry> files = enumerateFiles(optionsFor(tree, {u"b/d"_s}), {}, {});
        QCOMPARE(files.size(), 1);
        FileEntry expected = fileAt(tree.path(u"b/d/e/f.JPG"_s), 3);
        expected.modifiedMs = 1234567890123;
        expected.createdMs = files[0].createdMs;
        expected.allocatedBytes = files[0].allocatedBytes;
        QVERIFY(files[0] == expected);
        ScanOptions none;
        none.locations.append({tree.path(), true, 0, false});
        QCOMPARE(enumerateFiles(none, {}, {}).size(), 0);
        none.roots = QStringList(QString()); // not the current folder
        QCOMPARE(enumerateFiles(none, {}, {}).size(), 0);
    }

    void filters_data()
    {
        const auto row = columns<QByteArray, QString>({"options", "taken"});
        const QString all = u".git/[x] 1/a 1/aab.ISO.txt a.iso b.jpg c.tar.gz d.JPG none"_s;
        row("no filter", R"({"minSize": -5, "maxSize": -1})", all);
        row("extension, any case", R"({"includeExtensions": ["JpG"]})", u"b.jpg d.JPG"_s);
        row("two extensions", R"({"includeExtensions": ["gz", ".iso"]})", u"a.iso c.tar.gz"_s);
        row("never these", R"({"excludeExtensions": ["jpg", "GZ", "iso", "txt"]})", u".git/[x] 1/a none"_s);
        row("never wins", R"({"includeExtensions": ["jpg", "iso"], "excludeExtensions": ["JPG"]})", u"a.iso"_s);
        row("no part of one", R"({"includeExtensions": ["jp", "tar.gz", "none"]})", {});
        row("folders are entered", R"({"includeNames": ["A"]})", u"1/a"_s);
        row("star, any case", R"({"includeNames": ["*.Iso"]})", u"a.iso"_s);
        row("star is tried again", R"({"includeNames": ["*ab*.t?t*"]})", u"1/aab.ISO.txt"_s);
        row("one more character", R"({"includeNames": ["a?"]})", {});
        row("set", R"({"includeNames": ["[b-c].[a-k]*", "[!a-r]*"]})", u".git/[x] b.jpg"_s);
        row("brackets", "{\"includeNames\": [\"[[]x]\", \"[b\"]}", u".git/[x]"_s);
        row("folder is left out", R"({"excludeNames": ["*.git", "1"]})", u"a.iso b.jpg c.tar.gz d.JPG none"_s);
        row("leaving out wins", R"({"includeNames": ["a*"], "excludeNames": ["*.iso"]})", u"1/a 1/aab.ISO.txt"_s);
        row("size, both ends inclusive", R"({"minSize": 1, "maxSize": 6})", u"1/a a.iso b.jpg d.JPG"_s);
        row("size, above", R"({"minSize": 7})", u"1/aab.ISO.txt c.tar.gz"_s);
        row("size, below", R"({"maxSize": 4})", u".git/[x] 1/a none"_s);
        row("modified, both ends inclusive", R"({"modifiedFromMs": 1000000000000, "modifiedToMs": 1000000001000})",
            u"a.iso b.jpg"_s);
        row("modified, from", R"({"modifiedFromMs": 1000000000001, "modifiedToMs": 1000000002000})", u"b.jpg"_s);
        row("modified, to; unknown is in no range", R"({"modifiedToMs": 1000000000999})", u"a.iso"_s);
        row("modified, between", R"({"modifiedFromMs": 1000000000001, "modifiedToMs": 1000000000999})", {});
        row("modified, from any", R"({"modifiedFromMs": 1})",
            u".git/[x] 1/a 1/aab.ISO.txt a.iso b.jpg c.tar.gz d.JPG"_s);
    }

    void filters()
    {
        QFETCH(QByteArray, options);
        const TempTree tree;
        tree.writeAll(u".git/[x] none"_s, "");
        tree.write(u"1/a"_s, "x");
        tree.writeAll(u"a.iso b.jpg d.JPG"_s, "123456");
        tree.writeAll(u"1/aab.ISO.txt c.tar.gz"_s, "1234567");
        tree.setModified(u"a.iso"_s, 1000000000000);
        tree.setModified(u"b.jpg"_s, 1000000001000);
        tree.setModified(u"none"_s, -86400000); // unknown
        const ScanOptions parsed = optionsWith(tree, options);
        QTEST(walked(tree, parsed), "taken");
        FolderNotes notes;
        const qsizetype taken = enumerateFiles(parsed, {}, {}, nullptr, &notes).size();
        const qsizetype inFolders = options.contains("*.git") ? 1 : 0; // a folder with two files is left out
        QCOMPARE(taken + notes.leftOut.files + notes.leftOut.folders + inFolders, 8);
    }

    void filtersCreated()
    {
        const TempTree tree;
        tree.write(u"a"_s, "x");
        ScanOptions options = optionsFor(tree);
        const qint64 created = enumerateFiles(options, {}, {}).constFirst().createdMs;
        if (created < 1)
            QSKIP("no creation times here");
        using Range = std::array<qint64, 3>; // from, to, how many are taken
        for (const auto &[from, to, taken] :
             {Range{created, created, 1}, Range{created + 1, 0, 0}, Range{0, created - 1, 0}}) {
            options.createdFromMs = from;
            options.createdToMs = to;
            QCOMPARE(enumerateFiles(options, {}, {}).size(), taken);
        }
    }

    void takesSingleFiles()
    {
        const TempTree tree;
        tree.writeAll(u"a/1 a/2 b/3 b/4.tmp out/5 c.tmp/d/6"_s);
        ScanOptions options = optionsFor(tree, {u"b"_s});
        for (const QString &name :
             {u"a/1"_s, u"a/1"_s, u"a/../b/3"_s, u"a/none"_s, u"none/6"_s, u"out/5"_s, u"c.tmp/d/6"_s, u"a"_s})
            options.files.append(tree.path(name));
        options.excludeFolders = {tree.path(u"out"_s)};
        options.excludeNames = {u"*.tmp"_s};
        if (tree.symbolicLink(u"a/2"_s, u"a/link"_s))
            options.files.append(tree.path(u"a/link"_s));
        QCOMPARE(walked(tree, options), u"a/1 b/3"_s);
        QList<UnreadPath> unread;
        QCOMPARE(enumerateFiles(options, {}, {}, &unread).size(), 2);
        QVERIFY(unread.contains(UnreadPath{tree.path(u"a/none"_s), u"no such file"_s}));
        QVERIFY(unread.contains(UnreadPath{tree.path(u"a"_s), u"not a file"_s}));
    }

    void skipsHidden()
    {
        const TempTree tree;
        tree.writeAll(u".hidden plain folder/.inner .folder/plain .folder/sub/plain"_s);
        for (const QString &path : {u".hidden"_s, u"folder/.inner"_s, u".folder"_s}) {
            if (!hide(tree.path(path)))
                QSKIP("nothing is hidden here");
        }
        ScanOptions options = optionsWith(tree, R"({"skipHidden": true})");
        QCOMPARE(walked(tree, options), u"plain"_s);
        options.roots = QStringList(tree.path(u".folder"_s)); // a root is walked though hidden
        QCOMPARE(walked(tree, options), u".folder/plain .folder/sub/plain"_s);
    }

    void leavesOutExcludedFolders()
    {
        const TempTree tree;
        tree.writeAll(u"keep/a keep/Skip/b keep/Skip/deep/c keep/Skip2/d skip/e"_s);
        ScanOptions options = optionsFor(tree);
        options.excludeFolders = {tree.path(u"keep/x/../skip/"_s), QString()};
        QCOMPARE(walked(tree, options), u"keep/Skip2/d keep/a skip/e"_s);
    }

    void skipsRootsOnlyWhenListed()
    {
        const TempTree tree;
        tree.writeAll(u"out/a out/root/b out/root/sub/c"_s);
        ScanOptions options = optionsFor(tree, {u"out/root"_s});
        options.excludeFolders = QStringList(tree.path(u"out"_s));
        // The root is walked all the same, but its subfolders lie in an excluded folder.
        QCOMPARE(walked(tree, options), u"out/root/b"_s);
        options.excludeFolders = QStringList(tree.path(u"OUT/Root/"_s));
        QCOMPARE(walked(tree, options), QString());
        options.roots.append(tree.path(u"out"_s));
        QCOMPARE(walked(tree, options), u"out/a"_s);
    }

    void leavesOutWhatLinksHide_data()
    {
        const auto row = columns<QString, QString, QString>({"excluded", "root", "taken"});
        row("excluded by a link", u"to_sub"_s, u"real"_s, u"real/keep/a"_s);
        row("root by a link", u"real/sub"_s, u"link"_s, u"link/keep/a"_s);
        row("both by links", u"to_sub"_s, u"link"_s, u"link/keep/a"_s);
        row("root leads to it", u"real/sub"_s, u"to_sub"_s, {});
        row("link leads to the root", u"to_sub"_s, u"real/sub"_s, {});
        row("root leads into it", u"real"_s, u"to_sub"_s, u"to_sub/b"_s);
        row("another folder", u"real/keep"_s, u"to_sub"_s, u"to_sub/b to_sub/deep/c"_s);
    }

    void leavesOutWhatLinksHide()
    {
        QFETCH(QString, excluded);
        QFETCH(QString, root);
        const TempTree tree;
        tree.writeAll(u"real/keep/a real/sub/b real/sub/deep/c"_s);
        if (!tree.symbolicLink(u"real"_s, u"link"_s) || !tree.symbolicLink(u"real/sub"_s, u"to_sub"_s))
            QSKIP("no symbolic links here");
        ScanOptions options = optionsFor(tree, {root});
        options.excludeFolders = {tree.path(u"no such folder"_s), tree.path(excluded)};
        QTEST(walked(tree, options), "taken");
    }

    void keepsBackslashesInNames()
    {
        if (!namesAreBytes)
            QSKIP("no name can have one here");
        const TempTree tree;
        tree.writeAll(u"a\\b/c a/b/c"_s);
        ScanOptions options = optionsFor(tree);
        options.excludeFolders = {tree.path(u"a"_s)};
        QCOMPARE(walked(tree, options), u"a\\b/c"_s);
    }

    void recognisesPlaces()
    {
        const QList<std::pair<FilePlace, QString>> places = {
            {FilePlace::Ordinary, u"plain/a|plain/Trash/a|.Trash-me/a|pool/.zfs/a|pool/snapshot/a"_s},
            {FilePlace::RecycleBin,
             u"$Recycle.Bin/S-1-5/a|RECYCLER/a|old/recycled/a|.Trash/1000/files/a|.Trash-1000/files/b/a|"
             "share/Trash/files/a|share/Trash/info/a.trashinfo"_s},
            {FilePlace::Snapshot, u"System volume information/a|.snapshots/1/a|.snapshots/2/backup_index.json|"
                                  "pool/.zfs/snapshot/1/a|@GMT-2024.01.01-00.00.00/a"_s},
            {FilePlace::BackupFolder, u"kept/Backup_Index.json|kept/a|kept/b/a|kept/b/Trash/files/a|kept/zz/a"_s}};
        const TempTree tree;
        QMap<QString, FilePlace> expected;
        for (const auto &[place, paths] : places) {
            for (const QString &path : paths.split(u'|')) {
                tree.write(path, "x");
                expected.insert(path, place);
            }
        }
        tree.write(u"kept/backup_index.json"_s, "{}"); // the same file or another
        const auto isPlaced = [&](const QStringList &roots, const QString &path, FilePlace place) {
            for (const FileEntry &file : enumerateFiles(optionsFor(tree, roots), {}, {})) {
                if (file.path == tree.path(path))
                    return file.place == place;
            }
            return false;
        };
        for (auto it = expected.begin(); it != expected.end(); ++it) {
            QVERIFY2(isPlaced({u""_s}, it.key(), it.value()), qPrintable(it.key()));
            // The same when the walk begins there, and when a link leads there.
            const QString folder = QFileInfo(it.key()).path();
            QVERIFY2(isPlaced({folder}, it.key(), it.value()), qPrintable(it.key()));
            const QString link = u"link to "_s + QString(it.key()).replace(u'/', u'_');
            if (tree.symbolicLink(folder, link))
                QVERIFY2(isPlaced({link}, link + u'/' + QFileInfo(it.key()).fileName(), it.value()), qPrintable(link));
        }
    }

    void walksLocationsWithoutSubfolders()
    {
        const TempTree tree;
        tree.writeAll(u"flat/a flat/sub/b deep/c deep/flat/d deep/flat/sub/e"_s);
        ScanOptions options = optionsFor(tree, {u"flat"_s, u"deep"_s});
        options.locations = {{tree.path(u"FLAT/"_s), false, 0, false}, {tree.path(u"deep"_s), true, 0, false}};
        QCOMPARE(walked(tree, options), u"deep/c deep/flat/d deep/flat/sub/e flat/a"_s);
        // A location below a root that is walked whole keeps its own setting.
        options.locations = {{tree.path(u"deep/flat"_s), false, 0, false}};
        QCOMPARE(walked(tree, options), u"deep/c deep/flat/d flat/a flat/sub/b"_s);
    }

    void takesFilesOfOverlappingRootsOnce()
    {
        const TempTree tree;
        tree.writeAll(u"a in/b in/deep/c other/d"_s);
        for (const QString &roots : {u"|in|in/deep"_s, u"in/deep|in|"_s, u"|"_s, u"|in/../"_s, u"in|other||in"_s,
                                     u"in/../other/..//|./in/."_s})
            QCOMPARE(walked(tree, optionsFor(tree, roots.split(u'|'))), u"a in/b in/deep/c other/d"_s);
        const QList<FileEntry> files = enumerateFiles(optionsFor(tree, {u"a/../in//"_s, u"./other/."_s}), {}, {});
        QCOMPARE(sortedText({pathsOf(files)}), // cleaned
                 sortedText({{tree.path(u"in/b"_s), tree.path(u"in/deep/c"_s), tree.path(u"other/d"_s)}}));
    }

    void knowsRootsInAnotherCase()
    {
        const TempTree tree;
        tree.write(u"folder/a"_s, "x");
        const bool isSameFolder = QFileInfo::exists(tree.path(u"FOLDER"_s));
        if (!isSameFolder)
            tree.write(u"FOLDER/a"_s, "x");
        QCOMPARE(enumerateFiles(optionsFor(tree, {u"folder"_s, u"FOLDER"_s}), {}, {}).size(), isSameFolder ? 1 : 2);
    }

    void readsIdentities()
    {
        const TempTree tree;
        tree.write(u"one"_s, "x");
        if (!tree.hardLink(u"one"_s, u"two"_s))
            QSKIP("no hard links here");
        const FileIdentity expected = fileStatus(tree.path(u"one"_s)).identity;
        for (const char *json : {"{}", R"({"readFileIdentity": true})", R"({"collapseHardLinks": true})"}) {
            const QList<FileEntry> files = enumerateFiles(optionsWith(tree, json), {}, {});
            QCOMPARE(files.size(), 2);
            for (const FileEntry &file : files) {
                QCOMPARE(file.hasFileId, qstrcmp(json, "{}") != 0);
                QCOMPARE(file.linkCount, file.hasFileId ? 2U : 1U);
                QCOMPARE(file.volumeSerial, file.hasFileId ? expected.volume : 0);
                QCOMPARE(file.fileIndex, file.hasFileId ? expected.index : 0);
            }
        }
    }

    void followsLinksGivenAsRootsOnly()
    {
        const TempTree tree;
        tree.writeAll(u"in/a out/b"_s);
        if (!tree.symbolicLink(u"out"_s, u"in/to out"_s) || !tree.symbolicLink(u"in"_s, u"in/loop"_s) ||
            !tree.symbolicLink(u"out/b"_s, u"in/to b"_s) || !tree.symbolicLink(u"nowhere"_s, u"in/dangling"_s) ||
            !tree.symbolicLink(u"out"_s, u"link"_s)) {
            QSKIP("no symbolic links here");
        }
        QCOMPARE(walked(tree, optionsFor(tree, {u"in"_s})), u"in/a"_s);
        QCOMPARE(walked(tree, optionsFor(tree, {u"link"_s})), u"link/b"_s);
    }

    /// Opening a pipe that no process writes to would hang the walk.
    void opensNoPipes()
    {
        const TempTree tree;
        tree.write(u"a"_s, "x");
        if (!makePipe(tree.path(u"pipe"_s)))
            QSKIP("no named pipes here");
        QCOMPARE(walked(tree, optionsWith(tree, R"({"readFileIdentity": true})")), u"a"_s);
        QList<UnreadPath> unread;
        QCOMPARE(enumerateFiles(optionsFor(tree, {u"pipe"_s, u""_s}), {}, {}, &unread).size(), 1);
        QCOMPARE(unread.size(), 1);
    }

    void stopsWhenCancelled()
    {
        const TempTree tree;
        for (int i = 0; i < 20; ++i)
            tree.write(u"folder %1/file"_s.arg(i), "x");
        QCOMPARE(enumerateFiles(optionsFor(tree), {}, [] { return true; }).size(), 0);
        qint64 seen = 0;
        const auto count = [&seen](const FileEntry &, qint64 found) { seen = found; };
        const auto isCancelled = [&seen] { return seen >= 3; };
        QCOMPARE(enumerateFiles(optionsFor(tree, {u""_s, u"folder 1"_s}), count, isCancelled).size(), 3);
        QCOMPARE(seen, 3);
    }

    void reportsEachFile()
    {
        const TempTree tree;
        tree.writeAll(u"a.txt b/c.txt b/d.txt out.jpg"_s);
        QList<FileEntry> reported;
        QList<qint64> counts;
        const auto note = [&](const FileEntry &file, qint64 count) {
            reported.append(file);
            counts.append(count);
        };
        QVERIFY(enumerateFiles(optionsWith(tree, R"({"includeExtensions": ["txt"]})"), note, {}) == reported);
        QCOMPARE(counts, QList<qint64>({1, 2, 3}));
    }

    /// More folders below each other than descriptors, under a path longer than the system takes at once. Each folder
    /// has something left to read when the walk returns to it.
    void walksDeepTrees()
    {
        const TempTree tree;
        const QString script = u"import os\n"
                               "for level in range(150):\n"
                               "    for name in ('a', 'e', 'z'): open(name, 'w').write('same')\n"
                               "    os.mkdir('d' * 200)\n"
                               "    os.chdir('d' * 200)\n"_s;
        QProcess process;
        process.setWorkingDirectory(tree.path());
        process.start(u"python3"_s, {u"-c"_s, script});
        const auto removal = qScopeGuard([&] {
            QProcess::execute(u"rm"_s, {u"-rf"_s, tree.path(QString(200, u'd'))});
        });
        const auto limitDescriptors = [](const QString &limit) {
            const QString self = QString::number(QCoreApplication::applicationPid());
            return QProcess::execute(u"prlimit"_s, {u"--nofile="_s + limit + u':', u"--pid"_s, self}) == 0;
        };
        if (!process.waitForFinished() || process.exitCode() != 0 || !limitDescriptors(u"64"_s))
            QSKIP("no such trees here");
        QList<UnreadPath> unread;
        const QList<FileEntry> files = enumerateFiles(optionsFor(tree), {}, {}, &unread);
        FileReader reader;
        const auto deepest = std::max_element(files.begin(), files.end(), [](const FileEntry &a, const FileEntry &b) {
            return a.path.size() < b.path.size();
        });
        const bool isOpen = deepest != files.end() && reader.open(deepest->path) && reader.readState();
        const qint64 statusBytes = isOpen ? fileStatus(deepest->path).sizeBytes : 0;
        QVERIFY(limitDescriptors(u"1024"_s));
        QCOMPARE(unread.size(), 0);
        QCOMPARE(files.size(), 3 * 150);
        QVERIFY(isOpen && deepest->path.size() > 149 * 200);
        QCOMPARE(reader.sizeBytes(), 4);
        QCOMPARE(statusBytes, 4);
    }

    void notesUnreadRootsAndFolders()
    {
        const TempTree tree;
        tree.writeAll(u"good/a excluded/b good/closed/c"_s);
        const QString closed = tree.path(u"good/closed"_s);
        QFile::setPermissions(closed, {});
        const bool isReadable = QFileInfo(closed).isReadable();
        ScanOptions options = optionsFor(tree, {u"missing"_s, u"good/a"_s, u"excluded"_s, u"good"_s});
        options.excludeFolders = QStringList(tree.path(u"excluded"_s));
        QList<UnreadPath> unread;
        const QList<FileEntry> files = enumerateFiles(options, {}, {}, &unread);
        QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QStringList expected{tree.path(u"missing"_s), tree.path(u"good/a"_s)};
        if (!isReadable) // this user may not read everything
            expected.append(closed);
        QCOMPARE(files.size(), isReadable ? 2 : 1);
        QStringList paths;
        for (const UnreadPath &path : std::as_const(unread)) {
            QVERIFY(!path.reason.isEmpty());
            paths.append(path.path);
        }
        QCOMPARE(paths, expected);
    }

    void followsJunctionsButNotInCircles()
    {
        const TempTree tree;
        tree.writeAll(u"in/a in/deep/b out/c out/$Recycle.Bin/d"_s);
        const QList<std::array<QString, 3>> links = {{u"in"_s, u"to_out"_s, u"out"_s},
                                                     {u"in/deep"_s, u"to_in"_s, u"in"_s},
                                                     {u"in/deep"_s, u"to_itself"_s, u"in/deep"_s},
                                                     {u"in"_s, u"to_bin"_s, u"out/$Recycle.Bin"_s},
                                                     {u"out"_s, u"back"_s, u"in"_s}};
        const auto cleanUp = qScopeGuard([&] {
            for (const auto &[folder, name, target] : links)
                removeJunction(tree.path(folder) + u'/' + name);
        });
        for (const auto &[folder, name, target] : links) {
            if (!makeJunction(tree.path(folder), name, tree.path(target)))
                QSKIP("no junctions here");
        }
        QList<UnreadPath> unread;
        ScanOptions options = optionsFor(tree, {u"in"_s});
        const QList<FileEntry> files = enumerateFiles(options, {}, {}, &unread);
        QCOMPARE(walked(tree, options), u"in/a in/deep/b in/to_bin/d in/to_out/$Recycle.Bin/d in/to_out/c"_s);
        for (const FileEntry &file : files)
            QCOMPARE(file.place == FilePlace::RecycleBin, file.path.endsWith(u'd'));
        // What lies below an excluded folder stays out whatever junction leads there.
        options.excludeFolders = {tree.path(u"out"_s)};
        QCOMPARE(walked(tree, options), u"in/a in/deep/b"_s);
        QCOMPARE(unread.size(), 0);
    }

    void walksDriveRoots()
    {
        const QString root = QDir::rootPath();
        QTemporaryFile probe(root + u"mirrix-XXXXXX.probe"_s);
        if (!probe.open())
            QSKIP("the root is not for writing here");
        const QString path = probe.fileName(); // a temporary file has no name until it is asked for
        ScanOptions options;
        options.roots = {root};
        options.locations = {{root, false, 0, false}};
        options.includeExtensions = {u"probe"_s};
        QVERIFY(pathsOf(enumerateFiles(options, {}, {})).contains(path));
    }
};

QTEST_GUILESS_MAIN(EnumerationTest)
#include "tst_enumeration.moc"
