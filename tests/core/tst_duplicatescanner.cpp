#include "core/scan/duplicatescanner.h"

#include "core/cache/cacheroot.h"
#include "core/threads/threadpool.h"
#include "core/walk/ownfiles.h"
#include "tests/support/scans.h"
#include "tests/support/temptree.h"

#include <QFile>
#include <QScopeGuard>
#include <QSet>
#include <QTest>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <stdexcept>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

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
    tree.write(folder + u"/1"_s, patternBytes(sizeOfCopies));
    tree.write(folder + u"/2"_s, patternBytes(sizeOfCopies));
    tree.write(folder + u"/empty"_s, "");
}

/// Each group as its key's kind and its members in alphabetical order.
QSet<QString> groupTexts(const ScanResult &result, const TempTree &tree)
{
    QSet<QString> texts;
    for (const DuplicateGroup &group : result.groups) {
        QStringList paths = relativePaths(group.files, tree);
        paths.sort();
        texts.insert((group.key == u"empty"_s ? u"empty: "_s : u"same: "_s) + paths.join(u", "_s));
    }
    return texts;
}

} // namespace

class DuplicateScannerTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { setCacheRoot({}); }

    void findsNothingWithoutRoots();
    void comparesContentWithoutLocations();
    void findsOnlyEmptyFiles_data();
    void findsOnlyEmptyFiles();
    void treatsEachLocationItsOwnWay_data();
    void treatsEachLocationItsOwnWay();
    void addsUpLocations();
    void runsContentModes_data();
    void runsContentModes();
    void knowsNoOtherModes_data();
    void knowsNoOtherModes();
    void returnsNothingWhenCancelledEarly_data();
    void returnsNothingWhenCancelledEarly();
    void leavesItsOwnFilesOut();
    void tellsFoldersThatDifferInWhatItLeftOut();
    void listsWhatItCouldNotRead();
    void handsExceptionsOn_data();
    void handsExceptionsOn();
    void choosesThreadCount_data();
    void choosesThreadCount();
    void sizesThreadPool();
};

void DuplicateScannerTest::findsNothingWithoutRoots()
{
    ScanResult result = scan({});
    QVERIFY(result.elapsedMs < 1000);
    result.elapsedMs = 0;
    QVERIFY(result == ScanResult());
}

void DuplicateScannerTest::comparesContentWithoutLocations()
{
    const TempTree tree;
    fill(tree, u"a"_s);
    const ScanResult result = scan(optionsFor(tree));
    QCOMPARE(groupTexts(result, tree), QSet<QString>({u"same: a/1, a/2"_s}));
    QCOMPARE(result.filesScanned, 3);
    QCOMPARE(result.totalBytes, 2 * sizeOfCopies);
    QVERIFY(result.elapsedMs >= 0);
}

void DuplicateScannerTest::findsOnlyEmptyFiles_data()
{
    QTest::addColumn<int>("emptyFiles");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("several") << 3;
}

void DuplicateScannerTest::findsOnlyEmptyFiles()
{
    QFETCH(int, emptyFiles);
    const TempTree tree;
    QStringList roots;
    QStringList expected;
    for (int i = 0; i < 4; ++i) {
        roots.append(QString::number(9 - i));
        tree.write(roots[i] + u"/copy"_s, patternBytes(sizeOfCopies));
        if (i < emptyFiles) {
            tree.write(roots[i] + u"/none"_s, "");
            expected.append(roots[i] + u"/none"_s);
        }
    }
    ScanOptions options = optionsFor(tree, roots);
    for (const QString &root : std::as_const(roots))
        options.locations.append(location(tree, root, FindKind::EmptyFiles));
    const ScanResult result = scan(options);
    QCOMPARE(groupsOf(result, tree), emptyFiles == 0 ? QList<QStringList>() : QList<QStringList>({expected}));
    if (emptyFiles > 0)
        QCOMPARE(result.groups[0].key, u"empty"_s);
    QCOMPARE(result.wastedBytes, 0);
    QCOMPARE(result.candidates, 0);
    QCOMPARE(result.filesScanned, 4 + emptyFiles);
    QCOMPARE(result.totalBytes, 4 * sizeOfCopies);
}

