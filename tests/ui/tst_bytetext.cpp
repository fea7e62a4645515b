#include "ui/logic/bytetext.h"

#include <QTest>

using namespace Mirrix;

class TestByteText : public QObject
{
    Q_OBJECT

private slots:
    void formatsSizes_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << qint64(0) << u"0 B"_qs;
        QTest::newRow("below KB") << qint64(1023) << u"1023 B"_qs;
        QTest::newRow("KB") << qint64(1024) << u"1.0 KB"_qs;
        QTest::newRow("MB") << qint64(1048576) << u"1.00 MB"_qs;
        QTest::newRow("GB") << qint64(1073741824) << u"1.00 GB"_qs;
        QTest::newRow("no TB") << qint64(1099511627776) << u"1024.00 GB"_qs;
    }

    void formatsSizes()
    {
        QFETCH(qint64, bytes);
        QTEST(formatSize(bytes), "text");
    }
};

QTEST_GUILESS_MAIN(TestByteText)
#include "tst_bytetext.moc"
