#include "ui/dialogs/historydialog.h"

#include "actions/records/runjournal.h"
#include "tests/ui/cleaningscene.h"
#include "ui/logic/historymodel.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTreeView>

using Mirrix::HistoryDialog;
using Mirrix::ItemState;
using MirrixTest::text;

namespace {

/// A data directory with runs, and the dialog that shows them.
struct HistoryScene : MirrixTest::CleaningScene
{
    std::unique_ptr<HistoryDialog> dialog;

    HistoryScene() { settings.directory = tree.makeFolder(QStringLiteral("data")); }

    /// A run of some days ago on two files below `folder`; the first is done, the second failed.
    QString addRun(const QString &folder, int daysAgo, const QString &method, bool isComplete)
    {
        const qint64 startedMs = QDateTime::currentDateTime().addDays(-daysAgo).toMSecsSinceEpoch();
        QList<Mirrix::RunItem> items(2);
        for (int i = 0; i < 2; ++i)
            items[i].original = QStringLiteral("/%1/file%2").arg(folder).arg(i);
        Mirrix::RunJournalWriter journal;
        if (!journal.create(settings.directory, {{}, startedMs, {}, method, {}, {}, 2, {}}, items))
            return {};
        journal.outcome({0, ItemState::Done, QStringLiteral("/now/") + folder, {}, {}, 2048, 0});
        journal.outcome({1, ItemState::Failed, {}, QStringLiteral("in use"), {}, 0, 0});
        if (isComplete && !journal.finish())
            return {};
        return journal.id();
    }

    void open(const QString &runId = {})
    {
        dialog = std::make_unique<HistoryDialog>(settings, prompts, log);
        new QAbstractItemModelTester(view()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest,
                                     dialog.get());
        QSignalSpy loaded(dialog.get(), &HistoryDialog::loaded);
        if (!runId.isEmpty())
            dialog->showRun(runId);
        dialog->show();
        QVERIFY(loaded.wait());
        QTRY_VERIFY(runId.isEmpty() || view()->model()->rowCount(view()->currentIndex()) > 0);
    }

    [[nodiscard]] QTreeView *view() const { return dialog->findChild<QTreeView *>(); }

    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return dialog->findChild<QPushButton *>(QLatin1String(name));
    }

    /// Presses a button that changes the records, and waits until they are read again.
    void press(const char *name)
    {
        QSignalSpy loaded(dialog.get(), &HistoryDialog::loaded);
        QTest::mouseClick(button(name), Qt::LeftButton);
        QVERIFY(!loaded.isEmpty() || loaded.wait());
    }

    /// The columns from the second on of a row, runs without their times.
    [[nodiscard]] QString row(int number, const QModelIndex &parent = {}) const
    {
        QStringList cells;
        for (int column = parent.isValid() ? 0 : 1; column < Mirrix::HistoryModel::ColumnCount; ++column)
            cells.append(view()->model()->index(number, column, parent).data().toString());
        return cells.join(QLatin1Char('|'));
    }

    void type(const QString &words)
    {
        QSignalSpy filtered(dialog.get(), &HistoryDialog::filtered);
        dialog->findChild<QLineEdit *>(QStringLiteral("HistoryFilter"))->setText(words);
        QVERIFY(filtered.wait());
    }
};

} // namespace

class TestHistoryDialog : public QObject
{
    Q_OBJECT

private slots:
    void runsAndFiles();
    void filtering();
    void undoesAndFrees();
    void removesRecords();
};

