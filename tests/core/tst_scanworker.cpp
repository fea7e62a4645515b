#include "core/scan/scanworker.h"

#include "core/cache/cacheroot.h"
#include "core/model/metatypes.h"
#include "tests/support/scans.h"
#include "tests/support/temptree.h"

#include <QMetaMethod>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

const QString cancelledText = u"扫描已取消"_s;
constexpr int patienceMs = 30000;

/// What a worker said last, and how often.
struct Answers
{
    explicit Answers(const ScanWorker &worker)
        : finished(&worker, &ScanWorker::finished)
        , failed(&worker, &ScanWorker::failed)
    {}

    [[nodiscard]] ScanResult result() const { return finished.constLast().constFirst().value<ScanResult>(); }
    [[nodiscard]] QString message() const { return failed.constLast().constFirst().toString(); }

    QSignalSpy finished;
    QSignalSpy failed;
};

} // namespace

class ScanWorkerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void offersItsMethods();
    void finishesOnce();
    void failsWhenCancelled_data();
    void failsWhenCancelled();
    void forgetsCancelWhileIdle();
    void scansAgainAfterCancel();
    void reportsAcrossThreads();
    void isCancelledFromAnotherThread();

private:
    [[nodiscard]] ScanOptions options() const { return optionsFor(*m_tree); }

    std::unique_ptr<TempTree> m_tree;
};

void ScanWorkerTest::initTestCase()
{
    registerScanMetaTypes();
    setCacheRoot({});
}

void ScanWorkerTest::init()
{
    m_tree = std::make_unique<TempTree>();
    m_tree->write(u"a"_s, patternBytes(20000));
    m_tree->write(u"b"_s, patternBytes(20000));
}

/// Callers reach the worker by name too, in queued calls.
void ScanWorkerTest::offersItsMethods()
{
    const QMetaObject &meta = ScanWorker::staticMetaObject;
    QCOMPARE(meta.className(), "MirrixCore::ScanWorker");
    QList<QByteArray> signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(meta.method(i).methodSignature());
    QCOMPARE(signatures, QList<QByteArray>({"progress(MirrixCore::ScanProgress)", "finished(MirrixCore::ScanResult)",
                                            "failed(QString)", "start(MirrixCore::ScanOptions)", "cancel()"}));
    for (const char *type :
         {"MirrixCore::ScanOptions", "MirrixCore::ScanProgress", "MirrixCore::ScanResult", "MirrixCore::FileEntry"}) {
        QVERIFY2(QMetaType::fromName(type).isValid(), type);
    }
}

void ScanWorkerTest::finishesOnce()
{
    ScanWorker worker;
    const Answers answers(worker);
    const QSignalSpy progress(&worker, &ScanWorker::progress);
    worker.start(options());
    QCOMPARE(answers.finished.size(), 1);
    QCOMPARE(answers.failed.size(), 0);
    QCOMPARE(answers.result().groups.size(), 1);
    QVERIFY(!progress.isEmpty());
    worker.start({}); // nothing to scan is a result too
    QCOMPARE(answers.finished.size(), 2);
    QCOMPARE(answers.failed.size(), 0);
    QCOMPARE(answers.result().filesScanned, 0);
}

void ScanWorkerTest::failsWhenCancelled_data()
{
    QTest::addColumn<QString>("phase");
    for (const QString &phase : {Phase::Enumerating, Phase::QuickHash, Phase::FullHash})
        QTest::newRow(qPrintable(phase)) << phase;
}

void ScanWorkerTest::failsWhenCancelled()
{
    QFETCH(QString, phase);
    ScanWorker worker;
    const Answers answers(worker);
    const auto cancel = atEndOf(phase, [&worker] { worker.cancel(); });
    connect(&worker, &ScanWorker::progress, &worker, cancel, Qt::DirectConnection);
    worker.start(options());
    QCOMPARE(answers.failed.size(), 1);
    QCOMPARE(answers.message(), cancelledText);
    QCOMPARE(answers.finished.size(), 0);
}

