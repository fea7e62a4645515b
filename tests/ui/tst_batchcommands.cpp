#include "tests/support/disk.h"
#include "tests/ui/cleaningscene.h"
#include "ui/dialogs/fileprogressdialog.h"
#include "ui/dialogs/restoredialog.h"

#include <QApplication>
#include <QDir>
#include <QListView>
#include <QSignalSpy>
#include <QTimer>

using MirrixCore::FileEntry;
using MirrixTest::text;
using Scene = MirrixTest::CleaningScene;

class TestBatchCommands : public QObject
{
    Q_OBJECT

private slots:
    void marksByCommand_data();
    void marksByCommand();
    void nothingTicked();
    void backupAsksFirst();
    void stoppingLeavesNothingHalfDone();
    void restoring();
    void everyCopyThereAndBack();
};

void TestBatchCommands::marksByCommand_data()
{
    using Mirrix::BatchCommands;
    using Mirrix::KeepRule;
    QTest::addColumn<std::function<void(BatchCommands &)>>("act");
    QTest::addColumn<QString>("marks");
    QTest::addColumn<QString>("status");
    const auto rule = [](KeepRule keep) { return [keep](BatchCommands &commands) { commands.applyKeepRule(keep); }; };
    const QString ruled = text("已按规则自动勾选待处理文件");
    // Groups: a deep old file, a shallow new one, another as new; one alone.
    QTest::newRow("newest") << std::function<void(BatchCommands &)>(rule(KeepRule::Newest)) << QStringLiteral("101 0")
                            << ruled;
    QTest::newRow("oldest") << std::function<void(BatchCommands &)>(rule(KeepRule::Oldest)) << QStringLiteral("011 0")
                            << ruled;
    QTest::newRow("shallow") << std::function<void(BatchCommands &)>(rule(KeepRule::Shallowest))
                             << QStringLiteral("101 0") << ruled;
    QTest::newRow("deep") << std::function<void(BatchCommands &)>(rule(KeepRule::Deepest)) << QStringLiteral("011 0")
                          << ruled;
    QTest::newRow("all") << std::function<void(BatchCommands &)>([](BatchCommands &c) { c.selectAllDuplicates(); })
                         << QStringLiteral("011 0") << text("已勾选各组重复项（默认保留每组第一个）");
    QTest::newRow("inverted") << std::function<void(BatchCommands &)>([](BatchCommands &c) {
        c.selectAllDuplicates();
        c.invertSelection();
    }) << QStringLiteral("100 1")
                              << text("已反选");
}

void TestBatchCommands::marksByCommand()
{
    QFETCH(const std::function<void(Mirrix::BatchCommands &)>, act);
    QFETCH(const QString, marks);
    QFETCH(const QString, status);
    Scene scene;
    act(scene.commands); // without groups nothing happens
    QSignalSpy replaced(&scene.commands, &Mirrix::BatchCommands::marksReplaced);
    QSignalSpy told(&scene.commands, &Mirrix::BatchCommands::statusText);
    QVERIFY(scene.logged().isEmpty());
    scene.addGroup({QStringLiteral("d/e/old*"), QStringLiteral("new"), QStringLiteral("alsonew")}, "same");
    scene.addGroup({QStringLiteral("alone")}, "");
    for (FileEntry &file : scene.results.groups[0].files)
        file.modifiedMs = file.path.endsWith(QLatin1String("old")) ? 1000 : 2000;
    act(scene.commands);
    QCOMPARE(scene.marks(), marks);
    QVERIFY(!replaced.isEmpty());
    QCOMPARE(told.last().first().toString(), status);
    const bool isRule = scene.logged().size() == 1;
    QCOMPARE(isRule, status == text("已按规则自动勾选待处理文件"));
    QVERIFY(!isRule || scene.logged().first().endsWith(QLatin1String("count=2")));
}

void TestBatchCommands::nothingTicked()
{
    Scene scene;
    scene.addGroup({QStringLiteral("a"), QStringLiteral("b")}, "x");
    scene.commands.moveCheckedToBackup();
    scene.commands.removeChecked();
    QCOMPARE(scene.prompts.asked,
             QStringList({text("提示|请先勾选要处理的文件。"), text("提示|请先勾选要删除的文件。")}));
    QVERIFY(scene.logged().isEmpty());
}

void TestBatchCommands::backupAsksFirst()
{
    Scene scene;
    scene.addGroup({QStringLiteral("a*"), QStringLiteral("b"), QStringLiteral("sub/a*")}, "x");
    const QString question = text("确认备份移动|将把 2 个文件移动到备份目录：\n%1\n是否继续？")
                                 .arg(QDir::toNativeSeparators(scene.backup()));
    scene.commands.moveCheckedToBackup();
    QCOMPARE(scene.prompts.asked, QStringList(question));
    QVERIFY(scene.has("a") && scene.has("sub/a") && scene.logged().isEmpty());

    scene.prompts.asked.clear();
    scene.prompts.answers = {true};
    scene.commands.moveCheckedToBackup();
    QCOMPARE(scene.prompts.asked, QStringList({question, text("完成|已备份移动 2 个文件。\n请重新扫描以刷新结果。")}));
    QVERIFY(!scene.has("a") && scene.has("b") && !scene.has("sub/a"));
    QCOMPARE(scene.logged(), QStringList(QStringLiteral("backup_batch count=2")));
    const QList<Mirrix::BackupEntry> index = Mirrix::restorableEntries(scene.backup());
    QCOMPARE(index.size(), 2);
    QCOMPARE(index[1].original, scene.path("sub/a"));
    QCOMPARE(scene.content(index[1].backup), QByteArray("x"));
    QCOMPARE(scene.marks(), QStringLiteral("101")); // results stay as they are
}

