#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/match/memberorder.h"
#include "core/platform/nativepath.h"
#include "core/scan/duplicatescanner.h"
#include "core/walk/enumeration.h"
#include "tests/support/disk.h"
#include "tests/support/probes.h"
#include "tests/support/scans.h"
#include "tests/support/temptree.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <cstdio>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mib = 1048576;
constexpr qint64 largeBytes = 20000; ///< more than the quick hash reads
constexpr qint64 smallBytes = 100;   ///< read whole by the quick hash
constexpr qint64 someTimeMs = 1600000000000;

ScanResult scan(const ScanOptions &options)
{
    return DuplicateScanner::scan(options, {}, {});
}

QByteArray withByteChanged(QByteArray bytes, qint64 position)
{
    bytes[position] = static_cast<char>(~bytes[position]);
    return bytes;
}

/// The total of the last report of each phase.
QMap<QString, qint64> totalsOf(const ScanOptions &options, ScanResult &result)
{
    QMap<QString, qint64> totals;
    result =
        DuplicateScanner::scan(options, [&](const ScanProgress &report) { totals[report.phase] = report.total; }, {});
    return totals;
}

QJsonObject cacheEntryOf(const QString &path)
{
    QFile file(cachePathFor(path));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// Groups in an order that does not depend on how the scan went.
QList<QStringList> sortedGroups(const ScanResult &result, const TempTree &tree)
{
    QList<QStringList> groups = groupsOf(result, tree);
    for (QStringList &group : groups)
        group.sort();
    std::sort(groups.begin(), groups.end());
    return groups;
}

} // namespace

class ExactTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void separatesByLastByte();
    void separatesByMiddle();
    void ignoresEmptyFiles();
    void ordersByWaste();
    void ordersMembers_data();
    void ordersMembers();
    void ordersGroupsAndMembers();
    void namesGroupsByDigest_data();
    void namesGroupsByDigest();
    void readsNamesOfBytes();
    void equalsBruteForce_data();
    void equalsBruteForce();
    void collapsesHardLinks();
    void readsNoLoneGiant();
    void dropsWhatFailsMeanwhile_data();
    void dropsWhatFailsMeanwhile();
    void dropsWhatChangesWhileItIsRead();
    void dropsWhatMayNotBeRead();
    void reportsProgressInSteps();
    void returnsCountsWhenCancelled_data();
    void returnsCountsWhenCancelled();
    void stopsWithinStage();
    void readsNothingTwice();
    void rehashesTouchedFiles_data();
    void rehashesTouchedFiles();
    void storesWhatItHashed();
    void writesDigestsAsTheyAreGained();
    void keepsDigestsWhenCancelled();
    void recoversBrokenEntries_data();
    void recoversBrokenEntries();
    void survivesHostileCache();
    void writesNothingWithoutCache();
};

void ExactTest::init()
{
    setCacheRoot({});
    setContentHashAlgorithm(ContentHashAlgorithm::Md5);
}

void ExactTest::cleanup()
{
    init();
}

void ExactTest::separatesByLastByte()
{
    const TempTree tree;
    const QByteArray content = patternBytes(mib);
    tree.write(u"a"_s, content);
    tree.write(u"b"_s, content);
    tree.write(u"c"_s, withByteChanged(content, mib - 1));
    ScanResult result;
    const auto totals = totalsOf(optionsFor(tree), result);
    QCOMPARE(sortedGroups(result, tree), QList<QStringList>({{u"a"_s, u"b"_s}}));
    QCOMPARE(result.wastedBytes, mib);
    QCOMPARE(result.candidates, 3);
    QCOMPARE(result.filesScanned, 3);
    QCOMPARE(result.totalBytes, 3 * mib);
    QCOMPARE(totals[Phase::QuickHash], 3);
    QCOMPARE(totals[Phase::FullHash], 2); // the third is not read whole
}

void ExactTest::separatesByMiddle()
{
    const TempTree tree;
    const QByteArray content = patternBytes(largeBytes);
    tree.write(u"a"_s, content);
    tree.write(u"b"_s, withByteChanged(content, quickWindowBytes));
    tree.write(u"c"_s, withByteChanged(content, largeBytes - quickWindowBytes - 1));
    tree.write(u"d"_s, content);
    ScanResult result;
    const auto totals = totalsOf(optionsFor(tree), result);
    QCOMPARE(totals[Phase::FullHash], 4);
    QCOMPARE(sortedGroups(result, tree), QList<QStringList>({{u"a"_s, u"d"_s}}));
}