void ScanWorkerTest::forgetsCancelWhileIdle()
{
    ScanWorker worker;
    const Answers answers(worker);
    worker.cancel();
    QCOMPARE(answers.failed.size(), 0);
    worker.start(options());
    QCOMPARE(answers.finished.size(), 1);
    worker.cancel();
    worker.start(options());
    QCOMPARE(answers.finished.size(), 2);
    QCOMPARE(answers.failed.size(), 0);
}

void ScanWorkerTest::scansAgainAfterCancel()
{
    ScanWorker worker;
    const Answers answers(worker);
    const auto connection = connect(
        &worker, &ScanWorker::progress, &worker, [&worker] { worker.cancel(); }, Qt::DirectConnection);
    worker.start(options());
    disconnect(connection);
    worker.start(options());
    QCOMPARE(answers.failed.size(), 1);
    QCOMPARE(answers.finished.size(), 1);
    QCOMPARE(answers.result().groups.size(), 1);
}

void ScanWorkerTest::reportsAcrossThreads()
{
    QThread thread;
    auto *worker = new ScanWorker;
    worker->moveToThread(&thread);
    connect(&thread, &QThread::finished, worker, &QObject::deleteLater);
    QList<ScanProgress> reports;
    QList<ScanResult> results;
    QStringList failures;
    // The context lives on this thread, so the records are copied through its event loop.
    QObject context;
    connect(worker, &ScanWorker::progress, &context, [&](const ScanProgress &report) { reports.append(report); });
    connect(worker, &ScanWorker::finished, &context, [&](const ScanResult &result) { results.append(result); });
    connect(worker, &ScanWorker::failed, &context, [&](const QString &message) { failures.append(message); });
    thread.start();
    QVERIFY(
        QMetaObject::invokeMethod(worker, "start", Qt::QueuedConnection, Q_ARG(MirrixCore::ScanOptions, options())));
    QTRY_COMPARE_WITH_TIMEOUT(results.size(), 1, patienceMs);
    thread.quit();
    QVERIFY(thread.wait(patienceMs));
    QCOMPARE(failures, QStringList());
    QCOMPARE(groupsOf(results[0], *m_tree).size(), 1);
    QCOMPARE(reports.constFirst().phase, Phase::Enumerating);
    QCOMPARE(reports.constLast().phase, Phase::FullHash);
    QCOMPARE(reports.constLast().processed, 2);
}

void ScanWorkerTest::isCancelledFromAnotherThread()
{
    QThread thread;
    auto *worker = new ScanWorker;
    worker->moveToThread(&thread);
    connect(&thread, &QThread::finished, worker, &QObject::deleteLater);
    QSemaphore isHashing;
    QSemaphore mayGoOn;
    const auto meet = atEndOf(Phase::QuickHash, [&] {
        isHashing.release();
        mayGoOn.tryAcquire(1, patienceMs);
    });
    connect(worker, &ScanWorker::progress, worker, meet, Qt::DirectConnection);
    QObject context;
    int finished = 0;
    QStringList failures;
    connect(worker, &ScanWorker::finished, &context, [&] { ++finished; });
    connect(worker, &ScanWorker::failed, &context, [&](const QString &message) { failures.append(message); });
    thread.start();
    QVERIFY(
        QMetaObject::invokeMethod(worker, "start", Qt::QueuedConnection, Q_ARG(MirrixCore::ScanOptions, options())));
    QVERIFY(isHashing.tryAcquire(1, patienceMs));
    worker->cancel(); // a plain call: the worker's thread is busy and sees no queued one
    mayGoOn.release();
    QTRY_COMPARE_WITH_TIMEOUT(failures, QStringList(cancelledText), patienceMs);
    thread.quit();
    QVERIFY(thread.wait(patienceMs));
    QCOMPARE(finished, 0);
}

QTEST_GUILESS_MAIN(ScanWorkerTest)
#include "tst_scanworker.moc"
