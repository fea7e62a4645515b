#include "ui/dialogs/fileprogressdialog.h"

#include "tests/ui/uitest.h"

class TestFileProgress : public QObject
{
    Q_OBJECT

private slots:
    void stopsAfterTheCurrentFile_data()
    {
        QTest::addColumn<std::function<void(QDialog &)>>("stop");
        const auto row = [](const char *name, const std::function<void(QDialog &)> &stop) {
            QTest::newRow(name) << stop;
        };
        row("button", [](QDialog &dialog) { click(dialog); });
        row("escape", [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        row("close", [](QDialog &dialog) { dialog.close(); });
    }

    void stopsAfterTheCurrentFile()
    {
        QFETCH(const std::function<void(QDialog &)>, stop);
        FileProgressDialog dialog(u"Removing (%1/%2)"_s, nullptr);
        QSemaphore mayGoOn;
        int done = 0;

        // The user waits for the figures of the first file, then stops; the work is held until that.
        QTimer user;
        connect(&user, &QTimer::timeout, &dialog, [&] {
            if (part<QLabel>(dialog)->text() != u"Removing (1/3)")
                return;
            user.stop();
            QVERIFY(dialog.isVisible() && dialog.isModal());
            QCOMPARE(part<QProgressBar>(dialog)->value(), 1);
            QCOMPARE(part<QProgressBar>(dialog)->maximum(), 3);
            stop(dialog);
            QVERIFY(dialog.isVisible() && !part(dialog)->isEnabled());
            mayGoOn.release();
        });
        user.start(1);
        runUnderProgress(dialog, [&](const BatchProgress &progress) {
            QVERIFY(QThread::currentThread() != qApp->thread());
            for (; done < 3 && progress(done, 3); ++done) {
                if (done == 1)
                    mayGoOn.acquire();
            }
        });
        QVERIFY(!dialog.isVisible() && dialog.isStopped());
        QCOMPARE(done, 2); // the current one was finished
    }

    /// Last: no event loop runs after it.
    void theApplicationEnds()
    {
        FileProgressDialog dialog(u"Working"_s, nullptr);
        QTimer::singleShot(0, &dialog, [] { QCoreApplication::exit(); });
        // Without the stop this would never end.
        runUnderProgress(dialog, [](const BatchProgress &progress) {
            while (progress(0, 1))
                QThread::yieldCurrentThread();
        });
        QVERIFY(dialog.isStopped());
    }
};

QTEST_MAIN(TestFileProgress)
#include "tst_fileprogress.moc"
