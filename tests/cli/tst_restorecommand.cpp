#include "actions/cleaning/backupstore.h"
#include "tests/cli/clitest.h"

class RestoreCommandTest : public CliTest
{
    Q_OBJECT

private slots:
    /// Two files, one of which forges a line where names may hold line breaks, in a backup folder.
    void init()
    {
        renew();
        m_store = path(u"store"_s);
        const QStringList paths = {m_tree->write(u"src/a"_s, "one"),
                                   m_tree->write(namesAreBytes ? u"src/b\nforged"_s : u"src/b"_s, "two")};
        m_before = treeBelow(path(u"src"_s));
        QCOMPARE(Mirrix::backupFiles(m_store, paths).count, 2);
        m_entries = Mirrix::loadBackupIndex(m_store);
    }

    void missingAndDamaged()
    {
        QCOMPARE(restore(u"--verify"_s).output, "2 of 2 backups intact\n");
        QVERIFY(QFile::remove(m_entries[0].backup));
        QVERIFY(QFile::resize(m_entries[1].backup, 2));
        QList<QByteArray> lines;
        for (const Mirrix::BackupEntry &entry : m_entries)
            lines.append(Mirrix::backupLine(entry).replace(u'\n', u'?').toUtf8());
        const ProgramRun checked = restore(u"--verify"_s);
        QCOMPARE(checked.output, "missing: " + lines[0] + "\ndamaged: " + lines[1] + "\n0 of 2 backups intact\n");
        QCOMPARE(checked.status, 1);
        QCOMPARE(restore(u"--list"_s).output, lines[0] + "  (missing)\n" + lines[1] + '\n');
        QVERIFY(QFile::remove(m_entries[1].backup));
        const ProgramRun restored = restore(u"--all"_s);
        QCOMPARE(restored.output, "0 of 2 files restored\n");
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
                               arguments(u"restore --target %1/store --all"_s));
        process.setProgram(u"unshare"_s);
        process.start();
        const ProgramRun done = Program::ended(process);
        if (done.status == 77 || done.status == -1)
            QSKIP("cannot mount anything read-only");
        QCOMPARE(done.errors.count("Restored, but the backup could not be removed: "), 2);
        QCOMPARE(done.output, "2 of 2 files restored\n");
        QCOMPARE(done.status, 0);
        QCOMPARE(treeBelow(path(u"src"_s)), m_before);
        QCOMPARE(treeBelow(m_store), stored);
    }

private:
    [[nodiscard]] ProgramRun restore(const QString &option) const
    {
        return run(u"restore --target %1/store "_s + option);
    }

    QString m_store;
    DiskTree m_before;
    QList<Mirrix::BackupEntry> m_entries;
};

QTEST_GUILESS_MAIN(RestoreCommandTest)
#include "tst_restorecommand.moc"
