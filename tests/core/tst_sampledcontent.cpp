#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/scan/duplicatescanner.h"
#include "tests/support/scans.h"
#include "tests/support/temptree.h"

#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <tuple>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kib = 1024;
constexpr qint64 fileBytes = 3000 * kib; // samples end at 4, 754, 1502, 2254 and 3000 KiB

ScanOptions mediaOptions(const TempTree &tree, SearchMode mode, qint32 depth)
{
    ScanOptions options = optionsFor(tree);
    options.searchMode = static_cast<qint32>(mode);
    options.mediaCompareDepth = options.mediaCompareDepthAlt = depth;
    return options;
}

QByteArray changedAt(qint64 position)
{
    QByteArray bytes = patternBytes(fileBytes);
    bytes[position] = static_cast<char>(~bytes[position]);
    return bytes;
}

/// The names in each group, one text a group.
QSet<QString> groupTexts(const ScanResult &result, const TempTree &tree)
{
    QSet<QString> texts;
    for (const DuplicateGroup &group : result.groups) {
        QStringList paths = relativePaths(group.files, tree);
        paths.sort();
        texts.insert(paths.join(u' '));
    }
    return texts;
}

ScanResult scan(const ScanOptions &options, QMap<QString, qint64> *totals = nullptr)
{
    const auto note = [&](const ScanProgress &report) {
        if (totals)
            totals->insert(report.phase, report.total);
    };
    return DuplicateScanner::scan(options, note, {});
}

} // namespace

class SampledContentTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { setCacheRoot({}); }

    void comparesAsFarAsAsked_data();
    void comparesAsFarAsAsked();
    void equalsBruteForce();
    void narrowsStageByStage();
    void keepsDifferentSamplesApart();
    void appliesRulesAndHardLinks();
    void namesUnreadFiles();
    void stopsWhenCancelled();
    void remembersWholeDigests();
};

void SampledContentTest::comparesAsFarAsAsked_data()
{
    QTest::addColumn<SearchMode>("mode");
    QTest::addColumn<qint32>("depth");
    QTest::addColumn<QSet<QString>>("expected");
    const auto row = [](const char *name, SearchMode mode, qint32 depth, const QString &group) {
        QTest::newRow(name) << mode << depth << QSet<QString>({group});
    };
    row("audio, whole", SearchMode::Audio, 0, u"copy same"_s);
    row("audio, 2 MiB", SearchMode::Audio, 1, u"after2048 copy same"_s);
    row("audio, 512 KiB", SearchMode::Audio, 2, u"after1024 after2048 after512 copy same"_s);
    row("video, 1 MiB", SearchMode::Video, 0, u"after1024 after2048 copy same"_s);
    row("video, whole", SearchMode::Video, 1, u"copy same"_s);
}

/// A byte that differs behind the limit and in no sample goes unseen; one in a sample never does.
void SampledContentTest::comparesAsFarAsAsked()
{
    QFETCH(SearchMode, mode);
    QFETCH(qint32, depth);
    const TempTree tree;
    tree.write(u"same"_s, patternBytes(fileBytes));
    tree.write(u"copy"_s, patternBytes(fileBytes));
    tree.write(u"before512"_s, changedAt(512 * kib - 1));
    for (const qint64 limit : {512, 1024, 2048})
        tree.write(u"after%1"_s.arg(limit), changedAt(limit * kib));
    tree.write(u"insample"_s, changedAt(fileBytes - 1));
    tree.write(u"empty"_s, "");
    tree.write(u"empty2"_s, "");
    const ScanResult result = scan(mediaOptions(tree, mode, depth));
    QTEST(groupTexts(result, tree), "expected");
    QCOMPARE(result.candidates, 7);
    QCOMPARE(result.filesScanned, 9);
    QCOMPARE(result.wastedBytes, (result.groups[0].files.size() - 1) * fileBytes);
}

