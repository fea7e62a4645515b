#include "ui/dialogs/fileprogressdialog.h"

#include "actions/fileoperations.h"
#include "tests/support/temptree.h"

#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSemaphore>
#include <QTest>
#include <QThread>
#include <QTimer>

using Mirrix::FileProgressDialog;

namespace {

enum class Way
{
    Button,
    Escape,
    Close
};

} // namespace

Q_DECLARE_METATYPE(Way)

class TestFileProgress : public QObject
{
    Q_OBJECT

private slots:
    void stopsAfterTheCurrentFile_data();
    void stopsAfterTheCurrentFile();
    void quickWorkShowsNothing();
    void theApplicationEnds(); // last: no event loop runs after it
};

void TestFileProgress::stopsAfterTheCurrentFile_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("button") << Way::Button;
    QTest::newRow("escape") << Way::Escape;
    QTest::newRow("close") << Way::Close;
}

void TestFileProgress::stopsAfterTheCurrentFile()
{
    QFETCH(const Way, way);
    MirrixTest::TempTree tree;
    QStringList paths;
    for (const char *name : {"a", "b", "c"})
        paths.append(tree.write(QLatin1String(name), "x"));
    FileProgressDialog dialog(QStringLiteral("Removing (%1/%2)"), nullptr);
    QSemaphore mayGoOn;
    Mirrix::BatchResult result;

    // The user waits for the figures of the first file, then stops; the batch is held between files until that.
    QTimer user;
    connect(&user, &QTimer::timeout, &dialog, [&] {
        if (dialog.findChild<QLabel *>()->text() != QStringLiteral("Removing (1/3)"))
            return;
        user.stop();
        QVERIFY(dialog.isVisible() && dialog.isModal());
        QCOMPARE(dialog.findChild<QProgressBar *>()->value(), 1);
        QCOMPARE(dialog.findChild<QProgressBar *>()->maximum(), 3);
        auto *cancel = dialog.findChild<QPushButton *>();
        if (way == Way::Button)
            QTest::mouseClick(cancel, Qt::LeftButton);
        else if (way == Way::Escape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            dialog.close();
        QVERIFY(dialog.isVisible() && !cancel->isEnabled());
        mayGoOn.release();
    });
    user.start(1);
    Mirrix::runUnderProgress(dialog, [&](const Mirrix::BatchProgress &progress) {
        QVERIFY(QThread::currentThread() != qApp->thread());
        const Mirrix::BatchProgress held = [&](qsizetype done, qsizetype total) {
            const bool isWanted = progress(done, total);
            if (done == 1)
                mayGoOn.acquire();
            return isWanted && progress(done, total);
        };
        result = Mirrix::removeFiles(Mirrix::RemovalMethod::Delete, paths, {}, {}, {held, {}});
    });
    QVERIFY(!dialog.isVisible());
    QVERIFY(result.isCancelled);
    QCOMPARE(result.count, 1);
    QVERIFY(!QFile::exists(paths[0]) && QFile::exists(paths[1]) && QFile::exists(paths[2]));
}

void TestFileProgress::quickWorkShowsNothing()
{
    FileProgressDialog dialog(QStringLiteral("Reading"), nullptr);
    bool isDone = false;
    Mirrix::runUnderProgress(dialog, [&](const Mirrix::BatchProgress &) { isDone = true; });
    QVERIFY(isDone && !dialog.isStopped());
}

void TestFileProgress::theApplicationEnds()
{
    FileProgressDialog dialog(QStringLiteral("Working"), nullptr);
    QTimer::singleShot(0, &dialog, [] { QCoreApplication::exit(); });
    // Without the stop this would go on for ever.
    Mirrix::runUnderProgress(dialog, [](const Mirrix::BatchProgress &progress) {
        while (progress(0, 1))
            QThread::yieldCurrentThread();
    });
    QVERIFY(dialog.isStopped());
}

QTEST_MAIN(TestFileProgress)
#include "tst_fileprogress.moc"
