#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/cleaningrun.h"
#include "actions/cleaning/emptyfolderremoval.h"
#include "actions/files/nativefile.h"
#include "actions/records/operationslog.h"
#include "core/platform/filestatus.h"
#include "core/scan/duplicatescanner.h"
#include "tests/support/disk.h"
#include "tests/support/probes.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <QTest>

#include <memory>
#include <set>
#include <thread>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;
using MirrixCore::FileEntry;
using MirrixCore::FilePlace;

namespace {

const QList<CleaningMethod> allMethods = {CleaningMethod::Recycle,
                                          CleaningMethod::Delete,
                                          CleaningMethod::Move,
                                          CleaningMethod::SymbolicLink,
                                          CleaningMethod::HardLink,
                                          CleaningMethod::Backup,
                                          CleaningMethod::BackupAndSymbolicLink,
                                          CleaningMethod::BackupAndHardLink};

ScannedFile scanned(const QString &path)
{
    const MirrixCore::FileStatus status = MirrixCore::fileStatus(path);
    return {path, status.sizeBytes, status.modifiedMs, status.identity, pathState(path).allocatedBytes};
}

/// A bin that keeps what it is sent in a folder of the tree.
RecycleBin folderBin(const QString &folder)
{
    RecycleBin bin;
    bin.canTake = [](const QString &) { return true; };
    bin.send = [folder](const QStringList &paths) {
        RecycleBin::Answer answer;
        for (const QString &path : paths) {
            answer.placed.append(folder + u'/' + QFileInfo(path).fileName());
            QDir().mkpath(folder);
            answer.code += QFile::rename(path, answer.placed.constLast()) ? 0 : 1;
        }
        return answer;
    };
    bin.putBack = [](const QString &path, const QString &placed) { return QFile::rename(placed, path); };
    return bin;
}

std::set<QByteArray> contentsBelow(const QString &folder)
{
    std::set<QByteArray> contents;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        contents.insert(contentOf(it.next()));
    return contents;
}

} // namespace

Q_DECLARE_METATYPE(CleaningMethod)

class CleaningTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_tree = std::make_unique<TempTree>();
        m_tree->write(u"src/kept"_s, "same");
        m_tree->write(u"src/copy"_s, "same");
        m_tree->setModified(u"src/copy"_s, 1234567890123);
        m_comparesWholeContents = true;
    }

    void byMethod_data()
    {
        QTest::addColumn<CleaningMethod>("method");
        QTest::addColumn<QString>("keptName");
        for (const CleaningMethod method : allMethods) {
            QTest::addRow("%s", qPrintable(methodName(method))) << method << u"kept"_s;
            QTest::addRow("%s of one name", qPrintable(methodName(method))) << method << u"other/copy"_s;
        }
    }

    void byMethod()
    {
        QFETCH(CleaningMethod, method);
        QFETCH(QString, keptName);
        if (!canLink(method))
            QSKIP("no symbolic links");
        m_tree->makeFolder(u"src/other"_s);
        QVERIFY(keptName == u"kept" || QFile::rename(path("src/kept"), m_tree->path(u"src/"_s + keptName)));
        const DiskTree before = treeBelow(path("src"));
        DiskTree expected = before;
        const QByteArray copy = expected.take(u"copy"_s);
        const bool isSymbolic = methodName(method).endsWith(u"symlink"_s);
        if (isLinking(method))
            expected[u"copy"_s] = (isSymbolic ? "link to " : "") + expected[keptName];
        CleaningPlan made = plan(method);
        made.items[0].kept = scanned(m_tree->path(u"src/"_s + keptName));
        const CleaningResult result = run(made);
        QCOMPARE(result.errors, QStringList());
        QCOMPARE(result.count, 1);
        QCOMPARE(treeBelow(path("src")), expected);
        if (method == CleaningMethod::SymbolicLink && namesAreBytes)
            QCOMPARE(QString::fromStdString(std::filesystem::read_symlink(exactNative(path("src/copy"))).string()),
                     keptName);
        QCOMPARE(treeBelow(path("bin")).value(u"copy"_s), method == CleaningMethod::Recycle ? copy : QByteArray());
        QCOMPARE(treeBelow(path("target")).value(u"copy"_s), method == CleaningMethod::Move ? copy : QByteArray());
        const QList<BackupEntry> kept = restorableEntries(path("store"));
        QCOMPARE(kept.size(), isBackingUp(method) ? 1 : 0);
        if (!kept.isEmpty()) {
            QFile::remove(path("src/copy"));
            QVERIFY(restoreBackup(path("store"), kept.constFirst()));
            QCOMPARE(treeBelow(path("src")), before);
        }
    }

    void anotherProgramMeanwhile_data()
    {
        QTest::addColumn<CleaningMethod>("method");
        QTest::addColumn<QString>("event");
        for (const CleaningMethod method : allMethods) {
            for (const char *event : {"kept removed", "kept replaced", "kept written", "kept open", "surplus written",
                                      "surplus open", "stopped"})
                QTest::addRow("%s, %s", qPrintable(methodName(method)), event) << method << QString::fromLatin1(event);
        }
    }

    /// While the contents are compared, another program acts. Whatever it has written, and what was there, must still
    /// be somewhere, and what is told must be so.
    void anotherProgramMeanwhile()
    {
        QFETCH(CleaningMethod, method);
        QFETCH(QString, event);
        if (!canLink(method))
            QSKIP("no symbolic links");
        const QByteArray content = patternBytes(8 << 20);
        for (const char *name : {"src/kept", "src/copy"})
            m_tree->write(QLatin1String(name), content);
        std::set<QByteArray> contents = {content};
        QByteArray edited = content;
        edited[0] = 'e';
        QProcess editor; // on Linux it has to wait until the file is let go
        bool isWriterWaiting = false;
        const auto write = [&](const QString &file) {
            if (QFile device(file); !namesAreBytes && device.open(QIODevice::ReadWrite) && device.putChar('e'))
                contents.insert(edited);
            if (!namesAreBytes)
                return;
            // A writer that has to wait for the file must be noticed, too; this one gives up instead.
            QProcess knock;
            knock.start(u"dd"_s, {u"if=/dev/null"_s, u"of="_s + file, u"conv=notrunc,nocreat"_s, u"oflag=nonblock"_s});
            QVERIFY(knock.waitForFinished());
            isWriterWaiting = knock.exitCode() != 0;
            editor.start(u"sh"_s, {u"-c"_s, u"echo; printf e | dd of=\"$0\" conv=notrunc,nocreat"_s, file});
            QVERIFY(editor.waitForReadyRead());
        };
        QFile early(event == u"kept open" ? path("src/kept") : path("src/copy"));
        QVERIFY(!event.endsWith(u"open"_s) || early.open(QIODevice::ReadWrite));
        int asked = 0;
        bool hasActed = false;
        const CleaningResult result = run(plan(method), [&](qsizetype, qsizetype) {
            const QStringList aside = QDir(path("src")).entryList({u".mirrix-*"_s}, QDir::Files | QDir::Hidden);
            const bool isComparing = isDestroying(method) ? !aside.isEmpty() : ++asked == 2;
            if (!isComparing || hasActed)
                return true;
            hasActed = true;
            const QString surplus = aside.isEmpty() ? path("src/copy") : path("src/") + aside.constFirst();
            if (event == u"kept removed" || event == u"kept replaced")
                static_cast<void>(QFile::remove(path("src/kept")));
            if (event == u"kept replaced" && !QFile::exists(path("src/kept")))
                m_tree->write(u"src/kept"_s, "new");
            if (event.endsWith(u"written"_s))
                write(event.startsWith(u"kept"_s) ? path("src/kept") : surplus);
            if (early.isOpen() && early.putChar('e') && early.flush())
                contents.insert(edited);
            return event != u"stopped";
        });
        if (editor.state() != QProcess::NotRunning)
            QVERIFY(editor.waitForFinished());
        if (event.endsWith(u"written"_s) && namesAreBytes && editor.exitCode() == 0)
            contents.insert(edited);
        QVERIFY(hasActed || early.isOpen());
        QVERIFY(!isWriterWaiting || !isDestroying(method) || result.count == 0);
        const std::set<QByteArray> found = contentsBelow(m_tree->path());
        if (result.count == 1 && !early.isOpen() && contents.size() > 1) // written when everything was over
            contents.erase(found.count(edited) > 0 ? content : edited);
        for (const QByteArray &each : contents)
            QVERIFY2(found.count(each) > 0, qPrintable(u"lost; said: "_s + result.errors.join(u'\n')));
        const bool isAtHome = contentOf(path("src/copy")).size() == content.size();
        QVERIFY(result.count == 1 || (isAtHome && !result.errors.isEmpty()));
        QCOMPARE(QDir(path("src")).entryList({u".mirrix-*"_s}, QDir::Files | QDir::Hidden), QStringList());
        QCOMPARE(restorableEntries(path("store")).size(), isBackingUp(method) ? result.count : 0);
    }

    void leavesAlone_data()
    {
        // message: %1: the surplus file
        const auto row = columns<QString, QString>({"change", "message"});
        const QString same = u"与要保留的文件可能是同一个文件，未处理: %1"_s;
        const QString changed = u"文件在扫描后已更改，已保留: %1"_s;
        const QString keptChanged = u"要保留的文件已更改，未处理: %1"_s;
        row("surplus gone", u"rm copy"_s, u"文件不存在: %1"_s);
        row("surplus longer", u"longer copy"_s, changed);
        row("surplus now a link", u"link copy"_s, changed);
        row("kept gone", u"rm kept"_s, keptChanged);
        row("kept longer", u"longer kept"_s, keptChanged);
        row("one file by two names", u"hardlink"_s, same);
        row("same size and time, other content", u"sneak copy"_s, u"内容与要保留的文件不同，已保留: %1"_s);
        row("kept of same size and time, other content", u"sneak kept"_s, u"内容与要保留的文件不同，已保留: %1"_s);
    }

    /// By every method, whatever the setting on whole contents.
    void leavesAlone()
    {
        QFETCH(QString, change);
        QFETCH(QString, message);
        const QString verb = change.section(u' ', 0, 0);
        const QString name = u"src/"_s + change.section(u' ', 1);
        if (verb == u"hardlink" && !(QFile::remove(path("src/copy")) && m_tree->hardLink(u"src/kept"_s, u"src/copy"_s)))
            QSKIP("no hard links");
        const CleaningPlan made = plan(CleaningMethod::Delete);
        if (verb == u"rm" || verb == u"link")
            QVERIFY(QFile::remove(m_tree->path(name)));
        if (verb == u"link" && !m_tree->symbolicLink(u"src/kept"_s, name))
            QSKIP("no symbolic links");
        if (verb == u"longer")
            m_tree->write(name, "longer");
        if (verb == u"sneak") {
            const qint64 modifiedMs = MirrixCore::fileStatus(m_tree->path(name)).modifiedMs;
            m_tree->write(name, "diff");
            m_tree->setModified(name, modifiedMs);
        }
        const DiskTree before = treeBelow(path("src"));
        for (const CleaningMethod method : allMethods) {
            for (const bool isWhole : {false, true}) {
                CleaningPlan tried = made;
                tried.method = method;
                tried.comparesWholeContents = isWhole;
                const CleaningResult result = run(tried);
                QCOMPARE(treeBelow(path("src")), before);
                QCOMPARE(result.count, 0);
                QVERIFY(restorableEntries(path("store")).isEmpty());
                const bool isLinkToNothing = isLinking(method) && result.errors.constFirst().contains(u"链接目标"_s);
                QVERIFY2(isLinkToNothing || result.errors == QStringList(message.arg(path("src/copy"))),
                         qPrintable(result.errors.join(u'\n')));
            }
        }
    }

    void targetHoldsTheFile_data()
    {
        const auto row = columns<QString>({"target"});
        row("its folder", u"src"_s);
        row("a folder above", QString());
        row("in other letters", u"SRC"_s);
        row("by a link", u"link"_s);
    }

    void targetHoldsTheFile()
    {
        QFETCH(QString, target);
        if (target == u"link" && !m_tree->symbolicLink(u"src"_s, target))
            QSKIP("no symbolic links");
        if (!QFileInfo::exists(m_tree->path(target)))
            QSKIP("letter case matters here");
        const DiskTree before = treeBelow(path("src"));
        for (const CleaningMethod method :
             {CleaningMethod::Move, CleaningMethod::Backup, CleaningMethod::BackupAndHardLink}) {
            CleaningPlan held = plan(method);
            held.targetFolder = m_tree->path(target);
            held.backupFolder = held.targetFolder;
            const CleaningResult result = run(held);
            QCOMPARE(result.errors, QStringList(u"目标文件夹包含该文件，未处理: "_s + path("src/copy")));
            QCOMPARE(result.count, 0);
            DiskTree after = treeBelow(path("src"));
            after.remove(u"backup_index.json"_s);
            QCOMPARE(after, before);
        }
    }

    void aliasOfOneFile_data() { methods(); }

    /// A folder and an overlay of it show one file under two device numbers.
    void aliasOfOneFile()
    {
        QFETCH(CleaningMethod, method);
        const QString root = qEnvironmentVariable("MIRRIX_ALIASES");
        if (root.isEmpty()) {
            const QString script =
                u"mkdir -p lower upper work merged; echo only >upper/file; mount -t overlay overlay -o "
                "lowerdir=lower,upperdir=upper,workdir=work merged || exit 77; MIRRIX_ALIASES=\"$PWD\" exec \"$0\" \"$1\""_s;
            QProcess process;
            process.setWorkingDirectory(m_tree->path());
            process.start(u"unshare"_s, {u"-m"_s, u"sh"_s, u"-c"_s, script, QCoreApplication::applicationFilePath(),
                                         u"aliasOfOneFile:"_s + methodName(method)});
            process.waitForFinished();
            if (process.error() == QProcess::FailedToStart || process.exitCode() == 77)
                QSKIP("cannot mount an overlay");
            QVERIFY2(process.exitCode() == 0, process.readAll().constData());
            return;
        }
        CleaningPlan aliased = plan(method);
        aliased.items = {{scanned(root + u"/upper/file"_s), scanned(root + u"/merged/file"_s), {}, {}, true}};
        QVERIFY(aliased.items[0].file.identity.isOtherThan(aliased.items[0].kept.identity));
        for (const bool isTurned : {false, true}) {
            if (isTurned)
                std::swap(aliased.items[0].file, aliased.items[0].kept);
            const CleaningResult result = run(aliased);
            QCOMPARE(result.count, 0);
            QCOMPARE(result.space, Space());
            QCOMPARE(contentOf(root + u"/upper/file"_s), QByteArray("only\n"));
            QCOMPARE(contentOf(root + u"/merged/file"_s), QByteArray("only\n"));
            QCOMPARE(QDir(root + u"/upper"_s).entryList(QDir::Files | QDir::Hidden), QStringList(u"file"_s));
        }
    }

    void contraryPrograms_data() { methods(); }

    /// Each of two programs takes the other's kept file for surplus.
    void contraryPrograms()
    {
        QFETCH(CleaningMethod, method);
        if (!canLink(method))
            QSKIP("no symbolic links");
        constexpr int rounds = 25; // for each of eight methods
        const QByteArray content = patternBytes(200000);
        for (int round = 0; round < rounds; ++round) {
            const QString folder = u"round%1/"_s.arg(round);
            const ScannedFile one = scanned(m_tree->write(folder + u"one"_s, content));
            const ScannedFile other = scanned(m_tree->write(folder + u"other"_s, content));
            std::array<CleaningResult, 2> results;
            const auto clean = [&](size_t number) {
                CleaningPlan mine = plan(method);
                mine.backupFolder += QString::number(number);
                mine.targetFolder += QString::number(number) + QString::number(round);
                mine.items = {{number ? one : other, number ? other : one, {}, {}, true}};
                OperationsLog log(m_tree->path(u"data/log%1"_s.arg(number)));
                const RecycleBin bin = folderBin(m_tree->path(u"bin%1%2"_s.arg(number).arg(round)));
                results[number] = runCleaning(mine, {log, m_tree->path(u"data%1"_s.arg(number)), u"test"_s, bin});
            };
            std::thread second(clean, 1);
            clean(0);
            second.join();
            const auto isThere = [&](const ScannedFile &file) {
                const std::filesystem::path native = exactNative(file.path);
                return std::filesystem::is_regular_file(std::filesystem::symlink_status(native)) &&
                       contentOf(file.path) == content;
            };
            const int left = isThere(one) + isThere(other);
            QVERIFY2(left >= 1, qPrintable((results[0].errors + results[1].errors).join(u'\n')));
            QVERIFY(results[0].count + results[1].count <= 1);
            if (methodName(method) != u"hardlink"_s && methodName(method) != u"backup+hardlink"_s)
                QCOMPARE(left, 2 - results[0].count - results[1].count);
        }
    }

    void nothingUnrecorded_data() { methods(); }

    void nothingUnrecorded()
    {
        QFETCH(CleaningMethod, method);
        const DiskTree before = treeBelow(path("src"));
        m_tree->makeFolder(u"data/log/in the way"_s);
        CleaningResult result = run(plan(method));
        QCOMPARE(result.count, 0);
        QVERIFY(!result.errors.isEmpty());
        QCOMPARE(treeBelow(path("src")), before);
        QVERIFY(QDir(path("data")).removeRecursively());
        m_tree->write(u"store"_s, "a file in the way");
        result = run(plan(method));
        if (isBackingUp(method) || isDestroying(method)) {
            QCOMPARE(result.count, 0);
            QVERIFY(!result.errors.isEmpty());
            QCOMPARE(treeBelow(path("src")), before);
        }
    }

    /// A file with a name outside the run frees nothing; what is moved within a volume frees nothing.
    void space()
    {
        m_tree->write(u"src/linked"_s, "same");
        if (!m_tree->hardLink(u"src/linked"_s, u"src/outside"_s) || !m_tree->hardLink(u"src/copy"_s, u"src/copy2"_s))
            QSKIP("no hard links");
        const ScannedFile kept = scanned(path("src/kept"));
        const auto item = [&](const char *name) { return CleaningItem{scanned(path(name)), kept, {}, {}, true}; };
        CleaningPlan each = plan(CleaningMethod::Delete);
        each.items = {item("src/linked"), item("src/copy"), item("src/copy2")};
        QCOMPARE(estimatedSpace(each), (Space{4, 0, 0}));
        each.method = CleaningMethod::Backup;
        QCOMPARE(estimatedSpace(each), (Space{0, 4, 0}));
        each.method = CleaningMethod::Move;
        QCOMPARE(estimatedSpace(each), Space());
        each.method = CleaningMethod::Recycle;
        QCOMPARE(estimatedSpace(each), (Space{0, 0, 4}));
        each.method = CleaningMethod::Delete;
        QCOMPARE(run(each).space, (Space{4, 0, 0}));
        QFile sparse(path("src/sparse"));
        QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.resize(1 << 20));
        sparse.close();
        if (pathState(sparse.fileName()).allocatedBytes != 0)
            QSKIP("no holes");
        each.items = {item("src/sparse")};
        each.items[0].isEqualContent = false;
        QCOMPARE(estimatedSpace(each), Space());
        QCOMPARE(run(each).count, 1);
        QCOMPARE(run(each).space, Space());
    }

    void putAwayCopiesAreNotKept()
    {
        MirrixCore::DuplicateGroup group;
        for (const FilePlace place : {FilePlace::RecycleBin, FilePlace::Ordinary, FilePlace::BackupFolder,
                                      FilePlace::Ordinary, FilePlace::Snapshot}) {
            FileEntry file;
            file.path = u"/x/%1"_s.arg(group.files.size());
            file.modifiedMs = 1000 - group.files.size();
            file.place = place;
            group.files.append(file);
        }
        const GroupChoice newest = chooseInGroup(group.files, KeepRule::Newest);
        QCOMPARE(newest.kept, 1);
        QCOMPARE(newest.surplus, QList<qsizetype>{3});
        QCOMPARE(chooseInGroup(group.files, KeepRule::Oldest).kept, 3);
        group.files.removeAt(3);
        QVERIFY(chooseInGroup(group.files, KeepRule::Oldest).surplus.isEmpty());
        group.files.removeAt(1);
        QCOMPARE(chooseInGroup(group.files, KeepRule::Oldest).kept, -1);
        QVERIFY(surplusByRule({group}, KeepRule::Newest).isEmpty());
    }

    void filesOfOneNameAreOneJob_data() { methods(); }

    /// Files that a location lists for their names alone have different contents, and are given up as any others.
    void filesOfOneNameAreOneJob()
    {
        QFETCH(CleaningMethod, method);
        if (!canLink(method))
            QSKIP("no symbolic links");
        m_tree->write(u"src/one/name"_s, "older");
        m_tree->setModified(u"src/one/name"_s, 1234567890123);
        m_tree->write(u"src/other/name"_s, "newer content");
        MirrixCore::ScanOptions options;
        options.roots = {path("src")};
        options.readFileIdentity = true;
        options.locations = {{path("src"), true, static_cast<qint32>(MirrixCore::FindKind::NameDuplicates), false}};
        CleaningPlan named = plan(method);
        named.items = surplusByRule(MirrixCore::DuplicateScanner::scan(options, {}, {}).groups, KeepRule::Newest);
        QCOMPARE(named.items.size(), 1);
        const CleaningResult result = run(named);
        QCOMPARE(result.errors, QStringList());
        QCOMPARE(result.count, 1);
        QCOMPARE(contentOf(path("src/one/name")), isLinking(method) ? QByteArray("newer content") : QByteArray());
        QCOMPARE(contentOf(path("src/other/name")), QByteArray("newer content"));
    }

    void emptyFoldersOnly()
    {
        const QStringList kept = {m_tree->path(u"src"_s), m_tree->path(u"src/kept"_s), m_tree->path(u"none"_s),
                                  m_tree->path(u"link"_s)};
        const QString empty = m_tree->makeFolder(u"empty"_s);
        const bool hasLink = m_tree->symbolicLink(u"empty"_s, u"link"_s);
        m_tree->write(u"no folder"_s, {});
        OperationsLog unwritable(path("no folder/log"));
        QCOMPARE(removeEmptyFolders({empty}, {unwritable, path("data"), u"test"_s}).count, 0);
        QVERIFY(QFileInfo::exists(empty));
        OperationsLog log(path("data/log"));
        const CleaningResult result = removeEmptyFolders(kept + QStringList{empty}, {log, path("data"), u"test"_s});
        QCOMPARE(result.count, 1);
        QCOMPARE(result.errors.size(), 4);
        QVERIFY(!QFileInfo::exists(empty) && QFileInfo::exists(path("src/kept")));
        QVERIFY(!hasLink || QFileInfo(path("link")).isSymLink());
    }

