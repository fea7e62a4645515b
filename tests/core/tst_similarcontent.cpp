#include "core/cache/cacheroot.h"
#include "core/hash/samples.h"
#include "core/match/similarcontent.h"
#include "core/scan/duplicatescanner.h"
#include "core/walk/enumeration.h"
#include "tests/support/scans.h"
#include "tests/support/temptree.h"

#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 fileBytes = 20000;

ScanOptions similarOptions(const TempTree &tree, int percent)
{
    ScanOptions options = optionsFor(tree);
    options.contentMatch = static_cast<qint32>(ContentMatch::Similar);
    options.similarPercent = percent;
    return options;
}

ScanResult scan(const ScanOptions &options)
{
    return DuplicateScanner::scan(options, {}, {});
}

/// `base` with the bytes in `from`..`from + count - 1` turned over.
QByteArray changed(QByteArray base, qsizetype from, qsizetype count)
{
    for (qsizetype i = from; i < from + count; ++i)
        base[i] = static_cast<char>(~base[i]);
    return base;
}

/// Groups as "key: member, member", members sorted.
QSet<QString> groupTexts(const ScanResult &result, const TempTree &tree)
{
    QSet<QString> texts;
    for (const DuplicateGroup &group : result.groups) {
        QStringList paths = relativePaths(group.files, tree);
        paths.sort();
        texts.insert(group.key + u": "_s + paths.join(u", "_s));
    }
    return texts;
}

/// The groups that comparing every two files by themselves gives.
QSet<QString> bruteForce(const TempTree &tree, QStringList names, int least)
{
    QSet<QString> texts;
    while (!names.isEmpty()) {
        QStringList group{names.takeFirst()};
        int lowest = 100;
        for (qsizetype i = 0; i < group.size(); ++i) {
            const QStringList rest = names;
            for (const QString &name : rest) {
                if (sampledByteSimilarity(tree.path(group[i]), tree.path(name)) >= least)
                    group.append(names.takeAt(names.indexOf(name)));
            }
        }
        for (const QString &a : std::as_const(group)) {
            for (const QString &b : std::as_const(group)) {
                const int percent = sampledByteSimilarity(tree.path(a), tree.path(b));
                lowest = percent >= least ? std::min(lowest, percent) : lowest;
            }
        }
        group.sort();
        if (group.size() >= 2)
            texts.insert(u"SIM:%1%: "_s.arg(lowest) + group.join(u", "_s));
    }
    return texts;
}

} // namespace

class SimilarContentTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { setCacheRoot({}); }

    void groups_data();
    void groups();
    void equalsBruteForce_data();
    void equalsBruteForce();
    void namesUnreadFiles();
    void stopsWhenCancelled_data();
    void stopsWhenCancelled();
};

/// Files a, b, c, ... are the columns' contents.
void SimilarContentTest::groups_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<QByteArrayList>("contents");
    QTest::addColumn<QSet<QString>>("expected");
    const auto row = [](const char *name, int percent, const QByteArrayList &contents, const QSet<QString> &expected) {
        QTest::newRow(name) << percent << contents << expected;
    };
    const QByteArray base = patternBytes(fileBytes);
    const QByteArray headChanged = changed(base, 0, 4096);       // one block of five: 80 %
    const QByteArray tailToo = changed(headChanged, 19200, 800); // 76.1 % and 96.1 %
    row("equal", 90, {base, base}, {u"SIM:100%: a, b"_s});
    row("differ where no sample is", 100, {base, changed(base, 4500, 1)}, {u"SIM:100%: a, b"_s});
    row("just alike enough", 80, {base, headChanged}, {u"SIM:80%: a, b"_s});
    row("just too different", 81, {base, headChanged}, {});
    row("one byte too different", 80, {base, changed(headChanged, 19999, 1)}, {});
    row("in a chain", 78, {tailToo, base, headChanged}, {u"SIM:80%: a, b, c"_s});
    row("all together", 70, {tailToo, base, headChanged}, {u"SIM:76%: a, b, c"_s});
    row("lowest of those that join", 90, {base, changed(base, 0, 400), changed(base, 0, 200)}, {u"SIM:98%: a, b, c"_s});
    row("sizes differ", 1, {base, base + 'x'}, {});
    row("below the least percentage", -5, {"abcd", "zzzd", "1234"}, {u"SIM:25%: a, b"_s});
    row("two groups", 60, {"abc", "xyz", "abd", "xyw"}, {u"SIM:66%: a, c"_s, u"SIM:66%: b, d"_s});
}

