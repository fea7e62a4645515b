#include "app/sizetext.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class SizeTextTest : public QObject
{
    Q_OBJECT

private slots:
    void texts()
    {
        constexpr qint64 kib = 1024;
        constexpr qint64 mib = kib * kib;
        constexpr qint64 gib = kib * mib;
        constexpr qint64 tib = kib * gib;
        const QList<std::pair<qint64, QString>> rows = {
            {-1, u"-1 B"_s},
            {0, u"0 B"_s},
            {1023, u"1023 B"_s},
            {1024, u"1 KB"_s},
            {1535, u"1 KB"_s},
            {1537, u"2 KB"_s},
            {mib - 1, u"1024 KB"_s}, // rounded, but still below the next unit
            {mib, u"1.0 MB"_s},
            {mib + mib / 4 + 1, u"1.3 MB"_s},
            {gib - 1, u"1024.0 MB"_s},
            {gib, u"1.00 GB"_s},
            {1500 * mib, u"1.46 GB"_s},
            {tib - 1, u"1024.00 GB"_s},
            {tib, u"1.00 TB"_s},
            {std::numeric_limits<qint64>::max(), u"8388608.00 TB"_s}};
        for (const auto &[bytes, expected] : rows)
            QCOMPARE(Mirrix::sizeText(bytes), expected);
    }
};

QTEST_GUILESS_MAIN(SizeTextTest)
#include "tst_sizetext.moc"
