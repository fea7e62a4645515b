#include "tests/ui/cleaningscene.h"

#include <QScopeGuard>

using MirrixTest::text;
using Scene = MirrixTest::CleaningScene;

namespace {

QStringList words(const QString &text)
{
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class TestRemovalCommand : public QObject
{
    Q_OBJECT

private slots:
    void changedFilesStay();
    void removalByMethod_data();
    void removalByMethod();
    void deletingForGoodAsksAgain();
    void whatIsNotEqualStays_data();
    void whatIsNotEqualStays();
    void linksAfterBackup_data();
    void linksAfterBackup();
};

void TestRemovalCommand::changedFilesStay()
{
    Scene scene;
    scene.addGroup({QStringLiteral("a*"), QStringLiteral("b")}, "one");
    scene.addGroup({QStringLiteral("c*"), QStringLiteral("d*"), QStringLiteral("e")}, "two");
    scene.addGroup({QStringLiteral("f*"), QStringLiteral("g")}, "four");
    scene.tree.write(QStringLiteral("a"), "longer"); // the surplus file changed
    QVERIFY(QFile::remove(scene.path("c")));         // the surplus file went
    QVERIFY(QFile::remove(scene.path("g")));         // the file to keep went
    scene.prompts.answers = {true, true};            // the dialog, the question
    scene.choose(Mirrix::RemovalMethod::Delete, false);
    scene.commands.removeChecked();
    QVERIFY(scene.has("a") && !scene.has("d") && scene.has("f"));
    const QString account = scene.prompts.asked.last();
    QVERIFY2(account.startsWith(text("完成|已处理 1 个文件。\n部分失败：\n")), qPrintable(account));
    QVERIFY(account.endsWith(text("\n请重新扫描以刷新结果。")));
    const QStringList refusals = {text("文件在扫描后已更改，已保留: ") + scene.path("a"),
                                  text("文件不存在: ") + scene.path("c"),
                                  text("要保留的文件已更改，未处理: ") + scene.path("f")};
    QVERIFY2(account.contains(refusals.join(QLatin1Char('\n'))), qPrintable(account));
    QCOMPARE(scene.logged(), QStringList(QStringLiteral("remove_batch method=1 count=1")));
}

void TestRemovalCommand::whatIsNotEqualStays_data()
{
    QTest::addColumn<Mirrix::RemovalMethod>("method");
    QTest::addColumn<bool>("isEqualContent");
    QTest::addColumn<bool>("isGone");
    using Mirrix::RemovalMethod;
    QTest::newRow("deleted as equal") << RemovalMethod::Delete << true << false;
    QTest::newRow("deleted as alike") << RemovalMethod::Delete << false << true;
    QTest::newRow("moved as equal") << RemovalMethod::Move << true << false;
    QTest::newRow("moved as alike") << RemovalMethod::Move << false << true;
}

/// Files of one size in a group: where the scan was for equal contents, they are compared before one is destroyed.
void TestRemovalCommand::whatIsNotEqualStays()
{
    QFETCH(Mirrix::RemovalMethod, method);
    QFETCH(bool, isEqualContent);
    QFETCH(bool, isGone);
    Scene scene;
    scene.addGroup({QStringLiteral("a*"), QStringLiteral("b")}, "one");
    scene.results.groups[0].isEqualContent = isEqualContent;
    scene.tree.write(QStringLiteral("a"), "two");
    scene.tree.setModified(QStringLiteral("a"), scene.results.groups[0].files[0].modifiedMs);
    scene.prompts.answers = {true, true};
    scene.choose(method, false, scene.path("moved"));
    scene.commands.removeChecked();
    QCOMPARE(scene.has("a"), !isGone);
    QVERIFY(scene.has("b"));
    const QString note = text("部分组不是按内容匹配的，处理前不会比较这些文件的内容。");
    QCOMPARE(scene.prompts.notes.contains(note), !isEqualContent && method == Mirrix::RemovalMethod::Delete);
}

void TestRemovalCommand::removalByMethod_data()
{
    QTest::addColumn<Mirrix::RemovalMethod>("method");
    QTest::addColumn<bool>("backsUp");
    QTest::addColumn<bool>("isGone");
    QTest::addColumn<QString>("account"); ///< %1: the file's path
    QTest::addColumn<QString>("logged");
    using Mirrix::RemovalMethod;
    const QString done = text("已处理 1 个文件。请重新扫描以刷新结果。");
    const QString taken = text("已处理 0 个文件。\n部分失败：\n链接路径已存在: %1\n请重新扫描以刷新结果。");
    const QString backedUp = text("已备份并移除 1 个文件。请重新扫描以刷新结果。");
    QTest::newRow("recycle") << RemovalMethod::Recycle << false << true << done
                             << QStringLiteral("remove_batch method=0 count=1");
    QTest::newRow("move") << RemovalMethod::Move << false << true << done
                          << QStringLiteral("remove_batch method=2 count=1");
    QTest::newRow("symlink") << RemovalMethod::SymbolicLink << false << false << taken
                             << QStringLiteral("remove_batch method=3 count=0");
    QTest::newRow("hard link") << RemovalMethod::HardLink << false << false << taken
                               << QStringLiteral("remove_batch method=4 count=0");
    for (RemovalMethod method : {RemovalMethod::Recycle, RemovalMethod::Delete, RemovalMethod::Move})
        QTest::addRow("%d after backup", static_cast<int>(method))
            << method << true << true << backedUp << QStringLiteral("auto_backup_delete_batch count=1");
}

void TestRemovalCommand::removalByMethod()
{
    QFETCH(const Mirrix::RemovalMethod, method);
    QFETCH(const bool, backsUp);
    QFETCH(const bool, isGone);
    QFETCH(const QString, account);
    QFETCH(const QString, logged);
    Scene scene;
    scene.addGroup({QStringLiteral("keep"), QStringLiteral("surplus*")}, "x");
    const QByteArray trash = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QFile::encodeName(scene.tree.makeFolder(QStringLiteral("share"))));
    const auto end = qScopeGuard([&] { qputenv("XDG_DATA_HOME", trash); });
    scene.choose(method, backsUp, scene.path("target"), scene.path("keep"));
    scene.commands.removeChecked();
    if (method == Mirrix::RemovalMethod::Recycle && !backsUp && scene.has("surplus")) { // no bin here
        QVERIFY(scene.prompts.asked.first().startsWith(text("完成|已处理 0 个文件。\n部分失败：\n")));
        QCOMPARE(scene.logged(), QStringList(QStringLiteral("remove_batch method=0 count=0")));
        return;
    }
    QCOMPARE(scene.prompts.asked,
             QStringList(text("完成|") +
                         (account.contains(QLatin1String("%1")) ? account.arg(scene.path("surplus")) : account)));
    QCOMPARE(!scene.has("surplus"), isGone);
    QVERIFY(scene.has("keep"));
    QCOMPARE(scene.has("target/surplus"), method == Mirrix::RemovalMethod::Move && !backsUp);
    QCOMPARE(Mirrix::restorableEntries(scene.backup()).size(), backsUp ? 1 : 0);
    QCOMPARE(scene.logged(), QStringList(logged));
}

void TestRemovalCommand::deletingForGoodAsksAgain()
{
    Scene scene;
    scene.addGroup({QStringLiteral("keep"), QStringLiteral("surplus*")}, "x");
    const QString question = text("永久删除确认|即将永久删除 1 个文件，此操作不可撤销。是否继续？");
    scene.choose(Mirrix::RemovalMethod::Delete, false);
    scene.prompts.answers = {true, false};
    scene.commands.removeChecked();
    QCOMPARE(scene.prompts.asked, QStringList(question));
    QVERIFY(scene.has("surplus") && scene.logged().isEmpty());
    scene.prompts.answers = {false}; // the dialog itself
    scene.commands.removeChecked();
    QCOMPARE(scene.prompts.asked.size(), 1);
    scene.prompts.answers = {true, true};
    scene.commands.removeChecked();
    QVERIFY(!scene.has("surplus"));
    QCOMPARE(scene.logged(), QStringList(QStringLiteral("remove_batch method=1 count=1")));
}

void TestRemovalCommand::linksAfterBackup_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("linked");
    QTest::newRow("to the one kept") << QStringLiteral("a* b c*") << QString() << QStringLiteral("a c");
    QTest::newRow("to a given one, all ticked")
        << QStringLiteral("a* b*") << QStringLiteral("b") << QStringLiteral("a");
    QTest::newRow("all ticked") << QStringLiteral("a* b*") << QString() << QString();
    QTest::newRow("into another group") << QStringLiteral("a* b") << QStringLiteral("other") << QString();
    QTest::newRow("to nothing") << QStringLiteral("a* b") << QStringLiteral("nowhere") << QString();
}

