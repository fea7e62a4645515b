#include "core/cache/cacheroot.h"
#include "core/hash/samples.h"
#include "core/scan/duplicatescanner.h"
#include "tests/support/coretest.h"

#include <QMap>
#include <QRandomGenerator>

namespace {

constexpr qint64 fileBytes = 20000;

ScanResult scan(const TempTree &tree, int percent)
{
    ScanOptions options = optionsFor(tree);
    options.contentMatch = static_cast<qint32>(ContentMatch::Similar);
    options.similarPercent = percent;
    return DuplicateScanner::scan(options, {}, {});
}

/// `base` with the bytes in `from`..`from + count - 1` turned over.
QByteArray changed(QByteArray base, qsizetype from, qsizetype count)
{
    for (qsizetype i = from; i < from + count; ++i)
        base[i] = static_cast<char>(~base[i]);
    return base;
}

/// Groups as "key: member member", all in alphabetical order.
QStringList groupTexts(const ScanResult &result, const TempTree &tree)
{
    QStringList texts;
    for (const DuplicateGroup &group : result.groups)
        texts.append(group.key + u": "_s + sortedText({relativePaths(group.files, tree)}));
    texts.sort();
    return texts;
}

/// The groups that comparing every two files by themselves gives.
QStringList bruteForce(const TempTree &tree, QStringList names, int least)
{
    QStringList texts;
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
        if (group.size() >= 2)
            texts.append(u"SIM:%1%: "_s.arg(lowest) + sortedText({group}));
    }
    texts.sort();
    return texts;
}

} // namespace

class SimilarContentTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { setCacheRoot({}); }

    /// Files a, b, c, ... are the columns' contents.
    void groups_data()
    {
        const auto row = columns<int, QByteArrayList, QString>({"percent", "contents", "expected"});
        const QByteArray base = patternBytes(fileBytes);
        const QByteArray headChanged = changed(base, 0, 4096);       // one block of five: 80 %
        const QByteArray tailToo = changed(headChanged, 19200, 800); // 76.1 % and 96.1 %
        row("differ where no sample is", 100, {base, changed(base, 4500, 1)}, u"SIM:100%: a b"_s);
        row("just similar enough", 80, {base, headChanged}, u"SIM:80%: a b"_s);
        row("just too different", 81, {base, headChanged}, {});
        row("one byte too different", 80, {base, changed(headChanged, 19999, 1)}, {});
        row("in a chain", 78, {tailToo, base, headChanged}, u"SIM:80%: a b c"_s);
        row("all together", 70, {tailToo, base, headChanged}, u"SIM:76%: a b c"_s);
        row("lowest of those that join", 90, {base, changed(base, 0, 400), changed(base, 0, 200)}, u"SIM:98%: a b c"_s);
        row("sizes differ", 1, {base, base + 'x'}, {});
        row("below the least percentage", -5, {"abcd", "zzzd", "1234"}, u"SIM:25%: a b"_s);
        row("two groups", 60, {"abc", "xyz", "abd", "xyw"}, u"SIM:66%: a c|SIM:66%: b d"_s);
    }

    void groups()
    {
        QFETCH(int, percent);
        QFETCH(QByteArrayList, contents);
        const TempTree tree;
        for (qsizetype i = 0; i < contents.size(); ++i)
            tree.write(QString(QChar(static_cast<char16_t>(u'a' + i))), contents[i]);
        QTEST(groupTexts(scan(tree, percent), tree).join(u'|'), "expected");
    }

    void equalsBruteForce_data()
    {
        const auto row = columns<quint32, int>({"seed", "percent"});
        for (const quint32 seed : {1U, 2U}) {
            for (const int percent : {40, 75, 90, 99})
                row(qPrintable(u"seed %1, %2 percent"_s.arg(seed).arg(percent)), seed, percent);
        }
    }

    /// More files of a size than one square of pairs holds, made from each other by changes of all lengths.
    void equalsBruteForce()
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
        const ScanResult result = scan(tree, percent);
        QCOMPARE(groupTexts(result, tree), bruteForce(tree, names, percent));
        QCOMPARE(result.candidates, 110);
        QVERIFY(std::is_sorted(result.groups.begin(), result.groups.end(),
                               [](const auto &a, const auto &b) { return a.wastedBytes > b.wastedBytes; }));
    }
};

QTEST_GUILESS_MAIN(SimilarContentTest)
#include "tst_similarcontent.moc"