void ExactTest::ignoresEmptyFiles()
{
    const TempTree tree;
    tree.write(u"a"_s, "");
    tree.write(u"b"_s, "");
    tree.write(u"c"_s, "one of its size");
    const ScanResult result = scan(optionsFor(tree));
    QCOMPARE(result.groups.size(), 0);
    QCOMPARE(result.candidates, 0);
    QCOMPARE(result.wastedBytes, 0);
    QCOMPARE(result.filesScanned, 3);
    QCOMPARE(result.totalBytes, 15);
}

void ExactTest::ordersByWaste()
{
    const TempTree tree;
    const auto writeCopies = [&tree](const QString &name, qint64 size, int count) {
        for (int i = 0; i < count; ++i)
            tree.write(u"%1%2"_s.arg(name).arg(i), patternBytes(size));
    };
    writeCopies(u"middle"_s, 1000, 2);
    writeCopies(u"most"_s, 600, 4);
    writeCopies(u"least"_s, 10, 3);
    const ScanResult result = scan(optionsFor(tree));
    QCOMPARE(result.groups.size(), 3);
    QCOMPARE(result.groups[0].wastedBytes, 1800);
    QCOMPARE(result.groups[1].wastedBytes, 1000);
    QCOMPARE(result.groups[2].wastedBytes, 20); // three files of ten bytes
    QCOMPARE(result.wastedBytes, 2820);
    QCOMPARE(result.candidates, 9);
}

void ExactTest::ordersMembers_data()
{
    QTest::addColumn<QStringList>("ordered");
    QTest::newRow("the shorter path") << QStringList{u"z/a"_s, u"a/bc"_s, u"a/bd"_s, u"a/b/c"_s};
    QTest::newRow("no copy words") << QStringList{
        u"deep/down/photo.jpg"_s, u"photo (1).jpg"_s,     u"photo (2).jpg"_s,           u"photo (copy).jpg"_s,
        u"photo - Copy.jpg"_s,    u"Copy of photo.jpg"_s, u"photo (another copy).jpg"_s};
    QTest::newRow("nothing but copy words") << QStringList{u"(1).x"_s, u"Copy.x"_s, u"of copy.d"_s, u"of copy (1).d"_s};
    QTest::newRow("code points") << QStringList{u"zz"_s, u"\uFFFDz"_s, u"😀"_s};
}

void ExactTest::ordersMembers()
{
    QFETCH(QStringList, ordered);
    DuplicateGroup group;
    for (const QString &path : std::as_const(ordered)) {
        group.files.prepend({});
        group.files[0].path = u'/' + path;
    }
    for (qsizetype turn = 0; turn < ordered.size(); ++turn) {
        group.files.append(group.files.takeFirst());
        QList<DuplicateGroup> groups = {group};
        orderMembers(groups);
        QStringList found;
        for (const FileEntry &file : std::as_const(groups[0].files))
            found.append(file.path.mid(1));
        QCOMPARE(found, ordered);
    }
}

void ExactTest::ordersGroupsAndMembers()
{
    const TempTree tree;
    const QStringList folders = {u"m"_s, u"a"_s, u"z"_s};
    for (const QString &folder : folders) {
        for (const quint32 seed : {3, 1, 2})
            tree.write(folder + u'/' + QString::number(seed), patternBytes(smallBytes, seed));
        tree.write(folder + u"/0"_s, patternBytes(largeBytes));
    }
    const ScanOptions options = optionsFor(tree, folders);
    const ScanResult result = scan(options);
    QList<QStringList> expected;
    for (const QString &name : {u"0"_s, u"1"_s, u"2"_s, u"3"_s})
        expected.append({u"a/"_s + name, u"m/"_s + name, u"z/"_s + name});
    QCOMPARE(groupsOf(result, tree), expected);
    // Members are the records of the walk, nothing left out.
    QVERIFY(enumerateFiles(options, {}, {}).contains(result.groups[0].files[0]));
}

