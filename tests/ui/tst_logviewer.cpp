#include "ui/dialogs/logviewer.h"

#include "tests/support/temptree.h"
#include "ui/logic/boxtext.h"
#include "ui/logic/logmodel.h"

#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

class TestLogViewer : public QObject
{
    Q_OBJECT

private slots:
    void showsAndCopies();
    void emptyAndDamaged();
    void longTexts();
};

void TestLogViewer::showsAndCopies()
{
    MirrixTest::TempTree tree;
    const QString path = tree.path(QStringLiteral("ops.log.enc"));
    const qint64 noon = QDateTime(QDate(2024, 5, 6), QTime(12, 0, 7)).toMSecsSinceEpoch(); // local
    Mirrix::OperationsLog log(path);
    QVERIFY(log.append({{noon, QStringLiteral("remove_batch"), QStringLiteral("method=1 count=2")},
                        {noon + 90000, QStringLiteral("restore"), QStringLiteral("/a/b  <-  /c")},
                        {noon - 60000, QStringLiteral("new_event"), QString()}}));
    Mirrix::LogViewer viewer(path);
    QSignalSpy loaded(&viewer, &Mirrix::LogViewer::loaded);
    QVERIFY(loaded.wait());
    viewer.show();
    auto *table = viewer.findChild<QTableView *>();
    const QAbstractItemModel *rows = table->model();
    const auto times = [rows] {
        QStringList column;
        for (int row = 0; row < rows->rowCount(); ++row)
            column.append(rows->index(row, 0).data().toString().right(8));
        return column.join(QLatin1Char(' '));
    };
    QCOMPARE(times(), QStringLiteral("12:01:37 12:00:07 11:59:07"));
    table->sortByColumn(Mirrix::LogModel::Time, Qt::AscendingOrder);
    QCOMPARE(times(), QStringLiteral("11:59:07 12:00:07 12:01:37"));
    QCOMPARE(rows->index(0, 1).data().toString(), QStringLiteral("new_event"));
    table->sortByColumn(Mirrix::LogModel::Detail, Qt::DescendingOrder);
    QCOMPARE(times(), QStringLiteral("12:00:07 12:01:37 11:59:07"));

    viewer.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&viewer));
    table->setFocus();
    table->selectAll();
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text().split(QLatin1Char('\n')),
             QStringList({QStringLiteral("2024-05-06 12:00:07\tremove_batch\tmethod=1 count=2"),
                          QStringLiteral("2024-05-06 12:01:37\trestore\t/a/b  <-  /c"),
                          QStringLiteral("2024-05-06 11:59:07\tnew_event\t")}));
    QTest::keyClicks(viewer.findChild<QLineEdit *>(), QStringLiteral("COUNT="));
    QCOMPARE(times(), QStringLiteral("12:00:07"));
    QVERIFY(!rows->flags(rows->index(0, 2)).testFlag(Qt::ItemIsEditable));
}

void TestLogViewer::emptyAndDamaged()
{
    MirrixTest::TempTree tree;
    const QString damaged = tree.write(QStringLiteral("ops.log.enc"), "neither a vector nor a cipher text");
    for (const QString &path : {tree.path(QStringLiteral("missing")), damaged}) {
        Mirrix::LogViewer viewer(path);
        QSignalSpy loaded(&viewer, &Mirrix::LogViewer::loaded);
        QVERIFY(loaded.wait());
        QCOMPARE(viewer.findChild<QTableView *>()->model()->rowCount(), 0);
        QCOMPARE(viewer.findChild<QLabel *>(QStringLiteral("LogNote"))->text(), QString::fromUtf8("日志为空。"));
    }
}

/// What message boxes make of texts that would not fit the screen.
void TestLogViewer::longTexts()
{
    QCOMPARE(Mirrix::boxText(QStringLiteral("a\nb")).shown, QStringLiteral("a\nb"));
    QVERIFY(Mirrix::boxText(QStringLiteral("a\nb")).details.isEmpty());
    const QString sentence = QStringLiteral("word ").repeated(40);
    QCOMPARE(Mirrix::boxText(sentence).shown, sentence);
    QStringList lines = {QStringLiteral("done")};
    for (int i = 0; i < 100000; ++i)
        lines.append(QStringLiteral("failed %1").arg(i));
    lines.append(QString(5000, QLatin1Char('z')) + QStringLiteral("end"));
    const Mirrix::BoxText fitted = Mirrix::boxText(lines.join(QLatin1Char('\n')));
    const QStringList shown = fitted.shown.split(QLatin1Char('\n'));
    QCOMPARE(shown.size(), 14);
    QCOMPARE(shown[11], QStringLiteral("failed 10"));
    QVERIFY(shown[12].contains(QString::number(100002 - 13)));
    QVERIFY(shown[13].endsWith(QStringLiteral("zend")) && shown[13].size() < 400);
    QVERIFY(fitted.details.startsWith(QStringLiteral("done\nfailed 0\n")));
    QVERIFY(fitted.details.count(QLatin1Char('\n')) < 10000);
}

QTEST_MAIN(TestLogViewer)
#include "tst_logviewer.moc"
