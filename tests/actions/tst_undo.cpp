#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/undo.h"
#include "actions/records/operationslog.h"
#include "actions/records/runjournal.h"
#include "tests/actions/actiontest.h"

namespace {

const QByteArray content = "copies of the same content";
const QString digest = u"md5:d7642ddb8322a57123a960203306b6f7"_s; // by md5sum

} // namespace

class UndoTest : public ActionTest
{
    Q_OBJECT

private slots:
    void init()
    {
        renew();
        qputenv("XDG_DATA_HOME", at(u"home"_s).toUtf8());
        m_log = OperationsLog(at(u"data/log"_s));
        m_tree->writeAll(u"src/kept src/one src/deep/two"_s, content);
        m_tree->setModified(u"src/one"_s, 1234567890123);
        if (namesAreBytes) { // what links need to be equal they are; "two" has a time of its own to the nanosecond
            for (const QString &name : {u"src/one"_s, u"src/kept"_s, u"src/deep/two"_s})
                std::filesystem::permissions(exactNative(at(name)), std::filesystem::perms(0640));
        }
    }

    void allComesBack_data() { methodRows(); }

    void allComesBack()
    {
        QFETCH(CleaningMethod, method);
        if (!canDo(method))
            QSKIP("not on this system");
        if (!isLinking(method) && namesAreBytes) // links ask for equal permissions
            std::filesystem::permissions(exactNative(at(u"src/one"_s)), std::filesystem::perms(0604));
        const DiskTree before = treeAt(u"src"_s);
        const CleaningResult cleaned = clean(method);
        QCOMPARE(cleaned.errors, QStringList());
        const DiskTree after = treeAt(u"src"_s);
        QVERIFY(after != before);
        QCOMPARE(heldInBackup(summary(cleaned.runId)), isBackingUp(method) ? 2 * content.size() : 0);

        const UndoResult undone = undo(cleaned.runId);
        QCOMPARE(undone.errors + undone.notes, QStringList());
        QCOMPARE(undone.count, 2);
        QCOMPARE(treeAt(u"src"_s), before);
        QVERIFY(treeAt(u"target"_s).isEmpty() && treeAt(u"home"_s).isEmpty());
        QVERIFY(loadBackupIndex(at(u"store"_s)).isEmpty());
        QVERIFY(QDir(at(u"store"_s)).entryList({u"*__*"_s}).isEmpty());
        QCOMPARE(summary(cleaned.runId).totals, (RunTally::Totals{0, 0, 2, 0, 0}));
        QCOMPARE(summary(undone.runId).header.undoOf, cleaned.runId);
        QVERIFY(summary(undone.runId).isComplete && summary(undone.runId).totals.done == 2);
        const LogEntry logged = m_log.readAll().constLast();
        QVERIFY(logged.action == u"restore" && logged.detail.startsWith(at(u"src/deep/two"_s) + u"  <-  "_s));
        QVERIFY(planUndo(at(u"data"_s), cleaned.runId).steps.isEmpty());

        const UndoResult again = undo(undone.runId); // what was undone is done again, and undone again
        QCOMPARE(again.errors, QStringList());
        QCOMPARE(treeAt(u"src"_s), after);
        QCOMPARE(summary(undone.runId).totals.undone, 2);
        QCOMPARE(undo(again.runId).count, 2);
        QCOMPARE(treeAt(u"src"_s), before);
    }

    void interrupted_data() { methodRows(); }

    /// A journal without outcomes, as a killed run leaves it, after the files were dealt with.
    void interrupted()
    {
        QFETCH(CleaningMethod, method);
        if (!canDo(method))
            QSKIP("not on this system");
        const DiskTree before = treeAt(u"src"_s);
        StoredRun run = readRun(runJournalPath(at(u"data"_s), clean(method).runId));
        run.summary.header.id.clear();
        QString id;
        {
            RunJournalWriter cut;
            QVERIFY(cut.create(at(u"data"_s), run.summary.header, run.items));
            id = cut.id();
        }
        QCOMPARE(undo(id).errors, QStringList());
        QCOMPARE(treeAt(u"src"_s), before);
        QVERIFY(planUndo(at(u"data"_s), id).steps.isEmpty());
    }