/// Wherever the stop falls, what is told, logged, indexed and on the disk are one.
void TestBatchCommands::stoppingLeavesNothingHalfDone()
{
    Scene scene;
    QStringList names;
    for (int i = 0; i < 3000; ++i)
        names.append(QStringLiteral("f%1*").arg(i));
    scene.addGroup(names, "x");
    scene.prompts.choices = {1}; // without a copy that stays
    scene.prompts.answers = {true};
    QTimer clicker;
    connect(&clicker, &QTimer::timeout, &scene.window, [&scene] {
        QVERIFY(scene.commands.isBusy());
        scene.commands.removeChecked(); // ignored meanwhile
        if (auto *dialog = qobject_cast<Mirrix::FileProgressDialog *>(QApplication::activeModalWidget()))
            dialog->close();
    });
    clicker.start(1);
    scene.commands.moveCheckedToBackup();
    clicker.stop();
    QVERIFY(!scene.commands.isBusy());
    const qsizetype left = QDir(scene.tree.path()).entryList({QStringLiteral("f*")}, QDir::Files).size();
    const qsizetype moved = names.size() - left;
    QCOMPARE(scene.prompts.asked.size(), 3);
    QCOMPARE(scene.prompts.asked.last(), text("完成|已备份移动 %1 个文件。\n请重新扫描以刷新结果。").arg(moved));
    QCOMPARE(scene.logged(), QStringList(QStringLiteral("backup_batch count=%1").arg(moved)));
    QCOMPARE(Mirrix::loadBackupIndex(scene.backup()).size(), moved);
    QCOMPARE(Mirrix::restorableEntries(scene.backup()).size(), moved);
}

void TestBatchCommands::restoring()
{
    Scene scene;
    scene.commands.restoreBackup();
    QCOMPARE(scene.prompts.asked, QStringList(text("提示|备份索引为空。")));
    scene.addGroup({QStringLiteral("a*"), QStringLiteral("b*"), QStringLiteral("c")}, "x");
    scene.prompts.answers = {true};
    scene.commands.moveCheckedToBackup();
    const QList<Mirrix::BackupEntry> index = Mirrix::loadBackupIndex(scene.backup());
    QCOMPARE(index.size(), 2);

    const QString line = scene.path("b") + QStringLiteral("  <-  ") + index[1].backup;
    scene.prompts.onRun = [](QDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(QStringLiteral("/B  <-"));
        QTRY_COMPARE(dialog.findChild<QListView *>()->model()->rowCount(), 1);
    };
    scene.prompts.asked.clear();
    scene.prompts.answers = {true, false};
    scene.commands.restoreBackup();
    QVERIFY(!scene.has("b"));
    scene.prompts.answers = {true, true};
    scene.commands.restoreBackup();
    const QString question = text("确认恢复|将恢复：\n") + line;
    QCOMPARE(scene.prompts.asked, QStringList({question, question, text("完成|文件已恢复。")}));
    QVERIFY(scene.has("b"));
    QCOMPARE(scene.logged().last(), QStringLiteral("restore ") + line);

    scene.tree.write(QStringLiteral("a"), "new");
    scene.prompts.onRun = nullptr;
    scene.prompts.answers = {true, true};
    scene.commands.restoreBackup();
    QCOMPARE(scene.prompts.asked.last(), text("失败|原路径已存在文件，已取消恢复: ") + scene.path("a"));
    QCOMPARE(scene.content(scene.path("a")), QByteArray("new"));
    QCOMPARE(Mirrix::loadBackupIndex(scene.backup()).size(), 1);
}

void TestBatchCommands::everyCopyThereAndBack()
{
    Scene scene;
    scene.addGroup({QStringLiteral("a*"), QStringLiteral("b*"), QStringLiteral("deep/a*")}, "the only content");
    const auto before = MirrixTest::treeBelow(scene.tree.path());
    scene.prompts.choices = {2, 1, 0}; // give up, go on, and untick one
    scene.commands.moveCheckedToBackup();
    QCOMPARE(scene.prompts.asked, QStringList(text("没有保留的副本|有 1 组将不会留下任何副本。")));
    QCOMPARE(MirrixTest::treeBelow(scene.tree.path()), before);
    scene.prompts.answers = {true};
    scene.commands.moveCheckedToBackup();
    QVERIFY(!scene.has("a") && !scene.has("b") && !scene.has("deep/a"));
    scene.prompts.onRun = [](QDialog &dialog) { dialog.findChild<QListView *>()->selectAll(); };
    scene.prompts.answers = {true, true};
    scene.commands.restoreBackup();
    QCOMPARE(scene.prompts.asked.last(), text("完成|已恢复 3 个文件。"));
    auto after = MirrixTest::treeBelow(scene.tree.path());
    after.removeIf([&](const auto &file) { return !before.contains(file.key()); }); // the store's own
    QCOMPARE(after, before);

    scene.prompts.onRun = nullptr;
    scene.prompts.answers = {true};
    scene.settings.keepRule = int(Mirrix::KeepRule::Shallowest);
    scene.commands.moveCheckedToBackup();
    QCOMPARE(scene.marks(), QStringLiteral("011")); // the first of the two that lie at the top
    QVERIFY(scene.has("a") && !scene.has("b") && !scene.has("deep/a"));
}

QTEST_MAIN(TestBatchCommands)
#include "tst_batchcommands.moc"
