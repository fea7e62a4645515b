#include "actions/export/exporter.h"
#include "app/settings.h"
#include "tests/actions/exportscene.h"
#include "tests/faults/scene.h"
#include "tests/support/program.h"
#include "tests/support/tables.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopeGuard>
#include <QTest>

#include <cerrno>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

struct Fault
{
    QString name;
    int code;           ///< 0: a short read or write
    bool isSticky;      ///< everything fails from then on
    bool isCut = false; ///< the power fails

    /// Whether the program could still tidy up.
    [[nodiscard]] bool isPassing() const { return !isSticky && !isCut; }
};

const QList<Fault> faults = {
    {u"ENOSPC"_s, ENOSPC, false},   {u"EACCES"_s, EACCES, false},
    {u"EIO"_s, EIO, false},         {u"EINTR"_s, EINTR, false},
    {u"EXDEV"_s, EXDEV, false},     {u"ENOENT"_s, ENOENT, false},
    {u"short"_s, 0, false},         {u"drive gone"_s, EIO, true},
    {u"disk full"_s, ENOSPC, true}, {u"power cut"_s, EIO, false, true},
};

struct Run
{
    ProgramRun program;
    QByteArray failed; ///< name of the call that failed; empty when the program ended before
};

/// The flows that no command of the console has, run by this program itself.
bool act(const QString &flow, const QString &root)
{
    if (flow == u"settings") {
        Settings values = readSettings(root + u"/data"_s);
        values.keepRule = 2;
        return values.save();
    }
    const ExportFormat format = flow == u"export copies" ? ExportFormat::Copies : ExportFormat::Csv;
    const ExportRecords records = recordsOf({root + u"/src/x/a1"_s, root + u"/src/y/b1"_s});
    const ExportOutcome outcome = writeExport(records, {format, root + u"/target/out"_s, everything}, {}, {});
    return outcome.isDone && outcome.errors.isEmpty();
}

} // namespace

class FaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleaning_data()
    {
        const auto row = columns<bool, QString>({"isOnOtherVolume", "world"});
        const auto rows = [&row](const char *kind, bool isOnOtherVolume, const char *world,
                                 const QByteArrayList &methods) {
            for (const QByteArray &method : methods)
                row((method + kind).constData(), isOnOtherVolume, QString::fromLatin1(world));
        };
        rows("", false, "", {"recycle", "delete", "move", "symlink", "hardlink", "backup", "restore"});
        rows(" to another volume", true, "", {"move", "backup", "restore"});
        rows(" by links", false, "PLAIN_RENAME=1", {"recycle", "move", "symlink", "backup", "restore"});
        rows(" by claims", false, "PLAIN_RENAME=2", {"recycle", "delete", "backup"});
        rows(" without leases", false, "NO_LEASES=1", {"delete", "symlink"});
        rows(" what was copied just now", false, "UNFLUSHED=ROOT/src/keep/a:ROOT/src/keep/b1",
             {"delete", "symlink", "hardlink"});
    }

    void cleaning()
    {
        QFETCH(bool, isOnOtherVolume);
        if (isOnOtherVolume && !folderOnOtherVolume(QDir::tempPath()))
            QSKIP("no second volume");
        QFETCH(QString, world);
        m_world = world;
        const auto reset = qScopeGuard([this] { m_world.clear(); });
        const QString method = QString::fromLatin1(QTest::currentDataTag()).section(u' ', 0, 0);
        sweep(method, isOnOtherVolume, {}, [](const Scene &scene, const Run &run, const Fault &fault) {
            // A file that is not there any more is no failure of a scan.
            const QString problem =
                scene.problem(run.program.status, run.program.output, fault.code == ENOENT, !fault.isPassing());
            return problem.isEmpty() ? scene.problemAfterRecovery() : problem;
        });
    }

    void staleDigests_data() { methodRows({"delete", "symlink"}); }

    /// Whatever fails meanwhile, files that differ but have remembered digests in common are not destroyed for each
    /// other.
    void staleDigests()
    {
        const QString method = QString::fromLatin1(QTest::currentDataTag());
        Scene undisturbed(method, false);
        undisturbed.makeDigestsStale();
        QVERIFY(undisturbed.run(undisturbed.arguments()).startsWith("1 of 3 files processed"));
        QCOMPARE(undisturbed.problem(1, "1 of 3 files", false, false), QString());
        sweep(method, false, u"stale"_s, [](const Scene &scene, const Run &run, const Fault &fault) {
            const QString problem = scene.problem(run.program.status, run.program.output, true, !fault.isPassing());
            return problem.isEmpty() ? scene.problemAfterRecovery() : problem;
        });
    }

    void undoing_data() { methodRows({"recycle", "delete", "move", "symlink", "hardlink", "backup"}); }

    /// Whatever fails while a run is undone, nothing is lost, and undoing it once more brings everything back.
    void undoing()
    {
        const QString method = QString::fromLatin1(QTest::currentDataTag());
        sweep(method, false, u"undo"_s, [](const Scene &scene, const Run &run, const Fault &fault) {
            // A file that is said not to be there can not be tidied up.
            return scene.problemAfterUndo(run.program, !fault.isPassing() || fault.code == ENOENT);
        });
    }

    /// A scan changes nothing, its report is whole or not there, and the cache it leaves does not mislead the next.
    void scanning()
    {
        const auto groupsIn = [](const QByteArray &report) {
            return QJsonDocument::fromJson(report).object()[u"groups"_s].toArray();
        };
        const Scene clean(u"scan"_s, false);
        static_cast<void>(clean.run(clean.arguments()));
        QCOMPARE(groupsIn(contentOf(clean.path(u"report"_s))).size(), 2);
        sweep(u"scan"_s, false, {}, [&](const Scene &scene, const Run &run, const Fault &fault) {
            const QByteArray report = contentOf(scene.path(u"report"_s));
            if (!report.isEmpty() && !QJsonDocument::fromJson(report).isObject())
                return u"half a report"_s;
            if (run.program.status == 0 && fault.code != ENOENT && groupsIn(report).size() != 2)
                return u"success told, groups missing"_s;
            static_cast<void>(scene.run(scene.arguments()));
            const QJsonArray groups = groupsIn(contentOf(scene.path(u"report"_s)));
            if (groups.size() != 2 ||
                groups[0][u"files"_s].toArray().size() + groups[1][u"files"_s].toArray().size() != 5)
                return u"the next scan is misled"_s;
            return scene.problem(run.program.status, run.program.output, true, !fault.isPassing());
        });
    }

    /// Where the system refuses further threads, the one there is does all the work.
    void scanningWithoutThreads()
    {
        const Scene scene(u"scan"_s, false);
        QProcess process;
        scene.prepare(process);
        QProcessEnvironment environment = process.processEnvironment();
        environment.insert(u"LD_PRELOAD"_s, QStringLiteral(MIRRIX_FAULT_SHIM));
        environment.insert(u"MIRRIX_FAULT_NO_THREADS"_s, u"1"_s);
        process.setProcessEnvironment(environment);
        process.start(Program::builtExecutable(), scene.arguments());
        QCOMPARE(Program::ended(process).status, 0);
        QCOMPARE(QJsonDocument::fromJson(contentOf(scene.path(u"report"_s))).object()[u"groups"_s].toArray().size(), 2);
    }

    void ownFiles_data()
    {
        const auto row = columns<QString>({"file"});
        row("settings", u"data/settings.json"_s);
        row("export", u"target/out"_s);
        row("export copies", u"target/out/b1"_s);
    }

    /// What is told to be written is there whole; otherwise the old file, or none, is.
    void ownFiles()
    {
        QFETCH(QString, file);
        const QString action = QString::fromLatin1(QTest::currentDataTag());
        const Scene clean(u"scan"_s, false);
        const QByteArray before = contentOf(clean.path(file));
        QVERIFY(act(action, clean.path({})));
        QByteArray after = contentOf(clean.path(file));
        QVERIFY(before != after);
        after.replace(clean.path({}).toUtf8(), "ROOT");
        sweep(u"scan"_s, false, action, [&](const Scene &scene, const Run &run, const Fault &fault) {
            QByteArray now = contentOf(scene.path(file));
            now.replace(scene.path({}).toUtf8(), "ROOT");
            if (now != after && (now != before || run.program.status == 0))
                return u"status %1, holds %2 bytes"_s.arg(run.program.status).arg(now.size());
            const bool isFlush = run.failed == "fsync" && !fault.isCut && (fault.code == EIO || fault.code == ENOSPC);
            if (isFlush && run.program.status == 0)
                return u"told to be on the disk"_s;
            const qsizetype most = 2 + (action == u"export copies" ? 1 : 0);
            const qsizetype count = treeBelow(scene.path(u"data"_s)).size() + treeBelow(scene.path(u"target"_s)).size();
            return count > most + 1 && fault.isPassing() ? u"left behind"_s : QString();
        });
    }

