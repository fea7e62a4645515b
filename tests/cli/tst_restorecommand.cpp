#include "actions/cleaning/backupstore.h"
#include "tests/support/disk.h"
#include "tests/support/probes.h"
#include "tests/support/program.h"
#include "tests/support/temptree.h"

#include <QTest>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

class RestoreCommandTest : public QObject
{
    Q_OBJECT

private slots:
    /// Two files, one of which forges a line where names may hold line breaks, in a backup folder.
    void init()
    {
        m_tree = std::make_unique<TempTree>();
        m_program = std::make_unique<Program>();
        m_store = m_tree->path(u"store"_s);
        const QStringList paths = {m_tree->write(u"src/a"_s, "one"),
                                   m_tree->write(namesAreBytes ? u"src/b\nforged"_s : u"src/b"_s, "two")};
        m_before = treeBelow(m_tree->path(u"src"_s));
        QCOMPARE(Mirrix::backupFiles(m_store, paths).count, 2);
        m_entries = Mirrix::loadBackupIndex(m_store);
    }

    void missingAndDamaged()
    {
        QCOMPARE(run({u"--verify"_s}).output, QByteArray("2 of 2 backups intact\n"));
        QVERIFY(QFile::remove(m_entries[0].backup));
        QVERIFY(QFile::resize(m_entries[1].backup, 2));
        QList<QByteArray> lines;
        for (const Mirrix::BackupEntry &entry : m_entries)
            lines.append(Mirrix::backupLine(entry).replace(u'\n', u'?').toUtf8());
        const ProgramRun checked = run({u"--verify"_s});
        QCOMPARE(checked.output, "missing: " + lines[0] + "\ndamaged: " + lines[1] + "\n0 of 2 backups intact\n");
        QCOMPARE(checked.status, 1);
        QCOMPARE(run({u"--list"_s}).output, lines[0] + "  (missing)\n" + lines[1] + '\n');
        QVERIFY(QFile::remove(m_entries[1].backup));
        const ProgramRun restored = run({u"--all"_s});
        QCOMPARE(restored.output, QByteArray("0 of 2 files restored\n"));
        QCOMPARE(restored.errors.count("missing in the backup folder"), 2);
        QCOMPARE(restored.status, 1);
    }

    /// What cannot be removed after it was copied back is restored all the same.
    void readOnlyFolder()
    {
        const DiskTree stored = treeBelow(m_store);
        const QString script =
            u"mount --bind \"$0\" \"$0\" && mount -o remount,bind,ro \"$0\" || exit 77; exec \"$@\""_s;
        QProcess process;
        m_program->prepare(process,
                           QStringList{u"-m"_s, u"sh"_s, u"-c"_s, script, m_store, Program::builtExecutable()} +
                               arguments({u"--all"_s}));
        process.setProgram(u"unshare"_s);
        process.start();
        const ProgramRun done = Program::ended(process);
        if (done.status == 77 || done.status == -1)
            QSKIP("cannot mount anything read-only");
        QCOMPARE(done.errors.count("Restored, but the backup could not be removed: "), 2);
        QCOMPARE(done.output, QByteArray("2 of 2 files restored\n"));
        QCOMPARE(done.status, 0);
        QCOMPARE(treeBelow(m_tree->path(u"src"_s)), m_before);
        QCOMPARE(treeBelow(m_store), stored);
    }

private:
    [[nodiscard]] QStringList arguments(const QStringList &more) const
    {
        return QStringList{u"restore"_s, u"--data-dir"_s, m_program->dataFolder(), u"--target"_s, m_store} + more;
    }
    [[nodiscard]] ProgramRun run(const QStringList &more) const { return m_program->run(arguments(more)); }

    std::unique_ptr<TempTree> m_tree;
    std::unique_ptr<Program> m_program;
    QString m_store;
    DiskTree m_before;
    QList<Mirrix::BackupEntry> m_entries;
};

QTEST_GUILESS_MAIN(RestoreCommandTest)
#include "tst_restorecommand.moc"
