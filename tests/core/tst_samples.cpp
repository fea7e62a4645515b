#include "core/hash/samples.h"
#include "tests/support/temptree.h"

#include <QTest>

#include <limits>

using namespace MirrixCore;
using namespace MirrixTest;

class SamplesTest : public QObject
{
    Q_OBJECT

private slots:
    void offsets_data();
    void offsets();
    void similarity_data();
    void similarity();
    void similarityOfMissing();
    void percent();
};

void SamplesTest::offsets_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QList<qint64>>("expected");
    QTest::newRow("empty") << qint64(0) << QList<qint64>();
    QTest::newRow("one byte") << qint64(1) << QList<qint64>{0};
    QTest::newRow("one block") << qint64(4096) << QList<qint64>{0};
    QTest::newRow("tail overlaps head") << qint64(4097) << QList<qint64>{0, 1};
    QTest::newRow("two blocks") << qint64(8192) << QList<qint64>{0, 4096};
    QTest::newRow("middle begins") << qint64(8193) << QList<qint64>{0, 2048, 4097};
    QTest::newRow("four blocks") << qint64(16384) << QList<qint64>{0, 6144, 12288};
    QTest::newRow("quarters begin") << qint64(16385) << QList<qint64>{0, 6144, 12289, 4096, 12288};
    const qint64 largest = std::numeric_limits<qint64>::max();
    QTest::newRow("largest") << largest
                             << QList<qint64>{0, 4611686018427385855, 9223372036854771711, 2305843009213693951,
                                              6917529027641081855};
}

void SamplesTest::offsets()
{
    QFETCH(qint64, size);
    QTEST(sampleOffsets(size), "expected");
}

void SamplesTest::similarity_data()
{
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<QByteArray>("b");
    QTest::addColumn<int>("expected");
    const QByteArray base = patternBytes(20000);
    QByteArray unsampled = base; // blocks begin at 0, 7952, 15904, 5000, 15000
    QTest::newRow("equal") << base << base << 100;
    QTest::newRow("sizes differ") << base << base.left(19999) << 0;
    QTest::newRow("empty") << QByteArray() << QByteArray() << 0;
    QTest::newRow("two of three") << QByteArray("abc") << QByteArray("abd") << 66;
    QTest::newRow("nothing") << QByteArray("abc") << QByteArray("bca") << 0;
    unsampled[4500] = static_cast<char>(~unsampled[4500]); // between the head and the first quarter
    QTest::newRow("outside the samples") << base << unsampled << 100;
    QByteArray headDiffers = base;
    for (int i = 0; i < 4096; ++i)
        headDiffers[i] = static_cast<char>(~headDiffers[i]);
    QTest::newRow("one block of five") << base << headDiffers << 80;
    QByteArray oneByte = base;
    oneByte[0] = static_cast<char>(~oneByte[0]);
    QTest::newRow("rounded down") << base << oneByte << 99;
}

void SamplesTest::similarity()
{
    QFETCH(QByteArray, a);
    QFETCH(QByteArray, b);
    const TempTree tree;
    const QString pathA = tree.write(QStringLiteral("a"), a);
    const QString pathB = tree.write(QStringLiteral("b"), b);
    QTEST(sampledByteSimilarity(pathA, pathB), "expected");
    QTEST(sampledByteSimilarity(pathB, pathA), "expected");
}

void SamplesTest::similarityOfMissing()
{
    const TempTree tree;
    const QString file = tree.write(QStringLiteral("a"), "abc");
    QCOMPARE(sampledByteSimilarity(file, tree.path(QStringLiteral("none"))), 0);
    QCOMPARE(sampledByteSimilarity(tree.path(QStringLiteral("none")), file), 0);
    QCOMPARE(sampledByteSimilarity(tree.path(), tree.path()), 0);
}

void SamplesTest::percent()
{
    QCOMPARE(similarityPercent(0, 0), 0);
    QCOMPARE(similarityPercent(1, 3), 33);
    QCOMPARE(similarityPercent(20479, 20480), 99);
    QCOMPARE(similarityPercent(20480, 20480), 100);
}

QTEST_GUILESS_MAIN(SamplesTest)
#include "tst_samples.moc"
