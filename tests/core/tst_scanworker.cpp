#include "core/scan/scanworker.h"

#include "core/cache/cacheroot.h"
#include "core/model/metatypes.h"
#include "tests/support/coretest.h"

#include <QMetaMethod>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

#include <memory>

namespace {

constexpr int timeoutMs = 30000;

} // namespace

class ScanWorkerTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TempTree> m_tree;
    std::unique_ptr<ScanWorker> m_worker;
    std::unique_ptr<QSignalSpy> m_finished;
    std::unique_ptr<QSignalSpy> m_failed;

    /// "finished 1, failed 0" and the last message of a failure.
    [[nodiscard]] QString answers() const
    {
        const QString message = m_failed->isEmpty() ? QString() : m_failed->constLast().constFirst().toString();
        return u"finished %1, failed %2 %3"_s.arg(m_finished->size()).arg(m_failed->size()).arg(message).trimmed();
    }

    [[nodiscard]] ScanResult result() const { return m_finished->constLast().constFirst().value<ScanResult>(); }

    /// Has the worker scan on `thread`, which ends with its answer. Only then may the answer be looked at.
    void startOn(QThread &thread)
    {
        m_worker->moveToThread(&thread);
        connect(m_worker.get(), &ScanWorker::finished, &thread, &QThread::quit, Qt::DirectConnection);
        connect(m_worker.get(), &ScanWorker::failed, &thread, &QThread::quit, Qt::DirectConnection);
        thread.start();
        QVERIFY(QMetaObject::invokeMethod(m_worker.get(), "start", Qt::QueuedConnection,
                                          Q_ARG(MirrixCore::ScanOptions, optionsFor(*m_tree))));
    }

private slots:
    void initTestCase()
    {
        registerScanMetaTypes();
        setCacheRoot({});
    }

    void init()
    {
        m_tree = std::make_unique<TempTree>();
        m_tree->writeAll(u"a b"_s, patternBytes(20000));
        m_worker = std::make_unique<ScanWorker>();
        m_finished = std::make_unique<QSignalSpy>(m_worker.get(), &ScanWorker::finished);
        m_failed = std::make_unique<QSignalSpy>(m_worker.get(), &ScanWorker::failed);
    }

    /// Callers reach the worker by name too, in queued calls.
    void offersItsMethods()
    {
        const QMetaObject &meta = ScanWorker::staticMetaObject;
        QCOMPARE(meta.className(), "MirrixCore::ScanWorker");
        QByteArrayList signatures;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            signatures.append(meta.method(i).methodSignature());
        QCOMPARE(signatures.join(' '), "progress(MirrixCore::ScanProgress) finished(MirrixCore::ScanResult) "
                                       "failed(QString) start(MirrixCore::ScanOptions) cancel()");
        for (const char *type : {"ScanOptions", "ScanProgress", "ScanResult", "FileEntry"})
            QVERIFY2(QMetaType::fromName(QByteArray("MirrixCore::") + type).isValid(), type);
    }

    /// Whether it was cancelled while idle or in the scan before does not matter.
    void finishesOnce()
    {
        m_worker->cancel();
        m_worker->start(optionsFor(*m_tree));
        QCOMPARE(answers(), u"finished 1, failed 0"_s);
        QCOMPARE(result().groups.size(), 1);
        const auto cancelling = connect(
            m_worker.get(), &ScanWorker::progress, this, [this] { m_worker->cancel(); }, Qt::DirectConnection);
        m_worker->start(optionsFor(*m_tree));
        disconnect(cancelling);
        QCOMPARE(answers(), u"finished 1, failed 1 扫描已取消"_s);
        m_worker->start({}); // nothing to scan is a result too
        QCOMPARE(answers(), u"finished 2, failed 1 扫描已取消"_s);
        QCOMPARE(result().filesScanned, 0);
    }

    void failsWhenCancelled_data()
    {
        const auto row = columns<QString>({"phase"});
        for (const QString &phase : {Phase::Enumerating, Phase::QuickHash, Phase::FullHash})
            row(qPrintable(phase), phase);
    }

    void failsWhenCancelled()
    {
        QFETCH(QString, phase);
        const auto cancel = atEndOf(phase, [this] { m_worker->cancel(); });
        connect(m_worker.get(), &ScanWorker::progress, this, cancel, Qt::DirectConnection);
        m_worker->start(optionsFor(*m_tree));
        QCOMPARE(answers(), u"finished 0, failed 1 扫描已取消"_s);
    }

    /// The context lives on this thread, so the records are copied through its event loop.
    void reportsAcrossThreads()
    {
        QObject context;
        QList<ScanProgress> reports;
        QList<ScanResult> results;
        connect(m_worker.get(), &ScanWorker::progress, &context, [&](const auto &report) { reports.append(report); });
        connect(m_worker.get(), &ScanWorker::finished, &context, [&](const auto &result) { results.append(result); });
        QThread thread;
        startOn(thread);
        QTRY_COMPARE_WITH_TIMEOUT(results.size(), 1, timeoutMs);
        QVERIFY(thread.wait(timeoutMs));
        QCOMPARE(groupsText(results[0], *m_tree), u"a b"_s);
        QCOMPARE(reports.constFirst().phase, Phase::Enumerating);
        QCOMPARE(reports.constLast().phase, Phase::FullHash);
        QCOMPARE(reports.constLast().processed, 2);
    }

    void isCancelledFromAnotherThread()
    {
        QSemaphore isHashing;
        QSemaphore mayGoOn;
        const auto meet = atEndOf(Phase::QuickHash, [&] {
            isHashing.release();
            mayGoOn.tryAcquire(1, timeoutMs);
        });
        connect(m_worker.get(), &ScanWorker::progress, m_worker.get(), meet, Qt::DirectConnection);
        QThread thread;
        startOn(thread);
        QVERIFY(isHashing.tryAcquire(1, timeoutMs));
        m_worker->cancel(); // a plain call: the worker's thread is busy and sees no queued one
        mayGoOn.release();
        QVERIFY(thread.wait(timeoutMs));
        QCOMPARE(answers(), u"finished 0, failed 1 扫描已取消"_s);
    }
};

QTEST_GUILESS_MAIN(ScanWorkerTest)
#include "tst_scanworker.moc"