void ExactTest::namesGroupsByDigest_data()
{
    QTest::addColumn<ContentHashAlgorithm>("algorithm");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("key");
    const auto md5 = [](qint64 size) {
        return QString::fromLatin1(QCryptographicHash::hash(patternBytes(size), QCryptographicHash::Md5).toHex());
    };
    const auto blake3 = ContentHashAlgorithm::Blake3;
    QTest::newRow("MD5, small") << ContentHashAlgorithm::Md5 << smallBytes << md5(smallBytes);
    QTest::newRow("MD5, large") << ContentHashAlgorithm::Md5 << largeBytes << md5(largeBytes);
    QTest::newRow("BLAKE3, small") << blake3 << smallBytes
                                   << u"822e90685b4a54554ae1f99711ac77b8f6f6fcaab8967bd07a0c5073283c8090"_s;
    QTest::newRow("BLAKE3, large") << blake3 << largeBytes
                                   << u"8580ab9b2e3eedc742090ec6a363bac80784fc90fff9aeaaf0e82d68a98e277e"_s;
}

void ExactTest::namesGroupsByDigest()
{
    QFETCH(ContentHashAlgorithm, algorithm);
    QFETCH(qint64, size);
    QFETCH(QString, key);
    const TempTree tree;
    tree.write(u"a"_s, patternBytes(size));
    tree.write(u"b"_s, patternBytes(size));
    setContentHashAlgorithm(algorithm);
    for (const QString &cache : {QString(), tree.path(u"cache"_s)}) {
        setCacheRoot(cache);
        const ScanResult result = scan(optionsFor(tree));
        QCOMPARE(result.groups.size(), 1);
        QCOMPARE(result.groups[0].key, key);
    }
}

void ExactTest::readsNamesOfBytes()
{
    if (!namesAreBytes)
        QSKIP("names are not bytes here");
    const TempTree tree;
    const QString latin = tree.writeNamedByBytes("caf\xE9", patternBytes(largeBytes));
    const QString plain = tree.write(u"cafe"_s, patternBytes(largeBytes));
    const auto cleanUp = qScopeGuard([&] { std::remove(pathBytes(latin).constData()); });
    const ScanResult result = scan(optionsFor(tree));
    QCOMPARE(result.groups.size(), 1);
    QStringList paths = {result.groups[0].files[0].path, result.groups[0].files[1].path};
    paths.sort();
    QCOMPARE(paths, QStringList({plain, latin}));
}

void ExactTest::equalsBruteForce_data()
{
    QTest::addColumn<ContentHashAlgorithm>("algorithm");
    QTest::addColumn<bool>("usesCache");
    QTest::addColumn<int>("threads");
    QTest::newRow("MD5") << ContentHashAlgorithm::Md5 << false << 1;
    QTest::newRow("MD5, two threads, cache") << ContentHashAlgorithm::Md5 << true << 2;
    QTest::newRow("BLAKE3, automatic") << ContentHashAlgorithm::Blake3 << false << 0;
    QTest::newRow("BLAKE3, one thread, cache") << ContentHashAlgorithm::Blake3 << true << 1;
}

void ExactTest::equalsBruteForce()
{
    QFETCH(ContentHashAlgorithm, algorithm);
    QFETCH(bool, usesCache);
    QFETCH(int, threads);
    const TempTree cache;
    const TempTree tree;
    QRandomGenerator random(20240817);
    QMap<QByteArray, QStringList> pathsOfContent;
    // Around the edges of the windows, so that a change at any place must be seen by the right stage.
    const QList<qint64> sizes = {0, 1, 2, 4095, 4096, 4097, 8191, 8192, 8193, 12288, 12289, 20000};
    for (int i = 0; i < 250; ++i) {
        QByteArray content = patternBytes(sizes[random.bounded(sizes.size())]);
        const QList<qint64> places = {0, content.size() / 2, content.size() - 1};
        if (!content.isEmpty() && random.bounded(2) == 1)
            content = withByteChanged(content, places[random.bounded(places.size())]);
        const QString path = u"%1/%2"_s.arg(random.bounded(8)).arg(i);
        tree.write(path, content);
        pathsOfContent[content].append(path);
    }
    QList<QStringList> expected;
    for (auto it = pathsOfContent.begin(); it != pathsOfContent.end(); ++it) {
        it->sort();
        if (!it.key().isEmpty() && it->size() >= 2)
            expected.append(*it);
    }
    std::sort(expected.begin(), expected.end());

    setContentHashAlgorithm(algorithm);
    setCacheRoot(usesCache ? cache.path() : QString());
    ScanOptions options = optionsFor(tree);
    options.threads = threads;
    for (int round = 0; round < 2; ++round) {
        const ScanResult result = scan(options);
        QCOMPARE(sortedGroups(result, tree), expected);
        qint64 waste = 0;
        for (const DuplicateGroup &group : result.groups)
            waste += group.files[0].size * (group.files.size() - 1);
        QCOMPARE(result.wastedBytes, waste);
    }
}

