#include "tests/ui/cleaningscene.h"

using Scene = CleaningScene;

class TestRemovalCommand : public QObject
{
    Q_OBJECT

private slots:
    void changedFilesStay()
    {
        Scene scene;
        scene.addGroup(u"a* b"_s, "one");
        scene.addGroup(u"c* d* e"_s, "two");
        scene.addGroup(u"f* g"_s, "four");
        scene.tree.write(u"a"_s, "longer");      // the surplus file changed
        QVERIFY(QFile::remove(scene.path("c"))); // the surplus file went
        QVERIFY(QFile::remove(scene.path("g"))); // the file to keep went
        scene.prompts.answers = {true, true};    // the dialog, the question
        scene.choose(RemovalMethod::Delete, false);
        scene.commands.removeChecked();
        QCOMPARE(scene.there(u"a b c d e f g"_s), u"a b e f"_s);
        const QString report = scene.prompts.asked.last();
        const QString refusals =
            u"文件在扫描后已更改，已保留: %1\n文件不存在: %2\n要保留的文件已更改，未处理: %3"_s.arg(
                scene.path("a"), scene.path("c"), scene.path("f"));
        QVERIFY2(report.startsWith(u"完成|已处理 1 个文件。\n部分失败：\n") && report.contains(refusals) &&
                     report.endsWith(u"\n请重新扫描以刷新结果。"),
                 qPrintable(report));
        QCOMPARE(scene.logged(), QStringList(u"remove_batch method=1 count=1"_s));
    }

    /// Files of one size in a group: where the scan was for equal contents, they are compared before one is destroyed.
    void whatIsNotEqualStays()
    {
        for (const bool isEqualContent : {true, false}) {
            for (const auto method : {RemovalMethod::Delete, RemovalMethod::Move}) {
                Scene scene;
                scene.addGroup(u"a* b"_s, "one");
                scene.results.groups[0].isEqualContent = isEqualContent;
                scene.tree.write(u"a"_s, "two");
                scene.tree.setModified(u"a"_s, scene.results.groups[0].files[0].modifiedMs);
                scene.prompts.answers = {true, true};
                scene.choose(method, false, scene.path("moved"));
                scene.commands.removeChecked();
                QCOMPARE(scene.there(u"a b"_s), isEqualContent ? u"a b"_s : u"b"_s);
                const QString note = u"部分组不是按内容匹配的，处理前不会比较这些文件的内容。"_s;
                QCOMPARE(scene.prompts.notes.contains(note), !isEqualContent && method == RemovalMethod::Delete);
            }
        }
    }

    void removalByMethod_data()
    {
        QTest::addColumn<QString>("names");
        QTest::addColumn<RemovalMethod>("method");
        QTest::addColumn<bool>("backsUp");
        QTest::addColumn<QString>("target"); ///< of links
        QTest::addColumn<qsizetype>("done");
        QTest::addColumn<QString>("there");  ///< afterwards
        QTest::addColumn<QString>("linked"); ///< to "b" or the target
        const auto row = [](const char *name, const QString &names, RemovalMethod method, bool backsUp,
                            const QString &target, qsizetype done, const QString &there, const QString &linked = {}) {
            QTest::newRow(name) << names << method << backsUp << target << done << there << linked;
        };
        using enum RemovalMethod;
        row("recycle", u"a* b"_s, Recycle, false, {}, 1, u"b"_s);
        row("move", u"a* b"_s, Move, false, {}, 1, u"b moved/a"_s);
        row("symbolic link, path taken", u"a* b"_s, SymbolicLink, false, u"b"_s, 0, u"a b"_s);
        row("hard link, path taken", u"a* b"_s, HardLink, false, u"b"_s, 0, u"a b"_s);
        row("recycle after backup", u"a* b"_s, Recycle, true, {}, 1, u"b"_s);
        row("delete after backup", u"a* b"_s, Delete, true, {}, 1, u"b"_s);
        row("move after backup", u"a* b"_s, Move, true, {}, 1, u"b"_s);
        row("link to the one kept", u"a* b c*"_s, HardLink, true, {}, 2, u"a b c"_s, u"a c"_s);
        row("link to a given one, all ticked", u"a* b*"_s, HardLink, true, u"b"_s, 1, u"a b"_s, u"a"_s);
        row("link, all ticked", u"a* b*"_s, HardLink, true, {}, 0, u"a b"_s);
        row("link into another group", u"a* b"_s, HardLink, true, u"other"_s, 0, u"a b"_s);
        row("link to nothing", u"a* b"_s, HardLink, true, u"nowhere"_s, 0, u"a b"_s);
    }