void DuplicateScannerTest::treatsEachLocationItsOwnWay_data()
{
    QTest::addColumn<QStringList>("contentFolders");
    QTest::addColumn<QStringList>("emptyFolders");
    QTest::addColumn<QSet<QString>>("groups");
    QTest::newRow("side by side") << QStringList(u"Data"_s) << QStringList(u"Other"_s)
                                  << QSet<QString>({u"same: Data/1, Data/2"_s, u"empty: Other/empty"_s});
    QTest::newRow("names that begin alike") << QStringList(u"Data2"_s) << QStringList(u"Data"_s)
                                            << QSet<QString>({u"same: Data2/1, Data2/2"_s, u"empty: Data/empty"_s});
    QTest::newRow("innermost wins") << QStringList(u"Out"_s) << QStringList(u"Out/In"_s)
                                    << QSet<QString>({u"same: Out/1, Out/2"_s, u"empty: Out/In/empty"_s});
    QTest::newRow("innermost of three wins")
        << QStringList({u"Out"_s, u"Out/In/Deep"_s}) << QStringList(u"Out/In"_s)
        << QSet<QString>({u"same: Out/1, Out/2, Out/In/Deep/1, Out/In/Deep/2"_s, u"empty: Out/In/empty"_s});
    QTest::newRow("one group over several locations")
        << QStringList({u"Data"_s, u"Data2"_s}) << QStringList({u"Other"_s, u"More"_s})
        << QSet<QString>({u"same: Data/1, Data/2, Data2/1, Data2/2"_s, u"empty: More/empty, Other/empty"_s});
}

void DuplicateScannerTest::treatsEachLocationItsOwnWay()
{
    QFETCH(QStringList, contentFolders);
    QFETCH(QStringList, emptyFolders);
    QFETCH(QSet<QString>, groups);
    const TempTree tree;
    ScanOptions options = optionsFor(tree, contentFolders + emptyFolders);
    for (const QString &folder : std::as_const(contentFolders))
        options.locations.append(location(tree, folder, FindKind::ContentDuplicates));
    for (const QString &folder : std::as_const(emptyFolders))
        options.locations.append(location(tree, folder + u'/', FindKind::EmptyFiles));
    for (const QString &folder : contentFolders + emptyFolders)
        fill(tree, folder);
    QCOMPARE(groupTexts(scan(options), tree), groups);
    std::reverse(options.locations.begin(), options.locations.end());
    std::reverse(options.roots.begin(), options.roots.end());
    QCOMPARE(groupTexts(scan(options), tree), groups);
}

