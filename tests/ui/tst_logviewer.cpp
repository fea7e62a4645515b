#include "ui/dialogs/logviewer.h"

#include "tests/ui/uitest.h"
#include "ui/models/logmodel.h"

class TestLogViewer : public QObject
{
    Q_OBJECT

private slots:
    void showsAndCopies()
    {
        TempTree tree;
        const QString path = tree.path(u"ops.log.enc"_s);
        const qint64 noon = QDateTime(QDate(2024, 5, 6), QTime(12, 0, 7)).toMSecsSinceEpoch(); // local
        OperationsLog log(path);
        QVERIFY(log.append({{noon, u"remove_batch"_s, u"method=1 count=2"_s},
                            {noon + 90000, u"restore"_s, u"/a/b  <-  /c"_s},
                            {noon - 60000, u"new_event"_s, QString()}}));
        LogViewer viewer(path);
        QSignalSpy loaded(&viewer, &LogViewer::loaded);
        QVERIFY(loaded.wait());
        viewer.show();
        auto *table = part<QTableView>(viewer);
        const auto times = [table] { return columnText(*table->model(), 0).remove(u"2024-05-06 "_s); };
        QCOMPARE(times(), u"12:01:37|12:00:07|11:59:07"_s);
        table->sortByColumn(LogModel::Time, Qt::AscendingOrder);
        QCOMPARE(times(), u"11:59:07|12:00:07|12:01:37"_s);
        table->sortByColumn(LogModel::Detail, Qt::DescendingOrder);
        QCOMPARE(times(), u"12:00:07|12:01:37|11:59:07"_s);

        viewer.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&viewer));
        table->setFocus();
        table->selectAll();
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 u"2024-05-06 12:00:07\tremove_batch\tmethod=1 count=2\n2024-05-06 12:01:37\trestore\t/a/b  <-  /c\n"
                 "2024-05-06 11:59:07\tnew_event\t"_s);
        QTest::keyClicks(part<QLineEdit>(viewer), u"COUNT="_s);
        QCOMPARE(times(), u"12:00:07"_s);
    }

    void emptyAndDamaged()
    {
        TempTree tree;
        const QString damaged = tree.write(u"ops.log.enc"_s, "neither a vector nor a cipher text");
        for (const QString &path : {tree.path(u"missing"_s), damaged}) {
            LogViewer viewer(path);
            QSignalSpy loaded(&viewer, &LogViewer::loaded);
            QVERIFY(loaded.wait());
            QCOMPARE(part<QTableView>(viewer)->model()->rowCount(), 0);
            QCOMPARE(part<QLabel>(viewer, u"LogNote"_s)->text(), u"日志为空。"_s);
        }
    }
};

QTEST_MAIN(TestLogViewer)
#include "tst_logviewer.moc"
