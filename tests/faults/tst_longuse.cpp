#include "core/cache/cacheroot.h"
#include "core/scan/scanworker.h"
#include "tests/support/program.h"
#include "tests/support/scans.h"

#include <QDir>
#include <QImage>
#include <QTest>
#include <QThreadPool>
#include <QtEndian>

#include <malloc.h>
#include <sys/resource.h>

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

/// One colour without loss in 34 bytes: head, width and height less one in 14 bits each, no transformation, and five
/// codes of one symbol each.
QByteArray promisingWebp(quint32 side)
{
    const quint32 sides = qToLittleEndian((side - 1) | (side - 1) << 14);
    return QByteArray("RIFF\x1A\0\0\0WEBPVP8L\x0E\0\0\0\x2F", 21) +
           QByteArray(reinterpret_cast<const char *>(&sides), sizeof sides) + QByteArray::fromHex("888808") +
           QByteArray(6, '\0');
}

} // namespace

class LongUseTest : public QObject
{
    Q_OBJECT

private slots:
    void promisedPicturesTakeTurns_data()
    {
        QTest::addColumn<int>("pictures"); // and threads
        QTest::addColumn<quint32>("side");
        QTest::addColumn<qint64>("memoryBytes"); // a quarter of it is for pictures, at most twice that for one alone
        QTest::addColumn<qint64>("decodingBytes");
        constexpr qint64 gibi = qint64(1) << 30;
        // The system reports the use of the largest child so far, so the largest row comes last.
        QTest::newRow("each beyond twice that") << 8 << 16383U << 3 * gibi << qint64(0);
        QTest::newRow("within the memory for pictures") << 4 << 8192U << 3 * gibi << 3 * gibi / 4;
        QTest::newRow("each beyond it") << 2 << 16383U << 6 * gibi << qint64(8) * 16383 * 16383;
    }

    /// Pictures of 34 bytes that promise gigabytes are not all decoded at once.
    void promisedPicturesTakeTurns()
    {
        QFETCH(int, pictures);
        QFETCH(quint32, side);
        QFETCH(qint64, memoryBytes);
        QFETCH(qint64, decodingBytes);
        const TempTree tree;
        const Program program;
        for (int i = 0; i < pictures; ++i)
            tree.write(u"%1.webp"_s.arg(i), promisingWebp(side));
        QProcess process;
        program.prepare(process, {u"scan"_s, u"--no-cache"_s, u"--mode"_s, u"images"_s, u"--set"_s,
                                  u"threads=%1"_s.arg(pictures), u"--data-dir"_s, program.dataFolder(), tree.path()});
        process.setChildProcessModifier([memoryBytes] {
            const rlimit limit = {rlim_t(memoryBytes), rlim_t(memoryBytes)};
            setrlimit(RLIMIT_AS, &limit);
        });
        process.start();
        QCOMPARE(Program::ended(process).status, 0);
        rusage use = {};
        QCOMPARE(getrusage(RUSAGE_CHILDREN, &use), 0);
        qInfo("%ld KiB at most", use.ru_maxrss);
        constexpr long programKiB = 300 * 1024;
        QVERIFY(use.ru_maxrss < long(decodingBytes / 1024) + programKiB);
    }

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