/// Random changes at the edges of all windows, each way to compare against what it looks at.
void SampledContentTest::equalsBruteForce()
{
    const TempTree tree;
    QRandomGenerator random(18);
    const QList<qint64> places = {0,          5 * kib,    512 * kib - 1,  512 * kib,  751 * kib,    1024 * kib - 1,
                                  1024 * kib, 1500 * kib, 2048 * kib - 1, 2048 * kib, fileBytes - 1};
    const QList<qint64> samples = {0, 751 * kib, 1500 * kib, fileBytes - 1};
    QMap<QString, QSet<qint64>> changes;
    for (int i = 0; i < 30; ++i) {
        QByteArray content = patternBytes(fileBytes);
        QSet<qint64> &changed = changes[QString::number(i)];
        for (int change = random.bounded(3); change > 0; --change)
            changed.insert(places[random.bounded(places.size())]);
        for (const qint64 place : std::as_const(changed))
            content[place] = static_cast<char>(~content[place]);
        tree.write(u"%1/%2"_s.arg(i % 3).arg(i), content);
    }
    const auto groupsWithin = [&](qint64 limit) {
        QMap<QList<qint64>, QStringList> members;
        for (auto file = changes.begin(); file != changes.end(); ++file) {
            QList<qint64> seen;
            std::copy_if(file->begin(), file->end(), std::back_inserter(seen),
                         [&](qint64 place) { return place < limit || samples.contains(place); });
            std::sort(seen.begin(), seen.end());
            members[seen].append(u"%1/%2"_s.arg(file.key().toInt() % 3).arg(file.key()));
        }
        QSet<QString> texts;
        for (QStringList &paths : members) {
            paths.sort();
            if (paths.size() > 1)
                texts.insert(paths.join(u' '));
        }
        return texts;
    };
    const QList<std::tuple<SearchMode, qint32, qint64>> ways = {
        {SearchMode::Files, 0, fileBytes}, {SearchMode::Audio, 0, fileBytes}, {SearchMode::Audio, 1, 2048 * kib},
        {SearchMode::Audio, 2, 512 * kib}, {SearchMode::Audio, 3, fileBytes}, {SearchMode::Video, 0, 1024 * kib},
        {SearchMode::Video, 1, fileBytes}};
    for (const auto &[mode, depth, limit] : ways)
        QCOMPARE(groupTexts(scan(mediaOptions(tree, mode, depth)), tree), groupsWithin(limit));
    QVERIFY(groupsWithin(512 * kib) != groupsWithin(1024 * kib));
    QVERIFY(groupsWithin(2048 * kib) != groupsWithin(fileBytes));
}

void SampledContentTest::narrowsStageByStage()
{
    const TempTree tree;
    tree.write(u"a"_s, changedAt(0));
    tree.write(u"b"_s, changedAt(100 * kib));
    tree.write(u"c"_s, changedAt(200 * kib));
    tree.write(u"other size"_s, patternBytes(10));
    QMap<QString, qint64> totals;
    QCOMPARE(scan(mediaOptions(tree, SearchMode::Video, 0), &totals).groups.size(), 0);
    QCOMPARE(totals[Phase::SampleHash], 3);
    QCOMPARE(totals[Phase::PrefixHash], 2);
}

/// Files of one size and opening whose samples told them apart stay apart, whoever else is there.
void SampledContentTest::keepsDifferentSamplesApart()
{
    const TempTree tree;
    for (const QString &name : {u"a1"_s, u"a2"_s})
        tree.write(name, patternBytes(fileBytes));
    for (const QString &name : {u"b1"_s, u"b2"_s})
        tree.write(name, changedAt(fileBytes - 1));
    const ScanOptions options = mediaOptions(tree, SearchMode::Audio, 2);
    const ScanResult both = scan(options);
    QCOMPARE(groupTexts(both, tree), QSet<QString>({u"a1 a2"_s, u"b1 b2"_s}));
    QCOMPARE(both.wastedBytes, 2 * fileBytes);
    QVERIFY(QFile::remove(tree.path(u"b2"_s)));
    QCOMPARE(groupTexts(scan(options), tree), QSet<QString>({u"a1 a2"_s}));
}

