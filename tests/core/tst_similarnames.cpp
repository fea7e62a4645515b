#include "core/match/copywords.h"
#include "core/match/editdistance.h"
#include "core/match/similarnames.h"

#include <QTest>

#include <algorithm>
#include <random>

using namespace MirrixCore;

namespace {

QList<FileEntry> filesNamed(const QStringList &names)
{
    QList<FileEntry> files;
    for (const QString &name : names) {
        FileEntry file;
        file.path = QStringLiteral("/d%1/").arg(files.size()) + name;
        files.append(file);
    }
    return files;
}

/// The clusters as sorted lists of file names.
QList<QStringList> clustersOf(const QStringList &names, qint32 tolerance)
{
    ScanOptions options;
    options.nameTolerance = tolerance;
    QList<QStringList> clusters;
    for (const DuplicateGroup &group : clusterSimilarNames({}, filesNamed(names), options, QStringLiteral("%1|SFN"))) {
        QStringList members;
        for (const FileEntry &file : group.files)
            members.append(file.path.section(QLatin1Char('/'), -1));
        clusters.append(members);
    }
    std::sort(clusters.begin(), clusters.end());
    return clusters;
}

/// Reads "abc abd" as a list.
QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The distance by its definition, without limit and without tricks.
qint32 plainDistance(const QString &a, const QString &b)
{
    QList<QList<qint32>> table(a.size() + 1, QList<qint32>(b.size() + 1, 0));
    for (qsizetype i = 0; i <= a.size(); ++i) {
        for (qsizetype j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0)
                table[i][j] = static_cast<qint32>(i + j);
            else
                table[i][j] = std::min(
                    {table[i - 1][j] + 1, table[i][j - 1] + 1, table[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
        }
    }
    return table[a.size()][b.size()];
}

QString randomName(std::mt19937 &random, int longest)
{
    static const QString alphabet = QString::fromUtf8("aab 副é");
    QString name;
    for (quint32 length = random() % static_cast<quint32>(longest + 1); length > 0; --length)
        name += alphabet[static_cast<qsizetype>(random() % static_cast<quint32>(alphabet.size()))];
    return name;
}

} // namespace

class SimilarNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void stripsCopySuffixes_data();
    void stripsCopySuffixes();
    void stripsCopyWords_data();
    void stripsCopyWords();
    void normalizes();
    void distances_data();
    void distances();
    void fastMatchingAgrees_data();
    void fastMatchingAgrees();
    void clusters_data();
    void clusters();
    void clustersLongNames();
    void clustersLikeTheRuleSays();
    void keys();
    void stopsWhenCancelled();
};

void SimilarNamesTest::stripsCopySuffixes_data()
{
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *text, const char *expected) { QTest::newRow(text) << QString::fromUtf8(expected); };
    row("Report - Copy", "Report");
    row("Report - copy", "Report");
    row("Report-副本", "Report");
    row("Report -  拷贝", "Report");
    row("a (1)", "a");
    row("a [2}", "a");
    row("a{33)", "a");
    row("a (1) (2)", "a (1)");
    row("a (x)", "a (x)");
    row("a副本12", "a");
    row("a Copy3", "a");
    row("photocopy", "photo");
    row("Copy of a", "Copy of a");
    row("a (1).jpg", "a (1).jpg");
    row("  a  ", "a");
    row("Copy", "");
    row("", "");
}

void SimilarNamesTest::stripsCopySuffixes()
{
    const QString stripped = stripCopySuffix(QString::fromUtf8(QTest::currentDataTag()));
    QTEST(stripped, "expected");
}

void SimilarNamesTest::stripsCopyWords_data()
{
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *text, const char *expected) { QTest::newRow(text) << QString::fromUtf8(expected); };
    for (const char *copy :
         {"a - Copy",        "a (2)",           "a - Copy (2)",   "a copy 2",         "a (copy)",    "a (3rd copy)",
          "Copy of a",       "Copy (2) of a",   "a - Kopie",      "a - Kopie (3)",    "a Kopie 2",   "a (3. Kopie)",
          "Kopie von a",     "Kopie (2) von a", "a - kopie",      "a (andere kopie)", "Kopie van a", "a - Copie",
          "a (autre copie)", "Copie de a",      "a - copia",      "a - COPIA (2)",    "a copia 2",   "a (otra copia)",
          "Copia de a",      "a (altra copia)", "Copia di a",     "a - Cópia",        "a - CÓPIA",   "a - Co\u0301pia",
          "a (outra cópia)", "Cópia de a",      "a - コピー",     "aのコピー",        "aのコピー2",  "a (コピー)",
          "コピー ～ a",     "a - 복사본",      "a - 복사본 (2)", "a 복사본 2",       "복사본 a",    "a - 副本",
          "a 副本 2",        "复件 (2) a",      "a - 複製",       "a - 複製 (2)",     "a 拷貝",      "a（副本）",
          "Copy of a (2)"})
        row(copy, "a");
    for (const char *name : {"a - Shortcut", "a - Verknüpfung", "Fotokopie", "Hardkopie 2", "細胞複製", "ハードコピー",
                             "Copyright", "Kopie", "(copia)", "Copie de", "(1)", "copiado", "a (my copy notes)", ""})
        row(name, name);
}

