#include "core/walk/enumeration.h"

#include "core/platform/filereader.h"
#include "core/platform/filestatus.h"
#include "tests/support/probes.h"
#include "tests/support/scans.h"
#include "tests/support/temptree.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QTest>

#include <algorithm>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

/// What the walk takes, sorted; a file taken twice stands twice.
QStringList walked(const TempTree &tree, const ScanOptions &options)
{
    QStringList paths = relativePaths(enumerateFiles(options, {}, {}), tree);
    paths.sort();
    return paths;
}

ScanLocation location(const QString &path, bool includeSubfolders)
{
    return {path, includeSubfolders, 0, false};
}

} // namespace

class EnumerationTest : public QObject
{
    Q_OBJECT

private slots:
    void walksEverythingByDefault();
    void walksNothingWithoutRoots();
    void filtersExtensions_data();
    void filtersExtensions();
    void filtersNames_data();
    void filtersNames();
    void takesSingleFiles();
    void filtersSizes_data();
    void filtersSizes();
    void filtersModified_data();
    void filtersModified();
    void leavesOutUnknownTimes();
    void filtersCreated();
    void skipsHidden();
    void leavesOutExcludedFolders();
    void skipsRootsOnlyWhenListed();
    void leavesOutWhatLinksHide_data();
    void leavesOutWhatLinksHide();
    void tellsNamesWithBackslashes();
    void tellsPlaces();
    void walksLocationsWithoutSubfolders();
    void takesFilesOfOverlappingRootsOnce_data();
    void takesFilesOfOverlappingRootsOnce();
    void knowsRootsInAnotherCase();
    void cleansRoots_data();
    void cleansRoots();
    void readsIdentities();
    void followsNoLinks();
    void followsLinkGivenAsRoot();
    void opensNoPipes();
    void stopsWhenCancelled();
    void reportsEachFile();
    void walksDeepTrees();
    void notesUnreadRoots();
    void notesUnreadFolders();
};

void EnumerationTest::walksEverythingByDefault()
{
    const TempTree tree;
    tree.write(u"a.txt"_s, "");
    tree.write(u"b/.c"_s, "1");
    tree.write(u"b/d/e/f.JPG"_s, "123");
    tree.makeFolder(u"empty"_s);
    tree.setModified(u"b/d/e/f.JPG"_s, 1234567890123);
    QCOMPARE(walked(tree, optionsFor(tree)), QStringList({u"a.txt"_s, u"b/.c"_s, u"b/d/e/f.JPG"_s}));

    const QList<FileEntry> files = enumerateFiles(optionsFor(tree, {u"b/d"_s}), {}, {});
    QCOMPARE(files.size(), 1);
    FileEntry expected;
    expected.path = tree.path(u"b/d/e/f.JPG"_s);
    expected.size = 3;
    expected.modifiedMs = 1234567890123;
    expected.createdMs = files.constFirst().createdMs;
    expected.allocatedBytes = files.constFirst().allocatedBytes;
    QVERIFY(files.constFirst() == expected);
}

void EnumerationTest::walksNothingWithoutRoots()
{
    const TempTree tree;
    tree.write(u"a"_s, "1");
    ScanOptions options;
    options.locations.append(location(tree.path(), true));
    QCOMPARE(enumerateFiles(options, {}, {}).size(), 0);
    options.roots = QStringList(QString()); // not the current folder
    QCOMPARE(enumerateFiles(options, {}, {}).size(), 0);
}

void EnumerationTest::filtersExtensions_data()
{
    QTest::addColumn<QStringList>("include");
    QTest::addColumn<QStringList>("exclude");
    QTest::addColumn<QStringList>("taken");
    const QStringList none;
    QTest::newRow("one, any case") << QStringList(u"jpg"_s) << none << QStringList({u"a.jpg"_s, u"b.JPG"_s});
    QTest::newRow("case of the list") << QStringList(u"JpG"_s) << none << QStringList({u"a.jpg"_s, u"b.JPG"_s});
    QTest::newRow("two") << QStringList({u"gz"_s, u"txt"_s}) << none << QStringList({u"c.tar.gz"_s, u"d.txt"_s});
    QTest::newRow("never") << none << QStringList({u"jpg"_s, u"GZ"_s}) << QStringList({u"d.txt"_s, u"none"_s});
    QTest::newRow("never wins") << QStringList({u"jpg"_s, u"txt"_s}) << QStringList(u"JPG"_s)
                                << QStringList(u"d.txt"_s);
    QTest::newRow("no part of one") << QStringList({u"jp"_s, u"tar.gz"_s, u"none"_s}) << none << none;
}

