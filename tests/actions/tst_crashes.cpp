#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/undo.h"
#include "actions/records/operationslog.h"
#include "actions/records/runjournal.h"
#include "app/settings.h"
#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/cache/imagefeaturecache.h"
#include "core/hash/contenthasher.h"
#include "tests/actions/actiontest.h"
#include "tests/actions/exportscene.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QProcess>

using namespace MirrixCore;

namespace {

const QStringList names = {u"one"_s, u"two"_s};

const QByteArray copies = "the same content";
const QString md5OfCopies = u"md5:a9288fa382861ff3dcb8c9f759c15f56"_s;

constexpr qint64 sizeBytes = 5;
constexpr qint64 modifiedMs = 7;

QByteArray digestOf(char fill)
{
    return QByteArray(currentDigestLength(), fill);
}

ImageFeature featureOf(quint64 hash)
{
    return {hash, {hash, ~hash}, true, QByteArray(256, char(hash))};
}

bool canTrace()
{
    QProcess probe;
    probe.start(u"strace"_s, {u"-qq"_s, u"-o"_s, u"/dev/null"_s, u"true"_s});
    return probe.waitForFinished() && probe.exitCode() == 0;
}

/// The writers of the program's own files, each of which has its file already; `isNew` is what the killed process
/// writes.
void writeOwn(const QString &name, const QString &root, bool isNew)
{
    setCacheRoot(root);
    if (name == u"settings") {
        Settings values = readSettings(root);
        values.keepRule = isNew ? 2 : 1;
        values.save();
    } else if (name == u"digests") {
        storeQuickAndFull(u"/a"_s, sizeBytes, modifiedMs + isNew, digestOf('q'), digestOf(isNew ? 'n' : 'o'));
    } else if (name == u"picture") {
        storeImageFeature(u"/a"_s, sizeBytes, modifiedMs + isNew, featureOf(isNew ? 2 : 1));
    } else {
        const ExportRecords records = recordsOf({root + u"/keeper"_s, root + (isNew ? u"/src/one"_s : u"/src/two"_s)});
        static_cast<void>(writeExport(records, {ExportFormat::Csv, root + u"/out"_s, everything}, {}, {}));
    }
}

/// Whether the own file is one of the two, or for a cache at least misleads nobody.
bool isWhole(const QString &name, const QString &root, const QByteArray &before, const QByteArray &after)
{
    setCacheRoot(root);
    if (name == u"settings" || name == u"export") {
        const QByteArray now = contentOf(root + (name == u"export" ? u"/out"_s : u"/settings.json"_s));
        return now == before || now == after;
    }
    for (const bool isNew : {false, true}) {
        const Fingerprint print = lookupFingerprint(u"/a"_s, sizeBytes, modifiedMs + isNew);
        ImageFeature feature;
        const bool isFound = loadImageFeature(u"/a"_s, sizeBytes, modifiedMs + isNew, feature);
        if ((!print.full.isEmpty() && print.full != digestOf(isNew ? 'n' : 'o')) ||
            (!print.quick.isEmpty() && print.quick != digestOf('q')) || (isFound && feature != featureOf(1 + isNew)))
            return false;
    }
    return true;
}

/// "undo delete" and "delete, then undo" are about what deleting does.
std::optional<CleaningMethod> methodOf(const QString &action)
{
    return methodNamed(QString(action).remove(u"undo "_s).remove(u", then undo"_s));
}

void clean(const QString &name, const QString &root, const QString &store, const QStringList &paths)
{
    CleaningPlan plan;
    plan.method = methodOf(name).value();
    plan.backupFolder = store;
    plan.targetFolder = root + u"/target"_s;
    for (const QString &path : paths)
        plan.items.append({scanned(path), scanned(root + u"/keeper"_s), {}, md5OfCopies, true});
    OperationsLog log(root + u"/log"_s);
    static_cast<void>(runCleaning(plan, {log, root + u"/data"_s, u"test"_s}));
}

/// The id of the only run that is no undo; empty where that was killed before it began.
QString cleaningRun(const QString &root)
{
    for (const RunSummary &run : listRuns(root + u"/data"_s)) {
        if (methodNamed(run.header.method))
            return run.header.id;
    }
    return {};
}

/// Undoes the only cleaning run; how many steps there were, -1 where one failed.
qsizetype undo(const QString &root)
{
    const QString run = cleaningRun(root);
    if (run.isEmpty())
        return 0;
    OperationsLog log(root + u"/log"_s);
    const UndoPlan plan = planUndo(root + u"/data"_s, run);
    const UndoResult result = undoRun(plan, plan.steps, {log, root + u"/data"_s, u"test"_s});
    return result.errors.isEmpty() ? plan.steps.size() : -1;
}

/// The names of the files that the history does not say to be where they were.
QStringList namedInHistory(const QString &root)
{
    QStringList named;
    const QString id = cleaningRun(root);
    const StoredRun run = id.isEmpty() ? StoredRun() : readRun(runJournalPath(root + u"/data"_s, id));
    for (qsizetype i = 0; i < run.items.size(); ++i) {
        if (run.outcomes[i].state == ItemState::Done ||
            (run.outcomes[i].state == ItemState::Planned && !run.summary.isComplete))
            named.append(QFileInfo(run.items[i].original).fileName());
    }
    return named;
}

/// What the killed process does; all of it below `root`, the store at `store`.
void act(const QString &name, const QString &root, const QString &store)
{
    const QString source = root + u"/src/"_s;
    const QStringList paths = {source + names[0], source + names[1]};
    if (name == u"back up")
        static_cast<void>(backupFiles(store, paths));
    else if (name.startsWith(u"undo"_s))
        undo(root);
    else if (name.startsWith(u"restore"))
        static_cast<void>(restoreBackups(store, loadBackupIndex(store)));
    else if (name == u"log")
        OperationsLog(root + u"/log"_s).append(u"second"_s, u"new"_s);
    else
        clean(name, root, store, paths);
}

} // namespace