void SimilarNamesTest::stripsCopyWords()
{
    const QString name = QString::fromUtf8(QTest::currentDataTag());
    QFETCH(QString, expected);
    QCOMPARE(stripCopyWords(name), expected);
    QCOMPARE(hasCopyWord(name + u".txt"_qs), name != expected);
    ScanOptions options;
    options.caseSensitive = true;
    QCOMPARE(normalizedBaseName(name + u".txt"_qs, options), stripCopySuffix(name));
    options.copyWordsInAllLanguages = true;
    QCOMPARE(normalizedBaseName(name + u".txt"_qs, options), stripCopyWords(stripCopySuffix(name)));
}

void SimilarNamesTest::normalizes()
{
    ScanOptions options;
    QCOMPARE(normalizedBaseName(QStringLiteral("/x.y/Report - Copy.docx"), options), QStringLiteral("report"));
    QCOMPARE(normalizedBaseName(QStringLiteral("/x.y/name"), options), QStringLiteral("name"));
    QCOMPARE(normalizedBaseName(QStringLiteral("/x/a.tar.gz"), options), QStringLiteral("a.tar"));
    options.caseSensitive = true;
    options.ignoreCopyWords = false;
    QCOMPARE(normalizedBaseName(QStringLiteral("/x/A (1).txt"), options), QStringLiteral("A (1)"));
}

void SimilarNamesTest::distances_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<qint32>("limit");
    QTest::addColumn<qint32>("expected");
    const auto row = [](const char *a, const char *b, qint32 limit, qint32 expected) {
        QTest::addRow("%s, %s, %d", a, b, limit) << QString::fromUtf8(a) << QString::fromUtf8(b) << limit << expected;
    };
    row("kitten", "sitting", 3, 3);
    row("kitten", "sitting", 2, 3);
    row("", "", 0, 0);
    row("", "abc", 3, 3);
    row("", "abc", 2, 3);
    row("abc", "", 5, 3);
    row("abc", "abc", 0, 0);
    row("abc", "abd", 0, 1);
    row("abcde", "vwxyz", 2, 3); // a whole row exceeds the limit
    row("ab", "ba", 1, 2);       // the last cell is returned as it is
    row("Ab", "ab", 3, 1);
}

void SimilarNamesTest::distances()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(qint32, limit);
    QTEST(boundedEditDistance(a, b, limit), "expected");
}

void SimilarNamesTest::fastMatchingAgrees_data()
{
    QTest::addColumn<int>("longest");
    QTest::addColumn<int>("rounds");
    QTest::newRow("short") << 8 << 20000;
    QTest::newRow("as names are") << 30 << 3000;
    QTest::newRow("around a machine word") << 70 << 1500;
    QTest::newRow("longest that go by bits") << 280 << 100;
}

void SimilarNamesTest::fastMatchingAgrees()
{
    QFETCH(int, longest);
    QFETCH(int, rounds);
    std::mt19937 random(20240229);
    for (int round = 0; round < rounds; ++round) {
        const QString a = randomName(random, longest);
        QString b = random() % 2 ? randomName(random, longest) : a;
        for (quint32 edits = random() % (round % 2 ? 4 : 40); edits > 0 && !b.isEmpty(); --edits)
            b.replace(static_cast<qsizetype>(random() % static_cast<quint32>(b.size())), random() % 2 ? 1 : 0,
                      randomName(random, 2));
        const qint32 distance = plainDistance(a, b);
        for (const qint32 limit : {0, 1, 3, 7, 20, 31, 32, 100, distance - 1, distance}) {
            const QByteArray what = QStringLiteral("'%1' '%2' %3").arg(a, b).arg(limit).toUtf8();
            const bool isWithin = distance <= limit;
            QVERIFY2((boundedEditDistance(a, b, limit) <= limit) == isWithin, what.constData());
            QVERIFY2(EditMatcher(a).isWithin(b, limit) == isWithin, what.constData());
            QVERIFY2(!isWithin || mayBeWithin(nameSignature(a), nameSignature(b), limit), what.constData());
            QVERIFY2(!isWithin || mayBeWithin(unitCounts(a), unitCounts(b), limit), what.constData());
            if (isWithin)
                QCOMPARE(boundedEditDistance(a, b, limit), distance);
        }
    }
}

