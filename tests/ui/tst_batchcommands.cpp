#include "tests/ui/cleaningscene.h"
#include "ui/dialogs/fileprogressdialog.h"
#include "ui/dialogs/restoredialog.h"

using Scene = CleaningScene;

class TestBatchCommands : public QObject
{
    Q_OBJECT

private slots:
    void marksByCommand()
    {
        Scene scene;
        QSignalSpy replaced(&scene.commands, &BatchCommands::marksReplaced);
        QSignalSpy shown(&scene.commands, &BatchCommands::statusText);
        scene.commands.applyKeepRule(KeepRule::Newest); // without groups nothing happens
        scene.commands.selectAllDuplicates();
        QVERIFY(scene.logged().isEmpty() && shown.isEmpty());
        scene.addGroup(u"d/e/old* new alsonew"_s, "same");
        scene.addGroup(u"alone"_s, "");
        for (MirrixCore::FileEntry &file : scene.results.groups[0].files)
            file.modifiedMs = file.path.endsWith("old"_L1) ? 1000 : 2000;
        scene.commands.applyKeepRule(KeepRule::Newest);
        QCOMPARE(scene.marks(), u"101 0"_s);
        QCOMPARE(shown.takeLast().first().toString(), u"已按规则自动勾选待处理文件"_s);
        QVERIFY(scene.logged().join(u'|').endsWith("count=2"_L1));
        scene.commands.selectAllDuplicates();
        QCOMPARE(scene.marks(), u"011 0"_s);
        QCOMPARE(shown.takeLast().first().toString(), u"已勾选各组重复项（默认保留每组第一个）"_s);
        scene.commands.invertSelection();
        QCOMPARE(scene.marks(), u"100 1"_s);
        QCOMPARE(shown.takeLast().first().toString(), u"已反选"_s);
        QCOMPARE(replaced.size(), 3);
        QCOMPARE(scene.logged().size(), 1);
    }

    void nothingTicked()
    {
        Scene scene;
        scene.addGroup(u"a b"_s, "x");
        scene.commands.moveCheckedToBackup();
        scene.commands.removeChecked();
        QCOMPARE(scene.takeAsked(), QStringList({u"提示|请先勾选要处理的文件。"_s, u"提示|请先勾选要删除的文件。"_s}));
        QVERIFY(scene.logged().isEmpty());
    }

    void backupAsksFirst()
    {
        Scene scene;
        scene.addGroup(u"a* b sub/a*"_s, "x");
        const QString question = u"确认备份移动|将把 2 个文件移动到备份目录：\n%1\n是否继续？"_s.arg(
            QDir::toNativeSeparators(scene.backup()));
        scene.commands.moveCheckedToBackup();
        QCOMPARE(scene.takeAsked(), QStringList(question));
        QCOMPARE(scene.there(u"a b sub/a"_s), u"a b sub/a"_s);
        QVERIFY(scene.logged().isEmpty());

        scene.prompts.answers = {true};
        scene.commands.moveCheckedToBackup();
        QCOMPARE(scene.takeAsked(), QStringList({question, u"完成|已备份移动 2 个文件。\n请重新扫描以刷新结果。"_s}));
        QCOMPARE(scene.there(u"a b sub/a"_s), u"b"_s);
        QCOMPARE(scene.logged(), QStringList(u"backup_batch count=2"_s));
        const QList<BackupEntry> index = restorableEntries(scene.backup());
        QCOMPARE(index.size(), 2);
        QCOMPARE(index[1].original, scene.path("sub/a"));
        QCOMPARE(scene.content(index[1].backup), QByteArray("x"));
        QCOMPARE(scene.marks(), u"101"_s); // results stay as they are
    }