void TestHistoryDialog::runsAndFiles()
{
    HistoryScene scene;
    scene.addRun(QStringLiteral("old"), 400, QStringLiteral("backup+hardlink"), false);
    const QString latest = scene.addRun(QStringLiteral("new"), 1, QStringLiteral("delete"), true);
    QFile damaged(Mirrix::runJournalPath(scene.settings.directory, QStringLiteral("20200101-000000-abcd")));
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write(QByteArray(500, 'x')) == 500);
    damaged.close();
    scene.open();
    QCOMPARE(scene.view()->model()->rowCount(), 3);
    QCOMPARE(scene.row(0), text("永久删除|1 / 2|已完成|2.0 KB|"));
    QCOMPARE(scene.row(1), text("移动到备份 + 硬链接|1 / 2|已中断|2.0 KB|"));
    QVERIFY(scene.row(2).contains(text("无法读取")));
    QVERIFY(!scene.view()->model()->hasChildren(scene.view()->model()->index(2, 0)));
    scene.view()->setCurrentIndex(scene.view()->model()->index(2, 0));
    QVERIFY(!scene.button("UndoRunButton")->isEnabled());
    QVERIFY(scene.dialog->findChild<QLabel *>(QStringLiteral("HistoryNote"))->text().contains(damaged.fileName()));

    scene.open(latest);
    const QModelIndex run = scene.view()->currentIndex();
    QCOMPARE(run.row(), 0);
    QVERIFY(scene.view()->isExpanded(run));
    QCOMPARE(QDir::fromNativeSeparators(scene.row(0, run)), text("/new/file0|/now/new||已移除|2.0 KB|"));
    QCOMPARE(QDir::fromNativeSeparators(scene.row(1, run)), text("/new/file1|||失败：in use||"));
    QCOMPARE(run.model()->index(0, 0, run).data(Mirrix::HistoryModel::pathRole).toString(), QStringLiteral("/now/new"));

    scene.view()->setCurrentIndex(run.model()->index(0, 0, run));
    scene.view()->selectionModel()->select(run.model()->index(1, 0, run), QItemSelectionModel::Select);
    scene.view()->actions().constFirst()->trigger();
    QTRY_COMPARE(QDir::fromNativeSeparators(QGuiApplication::clipboard()->text()), text("/new/file0\n/new/file1"));
}

void TestHistoryDialog::filtering()
{
    HistoryScene scene;
    for (const char *folder : {"one", "two", "three", "four"})
        scene.addRun(QLatin1String(folder), 3, QStringLiteral("move"), true);
    scene.open();
    scene.type(QStringLiteral("FOUR"));
    const QAbstractItemModel *model = scene.view()->model();
    QCOMPARE(model->rowCount(), 1);
    const QModelIndex run = model->index(0, 0);
    QTRY_COMPARE(model->rowCount(run), 2); // opened, since it is one of few
    scene.type(QStringLiteral("/file1"));
    QCOMPARE(model->rowCount(), 4);
    scene.type(QStringLiteral("no such"));
    QCOMPARE(model->rowCount(), 0);
    QVERIFY(!scene.button("UndoRunButton")->isEnabled() && !scene.button("RemoveRecordButton")->isEnabled());
    scene.type({});
    QCOMPARE(model->rowCount(), 4);
}