void ExactTest::collapsesHardLinks()
{
    const TempTree tree;
    tree.write(u"1/file"_s, patternBytes(largeBytes));
    tree.write(u"3/copy"_s, patternBytes(largeBytes));
    tree.write(u"1/alone"_s, patternBytes(smallBytes));
    tree.makeFolder(u"2"_s);
    if (!tree.hardLink(u"1/file"_s, u"2/file"_s) || !tree.hardLink(u"1/alone"_s, u"2/alone"_s))
        QSKIP("no hard links here");
    ScanOptions options = optionsFor(tree, {u"1"_s, u"2"_s, u"3"_s});
    options.readFileIdentity = true;
    ScanResult result = scan(options);
    QCOMPARE(groupsOf(result, tree),
             QList<QStringList>({{u"1/file"_s, u"2/file"_s, u"3/copy"_s}, {u"1/alone"_s, u"2/alone"_s}}));
    options.collapseHardLinks = true;
    result = scan(options);
    QCOMPARE(groupsOf(result, tree), QList<QStringList>({{u"1/file"_s, u"3/copy"_s}}));
    QCOMPARE(result.groups[0].wastedBytes, largeBytes);
    QCOMPARE(result.wastedBytes, largeBytes);
}

/// Reading a terabyte of zeros would take an hour, and nothing asks for it: no other file has that size.
void ExactTest::readsNoLoneGiant()
{
    const TempTree tree;
    const QString giant = tree.write(u"a/giant"_s, "x");
    if (!QFile::resize(giant, qint64(1) << 40))
        QSKIP("no sparse files here");
    tree.write(u"a/one"_s, "same");
    tree.write(u"a/two"_s, "same");
    const ScanResult result = DuplicateScanner::scan(optionsFor(tree, {u"a"_s}), {}, {});
    QCOMPARE(groupsOf(result, tree), QList<QStringList>({{u"a/one"_s, u"a/two"_s}}));
    QCOMPARE(result.totalBytes, (qint64(1) << 40) + 8);
    QVERIFY(result.unread.isEmpty());
}

void ExactTest::dropsWhatFailsMeanwhile_data()
{
    QTest::addColumn<QString>("phase"); ///< at whose end the file changes
    QTest::addColumn<QString>("change");
    QTest::addColumn<qint64>("size");
    for (const char *change : {"deleted", "folder", "grown", "cut", "pipe"}) {
        const QString text = QString::fromLatin1(change);
        QTest::addRow("small, before quick hash: %s", change) << Phase::Enumerating << text << smallBytes;
        QTest::addRow("large, before quick hash: %s", change) << Phase::Enumerating << text << largeBytes;
        QTest::addRow("large, before full hash: %s", change) << Phase::QuickHash << text << largeBytes;
    }
    QTest::newRow("small, grown beyond small") << Phase::Enumerating << u"grown large"_s << smallBytes;
}

