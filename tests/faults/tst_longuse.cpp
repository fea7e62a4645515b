#include "core/cache/cacheroot.h"
#include "core/scan/scanworker.h"
#include "tests/support/scans.h"

#include <QDir>
#include <QImage>
#include <QTest>
#include <QThreadPool>

#include <malloc.h>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

struct Use
{
    qint64 heapBytes = 0;
    qsizetype openFiles = 0;
    qsizetype threads = 0;
};

Use useNow()
{
    QThreadPool::globalInstance()->waitForDone();
    return {static_cast<qint64>(mallinfo2().uordblks), QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries).size(),
            QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size()};
}

/// Of every kind in turn, every seventh cancelled at its beginning.
void scanOnce(const TempTree &tree, int number)
{
    ScanOptions options = optionsFor(tree, {u"in"_s});
    options.searchMode = number % 4;
    options.contentMatch = number / 4 % 3;
    options.sameName = options.contentMatch == static_cast<qint32>(ContentMatch::Ignore);
    options.readFileIdentity = true;
    ScanWorker worker;
    qsizetype ended = 0;
    QObject::connect(&worker, &ScanWorker::finished, [&](const ScanResult &) { ++ended; });
    QObject::connect(&worker, &ScanWorker::failed, [&] { ++ended; });
    if (number % 7 == 0)
        QObject::connect(&worker, &ScanWorker::progress, &worker, &ScanWorker::cancel, Qt::DirectConnection);
    worker.start(options);
    QCOMPARE(ended, 1);
}

} // namespace

class LongUseTest : public QObject
{
    Q_OBJECT

private slots:
    /// 200 scans in a row leave neither memory nor files nor threads behind.
    void scansLeaveNothing()
    {
        constexpr int warmUp = 56; // twice round all kinds and the cancelled ones
        constexpr int scans = 200;
        const TempTree tree;
        setCacheRoot(tree.path(u"data"_s));
        QImage picture(60, 40, QImage::Format_RGB32);
        tree.makeFolder(u"in"_s);
        for (int i = 0; i < 24; ++i) {
            tree.write(u"in/%1/name%2.mp3"_s.arg(i % 5).arg(i), patternBytes(i % 2 ? 300 : 90000, quint32(i % 6)));
            picture.fill(QColor(i % 6 * 40, 100, 50));
            QVERIFY(picture.save(tree.path(u"in/%1/picture%2.png"_s.arg(i % 5).arg(i))));
        }
        const auto scan = [&tree](int count) {
            for (int number = 0; number < count; ++number)
                scanOnce(tree, number);
            return useNow();
        };
        const Use before = scan(warmUp);
        const Use between = scan(scans / 2);
        const Use after = scan(scans / 2);
        const qint64 first = between.heapBytes - before.heapBytes;
        const qint64 second = after.heapBytes - between.heapBytes;
        qInfo("%lld and %lld bytes more on the heap, %lld open files, %lld threads", static_cast<long long>(first),
              static_cast<long long>(second), static_cast<long long>(after.openFiles),
              static_cast<long long>(after.threads));
        QCOMPARE(after.openFiles, before.openFiles);
        const qsizetype mostThreads = QThreadPool::globalInstance()->maxThreadCount() + 2; // a spare one and our own
        QVERIFY(after.threads <= std::max(before.threads, mostThreads));
        // The heap's own caches come and go; what is left behind by each scan grows in both halves.
        constexpr qint64 bytesOfAScan = 160;
        QVERIFY2(std::min(first, second) < bytesOfAScan * scans / 2, "memory grows");
    }
};

QTEST_GUILESS_MAIN(LongUseTest)
#include "tst_longuse.moc"