void TestHistoryDialog::undoesAndFrees()
{
    HistoryScene scene;
    scene.addGroup({QStringLiteral("kept"), QStringLiteral("a*"), QStringLiteral("sought*"), QStringLiteral("c*")},
                   "content");
    scene.prompts.answers = {true};
    scene.prompts.actionAnswers = {true};
    QSignalSpy wanted(&scene.commands, &Mirrix::BatchCommands::historyRequested);
    scene.commands.moveCheckedToBackup();
    QCOMPARE(scene.prompts.actions, QStringList(text("在历史中显示")));
    QCOMPARE(wanted.size(), 1);
    scene.open(wanted.first().first().toString());
    QCOMPARE(scene.row(0), text("移动到备份|3 / 3|已完成||21 B"));
    QVERIFY(!scene.button("UndoSelectedButton")->isEnabled());

    // One file by itself, whose row the filter has moved; a No changes nothing.
    scene.type(scene.path("sought"));
    const auto first = [&] { return scene.view()->model()->index(0, 0); };
    QTRY_COMPARE(scene.view()->model()->rowCount(first()), 1);
    scene.view()->setCurrentIndex(scene.view()->model()->index(0, 0, first()));
    scene.prompts.asked.clear();
    QTest::mouseClick(scene.button("UndoSelectedButton"), Qt::LeftButton);
    QVERIFY(!scene.has("sought"));
    scene.prompts.answers = {true};
    scene.press("UndoSelectedButton");
    QVERIFY(scene.has("sought") && !scene.has("a") && !scene.has("c"));
    const QString question = text("撤销清理|将把 1 个文件放回原处。是否继续？");
    QCOMPARE(scene.prompts.asked, QStringList({question, question, text("完成|已恢复 1 个文件。")}));
    scene.type({});

    // Of the rest one backup is gone, which is said before.
    const auto entries = Mirrix::restorableEntries(scene.backup());
    QCOMPARE(entries.size(), 2);
    QVERIFY(QFile::remove(entries[0].backup));
    const auto runBy = [&](const char *method) {
        const QAbstractItemModel *model = scene.view()->model();
        const QModelIndexList found =
            model->match(model->index(0, 1), Qt::DisplayRole, text(method), 1, Qt::MatchExactly);
        return found.isEmpty() ? QModelIndex() : found.constFirst().siblingAtColumn(0);
    };
    scene.view()->setCurrentIndex(runBy("移动到备份"));
    scene.prompts.answers = {true};
    scene.press("UndoRunButton");
    QVERIFY(!scene.has("a") && scene.has("c"));
    QVERIFY(scene.prompts.asked[3].contains(text("将把 1 个文件放回原处")));
    QVERIFY(scene.prompts.asked[3].contains(scene.path("a")));
    const auto stateOf = [](const QModelIndex &run) {
        return run.siblingAtColumn(Mirrix::HistoryModel::StateColumn).data().toString();
    };
    QCOMPARE(stateOf(runBy("移动到备份")), text("部分已撤销"));

    // Undoing an undo, of either file, puts the file away again.
    QVERIFY(scene.has("sought"));
    const QString undone = stateOf(runBy("撤销清理"));
    QVERIFY(undone.startsWith(text("撤销了 ")));
    scene.view()->setCurrentIndex(runBy("撤销清理"));
    scene.prompts.asked.clear();
    scene.prompts.answers = {true};
    scene.press("UndoRunButton");
    QCOMPARE(scene.prompts.asked, QStringList({text("重新清理|将再次移除 1 个文件（移动到备份）。是否继续？"),
                                               text("完成|已再次移除 1 个文件。")}));
    QVERIFY(scene.has("sought") != scene.has("c"));
    QCOMPARE(Mirrix::restorableEntries(scene.backup()).size(), 1);
}

void TestHistoryDialog::removesRecords()
{
    HistoryScene scene;
    for (int daysAgo : {1, 50, 400})
        scene.addRun(QStringLiteral("x"), daysAgo, QStringLiteral("recycle"), true);
    scene.open();
    QVERIFY(!scene.button("RemoveOlderButton")->isEnabled()); // all are kept by default
    scene.dialog->findChild<QSpinBox *>()->setValue(100);
    QCOMPARE(Mirrix::readSettings(scene.settings.directory).keepHistoryDays, 100);
    scene.prompts.answers = {true};
    scene.press("RemoveOlderButton");
    QCOMPARE(scene.view()->model()->rowCount(), 2);
    QTest::mouseClick(scene.button("RemoveRecordButton"), Qt::LeftButton); // a No
    QCOMPARE(Mirrix::listRuns(scene.settings.directory).size(), 2);
    scene.prompts.answers = {true};
    scene.press("RemoveRecordButton");
    QCOMPARE(Mirrix::listRuns(scene.settings.directory).size(), 1);
}

QTEST_MAIN(TestHistoryDialog)
#include "tst_historydialog.moc"