private:
    static void methods()
    {
        const auto row = columns<CleaningMethod>({"method"});
        for (const CleaningMethod method : allMethods)
            row(qPrintable(methodName(method)), method);
    }
    [[nodiscard]] QString path(const char *name) const { return m_tree->path(QLatin1String(name)); }
    [[nodiscard]] bool canLink(CleaningMethod method) const
    {
        const bool isSymbolic =
            method == CleaningMethod::SymbolicLink || method == CleaningMethod::BackupAndSymbolicLink;
        return !isSymbolic || m_tree->symbolicLink(u"src/kept"_s, u"probe"_s);
    }
    [[nodiscard]] CleaningPlan plan(CleaningMethod method) const
    {
        CleaningPlan plan;
        plan.method = method;
        plan.targetFolder = path("target");
        plan.backupFolder = path("store");
        plan.comparesWholeContents = m_comparesWholeContents;
        plan.items = {{scanned(path("src/copy")), scanned(path("src/kept")), {}, {}, true}};
        return plan;
    }
    [[nodiscard]] CleaningResult run(const CleaningPlan &plan, const BatchProgress &progress = {}) const
    {
        OperationsLog log(path("data/log"));
        return runCleaning(plan, {log, path("data"), u"test"_s, folderBin(path("bin"))}, progress);
    }

    std::unique_ptr<TempTree> m_tree;
    bool m_comparesWholeContents = true;
};

QTEST_GUILESS_MAIN(CleaningTest)
#include "tst_cleaning.moc"
