#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/emptyfolderremoval.h"
#include "actions/records/operationslog.h"
#include "core/scan/duplicatescanner.h"
#include "tests/actions/actiontest.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <set>
#include <thread>

using MirrixCore::FileEntry;
using MirrixCore::FilePlace;

namespace {

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

class CleaningTest : public ActionTest
{
    Q_OBJECT

private slots:
    void init()
    {
        renew();
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
        QVERIFY(keptName == u"kept" || QFile::rename(at(u"src/kept"_s), at(u"src/"_s + keptName)));
        const DiskTree before = treeAt(u"src"_s);
        DiskTree expected = before;
        const QByteArray copy = expected.take(u"copy"_s);
        const bool isSymbolic = methodName(method).endsWith(u"symlink"_s);
        if (isLinking(method))
            expected[u"copy"_s] = (isSymbolic ? "link to " : "") + expected[keptName];
        CleaningPlan made = plan(method);
        made.items[0].kept = scanned(at(u"src/"_s + keptName));
        const CleaningResult result = run(made);
        QCOMPARE(result.errors, QStringList());
        QCOMPARE(result.count, 1);
        QCOMPARE(treeAt(u"src"_s), expected);
        if (method == CleaningMethod::SymbolicLink && namesAreBytes)
            QCOMPARE(QString::fromStdString(std::filesystem::read_symlink(exactNative(at(u"src/copy"_s))).string()),
                     keptName);
        QCOMPARE(treeAt(u"bin"_s).value(u"copy"_s), method == CleaningMethod::Recycle ? copy : QByteArray());
        QCOMPARE(treeAt(u"target"_s).value(u"copy"_s), method == CleaningMethod::Move ? copy : QByteArray());
        const QList<BackupEntry> kept = restorableEntries(at(u"store"_s));
        QCOMPARE(kept.size(), isBackingUp(method) ? 1 : 0);
        if (!kept.isEmpty()) {
            QFile::remove(at(u"src/copy"_s));
            QVERIFY(restoreBackup(at(u"store"_s), kept.constFirst()));
            QCOMPARE(treeAt(u"src"_s), before);
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
        QFile early(event == u"kept open" ? at(u"src/kept"_s) : at(u"src/copy"_s));
        QVERIFY(!event.endsWith(u"open"_s) || early.open(QIODevice::ReadWrite));
        int asked = 0;
        bool hasActed = false;
        const CleaningResult result = run(plan(method), [&](qsizetype, qsizetype) {
            const QStringList aside = QDir(at(u"src"_s)).entryList({u".mirrix-*"_s}, QDir::Files | QDir::Hidden);
            const bool isComparing = isDestroying(method) ? !aside.isEmpty() : ++asked == 2;
            if (!isComparing || hasActed)
                return true;
            hasActed = true;
            const QString surplus = aside.isEmpty() ? at(u"src/copy"_s) : at(u"src/"_s) + aside.constFirst();
            if (event == u"kept removed" || event == u"kept replaced")
                static_cast<void>(QFile::remove(at(u"src/kept"_s)));
            if (event == u"kept replaced" && !QFile::exists(at(u"src/kept"_s)))
                m_tree->write(u"src/kept"_s, "new");
            if (event.endsWith(u"written"_s))
                write(event.startsWith(u"kept"_s) ? at(u"src/kept"_s) : surplus);
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
        const std::set<QByteArray> found = contentsBelow(at());
        if (result.count == 1 && !early.isOpen() && contents.size() > 1) // written when everything was over
            contents.erase(found.count(edited) > 0 ? content : edited);
        for (const QByteArray &each : contents)
            QVERIFY2(found.count(each) > 0, qPrintable(u"lost; said: "_s + result.errors.join(u'\n')));
        const bool isAtHome = contentOf(at(u"src/copy"_s)).size() == content.size();
        QVERIFY(result.count == 1 || (isAtHome && !result.errors.isEmpty()));
        QCOMPARE(QDir(at(u"src"_s)).entryList({u".mirrix-*"_s}, QDir::Files | QDir::Hidden), QStringList());
        QCOMPARE(restorableEntries(at(u"store"_s)).size(), isBackingUp(method) ? result.count : 0);
    }

    void leavesAlone_data()
    {
        const auto row = columns<QString>({"message"}); // %1: the surplus file
        const QString changed = u"文件在扫描后已更改，已保留: %1"_s;
        const QString keptChanged = u"要保留的文件已更改，未处理: %1"_s;
        const QString differs = u"内容与要保留的文件不同，已保留: %1"_s;
        row("rm copy", u"文件不存在: %1"_s);
        row("longer copy", changed);
        row("link copy", changed);
        row("rm kept", keptChanged);
        row("longer kept", keptChanged);
        row("hardlink", u"与要保留的文件可能是同一个文件，未处理: %1"_s);
        row("sneak copy", differs); // other content of the same size and time
        row("sneak kept", differs);
    }

    /// By every method, whatever the setting on whole contents.
    void leavesAlone()
    {
        const QString change = QString::fromLatin1(QTest::currentDataTag());
        QFETCH(QString, message);
        const QString verb = change.section(u' ', 0, 0);
        const QString name = u"src/"_s + change.section(u' ', 1);
        if (verb == u"hardlink" &&
            !(QFile::remove(at(u"src/copy"_s)) && m_tree->hardLink(u"src/kept"_s, u"src/copy"_s)))
            QSKIP("no hard links");
        const CleaningPlan made = plan(CleaningMethod::Delete);
        if (verb == u"rm" || verb == u"link")
            QVERIFY(QFile::remove(at(name)));
        if (verb == u"link" && !m_tree->symbolicLink(u"src/kept"_s, name))
            QSKIP("no symbolic links");
        if (verb == u"longer")
            m_tree->write(name, "longer");
        if (verb == u"sneak") {
            const qint64 modifiedMs = MirrixCore::fileStatus(at(name)).modifiedMs;
            m_tree->write(name, "diff");
            m_tree->setModified(name, modifiedMs);
        }
        const DiskTree before = treeAt(u"src"_s);
        for (const CleaningMethod method : allMethods) {
            for (const bool isWhole : {false, true}) {
                CleaningPlan tried = made;
                tried.method = method;
                tried.comparesWholeContents = isWhole;
                const CleaningResult result = run(tried);
                QCOMPARE(treeAt(u"src"_s), before);
                QCOMPARE(result.count, 0);
                QVERIFY(restorableEntries(at(u"store"_s)).isEmpty());
                const bool isLinkToNothing = isLinking(method) && result.errors.constFirst().contains(u"链接目标"_s);
                QVERIFY2(isLinkToNothing || result.errors == QStringList(message.arg(at(u"src/copy"_s))),
                         qPrintable(result.errors.join(u'\n')));
            }
        }
    }

    void targetHoldsTheFile()
    {
        const bool hasLink = m_tree->symbolicLink(u"src"_s, u"link"_s);
        const DiskTree before = treeAt(u"src"_s);
        for (const QString &target : {u"src"_s, QString(), u"SRC"_s, hasLink ? u"link"_s : u"src"_s}) {
            if (!QFileInfo::exists(at(target)))
                continue; // letter case matters here
            for (const CleaningMethod method :
                 {CleaningMethod::Move, CleaningMethod::Backup, CleaningMethod::BackupAndHardLink}) {
                CleaningPlan held = plan(method);
                held.targetFolder = at(target);
                held.backupFolder = held.targetFolder;
                const CleaningResult result = run(held);
                QCOMPARE(result.errors, QStringList(u"目标文件夹包含该文件，未处理: "_s + at(u"src/copy"_s)));
                QCOMPARE(result.count, 0);
                DiskTree after = treeAt(u"src"_s);
                after.remove(u"backup_index.json"_s);
                QCOMPARE(after, before);
            }
        }
    }

    void aliasOfOneFile_data() { methodRows(); }

    /// A folder and an overlay of it show one file under two device numbers.
    void aliasOfOneFile()
    {
        QFETCH(CleaningMethod, method);
        MIRRIX_IN_SCENE(
            "MIRRIX_ALIASES",
            "cd \"$0\" && mkdir lower upper work merged && echo only >upper/file && mount -t overlay overlay "
            "-o lowerdir=lower,upperdir=upper,workdir=work merged || exit 77; "
            "MIRRIX_ALIASES=\"$PWD\" exec \"$@\"");
        const QString root = qEnvironmentVariable("MIRRIX_ALIASES");
        CleaningPlan aliased = plan(method);
        aliased.items = {{scanned(root + u"/upper/file"_s), scanned(root + u"/merged/file"_s), {}, {}, true}};
        QVERIFY(aliased.items[0].file.identity.isOtherThan(aliased.items[0].kept.identity));
        for (const bool isTurned : {false, true}) {
            if (isTurned)
                std::swap(aliased.items[0].file, aliased.items[0].kept);
            const CleaningResult result = run(aliased);
            QCOMPARE(result.count, 0);
            QCOMPARE(result.space, Space());
            QCOMPARE(contentOf(root + u"/upper/file"_s), "only\n");
            QCOMPARE(contentOf(root + u"/merged/file"_s), "only\n");
            QCOMPARE(QDir(root + u"/upper"_s).entryList(QDir::Files | QDir::Hidden), QStringList(u"file"_s));
        }
    }

    void contraryPrograms_data() { methodRows(); }

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
                OperationsLog log(at(u"data/log%1"_s.arg(number)));
                const RecycleBin bin = folderBin(at(u"bin%1%2"_s.arg(number).arg(round)));
                results[number] = runCleaning(mine, {log, at(u"data%1"_s.arg(number)), u"test"_s, bin});
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

    void nothingUnrecorded_data() { methodRows(); }

    void nothingUnrecorded()
    {
        QFETCH(CleaningMethod, method);
        const DiskTree before = treeAt(u"src"_s);
        m_tree->makeFolder(u"data/log/in the way"_s);
        CleaningResult result = run(plan(method));
        QCOMPARE(result.count, 0);
        QVERIFY(!result.errors.isEmpty());
        QCOMPARE(treeAt(u"src"_s), before);
        QVERIFY(QDir(at(u"data"_s)).removeRecursively());
        m_tree->write(u"store"_s, "a file in the way");
        result = run(plan(method));
        if (isBackingUp(method) || isDestroying(method)) {
            QCOMPARE(result.count, 0);
            QVERIFY(!result.errors.isEmpty());
            QCOMPARE(treeAt(u"src"_s), before);
        }
    }

    /// A file with a name outside the run frees nothing; what is moved within a volume frees nothing.
    void space()
    {
        m_tree->write(u"src/linked"_s, "same");
        if (!m_tree->hardLink(u"src/linked"_s, u"src/outside"_s) || !m_tree->hardLink(u"src/copy"_s, u"src/copy2"_s))
            QSKIP("no hard links");
        const ScannedFile kept = scanned(at(u"src/kept"_s));
        const auto item = [&](const QString &name) { return CleaningItem{scanned(at(name)), kept, {}, {}, true}; };
        CleaningPlan each = plan(CleaningMethod::Delete);
        each.items = {item(u"src/linked"_s), item(u"src/copy"_s), item(u"src/copy2"_s)};
        for (const auto &[method, space] : {std::pair(CleaningMethod::Backup, Space{0, 4, 0}),
                                            {CleaningMethod::Move, Space()},
                                            {CleaningMethod::Recycle, Space{0, 0, 4}},
                                            {CleaningMethod::Delete, Space{4, 0, 0}}}) {
            each.method = method;
            QCOMPARE(estimatedSpace(each), space);
        }
        QCOMPARE(run(each).space, (Space{4, 0, 0}));
        QFile sparse(at(u"src/sparse"_s));
        QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.resize(1 << 20));
        sparse.close();
        if (pathState(sparse.fileName()).allocatedBytes != 0)
            QSKIP("no holes");
        each.items = {item(u"src/sparse"_s)};
        each.items[0].isEqualContent = false;
        QCOMPARE(estimatedSpace(each), Space());
        QCOMPARE(run(each).count, 1);
        QCOMPARE(run(each).space, Space());
    }

    void filesOfOneNameAreOneJob_data() { methodRows(); }

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
        options.roots = {at(u"src"_s)};
        options.readFileIdentity = true;
        options.locations = {{at(u"src"_s), true, static_cast<qint32>(MirrixCore::FindKind::NameDuplicates), false}};
        CleaningPlan named = plan(method);
        named.items = surplusByRule(MirrixCore::DuplicateScanner::scan(options, {}, {}).groups, KeepRule::Newest);
        QCOMPARE(named.items.size(), 1);
        const CleaningResult result = run(named);
        QCOMPARE(result.errors, QStringList());
        QCOMPARE(result.count, 1);
        QCOMPARE(contentOf(at(u"src/one/name"_s)), isLinking(method) ? "newer content" : "");
        QCOMPARE(contentOf(at(u"src/other/name"_s)), "newer content");
    }

    void emptyFoldersOnly()
    {
        const QStringList kept = {at(u"src"_s), at(u"src/kept"_s), at(u"none"_s), at(u"link"_s)};
        const QString empty = m_tree->makeFolder(u"empty"_s);
        const bool hasLink = m_tree->symbolicLink(u"empty"_s, u"link"_s);
        m_tree->write(u"no folder"_s, {});
        OperationsLog unwritable(at(u"no folder/log"_s));
        QCOMPARE(removeEmptyFolders({empty}, {unwritable, at(u"data"_s), u"test"_s}).count, 0);
        QVERIFY(QFileInfo::exists(empty));
        OperationsLog log(at(u"data/log"_s));
        const CleaningResult result = removeEmptyFolders(kept + QStringList{empty}, {log, at(u"data"_s), u"test"_s});
        QCOMPARE(result.count, 1);
        QCOMPARE(result.errors.size(), 4);
        QVERIFY(!QFileInfo::exists(empty) && QFileInfo::exists(at(u"src/kept"_s)));
        QVERIFY(!hasLink || QFileInfo(at(u"link"_s)).isSymLink());
    }

private:
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
        plan.targetFolder = at(u"target"_s);
        plan.backupFolder = at(u"store"_s);
        plan.comparesWholeContents = m_comparesWholeContents;
        plan.items = {{scanned(at(u"src/copy"_s)), scanned(at(u"src/kept"_s)), {}, {}, true}};
        return plan;
    }
    [[nodiscard]] CleaningResult run(const CleaningPlan &plan, const BatchProgress &progress = {}) const
    {
        OperationsLog log(at(u"data/log"_s));
        return runCleaning(plan, {log, at(u"data"_s), u"test"_s, folderBin(at(u"bin"_s))}, progress);
    }

    bool m_comparesWholeContents = true;
};

QTEST_GUILESS_MAIN(CleaningTest)
#include "tst_cleaning.moc"
