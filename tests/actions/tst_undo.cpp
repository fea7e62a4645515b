#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/undo.h"
#include "actions/records/operationslog.h"
#include "actions/records/runjournal.h"
#include "core/platform/filestatus.h"
#include "tests/support/disk.h"
#include "tests/support/probes.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QTest>

#include <memory>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

const QByteArray content = "copies of the same content";
const QString digest = u"md5:d7642ddb8322a57123a960203306b6f7"_s; // by md5sum

ScannedFile scanned(const QString &path)
{
    const MirrixCore::FileStatus status = MirrixCore::fileStatus(path);
    return {path, status.sizeBytes, status.modifiedMs, status.identity};
}

} // namespace

Q_DECLARE_METATYPE(CleaningMethod)

class UndoTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_tree = std::make_unique<TempTree>();
        qputenv("XDG_DATA_HOME", path("home").toUtf8());
        m_log = OperationsLog(path("data/log"));
        for (const char *name : {"src/kept", "src/one", "src/deep/two"})
            m_tree->write(QLatin1String(name), content);
        m_tree->setModified(u"src/one"_s, 1234567890123);
        if (namesAreBytes) { // what links need to be equal they are; "two" has a time of its own to the nanosecond
            std::filesystem::permissions(exactNative(path("src/one")), std::filesystem::perms(0640));
            std::filesystem::permissions(exactNative(path("src/kept")), std::filesystem::perms(0640));
            std::filesystem::permissions(exactNative(path("src/deep/two")), std::filesystem::perms(0640));
        }
    }

    void allComesBack_data() { methods(); }

    void allComesBack()
    {
        QFETCH(CleaningMethod, method);
        if (!canDo(method))
            QSKIP("not on this system");
        if (!isLinking(method) && namesAreBytes) // links ask for equal permissions
            std::filesystem::permissions(exactNative(path("src/one")), std::filesystem::perms(0604));
        const DiskTree before = treeBelow(path("src"));
        const CleaningResult cleaned = clean(method);
        QCOMPARE(cleaned.errors, QStringList());
        const DiskTree after = treeBelow(path("src"));
        QVERIFY(after != before);
        QCOMPARE(heldInBackup(summary(cleaned.runId)), isBackingUp(method) ? 2 * content.size() : 0);

        const UndoResult undone = undo(cleaned.runId);
        QCOMPARE(undone.errors + undone.notes, QStringList());
        QCOMPARE(undone.count, 2);
        QCOMPARE(treeBelow(path("src")), before);
        for (const char *place : {"target", "home"})
            QVERIFY(treeBelow(path(place)).isEmpty());
        QVERIFY(loadBackupIndex(path("store")).isEmpty());
        QVERIFY(QDir(path("store")).entryList({u"*__*"_s}).isEmpty());
        QCOMPARE(summary(cleaned.runId).totals, (RunTally::Totals{0, 0, 2, 0, 0}));
        QCOMPARE(summary(undone.runId).header.undoOf, cleaned.runId);
        QVERIFY(summary(undone.runId).isComplete && summary(undone.runId).totals.done == 2);
        const LogEntry logged = m_log.readAll().constLast();
        QVERIFY(logged.action == u"restore" && logged.detail.startsWith(path("src/deep/two") + u"  <-  "_s));
        QVERIFY(planUndo(path("data"), cleaned.runId).steps.isEmpty());

        const UndoResult again = undo(undone.runId); // what was undone is done again, and undone again
        QCOMPARE(again.errors, QStringList());
        QCOMPARE(treeBelow(path("src")), after);
        QCOMPARE(summary(undone.runId).totals.undone, 2);
        QCOMPARE(undo(again.runId).count, 2);
        QCOMPARE(treeBelow(path("src")), before);
    }

    void interrupted_data() { methods(); }

    /// A journal without outcomes, as a killed run leaves it, after the files were dealt with.
    void interrupted()
    {
        QFETCH(CleaningMethod, method);
        if (!canDo(method))
            QSKIP("not on this system");
        const DiskTree before = treeBelow(path("src"));
        StoredRun run = readRun(runJournalPath(path("data"), clean(method).runId));
        run.summary.header.id.clear();
        QString id;
        {
            RunJournalWriter cut;
            QVERIFY(cut.create(path("data"), run.summary.header, run.items));
            id = cut.id();
        }
        QCOMPARE(undo(id).errors, QStringList());
        QCOMPARE(treeBelow(path("src")), before);
        QVERIFY(planUndo(path("data"), id).steps.isEmpty());
    }

    void cannotComeBack_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("change");  // verb and file
        QTest::addColumn<QString>("message"); // %1 the old path
        const QString occupied = u"原路径已存在文件，已取消恢复: %1"_s;
        const QString gone = u"无法重新生成，要保留的文件不存在或已更改: %1"_s;
        const QString notThere = u"文件已不在此处或已更改，未恢复: %1"_s;
        for (const char *method : {"recycle", "delete", "move", "symlink", "hardlink", "backup", "backup+symlink"})
            QTest::addRow("%s, occupied", method) << QString::fromLatin1(method) << u"write src/one"_s << occupied;
        for (const char *method : {"delete", "symlink"}) {
            QTest::addRow("%s, kept gone", method) << QString::fromLatin1(method) << u"rm src/kept"_s << gone;
            QTest::addRow("%s, kept changed", method) << QString::fromLatin1(method) << u"sneak src/kept"_s << gone;
            QTest::addRow("%s, not compared", method)
                << QString::fromLatin1(method) << u"loose"_s << u"无法重新生成，当时未与要保留的文件比较内容: %1"_s;
        }
        QTest::newRow("hardlink, kept changed") << u"hardlink"_s << u"sneak src/kept"_s << gone;
        QTest::newRow("recycle, bin emptied")
            << u"recycle"_s << u"rm home/Trash/files/one"_s << u"已不在回收站中，无法恢复: %1"_s;
        QTest::newRow("backup, one byte") << u"backup"_s << u"sneak store/*one"_s << u"备份文件已损坏，未恢复: %1"_s;
        QTest::newRow("backup, gone") << u"backup"_s << u"rm store/*one"_s << notThere;
        QTest::newRow("move, other time") << u"move"_s << u"touch target/one"_s << notThere;
        QTest::newRow("move, folder gone") << u"move"_s << u"rename target"_s << u"文件夹或磁盘不存在，未恢复: %1"_s;
    }

    /// Named in the plan or by the undo; what is there stays as it is, and the other file comes back unless it has the
    /// same problem.
    void cannotComeBack()
    {
        QFETCH(QString, method);
        QFETCH(QString, change);
        QFETCH(QString, message);
        if (!canDo(methodNamed(method).value()))
            QSKIP("not on this system");
        const QString verb = change.section(u' ', 0, 0);
        const QString file = change.section(u' ', 1);
        const CleaningResult cleaned = clean(methodNamed(method).value(), verb != u"loose");
        QCOMPARE(cleaned.count, 2);
        const QDir folder(m_tree->path(file.section(u'/', 0, -2)));
        const QString changed = file.contains(u'*')
                                    ? folder.filePath(folder.entryList({file.section(u'/', -1)}).value(0))
                                    : m_tree->path(file);
        const qint64 modifiedMs = MirrixCore::fileStatus(changed).modifiedMs;
        if (verb == u"rename")
            QVERIFY(QDir().rename(changed, changed + u"2"_s));
        if (verb == u"rm" || verb == u"write")
            QVERIFY(QFile::remove(changed) || verb == u"write");
        if (verb == u"write" || verb == u"sneak") {
            QFile device(changed);
            QVERIFY(device.open(QIODevice::ReadWrite) && device.putChar('x'));
        }
        const QString relative = QDir(m_tree->path()).relativeFilePath(changed);
        if (verb == u"sneak" || verb == u"touch")
            m_tree->setModified(relative, modifiedMs + (verb == u"touch" ? 5 : 0));
        const DiskTree before = treeBelow(m_tree->path());
        const UndoResult undone = undo(cleaned.runId);
        const bool isForBoth = file == u"src/kept" || verb == u"rename" || verb == u"loose";
        QCOMPARE(undone.count, isForBoth ? 0 : 1);
        QCOMPARE(undone.errors.size(), isForBoth ? 2 : 1);
        QVERIFY2(undone.errors.constFirst().startsWith(message.arg(path("src/one"))),
                 qPrintable(undone.errors.first()));
        const DiskTree after = treeBelow(m_tree->path());
        for (const QString &name : before.keys()) {
            const bool isOther = !isForBoth && (name.endsWith(u"two"_s) || name.endsWith(u"two.trashinfo"_s));
            if (!isOther && !name.startsWith(u"data/"_s) && !name.startsWith(u"store/backup_index"_s))
                QCOMPARE(after[name], before[name]);
        }
    }

    void movedBackupFolder()
    {
        const DiskTree before = treeBelow(path("src"));
        const CleaningResult cleaned = clean(CleaningMethod::Backup);
        QVERIFY(QDir().rename(path("store"), path("elsewhere")));
        const UndoPlan plan = planUndo(path("data"), cleaned.runId, {}, path("elsewhere"));
        QCOMPARE(undoRun(plan, plan.steps, {m_log, path("data"), u"test"_s}).errors, QStringList());
        QCOMPARE(treeBelow(path("src")), before);
        QVERIFY(loadBackupIndex(path("elsewhere")).isEmpty());
    }

    /// Only what the index lists for the run's files; afterwards the files can still be made again.
    void freesBackups()
    {
        const DiskTree before = treeBelow(path("src"));
        m_tree->write(u"other"_s, "of another batch");
        QCOMPARE(backupFiles(path("store"), {path("other")}).count, 1);
        const CleaningResult cleaned = clean(CleaningMethod::Backup);
        QList<BackupEntry> index = loadBackupIndex(path("store"));
        const BackupEntry unlisted = index.takeLast();
        QVERIFY(saveBackupIndex(path("store"), index));
        const StoredRun run = readRun(runJournalPath(path("data"), cleaned.runId));
        const BatchResult freed = freeBackups(run, {m_log, path("data"), u"test"_s});
        QCOMPARE(freed.count, 1);
        QCOMPARE(freed.errors.size(), 1);
        QCOMPARE(loadBackupIndex(path("store")), index.first(1));
        QVERIFY(QFile::exists(unlisted.backup) && hasBackupFile(index.constFirst()));
        QCOMPARE(heldInBackup(summary(cleaned.runId)), content.size());
        QCOMPARE(undo(cleaned.runId).count, 2);
        QCOMPARE(treeBelow(path("src")), before);
    }

    void nothingUnrecorded()
    {
        const CleaningResult cleaned = clean(CleaningMethod::Delete);
        const DiskTree before = treeBelow(path("src"));
        const UndoPlan plan = planUndo(path("data"), cleaned.runId);
        QCOMPARE(plan.steps.size(), 2);
        const auto isRefused = [&] {
            const UndoResult undone = undoRun(plan, plan.steps, {m_log, path("data"), u"test"_s});
            return undone.count == 0 && undone.errors.size() == 1 && treeBelow(path("src")) == before;
        };
        m_log = OperationsLog(m_tree->makeFolder(u"data/in the way"_s));
        QVERIFY(isRefused());
        m_log = OperationsLog(path("data/log"));
        QVERIFY(removeRun(path("data"), cleaned.runId));
        QVERIFY(isRefused());
    }

