#include "tests/cli/clitest.h"

class UndoCommandTest : public CliTest
{
    Q_OBJECT

private slots:
    void init() { renew(); }

    void tellsAndBringsBack()
    {
        m_tree->writeAll(u"1/kept 1/copy"_s, "one");
        m_tree->writeAll(u"2/kept 2/copy"_s, "second");
        const DiskTree before = treeBelow(path());
        QCOMPARE(run(u"undo last --apply"_s).status, 1); // there is no run
        QCOMPARE(run(u"clean --keep newest --method delete --apply %1"_s).status, 0);
        const DiskTree cleaned = treeBelow(path());
        QCOMPARE(cleaned.size(), 2);
        QFile early(dataFolder() + u"/runs/29990101-000000-0000.journal"_s); // of a run killed before it began
        QVERIFY(early.open(QIODevice::WriteOnly));
        const ProgramRun told = run(u"undo last"_s);
        QCOMPARE(told.status, 0);
        QVERIFY2(told.output.contains("2 of 2 files of run"), told.output.constData());
        for (const QString &name : before.keys()) {
            if (!cleaned.contains(name))
                QVERIFY(told.output.contains(path(name).toUtf8() + "  <-  " + path(name.left(2)).toUtf8()));
        }
        QCOMPARE(treeBelow(path()), cleaned);

        QVERIFY(QFile::remove(path(cleaned.firstKey())));
        const ProgramRun half = run(u"undo last"_s);
        QVERIFY(half.status == 1 && half.output.contains("1 of 2 files") &&
                half.errors.contains(path(cleaned.firstKey()).toUtf8()));
        QCOMPARE(run(u"undo last --apply"_s).status, 1);
        m_tree->write(cleaned.firstKey(), "one"); // the kept copy is there again
        const ProgramRun done = run(u"undo last --apply"_s);
        QVERIFY2(done.status == 0 && done.output.contains("1 of 1 files undone"), done.errors.constData());
        DiskTree after = treeBelow(path());
        after[cleaned.firstKey()] = before[cleaned.firstKey()]; // written later
        QCOMPARE(after, before);
        QVERIFY(run(u"undo last --apply"_s).output.contains("0 of 0 files undone"));
    }

    void usage()
    {
        QCOMPARE(run(u"undo"_s).status, 2);
        QCOMPARE(run(u"undo ../20240229-120000-0af3"_s).status, 2);
        QCOMPARE(run(u"undo 20240229-120000-0af3"_s).status, 1);
    }
};

QTEST_GUILESS_MAIN(UndoCommandTest)
#include "tst_undocommand.moc"