void EnumerationTest::filtersExtensions()
{
    QFETCH(QStringList, include);
    QFETCH(QStringList, exclude);
    const TempTree tree;
    for (const QString &name : {u"a.jpg"_s, u"b.JPG"_s, u"c.tar.gz"_s, u"d.txt"_s, u"none"_s})
        tree.write(name, "x");
    ScanOptions options = optionsFor(tree);
    options.includeExtensions = include;
    options.excludeExtensions = exclude;
    QTEST(walked(tree, options), "taken");
}

void EnumerationTest::filtersNames_data()
{
    QTest::addColumn<QStringList>("include");
    QTest::addColumn<QStringList>("exclude");
    QTest::addColumn<QStringList>("taken");
    const QStringList none;
    const QStringList all = {u".git/[x]"_s, u"a.iso"_s, u"aab.ISO.txt"_s, u"b1"_s, u"sub/a"_s};
    QTest::newRow("no filter") << none << none << all;
    QTest::newRow("folders are entered") << QStringList(u"A"_s) << none << QStringList(u"sub/a"_s);
    QTest::newRow("star, any case") << QStringList(u"*.Iso"_s) << none << QStringList(u"a.iso"_s);
    QTest::newRow("star is tried again") << QStringList(u"*ab*.t?t*"_s) << none << QStringList(u"aab.ISO.txt"_s);
    QTest::newRow("one more character") << QStringList(u"a?"_s) << none << none;
    QTest::newRow("set") << QStringList({u"[a-c][0-9]"_s, u"[!a-r]*"_s}) << none
                         << QStringList({u".git/[x]"_s, u"b1"_s});
    QTest::newRow("brackets") << QStringList({u"[[]x]"_s, u"[b"_s}) << none << QStringList(u".git/[x]"_s);
    QTest::newRow("folder is left out") << none << QStringList({u"*.git"_s, u"sub"_s}) << all.mid(1, 3);
    QTest::newRow("leaving out wins") << QStringList(u"a*"_s) << QStringList(u"*.iso"_s)
                                      << QStringList({u"aab.ISO.txt"_s, u"sub/a"_s});
}

void EnumerationTest::filtersNames()
{
    QFETCH(QStringList, include);
    QFETCH(QStringList, exclude);
    const TempTree tree;
    for (const QString &name : {u".git/[x]"_s, u"a.iso"_s, u"aab.ISO.txt"_s, u"b1"_s, u"sub/a"_s})
        tree.write(name, "x");
    ScanOptions options = optionsFor(tree);
    options.includeNames = include;
    options.excludeNames = exclude;
    QTEST(walked(tree, options), "taken");
    FolderNotes notes;
    const qsizetype taken = enumerateFiles(options, {}, {}, nullptr, &notes).size();
    QCOMPARE(taken + notes.leftOut.files + notes.leftOut.folders, 5); // each folder holds one file
}

void EnumerationTest::takesSingleFiles()
{
    const TempTree tree;
    for (const QString &name : {u"a/1"_s, u"a/2"_s, u"b/3"_s, u"b/4.tmp"_s, u"out/5"_s, u"c.tmp/d/6"_s})
        tree.write(name, "x");
    ScanOptions options = optionsFor(tree, {u"b"_s});
    for (const QString &name :
         {u"a/1"_s, u"a/1"_s, u"a/../b/3"_s, u"a/none"_s, u"none/6"_s, u"out/5"_s, u"c.tmp/d/6"_s, u"a"_s})
        options.files.append(tree.path(name));
    options.excludeFolders = {tree.path(u"out"_s)};
    options.excludeNames = {u"*.tmp"_s};
    if (tree.symbolicLink(u"a/2"_s, u"a/link"_s))
        options.files.append(tree.path(u"a/link"_s));
    QCOMPARE(walked(tree, options), QStringList({u"a/1"_s, u"b/3"_s}));
    QList<UnreadPath> unread;
    QCOMPARE(enumerateFiles(options, {}, {}, &unread).size(), 2);
    QVERIFY(unread.contains(UnreadPath{tree.path(u"a/none"_s), u"no such file"_s}));
    QVERIFY(unread.contains(UnreadPath{tree.path(u"a"_s), u"not a file"_s}));
}

