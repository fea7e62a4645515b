#include "ui/dialogs/historydialog.h"

#include "actions/records/runjournal.h"
#include "tests/ui/cleaningscene.h"
#include "ui/models/historymodel.h"

#include <QAbstractItemModelTester>

namespace {

/// A data directory with runs, and the dialog that shows them.
struct HistoryScene : CleaningScene
{
    std::unique_ptr<HistoryDialog> dialog;

    HistoryScene() { settings.directory = tree.makeFolder(u"data"_s); }

    /// A run of some days ago on two files below `folder`; the first is done, the second failed.
    QString addRun(const QString &folder, int daysAgo, const QString &method, bool isComplete)
    {
        const qint64 startedMs = QDateTime::currentDateTime().addDays(-daysAgo).toMSecsSinceEpoch();
        QList<RunItem> items(2);
        for (int i = 0; i < 2; ++i)
            items[i].original = u"/%1/file%2"_s.arg(folder).arg(i);
        RunJournalWriter journal;
        if (!journal.create(settings.directory, {{}, startedMs, {}, method, {}, {}, 2, {}}, items))
            return {};
        journal.outcome({0, ItemState::Done, u"/now/"_s + folder, {}, {}, 2048, 0});
        journal.outcome({1, ItemState::Failed, {}, u"in use"_s, {}, 0, 0});
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
        QTRY_VERIFY(runId.isEmpty() || model().rowCount(view()->currentIndex()) > 0);
    }

    [[nodiscard]] QTreeView *view() const { return part<QTreeView>(*dialog); }
    [[nodiscard]] QAbstractItemModel &model() const { return *view()->model(); }
    [[nodiscard]] QAbstractButton *button(const char *name) const { return part(*dialog, QLatin1String(name)); }

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
        for (int column = parent.isValid() ? 0 : 1; column < HistoryModel::ColumnCount; ++column)
            cells.append(model().index(number, column, parent).data().toString());
        return cells.join(u'|');
    }

    void type(const QString &words)
    {
        QSignalSpy filtered(dialog.get(), &HistoryDialog::filtered);
        part<QLineEdit>(*dialog, u"HistoryFilter"_s)->setText(words);
        QVERIFY(filtered.wait());
    }
};

} // namespace

class TestHistoryDialog : public QObject
{
    Q_OBJECT

private slots:
    void runsAndFiles()
    {
        HistoryScene scene;
        scene.addRun(u"old"_s, 400, u"backup+hardlink"_s, false);
        const QString latest = scene.addRun(u"new"_s, 1, u"delete"_s, true);
        QFile damaged(runJournalPath(scene.settings.directory, u"20200101-000000-abcd"_s));
        QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write(QByteArray(500, 'x')) == 500);
        damaged.close();
        scene.open();
        QCOMPARE(scene.model().rowCount(), 3);
        QCOMPARE(scene.row(0), u"永久删除|1 / 2|已完成|2.0 KB|"_s);
        QCOMPARE(scene.row(1), u"移动到备份 + 硬链接|1 / 2|已中断|2.0 KB|"_s);
        QVERIFY(scene.row(2).contains(u"无法读取"_s));
        QVERIFY(!scene.model().hasChildren(scene.model().index(2, 0)));
        scene.view()->setCurrentIndex(scene.model().index(2, 0));
        QVERIFY(!scene.button("UndoRunButton")->isEnabled());
        QVERIFY(part<QLabel>(*scene.dialog, u"HistoryNote"_s)->text().contains(damaged.fileName()));

        scene.open(latest);
        const QModelIndex run = scene.view()->currentIndex();
        QCOMPARE(run.row(), 0);
        QVERIFY(scene.view()->isExpanded(run));
        QCOMPARE(QDir::fromNativeSeparators(scene.row(0, run)), u"/new/file0|/now/new||已移除|2.0 KB|"_s);
        QCOMPARE(QDir::fromNativeSeparators(scene.row(1, run)), u"/new/file1|||失败：in use||"_s);
        QCOMPARE(run.model()->index(0, 0, run).data(HistoryModel::pathRole).toString(), u"/now/new"_s);