    void cannotComeBack_data()
    {
        const auto row = columns<QString, QString>({"change", "message"}); // verb and file; %1 the old path
        for (const CleaningMethod method : allMethods)
            row(qPrintable(methodName(method)), u"write src/one"_s, u"原路径已存在文件，已取消恢复: %1"_s);
        const QString gone = u"无法重新生成，要保留的文件不存在或已更改: %1"_s;
        const QString notThere = u"文件已不在此处或已更改，未恢复: %1"_s;
        for (const char *method : {"delete", "symlink", "hardlink"})
            row(method, u"sneak src/kept"_s, gone);
        for (const char *method : {"delete", "symlink"}) {
            row(method, u"rm src/kept"_s, gone);
            row(method, u"loose"_s, u"无法重新生成，当时未与要保留的文件比较内容: %1"_s);
        }
        row("recycle", u"rm home/Trash/files/one"_s, u"已不在回收站中，无法恢复: %1"_s);
        row("backup", u"sneak store/*one"_s, u"备份文件已损坏，未恢复: %1"_s);
        row("backup", u"rm store/*one"_s, notThere);
        row("move", u"touch target/one"_s, notThere);
        row("move", u"rename target"_s, u"文件夹或磁盘不存在，未恢复: %1"_s);
    }

    /// Named in the plan or by the undo; what is there stays as it is, and the other file comes back unless it has the
    /// same problem.
    void cannotComeBack()
    {
        QFETCH(QString, change);
        QFETCH(QString, message);
        const CleaningMethod method = methodNamed(QLatin1String(QTest::currentDataTag())).value();
        if (!canDo(method))
            QSKIP("not on this system");
        const QString verb = change.section(u' ', 0, 0);
        const QString file = change.section(u' ', 1);
        const CleaningResult cleaned = clean(method, verb != u"loose");
        QCOMPARE(cleaned.count, 2);
        const QDir folder(at(file.section(u'/', 0, -2)));
        const QString changed =
            file.contains(u'*') ? folder.filePath(folder.entryList({file.section(u'/', -1)}).value(0)) : at(file);
        const qint64 modifiedMs = MirrixCore::fileStatus(changed).modifiedMs;
        if (verb == u"rename")
            QVERIFY(QDir().rename(changed, changed + u"2"_s));
        if (verb == u"rm" || verb == u"write")
            QVERIFY(QFile::remove(changed) || verb == u"write");
        if (verb == u"write" || verb == u"sneak") {
            QFile device(changed);
            QVERIFY(device.open(QIODevice::ReadWrite) && device.putChar('x'));
        }
        const QString relative = QDir(at()).relativeFilePath(changed);
        if (verb == u"sneak" || verb == u"touch")
            m_tree->setModified(relative, modifiedMs + (verb == u"touch" ? 5 : 0));
        const DiskTree before = treeAt();
        const UndoResult undone = undo(cleaned.runId);
        const bool isForBoth = file == u"src/kept" || verb == u"rename" || verb == u"loose";
        QCOMPARE(undone.count, isForBoth ? 0 : 1);
        QCOMPARE(undone.errors.size(), isForBoth ? 2 : 1);
        QVERIFY2(undone.errors.constFirst().startsWith(message.arg(at(u"src/one"_s))),
                 qPrintable(undone.errors.first()));
        const DiskTree after = treeAt();
        for (const QString &name : before.keys()) {
            const bool isOther = !isForBoth && (name.endsWith(u"two"_s) || name.endsWith(u"two.trashinfo"_s));
            if (!isOther && !name.startsWith(u"data/"_s) && !name.startsWith(u"store/backup_index"_s))
                QCOMPARE(after[name], before[name]);
        }
    }