void EnumerationTest::filtersSizes_data()
{
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("to");
    QTest::addColumn<QStringList>("taken");
    QTest::newRow("no limit") << 0LL << 0LL << QStringList({u"0"_s, u"10"_s, u"20"_s});
    QTest::newRow("negative") << -5LL << -1LL << QStringList({u"0"_s, u"10"_s, u"20"_s});
    QTest::newRow("one byte") << 1LL << 0LL << QStringList({u"10"_s, u"20"_s});
    QTest::newRow("both inclusive") << 10LL << 20LL << QStringList({u"10"_s, u"20"_s});
    QTest::newRow("above") << 11LL << 0LL << QStringList(u"20"_s);
    QTest::newRow("below") << 0LL << 19LL << QStringList({u"0"_s, u"10"_s});
    QTest::newRow("between") << 11LL << 19LL << QStringList();
}

void EnumerationTest::filtersSizes()
{
    QFETCH(qint64, from);
    QFETCH(qint64, to);
    const TempTree tree;
    for (const int size : {0, 10, 20})
        tree.write(QString::number(size), patternBytes(size));
    ScanOptions options = optionsFor(tree);
    options.minSize = from;
    options.maxSize = to;
    QTEST(walked(tree, options), "taken");
}

void EnumerationTest::filtersModified_data()
{
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("to");
    QTest::addColumn<QStringList>("taken");
    QTest::newRow("off") << 0LL << 0LL << QStringList({u"early"_s, u"late"_s});
    QTest::newRow("both inclusive") << 1000000000000LL << 1000000001000LL << QStringList({u"early"_s, u"late"_s});
    QTest::newRow("from only") << 1000000000001LL << 0LL << QStringList(u"late"_s);
    QTest::newRow("to only") << 0LL << 1000000000999LL << QStringList(u"early"_s);
    QTest::newRow("between") << 1000000000001LL << 1000000000999LL << QStringList();
}

void EnumerationTest::filtersModified()
{
    QFETCH(qint64, from);
    QFETCH(qint64, to);
    const TempTree tree;
    tree.write(u"early"_s, "x");
    tree.write(u"late"_s, "x");
    tree.setModified(u"early"_s, 1000000000000);
    tree.setModified(u"late"_s, 1000000001000);
    ScanOptions options = optionsFor(tree);
    options.modifiedFromMs = from;
    options.modifiedToMs = to;
    QTEST(walked(tree, options), "taken");
}

void EnumerationTest::leavesOutUnknownTimes()
{
    const TempTree tree;
    tree.write(u"old"_s, "x");
    tree.setModified(u"old"_s, -86400000);
    ScanOptions options = optionsFor(tree);
    QCOMPARE(walked(tree, options), QStringList(u"old"_s));
    options.modifiedToMs = 1000000000000;
    QCOMPARE(walked(tree, options), QStringList());
    options.modifiedToMs = 0;
    options.modifiedFromMs = 1;
    QCOMPARE(walked(tree, options), QStringList());
}

void EnumerationTest::filtersCreated()
{
    const TempTree tree;
    tree.write(u"a"_s, "x");
    ScanOptions options = optionsFor(tree);
    const qint64 created = enumerateFiles(options, {}, {}).constFirst().createdMs;
    if (created < 1)
        QSKIP("no creation times here");
    options.createdFromMs = options.createdToMs = created;
    QCOMPARE(walked(tree, options).size(), 1);
    options.createdFromMs = created + 1;
    options.createdToMs = 0;
    QCOMPARE(walked(tree, options).size(), 0);
    options.createdFromMs = 0;
    options.createdToMs = created - 1;
    QCOMPARE(walked(tree, options).size(), 0);
}

