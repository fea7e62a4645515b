#include "core/match/parallel.h"

#include <QSemaphore>
#include <QTest>

#include <set>
#include <stdexcept>

using namespace MirrixCore;

class ParallelTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QThreadPool::globalInstance()->setMaxThreadCount(threads); }
    void everyItemOnce_data();
    void everyItemOnce();
    void leavesAThreadToThePainter();
    void passesExceptionsOn();

private:
    static constexpr int threads = 3;
};

void ParallelTest::everyItemOnce_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, threads, 10'000})
        QTest::addRow("%d", count) << count;
}

void ParallelTest::everyItemOnce()
{
    QFETCH(int, count);
    std::vector<std::atomic<int>> visits(count);
    std::mutex mutex;
    std::set<QThread *> workers;
    bool isMeanwhileDone = false;
    forEachParallel(
        count,
        [&](qsizetype i) {
            ++visits[i];
            const std::lock_guard lock(mutex);
            workers.insert(QThread::currentThread());
        },
        [&] { isMeanwhileDone = true; });
    QVERIFY(isMeanwhileDone);
    QVERIFY(std::all_of(visits.begin(), visits.end(), [](const auto &times) { return times == 1; }));
    QVERIFY(std::ssize(workers) <= threads);
    QVERIFY(!workers.contains(QThread::currentThread()));
}

void ParallelTest::leavesAThreadToThePainter()
{
    QSemaphore begun;
    QSemaphore mayEnd;
    bool isPainted = false;
    forEachParallel(
        threads + 1,
        [&](qsizetype) {
            begun.release();
            mayEnd.acquire();
        },
        [&] {
            begun.acquire(threads);
            QSemaphore painted;
            QThreadPool::globalInstance()->start([&painted] { painted.release(); });
            isPainted = painted.tryAcquire(1, 10'000);
            mayEnd.release(threads + 1);
            if (!isPainted)
                painted.acquire(); // which it refers to
        });
    QVERIFY(isPainted);
    QCOMPARE(QThreadPool::globalInstance()->maxThreadCount(), threads);
}

void ParallelTest::passesExceptionsOn()
{
    std::atomic<int> begun = 0;
    const auto fail = [&](qsizetype) {
        ++begun;
        throw std::runtime_error("no memory");
    };
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, forEachParallel(1000, fail));
    QVERIFY(begun <= threads);
}

QTEST_GUILESS_MAIN(ParallelTest)
#include "tst_parallel.moc"