void DuplicateScannerTest::addsUpLocations()
{
    const TempTree tree;
    for (const QString &folder : {u"content"_s, u"empty"_s})
        fill(tree, folder);
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

void DuplicateScannerTest::runsContentModes_data()
{
    QTest::addColumn<ScanOptions>("options");
    QTest::addColumn<bool>("isEqualContent");
    ScanOptions options;
    QTest::newRow("files, exact") << options << true;
    options.sameExtension = true;
    QTest::newRow("files, exact, refined by a rule") << options << true;
    options.contentMatch = static_cast<qint32>(ContentMatch::Ignore);
    QTest::newRow("files, rules") << options << false;
    options.contentMatch = static_cast<qint32>(ContentMatch::Similar);
    QTest::newRow("files, similar") << options << false;
    options.searchMode = static_cast<qint32>(SearchMode::Audio);
    options.contentMatch = 9; // counts for files only
    const QList<bool> isEqual = {true, false, false, true, false};
    for (; options.mediaCompareDepth < isEqual.size(); ++options.mediaCompareDepth)
        QTest::addRow("audio, depth %d", options.mediaCompareDepth) << options << isEqual[options.mediaCompareDepth];
    options.searchMode = static_cast<qint32>(SearchMode::Video);
    QTest::newRow("video, opening") << options << false;
    options.mediaCompareDepthAlt = 1;
    QTest::newRow("video, whole") << options << true;
}

void DuplicateScannerTest::runsContentModes()
{
    QFETCH(ScanOptions, options);
    const TempTree tree;
    fill(tree, u"a"_s);
    options.minSize = 1;
    options.roots = QStringList(tree.path());
    const ScanResult result = scan(options);
    QCOMPARE(groupTexts(result, tree), QSet<QString>({u"same: a/1, a/2"_s}));
    QTEST(result.groups.constFirst().isEqualContent, "isEqualContent");
    // The other kinds of search beside it.
    tree.write(u"b/1"_s, "");
    options.minSize = 0;
    for (const auto &[kind, isEqual] : {std::pair(FindKind::EmptyFiles, true), {FindKind::NameDuplicates, false}}) {
        options.locations = {location(tree, u""_s, kind)};
        QCOMPARE(scan(options).groups.constFirst().isEqualContent, isEqual);
    }
}

void DuplicateScannerTest::knowsNoOtherModes_data()
{
    QTest::addColumn<qint32>("searchMode");
    QTest::addColumn<qint32>("choice");
    QTest::addColumn<qint32>("findKind");
    QTest::newRow("mode too large") << 4 << 0 << 0;
    QTest::newRow("mode negative") << -1 << 0 << 0;
    QTest::newRow("files, choice too large") << 0 << 3 << 0;
    QTest::newRow("files, choice negative") << 0 << -1 << 0;
    QTest::newRow("audio, choice too large") << 2 << 5 << 0;
    QTest::newRow("video, choice too large") << 3 << 3 << 0;
    QTest::newRow("kind too large") << 0 << 0 << 3;
}

void DuplicateScannerTest::knowsNoOtherModes()
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

void DuplicateScannerTest::returnsNothingWhenCancelledEarly_data()
{
    QTest::addColumn<int>("polls"); ///< how often the query says no first
    QTest::newRow("at once") << 0;
    QTest::newRow("in the walk") << 5;
}

void DuplicateScannerTest::returnsNothingWhenCancelledEarly()
{
    QFETCH(int, polls);
    const TempTree tree;
    for (int i = 0; i < 5; ++i)
        fill(tree, QString::number(i));
    ScanOptions options = optionsFor(tree, {u""_s, u"missing"_s});
    bool hasHashed = false;
    const auto note = [&](const ScanProgress &report) { hasHashed |= report.phase != Phase::Enumerating; };
    int asked = 0;
    const ScanResult result = DuplicateScanner::scan(options, note, [&] { return asked++ >= polls; });
    QVERIFY(result == ScanResult());
    QVERIFY(!hasHashed);
}

void DuplicateScannerTest::leavesItsOwnFilesOut()
{
    const TempTree tree;
    for (const QString &name : {u"data/mine"_s, u"data/log"_s, u"data/log.lock"_s, u"data/cache/x"_s, u"cache/x"_s})
        tree.write(name, "x");
    const auto off = qScopeGuard([] { setOwnFiles({}); });
    setOwnFiles({tree.path(u"data"_s), {u"cache"_s}, {u"log"_s}});
    QCOMPARE(groupTexts(scan(optionsFor(tree)), tree), QSet<QString>({u"same: cache/x, data/mine"_s}));
    const ScanResult own = scan(optionsFor(tree, {u"data/cache"_s}));
    QCOMPARE(own.filesScanned, 0);
    QCOMPARE(own.unread.size(), 1);
    if (!tree.symbolicLink(u"data"_s, u"link"_s))
        QSKIP("no symbolic links here");
    QCOMPARE(scan(optionsFor(tree, {u"link"_s})).filesScanned, 1);
}

/// Each of these is all that two folders differ in.
void DuplicateScannerTest::tellsFoldersThatDifferInWhatItLeftOut()
{
    const TempTree tree;
    for (const QString &folder : {u"same"_s, u"hidden"_s, u"filtered"_s, u"excluded"_s, u"empty"_s, u"link"_s}) {
        tree.write(folder + u"/1/x"_s, "12" + folder.toUtf8());
        tree.write(folder + u"/2/x"_s, "12" + folder.toUtf8());
    }
    tree.write(u"hidden/1/.h"_s, "12");
    tree.write(u"filtered/1/f"_s, "1");
    tree.write(u"excluded/1/out/x"_s, "12");
    tree.makeFolder(u"empty/1/e"_s);
    ScanOptions options = optionsFor(tree);
    options.minSize = 2;
    options.skipHidden = true;
    options.excludeFolders = QStringList(tree.path(u"excluded/1/out"_s));
    QStringList expected{tree.path(u"same"_s)};
    if (!tree.symbolicLink(u"same/1/x"_s, u"link/1/l"_s))
        expected.append(tree.path(u"link"_s));
    QStringList found;
    for (const FolderGroup &group : scan(options).folderGroups)
        found.append(group.folders.constFirst().path.chopped(2));
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

void DuplicateScannerTest::listsWhatItCouldNotRead()
{
    const TempTree tree;
    fill(tree, u"a"_s);
    const QString victim = tree.path(u"a/1"_s);
    const ScanResult result = DuplicateScanner::scan(optionsFor(tree, {u"missing"_s, u"a"_s}),
                                                     atEndOf(Phase::Enumerating, [&] { QFile::remove(victim); }), {});
    QCOMPARE(result.unread.size(), 2); // the walk's first, then the matcher's
    QCOMPARE(result.unread[0].path, tree.path(u"missing"_s));
    QCOMPARE(result.unread[1].path, victim);
    QCOMPARE(result.groups.size(), 0);
    QCOMPARE(result.filesScanned, 3);
}

void DuplicateScannerTest::handsExceptionsOn_data()
{
    QTest::addColumn<QString>("phase");
    QTest::newRow("from the scanning thread") << Phase::Enumerating;
    QTest::newRow("from a pool thread, quick hash") << Phase::QuickHash;
    QTest::newRow("from a pool thread, full hash") << Phase::FullHash;
}

/// The text of an exception is what the user gets to see of it.
void DuplicateScannerTest::handsExceptionsOn()
{
    QFETCH(QString, phase);
    const TempTree tree;
    fill(tree, u"a"_s);
    const auto fail = atEndOf(phase, [] { throw std::runtime_error("the drive is gone"); });
    QByteArray text;
    try {
        (void)DuplicateScanner::scan(optionsFor(tree), fail, {});
    } catch (const std::exception &error) {
        text = error.what();
    }
    QCOMPARE(text, QByteArray("the drive is gone"));
    QCOMPARE(scan(optionsFor(tree)).groups.size(), 1);
}

void DuplicateScannerTest::choosesThreadCount_data()
{
    QTest::addColumn<qint32>("requested");
    QTest::addColumn<int>("ideal");
    QTest::addColumn<int>("count");
    QTest::newRow("automatic on a large machine") << 0 << 16 << 8;
    QTest::newRow("automatic on four") << 0 << 4 << 4;
    QTest::newRow("automatic on one") << 0 << 1 << 1;
    QTest::newRow("automatic, unknown machine") << 0 << -1 << 1;
    QTest::newRow("negative") << -3 << 4 << 4;
    QTest::newRow("one") << 1 << 16 << 1;
    QTest::newRow("more than eight") << 12 << 2 << 12;
}

void DuplicateScannerTest::choosesThreadCount()
{
    QFETCH(qint32, requested);
    QFETCH(int, ideal);
    QTEST(threadCountFor(requested, ideal), "count");
}

void DuplicateScannerTest::sizesThreadPool()
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

QTEST_GUILESS_MAIN(DuplicateScannerTest)
#include "tst_duplicatescanner.moc"