void TestRemovalCommand::linksAfterBackup()
{
    QFETCH(const QString, names);
    QFETCH(const QString, target);
    QFETCH(const QString, linked);
    Scene scene;
    scene.addGroup(words(names), "one");
    scene.addGroup({QStringLiteral("other"), QStringLiteral("another")}, "two");
    scene.prompts.choices = {1};
    scene.choose(Mirrix::RemovalMethod::HardLink, true, {}, target.isEmpty() ? target : scene.tree.path(target));
    scene.commands.removeChecked();
    for (QString name : words(names))
        QCOMPARE(scene.content(scene.tree.path(name.remove(QLatin1Char('*')))), QByteArray("one"));
    for (const QString &name : words(linked)) {
        const QString end = target.isEmpty() ? QStringLiteral("b") : target;
        QVERIFY(MirrixCore::fileStatus(scene.tree.path(name))
                    .identity.isSameAs(MirrixCore::fileStatus(scene.tree.path(end)).identity));
    }
    const qsizetype count = words(linked).size();
    QCOMPARE(Mirrix::restorableEntries(scene.backup()).size(), count);
    const qsizetype refused = names.count(QLatin1Char('*')) - count;
    scene.prompts.asked.removeIf([](const QString &box) { return box.startsWith(text("没有保留的副本")); });
    QCOMPARE(scene.prompts.asked.size(), refused > 0 ? 2 : 1);
    QVERIFY(refused == 0 || scene.prompts.asked.first().startsWith(text("备份警告|部分文件备份失败：\n")));
    QCOMPARE(scene.prompts.asked.last(), text("完成|已备份并移除 %1 个文件。请重新扫描以刷新结果。").arg(count));
}

QTEST_MAIN(TestRemovalCommand)
#include "tst_removalcommand.moc"