private:
    static void methodRows(const QByteArrayList &methods)
    {
        QTest::addColumn<int>("none");
        for (const QByteArray &method : methods)
            QTest::newRow(method.constData()) << 0;
    }

    /// Runs `check` for every fault on every n-th call, and the flow before it, until the flow ends untouched. With
    /// "undo" for the action, the flow is to undo what the method did; with "stale", what is remembered of some files
    /// is not true any more.
    void sweep(const QString &method, bool isOnOtherVolume, const QString &action,
               const std::function<QString(const Scene &, const Run &, const Fault &)> &check)
    {
        const int stride = std::max(1, qEnvironmentVariableIntValue("MIRRIX_FAULT_STRIDE"));
        int start = 1; // other calls for each fault
        int runs = 0;
        QStringList problems;
        for (const Fault &fault : faults) {
            if (!fault.isCut && m_world.contains(u"UNFLUSHED"_s))
                continue;
            start = start % stride + 1;
            for (int number = start;; number += stride) {
                Scene scene(method, isOnOtherVolume);
                if (action == u"undo")
                    scene.turnToUndo();
                if (action == u"stale")
                    scene.makeDigestsStale();
                if (fault.isCut)
                    scene.acceptEmptyNotes();
                if (m_world.contains(u"UNFLUSHED"_s))
                    scene.acceptLossOfKeepers();
                const Run result = run(scene, action, fault, number);
                ++runs;
                QString problem = result.program.status < 0 ? u"crashed or hung"_s : check(scene, result, fault);
                if (!problem.isEmpty())
                    problems.append(u"%1 at call %2 (%3): %4"_s.arg(fault.name)
                                        .arg(number)
                                        .arg(QString::fromUtf8(result.failed), problem));
                if (result.failed.isEmpty())
                    break;
            }
        }
        qInfo("%d runs", runs);
        QVERIFY2(problems.isEmpty(), qPrintable(u"\n"_s + problems.join(u'\n')));
    }

    [[nodiscard]] Run run(const Scene &scene, const QString &action, const Fault &fault, int number) const
    {
        const QTemporaryDir control;
        const QString report = control.filePath(u"failed"_s);
        QProcess process;
        scene.prepare(process);
        QProcessEnvironment environment = process.processEnvironment();
        const auto set = [&environment](const QString &name, const QString &value) {
            environment.insert(u"MIRRIX_FAULT_"_s + name, value);
        };
        environment.insert(u"LD_PRELOAD"_s, QStringLiteral(MIRRIX_FAULT_SHIM));
        set(u"FOLDERS"_s, scene.folders().join(u':'));
        set(u"AT"_s, QString::number(number));
        set(u"ERRNO"_s, QString::number(fault.code));
        set(u"REPORT"_s, report);
        if (fault.isSticky)
            set(u"STICKY"_s, u"1"_s);
        if (fault.isCut)
            set(u"CUT"_s, u"1"_s);
        if (!m_world.isEmpty())
            set(m_world.section(u'=', 0, 0), m_world.section(u'=', 1).replace(u"ROOT"_s, scene.path({})));
        process.setProcessEnvironment(environment);
        if (action.isEmpty() || action == u"undo" || action == u"stale")
            process.start(Program::builtExecutable(), scene.arguments());
        else
            process.start(QCoreApplication::applicationFilePath(), {u"--act"_s, action, scene.path({})});
        const ProgramRun program = Program::ended(process);
        return {program, contentOf(report).trimmed()};
    }

    QString m_world; ///< a variable for the shim, "MIRRIX_FAULT_" left out, which tells of the file systems
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--act")
        return act(arguments.value(2), arguments.value(3)) ? 0 : 1;
    FaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_faults.moc"
