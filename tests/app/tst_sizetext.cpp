#include "app/sizetext.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class SizeTextTest : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
};

void SizeTextTest::texts_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("expected");
    const auto row = [](qint64 bytes, const QString &expected) { QTest::addRow("%lld", bytes) << bytes << expected; };
    constexpr qint64 kib = 1024;
    constexpr qint64 mib = kib * kib;
    constexpr qint64 gib = kib * mib;
    constexpr qint64 tib = kib * gib;
    row(-1, u"-1 B"_s);
    row(0, u"0 B"_s);
    row(1, u"1 B"_s);
    row(1023, u"1023 B"_s);
    row(1024, u"1 KB"_s);
    row(1535, u"1 KB"_s);
    row(1537, u"2 KB"_s);
    row(mib - 1, u"1024 KB"_s); // rounded, but still below the next unit
    row(mib, u"1.0 MB"_s);
    row(mib + mib / 4 + 1, u"1.3 MB"_s);
    row(gib - 1, u"1024.0 MB"_s);
    row(gib, u"1.00 GB"_s);
    row(1500 * mib, u"1.46 GB"_s);
    row(tib - 1, u"1024.00 GB"_s);
    row(tib, u"1.00 TB"_s);
    row(std::numeric_limits<qint64>::max(), u"8388608.00 TB"_s);
}

void SizeTextTest::texts()
{
    QFETCH(qint64, bytes);
    QTEST(Mirrix::sizeText(bytes), "expected");
}

QTEST_GUILESS_MAIN(SizeTextTest)
#include "tst_sizetext.moc"