void ExactTest::dropsWhatFailsMeanwhile()
{
    QFETCH(QString, phase);
    QFETCH(QString, change);
    QFETCH(qint64, size);
    const TempTree cache;
    const TempTree tree;
    setCacheRoot(cache.path());
    const QStringList folders = {u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    for (const QString &folder : folders)
        tree.write(folder + u"/file"_s, patternBytes(size));
    const QString victim = tree.path(u"b/file"_s);
    const QString second = tree.path(u"d/file"_s); // two that cannot be read are not equal for it
    const auto spoil = [&](const QString &path) {
        const qint64 extra = path == victim ? 1 : 2; // or they would be equal again
        if (change.startsWith(u"grown"_s)) {
            QFile file(path);
            const qint64 more = extra + (change == u"grown"_s ? 0 : largeBytes);
            return file.open(QIODevice::Append) && file.write(patternBytes(more)) == more;
        }
        if (change == u"cut"_s)
            return QFile::resize(path, size / 2 + extra);
        return QFile::remove(path) && (change != u"folder"_s || QDir().mkpath(path)) &&
               (change != u"pipe"_s || makePipe(path));
    };
    bool isDone = false;
    const auto act = [&] { isDone = spoil(victim) && spoil(second); };
    const ScanOptions options = optionsFor(tree, folders);
    const ScanResult result = DuplicateScanner::scan(options, atEndOf(phase, act), {});
    if (!isDone && change == u"pipe"_s)
        QSKIP("no named pipes here");
    QVERIFY(isDone);
    QCOMPARE(groupsOf(result, tree), QList<QStringList>({{u"a/file"_s, u"c/file"_s}}));
    QCOMPARE(result.candidates, 4);
    // Nothing that was read after the change may be remembered for the state that the walk saw.
    QVERIFY(!cacheEntryOf(victim).contains(u"full"_s));
    QVERIFY(phase == Phase::QuickHash || !cacheEntryOf(victim).contains(u"quick"_s));
    if (!change.startsWith(u"grown"_s) && change != u"cut"_s) {
        QCOMPARE(result.unread.size(), 2);
        QCOMPARE(QStringList({result.unread[0].path, result.unread[1].path}), QStringList({victim, second}));
        QVERIFY(!result.unread[0].reason.isEmpty());
    }
}

/// The cancellation query is asked before each piece that is read, so it can touch files in the middle of the reading.
void ExactTest::dropsWhatChangesWhileItIsRead()
{
    const TempTree cache;
    const TempTree tree;
    setCacheRoot(cache.path());
    constexpr qint64 size = 2 * streamChunkBytes + 1;
    for (const QString &folder : {u"a"_s, u"b"_s, u"c"_s})
        tree.write(folder + u"/file"_s, patternBytes(size));
    std::atomic<bool> isReading = false;
    qint64 timeMs = someTimeMs;
    const auto touch = [&] {
        if (isReading)
            tree.setModified(u"b/file"_s, timeMs += 1000);
        return false;
    };
    ScanOptions options = optionsFor(tree, {u"a"_s, u"b"_s, u"c"_s});
    options.threads = 1;
    const ScanResult result =
        DuplicateScanner::scan(options, atEndOf(Phase::QuickHash, [&] { isReading = true; }), touch);
    QCOMPARE(groupsOf(result, tree), QList<QStringList>({{u"a/file"_s, u"c/file"_s}}));
    QCOMPARE(result.unread.size(), 1);
    QCOMPARE(result.unread[0].path, tree.path(u"b/file"_s));
    QVERIFY(!result.unread[0].reason.isEmpty());
    QVERIFY(!cacheEntryOf(tree.path(u"b/file"_s)).contains(u"full"_s));
    QVERIFY(cacheEntryOf(tree.path(u"a/file"_s)).contains(u"full"_s));
}

void ExactTest::dropsWhatMayNotBeRead()
{
    const TempTree tree;
    for (const QString &name : {u"a"_s, u"b"_s, u"closed"_s})
        tree.write(name, patternBytes(largeBytes));
    QFile::setPermissions(tree.path(u"closed"_s), {});
    if (QFileInfo(tree.path(u"closed"_s)).isReadable())
        QSKIP("this user may read everything");
    const ScanResult result = scan(optionsFor(tree));
    QCOMPARE(sortedGroups(result, tree), QList<QStringList>({{u"a"_s, u"b"_s}}));
    QCOMPARE(result.filesScanned, 3);
    QCOMPARE(result.unread.size(), 1);
    QCOMPARE(result.unread[0].path, tree.path(u"closed"_s));
}

void ExactTest::reportsProgressInSteps()
{
    const TempTree tree;
    constexpr qint64 count = 300;
    for (qint64 i = 0; i < count; ++i)
        tree.write(QString::number(i), patternBytes(largeBytes));
    ScanOptions options = optionsFor(tree);
    options.threads = 4;
    std::atomic<int> inside = 0;
    bool hasOverlap = false;
    QList<ScanProgress> reports;
    const auto note = [&](const ScanProgress &report) {
        hasOverlap |= inside.fetch_add(1) != 0;
        reports.append(report);
        for (int i = 0; i < 200; ++i) // gives others the chance to come in
            QThread::yieldCurrentThread();
        inside.fetch_sub(1);
    };
    const ScanResult result = DuplicateScanner::scan(options, note, {});
    QCOMPARE(result.groups.size(), 1);
    QVERIFY(!hasOverlap);

    QStringList phases;
    qint64 processed = 0;
    for (const ScanProgress &report : std::as_const(reports)) {
        if (phases.isEmpty() || phases.constLast() != report.phase) {
            phases.append(report.phase);
            processed = 0;
        }
        if (report.phase == Phase::Enumerating)
            continue;
        QCOMPARE(report.total, count);
        QCOMPARE(report.filesFound, count);
        QVERIFY(report.processed > processed);
        QVERIFY(report.processed % 64 == 0 || report.processed == count);
        QVERIFY(report.currentPath.startsWith(tree.path() + u'/'));
        processed = report.processed;
        if (&report == &reports.constLast())
            QCOMPARE(processed, count);
    }
    QCOMPARE(phases, QStringList({Phase::Enumerating, Phase::QuickHash, Phase::FullHash}));
}

void ExactTest::returnsCountsWhenCancelled_data()
{
    QTest::addColumn<QString>("phase");
    QTest::newRow("quick hash") << Phase::QuickHash;
    QTest::newRow("full hash") << Phase::FullHash;
}

void ExactTest::returnsCountsWhenCancelled()
{
    QFETCH(QString, phase);
    const TempTree tree;
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
        tree.write(name, patternBytes(largeBytes));
    tree.write(u"other size"_s, patternBytes(smallBytes));
    std::atomic<bool> isCancelled = false;
    QStringList phases;
    const auto note = [&](const ScanProgress &report) {
        phases.append(report.phase);
        atEndOf(phase, [&] { isCancelled = true; })(report);
    };
    const ScanResult result = DuplicateScanner::scan(optionsFor(tree), note, [&] { return isCancelled.load(); });
    QCOMPARE(phases.constLast(), phase);
    QCOMPARE(result.groups.size(), 0);
    QCOMPARE(result.wastedBytes, 0);
    QCOMPARE(result.filesScanned, 4);
    QCOMPARE(result.totalBytes, 3 * largeBytes + smallBytes);
    QCOMPARE(result.candidates, 3);
}

void ExactTest::stopsWithinStage()
{
    const TempTree tree;
    constexpr qint64 count = 200;
    for (qint64 i = 0; i < count; ++i)
        tree.write(QString::number(i), patternBytes(smallBytes));
    ScanOptions options = optionsFor(tree);
    options.threads = 1;
    std::atomic<bool> isCancelled = false;
    QList<qint64> processed;
    const auto note = [&](const ScanProgress &report) {
        if (report.phase == Phase::Enumerating)
            return;
        processed.append(report.processed);
        isCancelled = true;
    };
    const ScanResult result = DuplicateScanner::scan(options, note, [&] { return isCancelled.load(); });
    QCOMPARE(processed, QList<qint64>({64}));
    QCOMPARE(result.groups.size(), 0);
    QCOMPARE(result.candidates, count);
}

/// Nothing shows better that a file was not read than content that nobody notices.
void ExactTest::readsNothingTwice()
{
    const TempTree cache;
    const TempTree tree;
    const QStringList names = {u"large 1"_s, u"large 2"_s, u"small 1"_s, u"small 2"_s};
    const auto writeAll = [&](quint32 seedOfSecond) {
        for (const QString &name : names) {
            const qint64 size = name.startsWith(u"large"_s) ? largeBytes : smallBytes;
            tree.write(name, patternBytes(size, name.endsWith(u'2') ? seedOfSecond : 0));
            tree.setModified(name, someTimeMs);
        }
    };
    writeAll(0);
    setCacheRoot(cache.path());
    const auto first = groupsOf(scan(optionsFor(tree)), tree);
    QCOMPARE(first.size(), 2);
    writeAll(77);
    QCOMPARE(groupsOf(scan(optionsFor(tree)), tree), first);
    setCacheRoot({});
    QCOMPARE(scan(optionsFor(tree)).groups.size(), 0);
}

void ExactTest::rehashesTouchedFiles_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<quint32>("newSeed");
    QTest::addColumn<int>("groups");
    QTest::newRow("large, other content") << largeBytes << 77U << 0;
    QTest::newRow("large, same content") << largeBytes << 0U << 1;
    QTest::newRow("small, other content") << smallBytes << 77U << 0;
    QTest::newRow("small, same content") << smallBytes << 0U << 1;
}