    /// Wherever the stop falls, what is reported, logged, indexed and on the disk are one.
    void stoppingLeavesNothingHalfDone()
    {
        Scene scene;
        constexpr int count = 3000;
        QString names;
        for (int i = 0; i < count; ++i)
            names += u"f%1* "_s.arg(i);
        scene.addGroup(names, "x");
        scene.prompts.choices = {1}; // without a copy that stays
        scene.prompts.answers = {true};
        QTimer clicker;
        connect(&clicker, &QTimer::timeout, &scene.window, [&scene] {
            QVERIFY(scene.commands.isBusy());
            scene.commands.removeChecked(); // ignored until the end
            if (auto *dialog = qobject_cast<FileProgressDialog *>(QApplication::activeModalWidget()))
                dialog->close();
        });
        clicker.start(1);
        scene.commands.moveCheckedToBackup();
        clicker.stop();
        QVERIFY(!scene.commands.isBusy());
        const qsizetype moved = count - QDir(scene.tree.path()).entryList({u"f*"_s}, QDir::Files).size();
        QCOMPARE(scene.prompts.asked.size(), 3);
        QCOMPARE(scene.prompts.asked.last(), u"完成|已备份移动 %1 个文件。\n请重新扫描以刷新结果。"_s.arg(moved));
        QCOMPARE(scene.logged(), QStringList(u"backup_batch count=%1"_s.arg(moved)));
        QCOMPARE(loadBackupIndex(scene.backup()).size(), moved);
        QCOMPARE(restorableEntries(scene.backup()).size(), moved);
    }

    void restoring()
    {
        Scene scene;
        scene.commands.restoreBackup();
        QCOMPARE(scene.takeAsked(), QStringList(u"提示|备份索引为空。"_s));
        scene.addGroup(u"a* b* c"_s, "x");
        scene.prompts.answers = {true};
        scene.commands.moveCheckedToBackup();
        const QList<BackupEntry> index = loadBackupIndex(scene.backup());
        QCOMPARE(index.size(), 2);

        const QString line = scene.path("b") + u"  <-  "_s + index[1].backup;
        const QString question = u"确认恢复|将恢复：\n"_s + line;
        scene.prompts.onRun = [](QDialog &dialog) {
            part<QLineEdit>(dialog)->setText(u"/B  <-"_s);
            QTRY_COMPARE(part<QListView>(dialog)->model()->rowCount(), 1);
        };
        (void)scene.takeAsked();
        scene.prompts.answers = {true, false};
        scene.commands.restoreBackup();
        QVERIFY(!scene.has("b"));
        scene.prompts.answers = {true, true};
        scene.commands.restoreBackup();
        QCOMPARE(scene.takeAsked(), QStringList({question, question, u"完成|文件已恢复。"_s}));
        QVERIFY(scene.has("b"));
        QCOMPARE(scene.logged().last(), u"restore "_s + line);

        scene.tree.write(u"a"_s, "new");
        scene.prompts.onRun = nullptr;
        scene.prompts.answers = {true, true};
        scene.commands.restoreBackup();
        QCOMPARE(scene.prompts.asked.last(), u"失败|原路径已存在文件，已取消恢复: "_s + scene.path("a"));
        QCOMPARE(scene.content(scene.path("a")), QByteArray("new"));
        QCOMPARE(loadBackupIndex(scene.backup()).size(), 1);
    }

    void everyCopyThereAndBack()
    {
        Scene scene;
        scene.addGroup(u"a* b* deep/a*"_s, "the only content");
        const auto before = treeBelow(scene.tree.path());
        scene.prompts.choices = {2, 1, 0}; // cancel, continue, and untick one
        scene.commands.moveCheckedToBackup();
        QCOMPARE(scene.takeAsked(), QStringList(u"没有保留的副本|有 1 组将不会留下任何副本。"_s));
        QCOMPARE(treeBelow(scene.tree.path()), before);
        scene.prompts.answers = {true};
        scene.commands.moveCheckedToBackup();
        QCOMPARE(scene.there(u"a b deep/a"_s), QString());
        scene.prompts.onRun = [](QDialog &dialog) { part<QListView>(dialog)->selectAll(); };
        scene.prompts.answers = {true, true};
        scene.commands.restoreBackup();
        QCOMPARE(scene.prompts.asked.last(), u"完成|已恢复 3 个文件。"_s);
        auto after = treeBelow(scene.tree.path());
        after.removeIf([&](const auto &file) { return !before.contains(file.key()); }); // the store's own
        QCOMPARE(after, before);

        scene.prompts.onRun = nullptr;
        scene.prompts.answers = {true};
        scene.settings.keepRule = int(KeepRule::Shallowest);
        scene.commands.moveCheckedToBackup();
        QCOMPARE(scene.marks(), u"011"_s); // the first of the two that lie at the top
        QCOMPARE(scene.there(u"a b deep/a"_s), u"a"_s);
    }
};

QTEST_MAIN(TestBatchCommands)
#include "tst_batchcommands.moc"