class CrashesTest : public ActionTest
{
    Q_OBJECT

private slots:
    void killedAnywhere_data()
    {
        const auto row = columns<bool>({"isOnOtherVolume"});
        for (const char *action : {"back up", "restore", "symlink", "backup+hardlink", "delete", "log"})
            row(action, false);
        for (const char *action : {"back up ", "restore ", "restore, killed before"})
            row(action, true);
        for (const char *method : {"recycle", "delete", "move", "symlink", "hardlink", "backup", "backup+hardlink"}) {
            row(qPrintable(u"undo "_s + QLatin1String(method)), false);
            row(qPrintable(QLatin1String(method) + u", then undo"_s), false);
        }
    }

    /// Kills the process before its n-th call of each kind that changes a file system, n rising until it runs through,
    /// by MIRRIX_KILL_STRIDE where that is set.
    void killedAnywhere()
    {
        QFETCH(bool, isOnOtherVolume);
        if (!canTrace())
            QSKIP("cannot trace processes");
        if (isOnOtherVolume && !folderOnOtherVolume(QDir::tempPath()))
            QSKIP("no second volume");
        const QString action = QString::fromLatin1(QTest::currentDataTag()).trimmed();
        const QStringList calls = {u"renameat2"_s, u"rename"_s,    u"linkat"_s, u"symlinkat"_s, u"unlinkat"_s,
                                   u"unlink"_s,    u"write"_s,     u"fsync"_s,  u"mkdir"_s,     u"mkdirat"_s,
                                   u"fdatasync"_s, u"utimensat"_s, u"fchmod"_s};
        m_kills = 0;
        for (const QString &call : action.contains(u"before"_s) ? calls.first(7) : calls) {
            sweep(call, action, isOnOtherVolume);
            if (QTest::currentTestFailed())
                return;
        }
        qInfo("%d kills", m_kills);
    }

    void ownFilesStayWhole_data()
    {
        const auto row = columns<QStringList>({"calls"});
        const QStringList atomically = {u"write"_s, u"fsync"_s, u"rename"_s, u"renameat2"_s, u"unlink"_s, u"fchmod"_s};
        row("settings", atomically);
        row("export", atomically);
        row("picture", atomically);
        row("digests", QStringList{u"write"_s, u"ftruncate"_s, u"close"_s});
    }

    /// Settings and lists are the old ones or the new ones whenever the process is killed, and so is what caches tell.
    void ownFilesStayWhole()
    {
        QFETCH(QStringList, calls);
        if (!canTrace())
            QSKIP("cannot trace processes");
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const QString file = name == u"export" ? u"out"_s : u"settings.json"_s;
        for (const QString &call : std::as_const(calls)) {
            bool isThrough = false;
            for (int when = 1; !isThrough; ++when) {
                const TempTree tree;
                writeOwn(name, tree.path(), true);
                const QByteArray after = contentOf(tree.path(file));
                writeOwn(name, tree.path(), false);
                const QByteArray before = contentOf(tree.path(file));
                isThrough = runsThrough(call, when, {u"--write"_s, name, tree.path()});
                QVERIFY2(isWhole(name, tree.path(), before, after),
                         qPrintable(u"killed at %1 %2"_s.arg(call).arg(when)));
                writeOwn(name, tree.path(), true); // what the crash left is not in the way
                QVERIFY(contentOf(tree.path(file)) == after && isWhole(name, tree.path(), after, after));
                QVERIFY(when < 200);
            }
        }
    }

private:
    void prepare(const QString &name, bool isOnOtherVolume)
    {
        renew();
        m_other = isOnOtherVolume ? folderOnOtherVolume(at()) : nullptr;
        m_store = m_other ? m_other->path() : at(u"store"_s);
        const bool areCopies = methodOf(name).has_value();
        m_tree->makeFolder(u"target"_s);
        m_tree->makeFolder(u"share"_s); // the bin is there only if it is on the volume of the home folder
        qputenv("HOME", at().toUtf8());
        qputenv("XDG_DATA_HOME", at(u"share"_s).toUtf8());
        m_tree->write(u"keeper"_s, copies);
        for (const QString &file : names)
            m_tree->write(u"src/"_s + file, areCopies ? copies : "content of " + file.toLatin1());
        m_before = treeAt(u"src"_s);
        OperationsLog(at(u"log"_s)).append({{1, u"first"_s, u"old"_s}});
        if (name.startsWith(u"undo"_s))
            clean(name, at(), m_store, {at(u"src/one"_s), at(u"src/two"_s)});
        if (name.startsWith(u"restore"))
            act(u"back up"_s, at(), m_store);
        if (name == u"restore, killed before") // when the first copy was in place and its source still there
            QVERIFY(!runsThrough(u"unlinkat"_s, 1, {u"--act"_s, name, at(), m_store}));
    }