    void removalByMethod()
    {
        QFETCH(const QString, names);
        QFETCH(const RemovalMethod, method);
        QFETCH(const bool, backsUp);
        QFETCH(const QString, target);
        QFETCH(const qsizetype, done);
        QFETCH(const QString, there);
        QFETCH(const QString, linked);
        Scene scene;
        scene.addGroup(names, "one");
        scene.addGroup(u"other another"_s, "two");
        const QByteArray share = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QFile::encodeName(scene.tree.makeFolder(u"share"_s)));
        const auto end = qScopeGuard([&] { qputenv("XDG_DATA_HOME", share); });
        const QString path = target.isEmpty() ? QString() : scene.tree.path(target);
        scene.prompts.choices = {1}; // without a copy that stays
        scene.choose(method, backsUp, scene.path("moved"), path);
        scene.commands.removeChecked();
        if (method == RemovalMethod::Recycle && !backsUp && scene.has("a")) { // no bin here
            QVERIFY(scene.prompts.asked.first().startsWith(u"完成|已处理 0 个文件。\n部分失败：\n"));
            QCOMPARE(scene.logged(), QStringList(u"remove_batch method=0 count=0"_s));
            return;
        }
        QCOMPARE(scene.there(u"a b c moved/a"_s), there);
        for (const QString &name : there.split(u' '))
            QCOMPARE(scene.content(scene.tree.path(name)), QByteArray("one"));
        const auto identityOf = [](const QString &file) { return MirrixCore::fileStatus(file).identity; };
        for (const QString &name : linked.split(u' ', Qt::SkipEmptyParts))
            QVERIFY(identityOf(scene.tree.path(name)).isSameAs(identityOf(path.isEmpty() ? scene.path("b") : path)));
        QCOMPARE(restorableEntries(scene.backup()).size(), backsUp ? done : 0);
        QCOMPARE(scene.logged(),
                 QStringList(backsUp ? u"auto_backup_delete_batch count=%1"_s.arg(done)
                                     : u"remove_batch method=%1 count=%2"_s.arg(int(method)).arg(done)));

        QStringList asked = scene.takeAsked();
        asked.removeIf([](const QString &box) { return box.startsWith(u"没有保留的副本"); });
        const QString report = backsUp ? u"完成|已备份并移除 %1 个文件。请重新扫描以刷新结果。"_s.arg(done)
                               : done == 1 ? u"完成|已处理 1 个文件。请重新扫描以刷新结果。"_s
                                           : u"完成|已处理 0 个文件。\n部分失败：\n链接路径已存在: %1\n"
                                             "请重新扫描以刷新结果。"_s.arg(scene.path("a"));
        QCOMPARE(asked.takeLast(), report);
        QCOMPARE(asked.size(), backsUp && names.count(u'*') > done ? 1 : 0);
        QVERIFY(asked.isEmpty() || asked.first().startsWith(u"备份警告|部分文件备份失败：\n"));
    }

    void deletingForGoodAsksAgain()
    {
        Scene scene;
        scene.addGroup(u"keep surplus*"_s, "x");
        scene.choose(RemovalMethod::Delete, false);
        scene.prompts.answers = {true, false};
        scene.commands.removeChecked();
        QCOMPARE(scene.takeAsked(), QStringList(u"永久删除确认|即将永久删除 1 个文件，此操作不可撤销。是否继续？"_s));
        scene.prompts.answers = {false}; // the dialog itself
        scene.commands.removeChecked();
        QVERIFY(scene.takeAsked().isEmpty());
        QVERIFY(scene.has("surplus") && scene.logged().isEmpty());
        scene.prompts.answers = {true, true};
        scene.commands.removeChecked();
        QVERIFY(!scene.has("surplus"));
    }
};

QTEST_MAIN(TestRemovalCommand)
#include "tst_removalcommand.moc"
