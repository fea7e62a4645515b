#include "tests/support/disk.h"
#include "tests/support/program.h"
#include "tests/support/temptree.h"

#include <QTest>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

class UndoCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsAndBringsBack()
    {
        const TempTree tree;
        for (const char *name : {"1/kept", "1/copy", "2/kept", "2/copy"})
            tree.write(QLatin1String(name), name[0] == '1' ? "one" : "second");
        const DiskTree before = treeBelow(tree.path());
        QCOMPARE(run({u"undo"_s, u"last"_s, u"--apply"_s}).status, 1); // there is no run
        QCOMPARE(
            run({u"clean"_s, u"--keep"_s, u"newest"_s, u"--method"_s, u"delete"_s, u"--apply"_s, tree.path()}).status,
            0);
        const DiskTree cleaned = treeBelow(tree.path());
        QCOMPARE(cleaned.size(), 2);
        QFile early(m_program.dataFolder() +
                    u"/runs/29990101-000000-0000.journal"_s); // of a run killed before it began
        QVERIFY(early.open(QIODevice::WriteOnly));
        const ProgramRun told = run({u"undo"_s, u"last"_s});
        QCOMPARE(told.status, 0);
        QVERIFY2(told.output.contains("2 of 2 files of run"), told.output.constData());
        for (const QString &name : before.keys()) {
            if (!cleaned.contains(name))
                QVERIFY(told.output.contains(tree.path(name).toUtf8() + "  <-  " + tree.path(name.left(2)).toUtf8()));
        }
        QCOMPARE(treeBelow(tree.path()), cleaned);

        QVERIFY(QFile::remove(tree.path(cleaned.firstKey())));
        const ProgramRun half = run({u"undo"_s, u"last"_s});
        QVERIFY(half.status == 1 && half.output.contains("1 of 2 files") &&
                half.errors.contains(tree.path(cleaned.firstKey()).toUtf8()));
        QCOMPARE(run({u"undo"_s, u"last"_s, u"--apply"_s}).status, 1);
        tree.write(cleaned.firstKey(), "one"); // the kept copy is there again
        const ProgramRun done = run({u"undo"_s, u"last"_s, u"--apply"_s});
        QVERIFY2(done.status == 0 && done.output.contains("1 of 1 files undone"), done.errors.constData());
        DiskTree after = treeBelow(tree.path());
        after[cleaned.firstKey()] = before[cleaned.firstKey()]; // written later
        QCOMPARE(after, before);
        QVERIFY(run({u"undo"_s, u"last"_s, u"--apply"_s}).output.contains("0 of 0 files undone"));
    }

    void usage()
    {
        QCOMPARE(run({u"undo"_s}).status, 2);
        QCOMPARE(run({u"undo"_s, u"../20240229-120000-0af3"_s}).status, 2);
        QCOMPARE(run({u"undo"_s, u"20240229-120000-0af3"_s}).status, 1);
    }

private:
    [[nodiscard]] ProgramRun run(const QStringList &arguments) const
    {
        return m_program.run(arguments + QStringList{u"--data-dir"_s, m_program.dataFolder()});
    }

    Program m_program;
};

QTEST_GUILESS_MAIN(UndoCommandTest)
#include "tst_undocommand.moc"