    void sweep(const QString &call, const QString &action, bool isOnOtherVolume)
    {
        const int stride = std::max(1, qEnvironmentVariableIntValue("MIRRIX_KILL_STRIDE"));
        m_start = m_start % stride + 1; // other calls for each kind
        for (int when = m_start; when < 200; when += stride) {
            prepare(action, isOnOtherVolume);
            const bool isThrough = runsThrough(call, when, {u"--act"_s, action, at(), m_store});
            action.contains(u"undo"_s) ? checkUndo() : check(action);
            if (QTest::currentTestFailed()) {
                qWarning("killed at %s %d", qPrintable(call), when);
                return;
            }
            if (isThrough)
                return;
            ++m_kills;
        }
        QFAIL("never ran through");
    }

    void check(const QString &action) const
    {
        const QList<LogEntry> log = OperationsLog(at(u"log"_s)).readAll();
        QVERIFY(log.size() == 1 || log.size() == 2);
        QCOMPARE(log.constFirst().detail, u"old"_s);
        const QByteArray index = contentOf(m_store + u"/backup_index.json"_s);
        QVERIFY2(index.isEmpty() || QJsonDocument::fromJson(index).isArray(), index.constData());

        // What the crash left, a half-made lock included, must not be in the way of the next batch.
        const RestoreResult restored = restoreBackups(m_store, restorableEntries(m_store));
        const QList<BackupEntry> left = loadBackupIndex(m_store);
        for (const BackupEntry &entry : restored.restored)
            QVERIFY(!left.contains(entry));
        QVERIFY(OperationsLog(at(u"log"_s)).append(u"next"_s, QString()));
        for (const QString &name : names) {
            if (action == u"delete" && !QFile::exists(at(u"src/"_s + name)))
                continue; // the equal file is looked at below
            const QByteArray content = contentOf(at(u"src/"_s + name));
            QVERIFY2(m_before[name].startsWith(content + " @"),
                     qPrintable(name + u" holds "_s + QString::fromUtf8(content)));
        }
        DiskTree after = treeAt(u"src"_s);
        after.removeIf(
            [](const auto &file) { return file.key().endsWith(u".part"_s); }); // begun copies may stay behind
        if (!action.contains(u"link"_s) && action != u"delete")
            QCOMPARE(after, m_before);
        QCOMPARE(contentOf(at(u"keeper"_s)), copies);
    }

    /// Whatever was killed, the history names what is not where it was, the next undo leaves everything as it was
    /// before the cleaning, and nothing else behind, and another finds nothing to do.
    void checkUndo() const
    {
        const DiskTree now = treeAt(u"src"_s);
        const QStringList named = namedInHistory(at());
        for (const QString &name : names)
            QVERIFY2(now.value(name) == m_before[name] || named.contains(name), qPrintable(name + u" is not named"_s));
        QVERIFY(undo(at()) >= 0);
        QCOMPARE(treeAt(u"src"_s), m_before);
        QCOMPARE(contentOf(at(u"keeper"_s)), copies);
        QVERIFY(restorableEntries(m_store).isEmpty());
        QCOMPARE(undo(at()), 0);
    }

    /// Runs this program under a tracer that kills it before its n-th call of a kind; whether it ended by itself. The
    /// leak sanitizer, in builds that have it, cannot work beside a tracer.
    [[nodiscard]] static bool runsThrough(const QString &call, int number, const QStringList &arguments)
    {
        QProcess process;
        process.start(u"strace"_s, QStringList{u"-E"_s, u"ASAN_OPTIONS=detect_leaks=0"_s, u"-f"_s, u"-qq"_s, u"-o"_s,
                                               u"/dev/null"_s, u"-e"_s, u"trace="_s + call, u"-e"_s,
                                               u"inject=%1:signal=SIGKILL:when=%2"_s.arg(call).arg(number),
                                               QCoreApplication::applicationFilePath()} +
                                       arguments);
        return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    std::unique_ptr<QTemporaryDir> m_other;
    QString m_store;
    DiskTree m_before;
    int m_start = 0;
    int m_kills = 0;
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString task = arguments.value(1);
    if (task == u"--act")
        act(arguments.value(2), arguments.value(3), arguments.value(4));
    if (task == u"--write")
        writeOwn(arguments.value(2), arguments.value(3), true);
    if (task == u"--act" || task == u"--write")
        return 0;
    CrashesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_crashes.moc"