void EnumerationTest::skipsHidden()
{
    const TempTree tree;
    for (const QString &path :
         {u".hidden"_s, u"plain"_s, u"folder/.inner"_s, u".folder/plain"_s, u".folder/sub/plain"_s})
        tree.write(path, "x");
    for (const QString &path : {u".hidden"_s, u"folder/.inner"_s, u".folder"_s}) {
        if (!hide(tree.path(path)))
            QSKIP("nothing is hidden here");
    }
    ScanOptions options = optionsFor(tree);
    QCOMPARE(walked(tree, options).size(), 5);
    options.skipHidden = true;
    QCOMPARE(walked(tree, options), QStringList(u"plain"_s));
    options.roots = QStringList(tree.path(u".folder"_s)); // a root is walked though hidden
    QCOMPARE(walked(tree, options), QStringList({u".folder/plain"_s, u".folder/sub/plain"_s}));
}

void EnumerationTest::leavesOutExcludedFolders()
{
    const TempTree tree;
    for (const QString &path : {u"keep/a"_s, u"keep/Skip/b"_s, u"keep/Skip/deep/c"_s, u"keep/Skip2/d"_s, u"skip/e"_s})
        tree.write(path, "x");
    ScanOptions options = optionsFor(tree);
    options.excludeFolders = {tree.path(u"keep/x/../skip/"_s), QString()};
    QCOMPARE(walked(tree, options), QStringList({u"keep/Skip2/d"_s, u"keep/a"_s, u"skip/e"_s}));
}

void EnumerationTest::skipsRootsOnlyWhenListed()
{
    const TempTree tree;
    tree.write(u"out/a"_s, "x");
    tree.write(u"out/root/b"_s, "x");
    tree.write(u"out/root/sub/c"_s, "x");
    ScanOptions options = optionsFor(tree, {u"out/root"_s});
    options.excludeFolders = QStringList(tree.path(u"out"_s));
    // The root is walked all the same, but its subfolders lie in an excluded folder.
    QCOMPARE(walked(tree, options), QStringList(u"out/root/b"_s));
    options.excludeFolders = QStringList(tree.path(u"OUT/Root/"_s));
    QCOMPARE(walked(tree, options), QStringList());
    options.roots.append(tree.path(u"out"_s));
    QCOMPARE(walked(tree, options), QStringList(u"out/a"_s));
}

void EnumerationTest::leavesOutWhatLinksHide_data()
{
    QTest::addColumn<QString>("excluded");
    QTest::addColumn<QString>("root");
    QTest::addColumn<QStringList>("taken");
    QTest::newRow("excluded by a link") << u"to sub"_s << u"real"_s << QStringList(u"real/keep/a"_s);
    QTest::newRow("root by a link") << u"real/sub"_s << u"link"_s << QStringList(u"link/keep/a"_s);
    QTest::newRow("both by links") << u"to sub"_s << u"link"_s << QStringList(u"link/keep/a"_s);
    QTest::newRow("root leads to it") << u"real/sub"_s << u"to sub"_s << QStringList();
    QTest::newRow("link leads to the root") << u"to sub"_s << u"real/sub"_s << QStringList();
    QTest::newRow("root leads into it") << u"real"_s << u"to sub"_s << QStringList(u"to sub/b"_s);
    QTest::newRow("another folder") << u"real/keep"_s << u"to sub"_s
                                    << QStringList({u"to sub/b"_s, u"to sub/deep/c"_s});
}

void EnumerationTest::leavesOutWhatLinksHide()
{
    QFETCH(QString, excluded);
    QFETCH(QString, root);
    const TempTree tree;
    for (const QString &path : {u"real/keep/a"_s, u"real/sub/b"_s, u"real/sub/deep/c"_s})
        tree.write(path, "x");
    if (!tree.symbolicLink(u"real"_s, u"link"_s) || !tree.symbolicLink(u"real/sub"_s, u"to sub"_s))
        QSKIP("no symbolic links here");
    ScanOptions options = optionsFor(tree, {root});
    options.excludeFolders = {tree.path(u"no such folder"_s), tree.path(excluded)};
    QTEST(walked(tree, options), "taken");
}

void EnumerationTest::tellsNamesWithBackslashes()
{
    if (!namesAreBytes)
        QSKIP("no name can have one here");
    const TempTree tree;
    tree.write(u"a\\b/c"_s, "x");
    tree.write(u"a/b/c"_s, "x");
    ScanOptions options = optionsFor(tree);
    options.excludeFolders = {tree.path(u"a"_s)};
    QCOMPARE(walked(tree, options), QStringList(u"a\\b/c"_s));
}