void ExactTest::rehashesTouchedFiles()
{
    QFETCH(qint64, size);
    QFETCH(quint32, newSeed);
    QFETCH(int, groups);
    const TempTree cache;
    const TempTree tree;
    setCacheRoot(cache.path());
    tree.write(u"a"_s, patternBytes(size));
    const QString touched = tree.write(u"b"_s, patternBytes(size));
    tree.setModified(u"b"_s, someTimeMs);
    QCOMPARE(scan(optionsFor(tree)).groups.size(), 1);
    tree.write(u"b"_s, patternBytes(size, newSeed));
    tree.setModified(u"b"_s, someTimeMs + 1);
    for (int round = 0; round < 2; ++round) { // the second time from the new entry
        QCOMPARE(scan(optionsFor(tree)).groups.size(), groups);
        const QJsonObject entry = cacheEntryOf(touched);
        QCOMPARE(entry[u"mtimeMs"_s].toInteger(), someTimeMs + 1);
        const bool isWhole = groups == 1 || size == smallBytes; // small files are read only once
        const QByteArray full = isWhole ? fullContentHash(touched).toHex() : QByteArray();
        QCOMPARE(entry[u"full"_s].toString(), QString::fromLatin1(full));
    }
}

void ExactTest::storesWhatItHashed()
{
    const TempTree cache;
    const TempTree tree;
    setCacheRoot(cache.path());
    for (const qint64 size : {smallBytes, largeBytes}) {
        tree.write(u"%1 a"_s.arg(size), patternBytes(size));
        tree.write(u"%1 b"_s.arg(size), patternBytes(size));
        tree.write(u"%1 other"_s.arg(size), patternBytes(size, 77));
    }
    tree.write(u"size of its own"_s, patternBytes(5));
    tree.write(u"empty 1"_s, "");
    tree.write(u"empty 2"_s, "");
    QCOMPARE(scan(optionsFor(tree)).groups.size(), 2);
    for (const qint64 size : {smallBytes, largeBytes}) {
        for (const QString &name : {u"a"_s, u"b"_s, u"other"_s}) {
            const QString path = tree.path(u"%1 %2"_s.arg(size).arg(name));
            const QJsonObject entry = cacheEntryOf(path);
            QCOMPARE(entry[u"algo"_s].toString(), u"md5"_s);
            QCOMPARE(entry[u"size"_s].toInteger(), size);
            QCOMPARE(entry[u"quick"_s].toString(), QString::fromLatin1(quickHash(path).toHex()));
            const bool isWhole = name != u"other"_s || size == smallBytes; // small files are read only once
            const QByteArray full = isWhole ? fullContentHash(path).toHex() : QByteArray();
            QCOMPARE(entry[u"full"_s].toString(), QString::fromLatin1(full));
        }
    }
    for (const QString &name : {u"size of its own"_s, u"empty 1"_s})
        QVERIFY(!QFileInfo::exists(cachePathFor(tree.path(name))));
}

