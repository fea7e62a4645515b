#include "ui/logic/windowplace.h"

#include <QTest>

class TestWindowPlace : public QObject
{
    Q_OBJECT

private slots:
    void opensWithinTheScreen()
    {
        const QSize ideal(1280, 800);
        const QRect large = Mirrix::firstPlace(ideal, {0, 0, 2560, 1400});
        QCOMPARE(large.size(), ideal);
        QVERIFY(std::abs(large.center().x() - 1280) <= 1);
        const QRect screen(0, 0, 1024, 728); // 1024x768 less the task bar
        const QRect small = Mirrix::firstPlace(ideal, screen);
        QVERIFY(screen.contains(small));
        QVERIFY(small.width() > 1000 && small.height() > 670);
    }

    void opensWhereItWas_data()
    {
        QTest::addColumn<QRect>("earlier");
        QTest::addColumn<QList<QRect>>("screens");
        QTest::addColumn<QRect>("expected");
        const QRect left(0, 0, 1920, 1040);
        const QRect right(1920, 0, 1920, 1040);
        const QRect place(2000, 100, 1280, 800);
        QTest::newRow("second screen") << place << QList{left, right} << place;
        QTest::newRow("second screen gone") << place << QList{left} << QRect();
        QTest::newRow("no screen") << place << QList<QRect>() << QRect();
        QTest::newRow("between both") << QRect(1500, 100, 1280, 800) << QList{left, right}
                                      << QRect(1928, 100, 1280, 800);
        QTest::newRow("hanging out below") << QRect(100, 900, 1280, 800) << QList{left} << QRect(100, 232, 1280, 800);
        QTest::newRow("larger than the screen") << QRect(0, 0, 2500, 1300) << QList{left} << QRect(8, 36, 1904, 996);
        QTest::newRow("nothing") << QRect() << QList{left} << QRect();
    }

    void opensWhereItWas()
    {
        QFETCH(QRect, earlier);
        QFETCH(QList<QRect>, screens);
        QTEST(Mirrix::placeAgain(earlier, screens), "expected");
    }
};

QTEST_GUILESS_MAIN(TestWindowPlace)
#include "tst_windowplace.moc"