void SimilarContentTest::groups()
{
    QFETCH(int, percent);
    QFETCH(QByteArrayList, contents);
    const TempTree tree;
    for (qsizetype i = 0; i < contents.size(); ++i)
        tree.write(QString(QChar(static_cast<char16_t>(u'a' + i))), contents[i]);
    QTEST(groupTexts(scan(similarOptions(tree, percent)), tree), "expected");
}

void SimilarContentTest::equalsBruteForce_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<int>("percent");
    for (const quint32 seed : {1U, 2U}) {
        for (const int percent : {40, 75, 90, 99})
            QTest::addRow("seed %u, %d percent", seed, percent) << seed << percent;
    }
}

/// More files of a size than one square of pairs holds, made from each other by changes of all lengths.
void SimilarContentTest::equalsBruteForce()
{
    QFETCH(quint32, seed);
    QFETCH(int, percent);
    QRandomGenerator random(seed);
    const TempTree tree;
    QStringList names;
    QMap<qint64, QByteArrayList> madeOfSize;
    for (int i = 0; i < 110; ++i) {
        const qint64 size = QList<qint64>{100, 5000, 9000, fileBytes, fileBytes}[random.bounded(5)];
        QByteArrayList &made = madeOfSize[size];
        QByteArray content = patternBytes(size, random.generate());
        if (!made.isEmpty() && random.bounded(4) > 0) {
            const auto length = random.bounded(static_cast<int>(size) / 2);
            content = changed(made[random.bounded(static_cast<int>(made.size()))],
                              random.bounded(static_cast<int>(size) - length), length);
        }
        made.append(content);
        names.append(u"f%1"_s.arg(i));
        tree.write(names.constLast(), content);
    }
    const ScanResult result = scan(similarOptions(tree, percent));
    QCOMPARE(groupTexts(result, tree), bruteForce(tree, names, percent));
    QCOMPARE(result.candidates, 110);
    QVERIFY(std::is_sorted(result.groups.begin(), result.groups.end(),
                           [](const auto &a, const auto &b) { return a.wastedBytes > b.wastedBytes; }));
}

void SimilarContentTest::namesUnreadFiles()
{
    const TempTree tree;
    for (const QString &name : {u"a"_s, u"b"_s, u"gone"_s, u"grown"_s})
        tree.write(name, patternBytes(fileBytes));
    const auto spoil = atEndOf(Phase::Enumerating, [&] {
        QFile::remove(tree.path(u"gone"_s));
        tree.write(u"grown"_s, patternBytes(fileBytes + 1));
    });
    const ScanResult result = DuplicateScanner::scan(similarOptions(tree, 90), spoil, {});
    QCOMPARE(groupTexts(result, tree), QSet<QString>({u"SIM:100%: a, b"_s}));
    QSet<QString> unread;
    for (const UnreadPath &path : result.unread) {
        QVERIFY(!path.reason.isEmpty());
        unread.insert(path.path);
    }
    QCOMPARE(unread, QSet<QString>({tree.path(u"gone"_s), tree.path(u"grown"_s)}));
}

void SimilarContentTest::stopsWhenCancelled_data()
{
    QTest::addColumn<qint64>("steps"); ///< reported before
    QTest::newRow("while reading") << qint64(64);
    QTest::newRow("while comparing") << qint64(768);
}

void SimilarContentTest::stopsWhenCancelled()
{
    QFETCH(qint64, steps);
    const TempTree tree;
    for (int i = 0; i < 704; ++i)
        tree.write(QString::number(i), patternBytes(50, static_cast<quint32>(i * 1000)));
    std::atomic<bool> cancelled = false;
    qint64 processed = 0;
    const auto note = [&](const ScanProgress &report) {
        if (report.phase == Phase::SimilarContent) {
            processed = report.processed;
            cancelled = cancelled || processed >= steps;
        }
    };
    ScanOptions options = similarOptions(tree, 90);
    options.threads = 1;
    const ScanResult result = DuplicateScanner::scan(options, note, [&] { return cancelled.load(); });
    QCOMPARE(processed, steps); // of 704 + 66
    QCOMPARE(result.groups.size(), 0);
    QCOMPARE(result.filesScanned, 704);
    QCOMPARE(result.candidates, 704);
}

QTEST_GUILESS_MAIN(SimilarContentTest)
#include "tst_similarcontent.moc"