/// Whatever ends the program now, only the few digests that wait to be written are lost.
void ExactTest::writesDigestsAsTheyAreGained()
{
    constexpr int files = 1000;
    constexpr int mostLost = 256 + 10;
    const TempTree cache;
    const TempTree tree;
    setCacheRoot(cache.path());
    QStringList paths;
    for (int i = 0; i < files; ++i)
        paths.append(tree.write(QString::number(i), patternBytes(largeBytes, quint32(i / 2))));
    qsizetype written = 0;
    const auto count = [&] {
        written = std::count_if(paths.begin(), paths.end(),
                                [](const QString &path) { return QFileInfo::exists(cachePathFor(path)); });
    };
    QCOMPARE(DuplicateScanner::scan(optionsFor(tree), atEndOf(Phase::QuickHash, count), {}).groups.size(), files / 2);
    QVERIFY2(written >= files - mostLost, QByteArray::number(written).constData());
}

void ExactTest::keepsDigestsWhenCancelled()
{
    const TempTree cache;
    const TempTree tree;
    setCacheRoot(cache.path());
    const QString path = tree.write(u"a"_s, patternBytes(largeBytes));
    tree.write(u"b"_s, patternBytes(largeBytes));
    std::atomic<bool> isCancelled = false;
    const auto cancel = atEndOf(Phase::QuickHash, [&] { isCancelled = true; });
    (void)DuplicateScanner::scan(optionsFor(tree), cancel, [&] { return isCancelled.load(); });
    QCOMPARE(cacheEntryOf(path)[u"quick"_s].toString(), QString::fromLatin1(quickHash(path).toHex()));
    QVERIFY(!cacheEntryOf(path).contains(u"full"_s));
    QCOMPARE(scan(optionsFor(tree)).groups.size(), 1);
    QVERIFY(cacheEntryOf(path).contains(u"full"_s));
}

