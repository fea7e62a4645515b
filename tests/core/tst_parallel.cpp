#include "core/threads/parallel.h"
#include "core/threads/threadpool.h"
#include "tests/support/coretest.h"

#include <QSemaphore>

#include <array>
#include <set>
#include <stdexcept>
#include <thread>

namespace {

/// As large as what a heap overwrites when it is freed.
struct LastWords
{
    static inline std::array<quint64, 32> heard;
    std::array<quint64, 32> words = {};
    ~LastWords() { heard = words; }
};

thread_local LastWords last;

} // namespace

class ParallelTest : public QObject
{
    Q_OBJECT

    static constexpr int threads = 3;

private slots:
    void initTestCase() { QThreadPool::globalInstance()->setMaxThreadCount(threads); }

    void everyItemOnce()
    {
        for (const int count : {0, 1, threads, 10'000}) {
            std::vector<std::atomic<int>> visits(count);
            std::mutex mutex;
            std::set<QThread *> workers;
            forEachParallel(count, [&](qsizetype i) {
                ++visits[i];
                const std::lock_guard lock(mutex);
                workers.insert(QThread::currentThread());
            });
            QVERIFY(std::all_of(visits.begin(), visits.end(), [](const auto &times) { return times == 1; }));
            QVERIFY(std::ssize(workers) <= threads);
            QVERIFY(!workers.contains(QThread::currentThread()));
        }
    }

    void leavesAThreadToThePainter()
    {
        QSemaphore begun;
        QSemaphore mayEnd;
        bool isPainted = false;
        std::thread painter([&] {
            begun.acquire(threads);
            QSemaphore painted;
            QThreadPool::globalInstance()->start([&painted] { painted.release(); });
            isPainted = painted.tryAcquire(1, 10'000);
            mayEnd.release(threads + 1);
            if (!isPainted)
                painted.acquire(); // which it refers to
        });
        forEachParallel(threads + 1, [&](qsizetype) {
            begun.release();
            mayEnd.acquire();
        });
        painter.join();
        QVERIFY(isPainted);
        QCOMPARE(QThreadPool::globalInstance()->maxThreadCount(), threads);
    }

    void passesExceptionsOn()
    {
        std::atomic<int> begun = 0;
        const auto fail = [&](qsizetype) {
            ++begun;
            throw std::runtime_error("no memory");
        };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, forEachParallel(1000, fail));
        QVERIFY(begun <= threads);
    }

    void threadLocalsAreWholeAtTheEnd()
    {
        static constexpr quint64 word = 0x6d69727269782121;
        std::thread([] { last.words.fill(word); }).join();
        QVERIFY(std::all_of(LastWords::heard.begin(), LastWords::heard.end(), [](quint64 one) { return one == word; }));
    }

    void choosesThreadCount()
    {
        QCOMPARE(threadCountFor(0, 16), 8); // automatic: no more than eight
        QCOMPARE(threadCountFor(0, 4), 4);
        QCOMPARE(threadCountFor(0, -1), 1); // unknown machine
        QCOMPARE(threadCountFor(-3, 4), 4);
        QCOMPARE(threadCountFor(1, 16), 1);
        QCOMPARE(threadCountFor(12, 2), 12);
    }
};

QTEST_GUILESS_MAIN(ParallelTest)
#include "tst_parallel.moc"
