#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/scan/duplicatescanner.h"
#include "tests/support/coretest.h"

#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QSet>

#include <tuple>

namespace {

constexpr qint64 kib = 1024;
constexpr qint64 fileBytes = 3000 * kib; // samples end at 4, 754, 1502, 2254 and 3000 KiB

ScanResult scan(const TempTree &tree, SearchMode mode, qint32 depth, QMap<QString, qint64> *totals = nullptr)
{
    ScanOptions options = optionsFor(tree);
    options.searchMode = static_cast<qint32>(mode);
    options.mediaCompareDepth = options.mediaCompareDepthAlt = depth;
    const auto note = [&](const ScanProgress &report) {
        if (totals)
            totals->insert(report.phase, report.total);
    };
    return DuplicateScanner::scan(options, note, {});
}

QByteArray changedAt(const QSet<qint64> &positions)
{
    QByteArray bytes = patternBytes(fileBytes);
    for (const qint64 position : positions)
        bytes[position] = static_cast<char>(~bytes[position]);
    return bytes;
}

} // namespace

class SampledContentTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { setCacheRoot({}); }

    /// Random changes at the edges of all windows, each way to compare against what it looks at: a byte that differs
    /// behind the limit and in no sample goes unseen, one in a sample never does.
    void equalsBruteForce()
    {
        const TempTree tree;
        QRandomGenerator random(18);
        const QList<qint64> places = {0,          5 * kib,    512 * kib - 1,  512 * kib,  751 * kib,    1024 * kib - 1,
                                      1024 * kib, 1500 * kib, 2048 * kib - 1, 2048 * kib, fileBytes - 1};
        const QList<qint64> samples = {0, 751 * kib, 1500 * kib, fileBytes - 1};
        QMap<QString, QSet<qint64>> changes;
        for (int i = 0; i < 30; ++i) {
            const QString name = u"%1/%2"_s.arg(i % 3).arg(i);
            for (int change = random.bounded(3); change > 0; --change)
                changes[name].insert(places[random.bounded(places.size())]);
            tree.write(name, changedAt(changes[name]));
        }
        tree.writeAll(u"empty1 empty2"_s, "");
        const auto groupsWithin = [&](qint64 limit) {
            QMap<QList<qint64>, QStringList> members;
            for (auto file = changes.begin(); file != changes.end(); ++file) {
                QList<qint64> seen;
                std::copy_if(file->begin(), file->end(), std::back_inserter(seen),
                             [&](qint64 place) { return place < limit || samples.contains(place); });
                std::sort(seen.begin(), seen.end());
                members[seen].append(file.key());
            }
            members.removeIf([](const auto &group) { return group.value().size() < 2; });
            return sortedText(members.values());
        };
        const QList<std::tuple<SearchMode, qint32, qint64>> ways = {
            {SearchMode::Files, 0, fileBytes}, {SearchMode::Audio, 0, fileBytes}, {SearchMode::Audio, 1, 2048 * kib},
            {SearchMode::Audio, 2, 512 * kib}, {SearchMode::Audio, 3, fileBytes}, {SearchMode::Video, 0, 1024 * kib},
            {SearchMode::Video, 1, fileBytes}};
        for (const auto &[mode, depth, limit] : ways) {
            const ScanResult result = scan(tree, mode, depth);
            QCOMPARE(groupsText(result, tree), groupsWithin(limit));
            QCOMPARE(result.candidates, 30);
            QCOMPARE(result.filesScanned, 32);
        }
        QVERIFY(groupsWithin(512 * kib) != groupsWithin(1024 * kib));
        QVERIFY(groupsWithin(1024 * kib) != groupsWithin(2048 * kib));
        QVERIFY(groupsWithin(2048 * kib) != groupsWithin(fileBytes));
    }

    void narrowsStageByStage()
    {
        const TempTree tree;
        tree.write(u"a"_s, changedAt({0}));
        tree.write(u"b"_s, changedAt({100 * kib}));
        tree.write(u"c"_s, changedAt({200 * kib}));
        tree.write(u"alone"_s, patternBytes(10));
        QMap<QString, qint64> totals;
        QCOMPARE(scan(tree, SearchMode::Video, 0, &totals).groups.size(), 0);
        QCOMPARE(totals[Phase::SampleHash], 3);
        QCOMPARE(totals[Phase::PrefixHash], 2);
    }

    /// Files of one size and opening whose samples differ stay apart, whatever other files there are.
    void keepsDifferentSamplesApart()
    {
        const TempTree tree;
        tree.writeAll(u"a1 a2"_s, changedAt({}));
        tree.writeAll(u"b1 b2"_s, changedAt({fileBytes - 1}));
        const ScanResult both = scan(tree, SearchMode::Audio, 2);
        QCOMPARE(groupsText(both, tree), u"a1 a2|b1 b2"_s);
        QCOMPARE(both.wastedBytes, 2 * fileBytes);
        QVERIFY(QFile::remove(tree.path(u"b2"_s)));
        QCOMPARE(groupsText(scan(tree, SearchMode::Audio, 2), tree), u"a1 a2"_s);
    }

    void appliesRulesAndHardLinks()
    {
        const TempTree tree;
        tree.writeAll(u"1/x.mp3 2/x.mp3 3/y.mp3"_s, patternBytes(10000));
        ScanOptions options = optionsFrom(R"({"searchMode": 2, "mediaCompareDepth": 1, "sameName": true})");
        options.roots = optionsFor(tree).roots;
        const auto scanned = [&] { return DuplicateScanner::scan(options, {}, {}); };
        QCOMPARE(groupsText(scanned(), tree), u"1/x.mp3 2/x.mp3"_s);
        QVERIFY(scanned().groups[0].key.endsWith(u"|FN:x.mp3"_s));
        QCOMPARE(scanned().wastedBytes, 10000);
        if (!tree.hardLink(u"1/x.mp3"_s, u"3/x.mp3"_s))
            QSKIP("no hard links here");
        QCOMPARE(scanned().wastedBytes, 20000);
        options.collapseHardLinks = true;
        QCOMPARE(scanned().wastedBytes, 10000);
    }

    /// Comparing whole files leaves what an exact scan looks up, and believes what one has left.
    void remembersWholeDigests()
    {
        const TempTree tree;
        const TempTree data;
        setCacheRoot(data.path());
        tree.writeAll(u"a b"_s, patternBytes(30000));
        for (const QString &name : {u"a"_s, u"b"_s})
            tree.setModified(name, 1600000000000);
        QCOMPARE(scan(tree, SearchMode::Audio, 0).groups.size(), 1);
        for (const QString &path : {tree.path(u"a"_s), tree.path(u"b"_s)}) {
            const Fingerprint known = lookupFingerprint(path, 30000, 1600000000000);
            QCOMPARE(known.full, fullContentHash(path));
            QCOMPARE(known.quick, quickHash(path));
        }
        const QString first = tree.path(u"a"_s);
        storeQuickAndFull(first, 30000, 1600000000000, quickHash(first), QByteArray(16, 'x'));
        QCOMPARE(scan(tree, SearchMode::Audio, 0).groups.size(), 0);
        QCOMPARE(scan(tree, SearchMode::Audio, 1).groups.size(), 1); // openings are not cached
    }
};

QTEST_GUILESS_MAIN(SampledContentTest)
#include "tst_sampledcontent.moc"