void EnumerationTest::tellsPlaces()
{
    using enum FilePlace;
    const QList<std::pair<QString, FilePlace>> files = {
        {u"plain/a"_s, Ordinary},
        {u"plain/Trash/a"_s, Ordinary},
        {u".Trash-me/a"_s, Ordinary},
        {u"pool/.zfs/a"_s, Ordinary},
        {u"pool/snapshot/a"_s, Ordinary},
        {u"$Recycle.Bin/S-1-5/a"_s, RecycleBin},
        {u"RECYCLER/a"_s, RecycleBin},
        {u"old/recycled/a"_s, RecycleBin},
        {u".Trash/1000/files/a"_s, RecycleBin},
        {u".Trash-1000/files/b/a"_s, RecycleBin},
        {u"share/Trash/files/a"_s, RecycleBin},
        {u"share/Trash/info/a.trashinfo"_s, RecycleBin},
        {u"System volume information/a"_s, Snapshot},
        {u".snapshots/1/a"_s, Snapshot},
        {u".snapshots/2/backup_index.json"_s, Snapshot},
        {u"pool/.zfs/snapshot/1/a"_s, Snapshot},
        {u"@GMT-2024.01.01-00.00.00/a"_s, Snapshot},
        {u"kept/Backup_Index.json"_s, BackupFolder},
        {u"kept/a"_s, BackupFolder},
        {u"kept/b/a"_s, BackupFolder},
        {u"kept/b/Trash/files/a"_s, BackupFolder},
        {u"kept/zz/a"_s, BackupFolder},
    };
    const TempTree tree;
    for (const auto &[path, place] : files)
        tree.write(path, "x");
    tree.write(u"kept/backup_index.json"_s, "{}"); // the same file or another
    const QList<FileEntry> walkedFiles = enumerateFiles(optionsFor(tree), {}, {});
    const auto placeOf = [](const QList<FileEntry> &found, const QString &path) {
        for (const FileEntry &file : found) {
            if (file.path == path)
                return static_cast<int>(file.place);
        }
        return -1;
    };
    for (const auto &[path, place] : files) {
        QVERIFY2(placeOf(walkedFiles, tree.path(path)) == static_cast<int>(place), qPrintable(path));
        // The same when the walk begins there, and when a link leads there.
        const QString folder = QFileInfo(path).path();
        QVERIFY2(placeOf(enumerateFiles(optionsFor(tree, {folder}), {}, {}), tree.path(path)) ==
                     static_cast<int>(place),
                 qPrintable(path));
        const QString link = u"link to "_s + QString(path).replace(u'/', u'_');
        if (tree.symbolicLink(folder, link)) {
            const QString linked = tree.path(link + u'/' + QFileInfo(path).fileName());
            QVERIFY2(placeOf(enumerateFiles(optionsFor(tree, {link}), {}, {}), linked) == static_cast<int>(place),
                     qPrintable(linked));
        }
    }
}

void EnumerationTest::walksLocationsWithoutSubfolders()
{
    const TempTree tree;
    for (const QString &path : {u"flat/a"_s, u"flat/sub/b"_s, u"deep/c"_s, u"deep/flat/d"_s, u"deep/flat/sub/e"_s})
        tree.write(path, "x");
    ScanOptions options = optionsFor(tree, {u"flat"_s, u"deep"_s});
    options.locations = {location(tree.path(u"FLAT/"_s), false), location(tree.path(u"deep"_s), true)};
    QCOMPARE(walked(tree, options), QStringList({u"deep/c"_s, u"deep/flat/d"_s, u"deep/flat/sub/e"_s, u"flat/a"_s}));
    // A location below a root that is walked whole keeps its own setting.
    options.locations = {location(tree.path(u"deep/flat"_s), false)};
    QCOMPARE(walked(tree, options), QStringList({u"deep/c"_s, u"deep/flat/d"_s, u"flat/a"_s, u"flat/sub/b"_s}));
}

