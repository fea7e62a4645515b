#include "ui/logic/scanstatus.h"

#include <QTest>

using MirrixCore::ScanProgress;

class TestScanStatus : public QObject
{
    Q_OBJECT

private slots:
    void standsTheBarWhereTheScanIs_data()
    {
        QTest::addColumn<qint64>("found");
        QTest::addColumn<qint64>("processed");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<int>("percent"); // -1: left where it is
        QTest::newRow("nothing yet") << qint64(0) << qint64(0) << qint64(0) << -1;
        QTest::newRow("enumerating") << qint64(7) << qint64(0) << qint64(0) << 5;
        QTest::newRow("cut, not rounded") << qint64(3) << qint64(2) << qint64(3) << 66;
        QTest::newRow("done") << qint64(3) << qint64(3) << qint64(3) << 100;
        QTest::newRow("beyond") << qint64(3) << qint64(9) << qint64(3) << 100;
        QTest::newRow("large counts") << qint64(1) << qint64(4000000000) << qint64(8000000000) << 50;
    }

    void standsTheBarWhereTheScanIs()
    {
        QFETCH(qint64, found);
        QFETCH(qint64, processed);
        QFETCH(qint64, total);
        QTEST(Mirrix::progressPercent({found, processed, total, {}, {}}).value_or(-1), "percent");
    }

    void keepsPercentSignsOfPaths()
    {
        const ScanProgress progress{12, 3, 4, u"/a/%3/%1.txt"_qs, u"quick-hash"_qs};
        QCOMPARE(Mirrix::progressText(progress), u"[快速哈希] /a/%3/%1.txt  已枚举 12  已处理 3/4"_qs);
    }

    void slowsTheTextOfOnePhase()
    {
        Mirrix::ProgressThrottle throttle;
        const QString quick = u"quick-hash"_qs;
        QVERIFY(throttle.admits(quick, 1000));
        QVERIFY(!throttle.admits(quick, 1100));
        QVERIFY(!throttle.admits(quick, 1149));
        QVERIFY(throttle.admits(quick, 1150));
        QVERIFY(throttle.admits(u"full-hash"_qs, 1151));
        throttle.reset();
        QVERIFY(throttle.admits(u"full-hash"_qs, 1152));
    }

    void sumsUpAResult()
    {
        Mirrix::ResultSet results;
        results.groups.resize(2);
        results.folderGroups.resize(1);
        results.remaining.resize(3);
        results.filesScanned = 1234;
        results.wastedBytes = 1048576;
        results.elapsedMs = 1940;
        QCOMPARE(Mirrix::resultSummary(results),
                 u"文件 1234 · 重复组 2 · 文件夹组 1 · 其余 3 · 可回收约 1.00 MB · 耗时 1.9 秒"_qs);
    }
};

QTEST_GUILESS_MAIN(TestScanStatus)
#include "tst_scanstatus.moc"