        scene.view()->setCurrentIndex(run.model()->index(0, 0, run));
        scene.view()->selectionModel()->select(run.model()->index(1, 0, run), QItemSelectionModel::Select);
        scene.view()->actions().constFirst()->trigger();
        QTRY_COMPARE(QDir::fromNativeSeparators(QGuiApplication::clipboard()->text()), u"/new/file0\n/new/file1"_s);
    }

    void filtering()
    {
        HistoryScene scene;
        for (const char *folder : {"one", "two", "three", "four"})
            scene.addRun(QLatin1String(folder), 3, u"move"_s, true);
        scene.open();
        scene.type(u"FOUR"_s);
        const QAbstractItemModel *model = scene.view()->model();
        QCOMPARE(model->rowCount(), 1);
        const QModelIndex run = model->index(0, 0);
        QTRY_COMPARE(model->rowCount(run), 2); // opened, since it is one of few
        scene.type(u"/file1"_s);
        QCOMPARE(model->rowCount(), 4);
        scene.type(u"no such"_s);
        QCOMPARE(model->rowCount(), 0);
        QVERIFY(!scene.button("UndoRunButton")->isEnabled() && !scene.button("RemoveRecordButton")->isEnabled());
        scene.type({});
        QCOMPARE(model->rowCount(), 4);
    }

    void undoesAndFrees()
    {
        HistoryScene scene;
        scene.addGroup(u"kept a* sought* c*"_s, "content");
        scene.prompts.answers = {true};
        scene.prompts.actionAnswers = {true};
        QSignalSpy wanted(&scene.commands, &BatchCommands::historyRequested);
        scene.commands.moveCheckedToBackup();
        QCOMPARE(scene.prompts.actions, QStringList(u"在历史中显示"_s));
        QCOMPARE(wanted.size(), 1);
        scene.open(wanted.first().first().toString());
        QCOMPARE(scene.row(0), u"移动到备份|3 / 3|已完成||21 B"_s);
        QVERIFY(!scene.button("UndoSelectedButton")->isEnabled());

        // One file by itself, whose row the filter has moved; a No changes nothing.
        scene.type(scene.path("sought"));
        const auto first = [&] { return scene.model().index(0, 0); };
        QTRY_COMPARE(scene.model().rowCount(first()), 1);
        scene.view()->setCurrentIndex(scene.model().index(0, 0, first()));
        scene.prompts.asked.clear();
        QTest::mouseClick(scene.button("UndoSelectedButton"), Qt::LeftButton);
        QVERIFY(!scene.has("sought"));
        scene.prompts.answers = {true};
        scene.press("UndoSelectedButton");
        QVERIFY(scene.has("sought") && !scene.has("a") && !scene.has("c"));
        const QString question = u"撤销清理|将把 1 个文件放回原处。是否继续？"_s;
        QCOMPARE(scene.prompts.asked, QStringList({question, question, u"完成|已恢复 1 个文件。"_s}));
        scene.type({});

        // Of the rest one backup is gone, which is said before.
        const auto entries = restorableEntries(scene.backup());
        QCOMPARE(entries.size(), 2);
        QVERIFY(QFile::remove(entries[0].backup));
        const auto runBy = [&](const QString &method) {
            const QAbstractItemModel *model = scene.view()->model();
            const QModelIndexList found =
                model->match(model->index(0, 1), Qt::DisplayRole, method, 1, Qt::MatchExactly);
            return found.isEmpty() ? QModelIndex() : found.constFirst().siblingAtColumn(0);
        };
        scene.view()->setCurrentIndex(runBy(u"移动到备份"_s));
        scene.prompts.answers = {true};
        scene.press("UndoRunButton");
        QVERIFY(!scene.has("a") && scene.has("c"));
        QVERIFY(scene.prompts.asked[3].contains(u"将把 1 个文件放回原处"_s));
        QVERIFY(scene.prompts.asked[3].contains(scene.path("a")));
        const auto stateOf = [](const QModelIndex &run) {
            return run.siblingAtColumn(HistoryModel::StateColumn).data().toString();
        };
        QCOMPARE(stateOf(runBy(u"移动到备份"_s)), u"部分已撤销"_s);

        // Undoing an undo, of either file, puts the file away again.
        QVERIFY(scene.has("sought"));
        const QString undone = stateOf(runBy(u"撤销清理"_s));
        QVERIFY(undone.startsWith(u"撤销了 "_s));
        scene.view()->setCurrentIndex(runBy(u"撤销清理"_s));
        scene.prompts.asked.clear();
        scene.prompts.answers = {true};
        scene.press("UndoRunButton");
        QCOMPARE(scene.prompts.asked, QStringList({u"重新清理|将再次移除 1 个文件（移动到备份）。是否继续？"_s,
                                                   u"完成|已再次移除 1 个文件。"_s}));
        QVERIFY(scene.has("sought") != scene.has("c"));
        QCOMPARE(restorableEntries(scene.backup()).size(), 1);
    }

    void removesRecords()
    {
        HistoryScene scene;
        for (int daysAgo : {1, 50, 400})
            scene.addRun(u"x"_s, daysAgo, u"recycle"_s, true);
        scene.open();
        QVERIFY(!scene.button("RemoveOlderButton")->isEnabled()); // all are kept by default
        part<QSpinBox>(*scene.dialog)->setValue(100);
        QCOMPARE(readSettings(scene.settings.directory).keepHistoryDays, 100);
        scene.prompts.answers = {true};
        scene.press("RemoveOlderButton");
        QCOMPARE(scene.model().rowCount(), 2);
        QTest::mouseClick(scene.button("RemoveRecordButton"), Qt::LeftButton); // a No
        QCOMPARE(listRuns(scene.settings.directory).size(), 2);
        scene.prompts.answers = {true};
        scene.press("RemoveRecordButton");
        QCOMPARE(listRuns(scene.settings.directory).size(), 1);
    }
};

QTEST_MAIN(TestHistoryDialog)
#include "tst_historydialog.moc"