void EnumerationTest::takesFilesOfOverlappingRootsOnce_data()
{
    QTest::addColumn<QStringList>("roots");
    QTest::newRow("outer first") << QStringList({u""_s, u"in"_s, u"in/deep"_s});
    QTest::newRow("inner first") << QStringList({u"in/deep"_s, u"in"_s, u""_s});
    QTest::newRow("same twice") << QStringList({u""_s, u""_s});
    QTest::newRow("same, spelled otherwise") << QStringList({u""_s, u"in/../"_s});
    QTest::newRow("side by side within") << QStringList({u"in"_s, u"other"_s, u""_s, u"in"_s});
}

void EnumerationTest::takesFilesOfOverlappingRootsOnce()
{
    QFETCH(QStringList, roots);
    const TempTree tree;
    const QStringList paths = {u"a"_s, u"in/b"_s, u"in/deep/c"_s, u"other/d"_s};
    for (const QString &path : paths)
        tree.write(path, "x");
    QCOMPARE(walked(tree, optionsFor(tree, roots)), paths);
}

void EnumerationTest::knowsRootsInAnotherCase()
{
    const TempTree tree;
    tree.write(u"folder/a"_s, "x");
    const bool isSameFolder = QFileInfo::exists(tree.path(u"FOLDER"_s));
    if (!isSameFolder)
        tree.write(u"FOLDER/a"_s, "x");
    QCOMPARE(walked(tree, optionsFor(tree, {u"folder"_s, u"FOLDER"_s})).size(), isSameFolder ? 1 : 2);
}

void EnumerationTest::cleansRoots_data()
{
    QTest::addColumn<QString>("root");
    QTest::newRow("parent") << u"a/../b/"_s;
    QTest::newRow("slashes") << u"b//"_s;
    QTest::newRow("here") << u"./b/."_s;
}

void EnumerationTest::cleansRoots()
{
    QFETCH(QString, root);
    const TempTree tree;
    tree.makeFolder(u"a"_s);
    const QString path = tree.write(u"b/c/file"_s, "x");
    const QList<FileEntry> files = enumerateFiles(optionsFor(tree, {root}), {}, {});
    QCOMPARE(files.size(), 1);
    QCOMPARE(files.constFirst().path, path);
}

void EnumerationTest::readsIdentities()
{
    const TempTree tree;
    tree.write(u"one"_s, "x");
    if (!tree.hardLink(u"one"_s, u"two"_s))
        QSKIP("no hard links here");
    ScanOptions options = optionsFor(tree);
    const FileEntry without = enumerateFiles(options, {}, {}).constFirst();
    QVERIFY(!without.hasFileId);
    QCOMPARE(without.linkCount, 1U);

    const FileIdentity expected = fileStatus(tree.path(u"one"_s)).identity;
    for (bool ScanOptions::*flag : {&ScanOptions::readFileIdentity, &ScanOptions::collapseHardLinks}) {
        options = optionsFor(tree);
        options.*flag = true;
        const QList<FileEntry> files = enumerateFiles(options, {}, {});
        QCOMPARE(files.size(), 2);
        for (const FileEntry &file : files) {
            QVERIFY(file.hasFileId);
            QCOMPARE(file.volumeSerial, expected.volume);
            QCOMPARE(file.fileIndex, expected.index);
            QCOMPARE(file.linkCount, 2U);
        }
    }
}

void EnumerationTest::followsNoLinks()
{
    const TempTree tree;
    tree.write(u"in/a"_s, "x");
    tree.write(u"out/b"_s, "x");
    if (!tree.symbolicLink(u"out"_s, u"in/to out"_s) || !tree.symbolicLink(u"in"_s, u"in/loop"_s) ||
        !tree.symbolicLink(u"out/b"_s, u"in/to b"_s) || !tree.symbolicLink(u"nowhere"_s, u"in/dangling"_s)) {
        QSKIP("no symbolic links here");
    }
    QCOMPARE(walked(tree, optionsFor(tree, {u"in"_s})), QStringList(u"in/a"_s));
}

void EnumerationTest::followsLinkGivenAsRoot()
{
    const TempTree tree;
    tree.write(u"folder/a"_s, "x");
    if (!tree.symbolicLink(u"folder"_s, u"link"_s))
        QSKIP("no symbolic links here");
    QCOMPARE(walked(tree, optionsFor(tree, {u"link"_s})), QStringList(u"link/a"_s));
}