void SampledContentTest::appliesRulesAndHardLinks()
{
    const TempTree tree;
    for (const QString &path : {u"1/x.mp3"_s, u"2/x.mp3"_s, u"3/y.mp3"_s})
        tree.write(path, patternBytes(10000));
    ScanOptions options = mediaOptions(tree, SearchMode::Audio, 1);
    options.sameName = true;
    const ScanResult named = scan(options);
    QCOMPARE(groupTexts(named, tree), QSet<QString>({u"1/x.mp3 2/x.mp3"_s}));
    QVERIFY(named.groups[0].key.endsWith(u"|FN:x.mp3"_s));
    QCOMPARE(named.wastedBytes, 10000);
    if (!tree.hardLink(u"1/x.mp3"_s, u"3/x.mp3"_s))
        QSKIP("no hard links here");
    options.collapseHardLinks = true;
    QCOMPARE(scan(options).wastedBytes, 10000);
    options.collapseHardLinks = false;
    QCOMPARE(scan(options).wastedBytes, 20000);
}

void SampledContentTest::namesUnreadFiles()
{
    const TempTree tree;
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        tree.write(name, patternBytes(10000));
    int removed = 0;
    const auto spoil = [&](const ScanProgress &report) {
        if (isLastOfPhase(report) && report.phase == Phase::Enumerating && removed == 0)
            removed += QFile::remove(tree.path(u"a"_s));
        if (isLastOfPhase(report) && report.phase == Phase::SampleHash)
            removed += QFile::remove(tree.path(u"b"_s));
    };
    const ScanResult result = DuplicateScanner::scan(mediaOptions(tree, SearchMode::Audio, 1), spoil, {});
    QCOMPARE(removed, 2);
    QCOMPARE(groupTexts(result, tree), QSet<QString>({u"c d"_s}));
    QCOMPARE(result.unread.size(), 2);
    QCOMPARE(result.unread[0].path, tree.path(u"a"_s));
    QCOMPARE(result.unread[1].path, tree.path(u"b"_s));
}

void SampledContentTest::stopsWhenCancelled()
{
    const TempTree tree;
    for (int i = 0; i < 3; ++i)
        tree.write(QString::number(i), patternBytes(10000));
    for (const QString &phase : {Phase::SampleHash, Phase::PrefixHash}) {
        QString last;
        std::atomic<bool> isReached = false; // reports come one by one, but the question from all threads
        const auto note = [&](const ScanProgress &report) {
            last = report.phase;
            isReached = last == phase;
        };
        const ScanResult result =
            DuplicateScanner::scan(mediaOptions(tree, SearchMode::Audio, 1), note, [&] { return isReached.load(); });
        QCOMPARE(last, phase);
        QCOMPARE(result.groups.size(), 0);
        QCOMPARE(result.candidates, 3);
    }
}

/// Comparing whole files leaves what an exact scan looks up, and believes what one has left.
void SampledContentTest::remembersWholeDigests()
{
    const TempTree tree;
    const TempTree data;
    setCacheRoot(data.path());
    const auto off = qScopeGuard([] { setCacheRoot({}); });
    QStringList paths;
    for (const QString &name : {u"a"_s, u"b"_s}) {
        paths.append(tree.write(name, patternBytes(30000)));
        tree.setModified(name, 1600000000000);
    }
    QCOMPARE(scan(mediaOptions(tree, SearchMode::Audio, 0)).groups.size(), 1);
    for (const QString &path : std::as_const(paths)) {
        const Fingerprint known = lookupFingerprint(path, 30000, 1600000000000);
        QCOMPARE(known.full, fullContentHash(path));
        QCOMPARE(known.quick, quickHash(path));
    }
    storeQuickAndFull(paths[0], 30000, 1600000000000, quickHash(paths[0]), QByteArray(16, 'x'));
    QCOMPARE(scan(mediaOptions(tree, SearchMode::Audio, 0)).groups.size(), 0);
    QCOMPARE(scan(mediaOptions(tree, SearchMode::Audio, 1)).groups.size(), 1); // openings are not remembered
}

QTEST_GUILESS_MAIN(SampledContentTest)
#include "tst_sampledcontent.moc"
