#include "ui/state/windowplace.h"

#include <QTest>

using namespace Mirrix;

class TestWindowPlace : public QObject
{
    Q_OBJECT

private slots:
    void opensWithinTheScreen()
    {
        const QSize ideal(1280, 800);
        const QRect large = firstPlace(ideal, {0, 0, 2560, 1400});
        QCOMPARE(large.size(), ideal);
        QVERIFY(std::abs(large.center().x() - 1280) <= 1);
        const QRect screen(0, 0, 1024, 728); // 1024x768 less the task bar
        const QRect small = firstPlace(ideal, screen);
        QVERIFY(screen.contains(small) && small.width() > 1000 && small.height() > 670);
    }

    void opensWhereItWas()
    {
        const QRect left(0, 0, 1920, 1040);
        const QRect right(1920, 0, 1920, 1040);
        const QRect place(2000, 100, 1280, 800);
        QCOMPARE(restoredGeometry(place, {left, right}), place);
        QCOMPARE(restoredGeometry(place, {left}), QRect()); // the second screen is gone
        QCOMPARE(restoredGeometry(place, {}), QRect());
        QCOMPARE(restoredGeometry(QRect(), {left}), QRect());
        QCOMPARE(restoredGeometry({1500, 100, 1280, 800}, {left, right}), QRect(1928, 100, 1280, 800)); // between both
        QCOMPARE(restoredGeometry({100, 900, 1280, 800}, {left}), QRect(100, 232, 1280, 800)); // hanging out below
        QCOMPARE(restoredGeometry({0, 0, 2500, 1300}, {left}), QRect(8, 36, 1904, 996));
    }
};

QTEST_GUILESS_MAIN(TestWindowPlace)
#include "tst_windowplace.moc"