private:
    static void methods()
    {
        const auto row = columns<CleaningMethod>({"method"});
        for (const char *name :
             {"recycle", "delete", "move", "symlink", "hardlink", "backup", "backup+symlink", "backup+hardlink"})
            row(name, methodNamed(QLatin1String(name)).value());
    }
    [[nodiscard]] QString path(const char *name) const { return m_tree->path(QLatin1String(name)); }
    [[nodiscard]] bool canDo(CleaningMethod method) const
    {
        return (namesAreBytes || method != CleaningMethod::Recycle) && // Wine's bin is not one of Windows
               (!methodName(method).endsWith(u"symlink"_s) || m_tree->symbolicLink(u"src/kept"_s, u"probe"_s));
    }
    [[nodiscard]] CleaningResult clean(CleaningMethod method, bool isEqualContent = true) const
    {
        CleaningPlan plan;
        plan.method = method;
        plan.targetFolder = path("target");
        plan.backupFolder = path("store");
        for (const char *name : {"src/one", "src/deep/two"})
            plan.items.append({scanned(path(name)),
                               scanned(path("src/kept")),
                               {},
                               isEqualContent ? digest : QString(),
                               isEqualContent});
        return runCleaning(plan, {m_log, path("data"), u"test"_s});
    }
    [[nodiscard]] UndoResult undo(const QString &run) const
    {
        const UndoPlan plan = planUndo(path("data"), run, {}, path("store"));
        return undoRun(plan, plan.steps, {m_log, path("data"), u"test"_s});
    }
    [[nodiscard]] RunSummary summary(const QString &run) const
    {
        return readRun(runJournalPath(path("data"), run)).summary;
    }

    std::unique_ptr<TempTree> m_tree;
    mutable OperationsLog m_log{QString()};
};

QTEST_GUILESS_MAIN(UndoTest)
#include "tst_undo.moc"