void SimilarNamesTest::clusters_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<qint32>("tolerance");
    QTest::addColumn<QList<QStringList>>("expected");
    QTest::newRow("chain") << words("abc abd abdd") << 1 << QList<QStringList>{words("abc abd abdd")};
    QTest::newRow("the longer one first stays apart") << words("abcd abc") << 1 << QList<QStringList>();
    QTest::newRow("unless another links them")
        << words("abcd abce abc abcf") << 1 << QList<QStringList>{words("abcd abce abc abcf")};
    QTest::newRow("the shorter one first joins") << words("abc abcd") << 1 << QList<QStringList>{words("abc abcd")};
    QTest::newRow("length window") << words("abcde abcdefghi") << 3 << QList<QStringList>();
    QTest::newRow("tolerance 0, equal when normalized")
        << words("ab.txt AB.jpg ac.txt") << 0 << QList<QStringList>{words("ab.txt AB.jpg")};
    QTest::newRow("negative tolerance is 0") << words("ab ab ac") << -3 << QList<QStringList>{words("ab ab")};
    QTest::newRow("two clusters") << words("aaaa bbbb aaab bbba") << 1
                                  << QList<QStringList>{words("aaaa aaab"), words("bbbb bbba")};
}

void SimilarNamesTest::clusters()
{
    QFETCH(QStringList, names);
    QFETCH(qint32, tolerance);
    QTEST(clustersOf(names, tolerance), "expected");
}

/// So many long names of one length that they are cut into more pieces than short ones are: families of four, each name
/// within eleven edits of its family's first and far from all others.
void SimilarNamesTest::clustersLongNames()
{
    constexpr int length = 90;
    std::mt19937 random(7);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<quint32>(limit)); };
    QStringList names;
    QList<QStringList> families;
    for (int i = 0; i < 1400; ++i) {
        QString name = i % 4 == 0 ? QString() : families.constLast().constFirst();
        while (name.size() < length)
            name += QChar(u'a' + below(20));
        for (int edits = i % 4 == 0 ? 0 : 5; edits > 0; --edits) {
            name.remove(below(length), 1);
            name.insert(below(length), QChar(u'x'));
        }
        if (i % 4 == 0)
            families.append(QStringList());
        families.last().append(name);
        names.append(name);
    }
    std::sort(families.begin(), families.end());
    QCOMPARE(clustersOf(names, 11), families);
}

void SimilarNamesTest::clustersLikeTheRuleSays()
{
    // Against the rule taken literally: i < j and the name of j at least as long, joined when near enough.
    std::mt19937 random(4711);
    for (int round = 0; round < 800; ++round) {
        const qint32 tolerance = round % 5;
        QStringList names;
        for (int i = 0; i < 12; ++i)
            names.append(QLatin1Char('n') + randomName(random, 5 + 2 * tolerance).remove(QLatin1Char(' ')));
        QList<int> set(names.size());
        std::iota(set.begin(), set.end(), 0);
        for (int i = 0; i < names.size(); ++i) {
            for (int j = i + 1; j < names.size(); ++j) {
                if (names[j].size() >= names[i].size() && plainDistance(names[i], names[j]) <= tolerance)
                    std::replace(set.begin(), set.end(), int(set[j]), int(set[i])); // copies: both change on the way
            }
        }
        QMap<int, QStringList> members;
        for (int i = 0; i < names.size(); ++i)
            members[set[i]].append(names[i]);
        QList<QStringList> expected;
        for (const QStringList &cluster : members) {
            if (cluster.size() > 1)
                expected.append(cluster);
        }
        std::sort(expected.begin(), expected.end());
        QCOMPARE(clustersOf(names, tolerance), expected);
    }
}

void SimilarNamesTest::keys()
{
    const QList<FileEntry> files = filesNamed(words("Name%1.txt name%1.txt"));
    const auto keyFor = [&](const QString &bucket, const QString &form) {
        return clusterSimilarNames(bucket, files, {}, form).value(0).key;
    };
    QCOMPARE(keyFor(QStringLiteral("SZ:%2"), QStringLiteral("%1|SFN:%2")), QStringLiteral("SZ:%2|SFN:name%1"));
    QCOMPARE(keyFor({}, QStringLiteral("%1|SFN:%2")), QStringLiteral("|SFN:name%1"));
    QCOMPARE(keyFor(QStringLiteral("cafe"), QStringLiteral("%1|SFN")), QStringLiteral("cafe|SFN"));
}

void SimilarNamesTest::stopsWhenCancelled()
{
    // Asked for each name when it is taken in and again when its neighbours are sought.
    for (const int patience : {0, 2, 4, 5}) {
        int asked = 0;
        const auto cancelled = [&] { return ++asked > patience; };
        QVERIFY(clusterSimilarNames({}, filesNamed(words("aa aa aa aa")), {}, QStringLiteral("%1|SFN"), cancelled)
                    .isEmpty());
        QVERIFY(asked <= patience + 2);
    }
}

QTEST_GUILESS_MAIN(SimilarNamesTest)
#include "tst_similarnames.moc"