void ExactTest::recoversBrokenEntries_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("cut short") << QByteArray(R"({"algo":"md5","size":200)");
    QTest::newRow("other types") << QByteArray(R"({"algo":5,"size":"x","mtimeMs":[],"quick":{},"full":null})");
}

void ExactTest::recoversBrokenEntries()
{
    QFETCH(QByteArray, text);
    const TempTree cache;
    const TempTree tree;
    setCacheRoot(cache.path());
    const QString path = tree.write(u"a"_s, patternBytes(largeBytes));
    tree.write(u"b"_s, patternBytes(largeBytes));
    cache.write(QDir(cache.path()).relativeFilePath(cachePathFor(path)), text);
    QCOMPARE(scan(optionsFor(tree)).groups.size(), 1);
    QCOMPARE(cacheEntryOf(path)[u"full"_s].toString(), QString::fromLatin1(fullContentHash(path).toHex()));
}

/// Entries that somebody else has made or damaged: links, pipes, folders, cut and changed texts. The digests of a whole
/// entry for the file's very state are the only ones that are believed.
void ExactTest::survivesHostileCache()
{
    const TempTree cache;
    const TempTree tree;
    setCacheRoot(cache.path());
    const QString outside = tree.write(u"outside"_s, "mine");
    QRandomGenerator random(1000);
    QList<QStringList> expected;
    for (int i = 0; i < 1000; ++i) {
        const QString name = u"%1"_s.arg(i, 4, 10, QChar(u'0'));
        tree.write(name, patternBytes(200 + 2 * (i / 2), quint32(i / 2)));
        i % 2 == 0 ? expected.append(QStringList(name)) : expected.last().append(name);
    }
    QCOMPARE(sortedGroups(scan(optionsFor(tree)), tree), expected);
    for (int i = 0; i < 1000; ++i) {
        const QString entry = cachePathFor(tree.path(u"%1"_s.arg(i, 4, 10, QChar(u'0'))));
        const QString name = QDir(cache.path()).relativeFilePath(entry);
        QByteArray text = contentOf(entry);
        QVERIFY(QFile::remove(entry));
        switch (random.bounded(8)) {
        case 0:
            QVERIFY(QFile::link(outside, entry));
            continue;
        case 1:
            if (i % 40 == 0 && makePipe(entry)) // making one takes a process
                continue;
            break;
        case 2:
            QVERIFY(QDir().mkpath(entry));
            continue;
        case 3:
            text.truncate(random.bounded(static_cast<int>(text.size())));
            break;
        case 4:
            text.replace(R"("size":)", R"("size":1e400,"other":)");
            break;
        case 5:
            text.replace(R"("full":")", R"("full":"00)");
            break;
        case 6:
            text = QByteArray(random.bounded(100000), '[');
            break;
        default:
            text.replace(R"("mtimeMs":)", R"("mtimeMs":-)");
        }
        cache.write(name, text);
    }
    for (int round = 0; round < 2; ++round)
        QCOMPARE(sortedGroups(scan(optionsFor(tree)), tree), expected);
    QCOMPARE(contentOf(outside), "mine");
}

void ExactTest::writesNothingWithoutCache()
{
    const TempTree current;
    const TempTree tree;
    tree.write(u"a"_s, patternBytes(largeBytes));
    tree.write(u"b"_s, patternBytes(largeBytes));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(current.path())); // where an entry without a folder would land
    const ScanResult result = scan(optionsFor(tree));
    QDir::setCurrent(before);
    QCOMPARE(result.groups.size(), 1);
    QVERIFY(QDir(current.path()).isEmpty());
    QCOMPARE(QDir(tree.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 2);
    QVERIFY(cachePathFor(tree.path(u"a"_s)).isEmpty());
}

QTEST_GUILESS_MAIN(ExactTest)
#include "tst_exact.moc"
