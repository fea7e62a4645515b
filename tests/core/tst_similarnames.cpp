#include "core/match/copywords.h"
#include "core/match/editdistance.h"
#include "core/match/similarnames.h"
#include "tests/support/coretest.h"

#include <QMap>

#include <numeric>
#include <random>

namespace {

QList<FileEntry> filesNamed(const QStringList &names)
{
    QList<FileEntry> files;
    for (const QString &name : names)
        files.append(fileAt(u"/d%1/"_s.arg(files.size()) + name));
    return files;
}

/// The clusters as a text of file names such as "abc abd|xyz xyzz".
QString clustersOf(const QStringList &names, qint32 tolerance)
{
    ScanOptions options;
    options.nameTolerance = tolerance;
    QList<QStringList> clusters;
    for (const DuplicateGroup &group : clusterSimilarNames({}, filesNamed(names), options, u"%1|SFN"_s)) {
        QStringList &members = clusters.emplaceBack();
        for (const FileEntry &file : group.files)
            members.append(file.path.section(u'/', -1));
    }
    return sortedText(clusters);
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
    static const QString alphabet = u"aab 副é"_s;
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
    void stripsCopySuffixes()
    {
        const QList<std::pair<QString, QString>> rows = {{u"Report - Copy"_s, u"Report"_s},
                                                         {u"Report - copy"_s, u"Report"_s},
                                                         {u"Report-副本"_s, u"Report"_s},
                                                         {u"Report -  拷贝"_s, u"Report"_s},
                                                         {u"a (1)"_s, u"a"_s},
                                                         {u"a [2}"_s, u"a"_s},
                                                         {u"a{33)"_s, u"a"_s},
                                                         {u"a (1) (2)"_s, u"a (1)"_s},
                                                         {u"a (x)"_s, u"a (x)"_s},
                                                         {u"a副本12"_s, u"a"_s},
                                                         {u"a Copy3"_s, u"a"_s},
                                                         {u"photocopy"_s, u"photo"_s},
                                                         {u"Copy of a"_s, u"Copy of a"_s},
                                                         {u"a (1).jpg"_s, u"a (1).jpg"_s},
                                                         {u"  a  "_s, u"a"_s},
                                                         {u"Copy"_s, QString()},
                                                         {QString(), QString()}};
        for (const auto &[text, expected] : rows)
            QCOMPARE(stripCopySuffix(text), expected);
    }

    void stripsCopyWords()
    {
        const QString copies =
            u"a - Copy|a (2)|a - Copy (2)|a copy 2|a (copy)|a (3rd copy)|Copy of a|Copy (2) of a|a - Kopie|"
            "a - Kopie (3)|a Kopie 2|a (3. Kopie)|Kopie von a|Kopie (2) von a|a - kopie|a (andere kopie)|Kopie van a|"
            "a - Copie|a (autre copie)|Copie de a|a - copia|a - COPIA (2)|a copia 2|a (otra copia)|Copia de a|"
            "a (altra copia)|Copia di a|a - Cópia|a - CÓPIA|a - Co\u0301pia|a (outra cópia)|Cópia de a|a - コピー|"
            "aのコピー|aのコピー2|a (コピー)|コピー ～ a|a - 복사본|a - 복사본 (2)|a 복사본 2|복사본 a|a - 副本|"
            "a 副本 2|复件 (2) a|a - 複製|a - 複製 (2)|a 拷貝|a（副本）|Copy of a (2)"_s;
        const QString others = u"a - Shortcut|a - Verknüpfung|Fotokopie|Hardkopie 2|細胞複製|ハードコピー|Copyright|"
                               "Kopie|(copia)|Copie de|(1)|copiado|a (my copy notes)|"_s;
        for (const QString &name : (copies + u'|' + others).split(u'|')) {
            const QString expected = others.split(u'|').contains(name) ? name : u"a"_s;
            QCOMPARE(stripCopyWords(name), expected);
            QVERIFY2(hasCopyWord(name + u".txt"_s) == (name != expected), qPrintable(name));
            ScanOptions options;
            options.caseSensitive = true;
            QCOMPARE(normalizedBaseName(name + u".txt"_s, options), stripCopySuffix(name));
            options.copyWordsInAllLanguages = true;
            QCOMPARE(normalizedBaseName(name + u".txt"_s, options), stripCopyWords(stripCopySuffix(name)));
        }
    }

    void normalizes()
    {
        ScanOptions options;
        QCOMPARE(normalizedBaseName(u"/x.y/Report - Copy.docx"_s, options), u"report"_s);
        QCOMPARE(normalizedBaseName(u"/x.y/name"_s, options), u"name"_s);
        QCOMPARE(normalizedBaseName(u"/x/a.tar.gz"_s, options), u"a.tar"_s);
        options.caseSensitive = true;
        options.ignoreCopyWords = false;
        QCOMPARE(normalizedBaseName(u"/x/A (1).txt"_s, options), u"A (1)"_s);
    }

    /// Beyond the limit it is one more than the limit, but for the last cell.
    void distances()
    {
        QCOMPARE(boundedEditDistance(u"kitten"_s, u"sitting"_s, 2), 3);
        QCOMPARE(boundedEditDistance(u""_s, u"abc"_s, 2), 3);
        QCOMPARE(boundedEditDistance(u"abc"_s, u"abd"_s, 0), 1);
        QCOMPARE(boundedEditDistance(u"abcde"_s, u"vwxyz"_s, 2), 3); // a whole row exceeds the limit
        QCOMPARE(boundedEditDistance(u"ab"_s, u"ba"_s, 1), 2);       // the last cell is returned as it is
        QCOMPARE(boundedEditDistance(u"Ab"_s, u"ab"_s, 3), 1);
    }

    void fastMatchingAgrees_data()
    {
        const auto row = columns<int, int>({"longest", "rounds"});
        row("short", 8, 20000);
        row("as names are", 30, 3000);
        row("around a machine word", 70, 1500);
        row("longest that go by bits", 280, 100);
    }

    void fastMatchingAgrees()
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
                const QByteArray what = u"'%1' '%2' %3"_s.arg(a, b).arg(limit).toUtf8();
                const bool isWithin = distance <= limit;
                const qint32 bounded = boundedEditDistance(a, b, limit);
                QVERIFY2(isWithin ? bounded == distance : bounded > limit, what.constData());
                QVERIFY2(EditMatcher(a).isWithin(b, limit) == isWithin, what.constData());
                QVERIFY2(!isWithin || mayBeWithin(nameSignature(a), nameSignature(b), limit), what.constData());
                QVERIFY2(!isWithin || mayBeWithin(unitCounts(a), unitCounts(b), limit), what.constData());
            }
        }
    }

    void clusters_data()
    {
        const auto row = columns<QString, qint32, QString>({"names", "tolerance", "expected"});
        row("chain", u"abc abd abdd"_s, 1, u"abc abd abdd"_s);
        row("the longer one first stays apart", u"abcd abc"_s, 1, {});
        row("unless another links them", u"abcd abce abc abcf"_s, 1, u"abc abcd abce abcf"_s);
        row("the shorter one first joins", u"abc abcd"_s, 1, u"abc abcd"_s);
        row("length window", u"abcde abcdefghi"_s, 3, {});
        row("tolerance 0, equal when normalized", u"ab.txt AB.jpg ac.txt"_s, 0, u"AB.jpg ab.txt"_s);
        row("negative tolerance is 0", u"ab ab ac"_s, -3, u"ab ab"_s);
        row("two clusters", u"aaaa bbbb aaab bbba"_s, 1, u"aaaa aaab|bbba bbbb"_s);
    }

    void clusters()
    {
        QFETCH(QString, names);
        QFETCH(qint32, tolerance);
        QTEST(clustersOf(names.split(u' '), tolerance), "expected");
    }

    /// So many long names of one length that they are cut into more pieces than short ones are: families of four, each
    /// name within eleven edits of its family's first and far from all others.
    void clustersLongNames()
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
        QCOMPARE(clustersOf(names, 11), sortedText(families));
    }

    /// Against the rule taken literally: i < j and the name of j at least as long, joined when near enough.
    void clustersLikeTheRuleSays()
    {
        std::mt19937 random(4711);
        for (int round = 0; round < 800; ++round) {
            const qint32 tolerance = round % 5;
            QStringList names;
            for (int i = 0; i < 12; ++i)
                names.append(u'n' + randomName(random, 5 + 2 * tolerance).remove(u' '));
            QList<int> set(names.size());
            std::iota(set.begin(), set.end(), 0);
            for (int i = 0; i < names.size(); ++i) {
                for (int j = i + 1; j < names.size(); ++j) {
                    if (names[j].size() >= names[i].size() && plainDistance(names[i], names[j]) <= tolerance)
                        std::replace(set.begin(), set.end(), int(set[j]),
                                     int(set[i])); // copies: both change on the way
                }
            }
            QMap<int, QStringList> members;
            for (int i = 0; i < names.size(); ++i)
                members[set[i]].append(names[i]);
            members.removeIf([](const auto &cluster) { return cluster.value().size() < 2; });
            QCOMPARE(clustersOf(names, tolerance), sortedText(members.values()));
        }
    }

    void keys()
    {
        const QList<FileEntry> files = filesNamed({u"Name%1.txt"_s, u"name%1.txt"_s});
        const auto keyFor = [&](const QString &bucket, const QString &form) {
            return clusterSimilarNames(bucket, files, {}, form).value(0).key;
        };
        QCOMPARE(keyFor(u"SZ:%2"_s, u"%1|SFN:%2"_s), u"SZ:%2|SFN:name%1"_s);
        QCOMPARE(keyFor({}, u"%1|SFN:%2"_s), u"|SFN:name%1"_s);
        QCOMPARE(keyFor(u"cafe"_s, u"%1|SFN"_s), u"cafe|SFN"_s);
    }

    /// Asked for each name when it is taken in and again when its neighbours are sought.
    void stopsWhenCancelled()
    {
        for (const int allowed : {0, 2, 4, 5}) {
            int asked = 0;
            const auto cancelled = [&] { return ++asked > allowed; };
            const QList<FileEntry> files = filesNamed(QStringList(4, u"aa"_s));
            QVERIFY(clusterSimilarNames({}, files, {}, u"%1|SFN"_s, cancelled).isEmpty());
            QVERIFY(asked <= allowed + 2);
        }
    }
};

QTEST_GUILESS_MAIN(SimilarNamesTest)
#include "tst_similarnames.moc"