/// Opening a pipe that nobody writes to would hang the walk.
void EnumerationTest::opensNoPipes()
{
    const TempTree tree;
    tree.write(u"a"_s, "x");
    if (!makePipe(tree.path(u"pipe"_s)))
        QSKIP("no named pipes here");
    ScanOptions options = optionsFor(tree);
    options.readFileIdentity = true;
    QCOMPARE(walked(tree, options), QStringList(u"a"_s));
    options = optionsFor(tree, {u"pipe"_s, u""_s});
    QList<UnreadPath> unread;
    QCOMPARE(enumerateFiles(options, {}, {}, &unread).size(), 1);
    QCOMPARE(unread.size(), 1);
}

void EnumerationTest::stopsWhenCancelled()
{
    const TempTree tree;
    for (int i = 0; i < 20; ++i)
        tree.write(u"folder %1/file"_s.arg(i), "x");
    QCOMPARE(enumerateFiles(optionsFor(tree), {}, [] { return true; }).size(), 0);
    qint64 seen = 0;
    const auto count = [&seen](const FileEntry &, qint64 found) { seen = found; };
    const auto files = enumerateFiles(optionsFor(tree, {u""_s, u"folder 1"_s}), count, [&seen] { return seen >= 3; });
    QCOMPARE(files.size(), 3);
    QCOMPARE(seen, 3);
}

void EnumerationTest::reportsEachFile()
{
    const TempTree tree;
    for (const QString &path : {u"a.txt"_s, u"b/c.txt"_s, u"b/d.txt"_s, u"left out.jpg"_s})
        tree.write(path, "x");
    ScanOptions options = optionsFor(tree);
    options.includeExtensions = QStringList(u"txt"_s);
    QList<FileEntry> reported;
    QList<qint64> counts;
    const auto note = [&](const FileEntry &file, qint64 count) {
        reported.append(file);
        counts.append(count);
    };
    const QList<FileEntry> files = enumerateFiles(options, note, {});
    QVERIFY(files == reported);
    QCOMPARE(counts, QList<qint64>({1, 2, 3}));
}

/// More folders below each other than descriptors, under a path longer than the system takes at once. Each folder has
/// something left to read when the walk comes back to it.
void EnumerationTest::walksDeepTrees()
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
    const auto removal = qScopeGuard([&] { QProcess::execute(u"rm"_s, {u"-rf"_s, tree.path(QString(200, u'd'))}); });
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

void EnumerationTest::notesUnreadRoots()
{
    const TempTree tree;
    tree.write(u"good/a"_s, "x");
    tree.write(u"excluded/b"_s, "x");
    ScanOptions options = optionsFor(tree, {u"missing"_s, u"good/a"_s, u"excluded"_s, u"good"_s});
    options.excludeFolders = QStringList(tree.path(u"excluded"_s));
    QList<UnreadPath> unread;
    QCOMPARE(relativePaths(enumerateFiles(options, {}, {}, &unread), tree), QStringList(u"good/a"_s));
    QCOMPARE(unread.size(), 2);
    QCOMPARE(unread[0].path, tree.path(u"missing"_s));
    QCOMPARE(unread[1].path, tree.path(u"good/a"_s));
    for (const UnreadPath &path : std::as_const(unread))
        QVERIFY(!path.reason.isEmpty());
}

void EnumerationTest::notesUnreadFolders()
{
    const TempTree tree;
    tree.write(u"closed/a"_s, "x");
    tree.write(u"open/b"_s, "x");
    const QString closed = tree.path(u"closed"_s);
    QFile::setPermissions(closed, {});
    const bool isReadable = QFileInfo(closed).isReadable();
    QList<UnreadPath> unread;
    const QStringList files = relativePaths(enumerateFiles(optionsFor(tree), {}, {}, &unread), tree);
    QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (isReadable)
        QSKIP("this user may read everything");
    QCOMPARE(files, QStringList(u"open/b"_s));
    QCOMPARE(unread.size(), 1);
    QCOMPARE(unread.constFirst().path, closed);
    QVERIFY(!unread.constFirst().reason.isEmpty());
}

QTEST_GUILESS_MAIN(EnumerationTest)
#include "tst_enumeration.moc"
