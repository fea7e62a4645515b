#include "core/scan/duplicatescanner.h"

#include "core/cache/cacheroot.h"
#include "core/threads/threadpool.h"
#include "core/walk/ownfiles.h"
#include "tests/support/coretest.h"

#include <QScopeGuard>
#include <QThread>
#include <QThreadPool>

namespace {

constexpr qint64 sizeOfCopies = 1000;

ScanResult scan(const ScanOptions &options)
{
    return DuplicateScanner::scan(options, {}, {});
}

ScanLocation location(const TempTree &tree, const QString &folder, FindKind kind)
{
    return {tree.path(folder), true, static_cast<qint32>(kind), false};
}

/// Two equal files and an empty one.
void fill(const TempTree &tree, const QString &folder)
{
    tree.writeAll(folder + u"/1 "_s + folder + u"/2"_s, patternBytes(sizeOfCopies));
    tree.write(folder + u"/empty"_s, "");
}

} // namespace

class DuplicateScannerTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { setCacheRoot({}); }

    void findsNothingWithoutRoots()
    {
        ScanResult result = scan({});
        QVERIFY(result.elapsedMs < 1000);
        result.elapsedMs = 0;
        QVERIFY(result == ScanResult());
    }

    void findsOnlyEmptyFiles()
    {
        for (const int emptyFiles : {0, 1, 3}) {
            const TempTree tree;
            tree.writeAll(u"9/copy 8/copy 7/copy 6/copy"_s, patternBytes(sizeOfCopies));
            QStringList expected;
            ScanOptions options = optionsFor(tree, {u"9"_s, u"8"_s, u"7"_s, u"6"_s});
            for (int root = 9; root > 5; --root) {
                options.locations.append(location(tree, QString::number(root), FindKind::EmptyFiles));
                if (root > 9 - emptyFiles)
                    expected.append(u"%1/none"_s.arg(root));
            }
            for (const QString &path : std::as_const(expected))
                tree.write(path, "");
            const ScanResult result = scan(options);
            QCOMPARE(groupsOf(result, tree).value(0), expected); // in the order of the walk
            QCOMPARE(result.groups.size(), emptyFiles == 0 ? 0 : 1);
            QCOMPARE(result.wastedBytes, 0);
            QCOMPARE(result.candidates, 0);
            QCOMPARE(result.filesScanned, 4 + emptyFiles);
            QCOMPARE(result.totalBytes, 4 * sizeOfCopies);
        }
    }

    void treatsEachLocationItsOwnWay_data()
    {
        const auto row = columns<QString, QString, QString>({"contentFolders", "emptyFolders", "groups"});
        row("no location", u"Data"_s, QString(), u"Data/1 Data/2"_s);
        row("side by side", u"Data"_s, u"Other"_s, u"Data/1 Data/2|Other/empty"_s);
        row("names with the same beginning", u"Data2"_s, u"Data"_s, u"Data/empty|Data2/1 Data2/2"_s);
        row("innermost wins", u"Out"_s, u"Out/In"_s, u"Out/1 Out/2|Out/In/empty"_s);
        row("innermost of three wins", u"Out Out/In/Deep"_s, u"Out/In"_s,
            u"Out/1 Out/2 Out/In/Deep/1 Out/In/Deep/2|Out/In/empty"_s);
        row("one group over several locations", u"Data Data2"_s, u"Other More"_s,
            u"Data/1 Data/2 Data2/1 Data2/2|More/empty Other/empty"_s);
    }

    void treatsEachLocationItsOwnWay()
    {
        QFETCH(QString, contentFolders);
        QFETCH(QString, emptyFolders);
        QFETCH(QString, groups);
        const TempTree tree;
        const QStringList ofContent = contentFolders.split(u' ');
        const QStringList ofEmpty = emptyFolders.split(u' ', Qt::SkipEmptyParts);
        ScanOptions options = optionsFor(tree, ofContent + ofEmpty);
        for (const QString &folder : ofContent + ofEmpty)
            fill(tree, folder);
        for (const QString &folder : ofEmpty)
            options.locations.append(location(tree, folder + u'/', FindKind::EmptyFiles));
        for (const QString &folder : ofEmpty.isEmpty() ? QStringList() : ofContent)
            options.locations.append(location(tree, folder, FindKind::ContentDuplicates));
        for (int turn = 0; turn < 2; ++turn) {
            const ScanResult result = scan(options);
            QCOMPARE(groupsText(result, tree), groups);
            for (const DuplicateGroup &group : result.groups)
                QCOMPARE(group.key == u"empty"_s, group.files[0].size == 0);
            std::reverse(options.locations.begin(), options.locations.end());
            std::reverse(options.roots.begin(), options.roots.end());
        }
    }

    void addsUpLocations()
    {
        const TempTree tree;
        fill(tree, u"content"_s);
        fill(tree, u"empty"_s);
        tree.write(u"content/3"_s, patternBytes(5, 1));
        tree.write(u"content/4"_s, patternBytes(5, 2));
        ScanOptions options = optionsFor(tree, {u"empty"_s, u"content"_s});
        options.locations = {location(tree, u"empty"_s, FindKind::EmptyFiles),
                             location(tree, u"content"_s, FindKind::ContentDuplicates)};
        const ScanResult result = scan(options);
        QCOMPARE(result.filesScanned, 8);
        QCOMPARE(result.totalBytes, 4 * sizeOfCopies + 10);
        QCOMPARE(result.candidates, 4);
        QCOMPARE(result.wastedBytes, sizeOfCopies);
        QCOMPARE(result.groups.size(), 2);
        QCOMPARE(result.groups[0].wastedBytes, sizeOfCopies); // largest first, over all locations
    }

    void runsContentModes_data()
    {
        const auto row = columns<QByteArray, bool>({"options", "isEqualContent"});
        row("files, exact", "{}", true);
        row("files, exact, refined by a rule", R"({"sameExtension": true})", true);
        row("files, rules", R"({"contentMatch": 2, "sameExtension": true})", false);
        row("files, similar", R"({"contentMatch": 1})", false);
        row("audio, whole", R"({"searchMode": 2, "mediaCompareDepth": 0, "contentMatch": 9})", true);
        row("audio, 2 MiB", R"({"searchMode": 2, "mediaCompareDepth": 1})", false);
        row("audio, 512 KiB", R"({"searchMode": 2, "mediaCompareDepth": 2})", false);
        row("audio, exact", R"({"searchMode": 2, "mediaCompareDepth": 3})", true);
        row("audio, rules", R"({"searchMode": 2, "mediaCompareDepth": 4, "sameExtension": true})", false);
        row("video, opening", R"({"searchMode": 3, "mediaCompareDepth": 9})", false);
        row("video, whole", R"({"searchMode": 3, "mediaCompareDepthAlt": 1})", true);
        row("empty files", R"({"locations": [{"path": "", "findKind": 2}]})", true);
        row("names", R"({"locations": [{"path": "", "findKind": 1}]})", false);
    }

    void runsContentModes()
    {
        QFETCH(QByteArray, options);
        const TempTree tree;
        ScanOptions parsed = optionsFrom(options);
        parsed.roots = QStringList(tree.path());
        fill(tree, u"a"_s);
        if (parsed.locations.isEmpty()) {
            parsed.minSize = 1;
        } else {
            parsed.locations[0].path = tree.path();
            fill(tree, u"b"_s);
        }
        const ScanResult result = scan(parsed);
        QVERIFY(!result.groups.isEmpty());
        QVERIFY(!parsed.locations.isEmpty() || groupsText(result, tree) == u"a/1 a/2"_s);
        QTEST(result.groups.constFirst().isEqualContent, "isEqualContent");
    }

    void knowsNoOtherModes_data()
    {
        const auto row = columns<qint32, qint32, qint32>({"searchMode", "choice", "findKind"});
        row("mode too large", 4, 0, 0);
        row("mode negative", -1, 0, 0);
        row("files, choice too large", 0, 3, 0);
        row("files, choice negative", 0, -1, 0);
        row("audio, choice too large", 2, 5, 0);
        row("video, choice too large", 3, 3, 0);
        row("kind too large", 0, 0, 3);
    }

    void knowsNoOtherModes()
    {
        QFETCH(qint32, searchMode);
        QFETCH(qint32, choice);
        QFETCH(qint32, findKind);
        const TempTree tree;
        fill(tree, u"a"_s);
        ScanOptions options = optionsFor(tree);
        options.searchMode = searchMode;
        options.contentMatch = options.mediaCompareDepth = options.mediaCompareDepthAlt = choice;
        options.locations.append(location(tree, u""_s, static_cast<FindKind>(findKind)));
        const ScanResult result = scan(options);
        QCOMPARE(result.groups.size(), 0);
        QCOMPARE(result.wastedBytes, 0);
        QCOMPARE(result.filesScanned, 3);
        QCOMPARE(result.totalBytes, 2 * sizeOfCopies);
    }

    void leavesItsOwnFilesOut()
    {
        const TempTree tree;
        tree.writeAll(u"data/mine data/log data/log.lock data/cache/x cache/x"_s);
        const auto off = qScopeGuard([] { setOwnFiles({}); });
        setOwnFiles({tree.path(u"data"_s), {u"cache"_s}, {u"log"_s}});
        QCOMPARE(groupsText(scan(optionsFor(tree)), tree), u"cache/x data/mine"_s);
        const ScanResult own = scan(optionsFor(tree, {u"data/cache"_s}));
        QCOMPARE(own.filesScanned, 0);
        QCOMPARE(own.unread.size(), 1);
        if (!tree.symbolicLink(u"data"_s, u"link"_s))
            QSKIP("no symbolic links here");
        QCOMPARE(scan(optionsFor(tree, {u"link"_s})).filesScanned, 1);
    }

    /// Each of these is all that two folders differ in.
    void seesWhatItLeftOutOfFolders()
    {
        const TempTree tree;
        for (const QString &folder : {u"same"_s, u"hidden"_s, u"filtered"_s, u"excluded"_s, u"empty"_s, u"link"_s})
            tree.writeAll(folder + u"/1/x "_s + folder + u"/2/x"_s, "12" + folder.toUtf8());
        tree.writeAll(u"hidden/1/.h excluded/1/out/x"_s, "12");
        tree.write(u"filtered/1/f"_s, "1");
        tree.makeFolder(u"empty/1/e"_s);
        ScanOptions options = optionsFor(tree);
        options.minSize = 2;
        options.skipHidden = true;
        options.excludeFolders = QStringList(tree.path(u"excluded/1/out"_s));
        const bool hasLinks = tree.symbolicLink(u"same/1/x"_s, u"link/1/l"_s);
        QList<QStringList> found;
        for (const FolderGroup &group : scan(options).folderGroups)
            found.append({QFileInfo(group.folders.constFirst().path).path().section(u'/', -1)});
        QCOMPARE(sortedText(found), hasLinks ? u"same"_s : u"link|same"_s);
    }

    void sizesThreadPool()
    {
        const TempTree tree;
        fill(tree, u"a"_s);
        ScanOptions options = optionsFor(tree);
        for (const int threads : {3, 1, 0}) {
            options.threads = threads;
            QCOMPARE(scan(options).groups.size(), 1);
            const int expected = threadCountFor(threads, QThread::idealThreadCount());
            QCOMPARE(QThreadPool::globalInstance()->maxThreadCount(), expected);
        }
    }
};

QTEST_GUILESS_MAIN(DuplicateScannerTest)
#include "tst_duplicatescanner.moc"