    void movedBackupFolder()
    {
        const DiskTree before = treeAt(u"src"_s);
        const CleaningResult cleaned = clean(CleaningMethod::Backup);
        QVERIFY(QDir().rename(at(u"store"_s), at(u"elsewhere"_s)));
        const UndoPlan plan = planUndo(at(u"data"_s), cleaned.runId, {}, at(u"elsewhere"_s));
        QCOMPARE(undoRun(plan, plan.steps, {m_log, at(u"data"_s), u"test"_s}).errors, QStringList());
        QCOMPARE(treeAt(u"src"_s), before);
        QVERIFY(loadBackupIndex(at(u"elsewhere"_s)).isEmpty());
    }

    /// Only what the index lists for the run's files; afterwards the files can still be made again.
    void freesBackups()
    {
        const DiskTree before = treeAt(u"src"_s);
        m_tree->write(u"other"_s, "of another batch");
        QCOMPARE(backupFiles(at(u"store"_s), {at(u"other"_s)}).count, 1);
        const CleaningResult cleaned = clean(CleaningMethod::Backup);
        QList<BackupEntry> index = loadBackupIndex(at(u"store"_s));
        const BackupEntry unlisted = index.takeLast();
        QVERIFY(saveBackupIndex(at(u"store"_s), index));
        const StoredRun run = readRun(runJournalPath(at(u"data"_s), cleaned.runId));
        const BatchResult freed = freeBackups(run, {m_log, at(u"data"_s), u"test"_s});
        QCOMPARE(freed.count, 1);
        QCOMPARE(freed.errors.size(), 1);
        QCOMPARE(loadBackupIndex(at(u"store"_s)), index.first(1));
        QVERIFY(QFile::exists(unlisted.backup) && hasBackupFile(index.constFirst()));
        QCOMPARE(heldInBackup(summary(cleaned.runId)), content.size());
        QCOMPARE(undo(cleaned.runId).count, 2);
        QCOMPARE(treeAt(u"src"_s), before);
    }

    void nothingUnrecorded()
    {
        const CleaningResult cleaned = clean(CleaningMethod::Delete);
        const DiskTree before = treeAt(u"src"_s);
        const UndoPlan plan = planUndo(at(u"data"_s), cleaned.runId);
        QCOMPARE(plan.steps.size(), 2);
        const auto isRefused = [&] {
            const UndoResult undone = undoRun(plan, plan.steps, {m_log, at(u"data"_s), u"test"_s});
            return undone.count == 0 && undone.errors.size() == 1 && treeAt(u"src"_s) == before;
        };
        m_log = OperationsLog(m_tree->makeFolder(u"data/in the way"_s));
        QVERIFY(isRefused());
        m_log = OperationsLog(at(u"data/log"_s));
        QVERIFY(removeRun(at(u"data"_s), cleaned.runId));
        QVERIFY(isRefused());
    }

private:
    [[nodiscard]] bool canDo(CleaningMethod method) const
    {
        return (namesAreBytes || method != CleaningMethod::Recycle) && // Wine's bin is not one of Windows
               (!methodName(method).endsWith(u"symlink"_s) || m_tree->symbolicLink(u"src/kept"_s, u"probe"_s));
    }
    [[nodiscard]] CleaningResult clean(CleaningMethod method, bool isEqualContent = true) const
    {
        CleaningPlan plan;
        plan.method = method;
        plan.targetFolder = at(u"target"_s);
        plan.backupFolder = at(u"store"_s);
        for (const QString &name : {u"src/one"_s, u"src/deep/two"_s})
            plan.items.append({scanned(at(name)),
                               scanned(at(u"src/kept"_s)),
                               {},
                               isEqualContent ? digest : QString(),
                               isEqualContent});
        return runCleaning(plan, {m_log, at(u"data"_s), u"test"_s});
    }
    [[nodiscard]] UndoResult undo(const QString &run) const
    {
        const UndoPlan plan = planUndo(at(u"data"_s), run, {}, at(u"store"_s));
        return undoRun(plan, plan.steps, {m_log, at(u"data"_s), u"test"_s});
    }
    [[nodiscard]] RunSummary summary(const QString &run) const
    {
        return readRun(runJournalPath(at(u"data"_s), run)).summary;
    }

    mutable OperationsLog m_log{QString()};
};

QTEST_GUILESS_MAIN(UndoTest)
#include "tst_undo.moc"
