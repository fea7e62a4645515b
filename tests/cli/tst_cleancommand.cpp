#include "tests/support/disk.h"
#include "tests/support/probes.h"
#include "tests/support/program.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QScopeGuard>
#include <QTest>

#include <memory>
#include <tuple>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

class CleanCommandTest : public QObject
{
    Q_OBJECT

private slots:
    /// Three equal files, "b" the oldest and so the one that stays, and one of its own.
    void init()
    {
        m_tree = std::make_unique<TempTree>();
        m_program = std::make_unique<Program>();
        qint64 modifiedMs = 1234567890123;
        for (const QString &name : {u"src/b"_s, u"src/deep/日本"_s, u"src/a"_s}) {
            m_tree->write(name, "content");
            m_tree->setModified(name, modifiedMs += 60000);
        }
        m_tree->write(u"src/other"_s, "CONTENT");
    }

    void onlyTellsWithoutApply()
    {
        const DiskTree before = source();
        const ProgramRun told = clean(u"delete"_s);
        QCOMPARE(told.errors, QByteArray());
        QCOMPARE(told.status, 0);
        QList<QByteArray> lines = told.output.split('\n');
        std::sort(lines.begin() + 1, lines.begin() + 3);
        const QByteArray folder = m_tree->path(u"src/"_s).toUtf8();
        QCOMPARE(lines,
                 (QList<QByteArray>{
                     "keep " + folder + "b", "  delete " + folder + "a", "  delete " + folder + "deep/日本",
                     "2 files, 14 B (frees 14 B). Nothing was changed; run again with --apply to do this.", ""}));
        QCOMPARE(source(), before);
        QCOMPARE(logged(), QStringList());
    }

    void methods_data()
    {
        const auto row = columns<QString>({"record"});
        row("delete", u"remove_batch: method=1 count=2"_s);
        row("move", u"remove_batch: method=2 count=2"_s);
        row("symlink", u"remove_batch: method=3 count=2"_s);
        row("hardlink", u"remove_batch: method=4 count=2"_s);
        row("backup", u"backup_batch: count=2"_s);
    }

    void methods()
    {
        QFETCH(QString, record);
        const QString method = QString::fromLatin1(QTest::currentDataTag());
        if (method == u"symlink"_s && !m_tree->symbolicLink(u"src/b"_s, u"probe"_s))
            QSKIP("no symbolic links");
        DiskTree expected = source();
        for (const QString &name : {u"a"_s, u"deep/日本"_s}) {
            if (method.endsWith(u"link"_s))
                expected[name] = (method == u"symlink"_s ? "link to " : "") + expected[u"b"_s];
            else
                expected.remove(name);
        }
        QStringList more = {u"--apply"_s};
        if (method == u"move"_s || method == u"backup"_s)
            more += {u"--target"_s, m_tree->path(u"src/away"_s)}; // below the folder that is scanned
        const ProgramRun done = clean(method, more);
        QCOMPARE(done.errors, QByteArray());
        QCOMPARE(done.status, 0);
        DiskTree after = source();
        const qsizetype away = after.removeIf([](const auto &file) { return file.key().startsWith(u"away/"_s); });
        QCOMPARE(after, expected);
        QCOMPARE(away, method == u"move"_s ? 2 : method == u"backup"_s ? 3 : 0);
        QCOMPARE(logged(), (QStringList{u"scan_start: "_s + m_tree->path(u"src"_s),
                                        u"scan_done: groups=1 wasted=14 candidates=4"_s, u"auto_keep: rule=1 count=2"_s,
                                        record}));
        const QStringList said = QString::fromUtf8(run({u"log"_s}).output).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(said.size(), 4);
        QVERIFY2(said[1].endsWith(u"  scan finished: 1 group, 14 B reclaimable"_s), qPrintable(said[1]));
        QVERIFY2(said[2].endsWith(u"  surplus files chosen: 2 files, keeping the oldest"_s), qPrintable(said[2]));
        QVERIFY2(said[3].endsWith(u": 2 files"_s) && !said[3].contains(u"_batch"_s), qPrintable(said[3]));
        const ProgramRun again = clean(method, more);
        QCOMPARE(again.output, QByteArray("0 of 0 files processed (" + method.toLatin1() + ")\n"));
    }

    void longPaths_data()
    {
        const auto row = columns<QByteArray>({"cleaned"});
        const QByteArray kept = "kept 100640 1000000007 ";
        for (const char *method : {"delete", "recycle", "move", "backup"})
            row(method, kept + "1 deep\n.");
        row("symlink", QByteArray("copy leads to kept\n" + kept + "1 deep\n."));
        row("hardlink", "copy" + kept.mid(4) + "2 deep\n" + kept + "2 deep\n.");
    }

    /// Files whose path is longer than what the system takes in one call.
    void longPaths()
    {
        QFETCH(QByteArray, cleaned);
        const QByteArray look = "import os\n"
                                "while os.path.isdir('d' * 200): os.chdir('d' * 200)\n"
                                "for name in sorted(os.listdir()):\n"
                                "    info = os.lstat(name)\n"
                                "    if os.path.islink(name): print(name, 'leads to', os.readlink(name))\n"
                                "    else: print(name, '%o %d' % (info.st_mode, info.st_mtime_ns), info.st_nlink, "
                                "open(name).read())\n";
        const auto removal = qScopeGuard([&] { QProcess::execute(u"rm"_s, {u"-rf"_s, m_tree->path(u"src"_s)}); });
        const QByteArray before = script("import os\n"
                                         "for level in range(26):\n"
                                         "    os.mkdir('d' * 200)\n"
                                         "    os.chdir('d' * 200)\n"
                                         "for name in ('kept', 'copy'):\n"
                                         "    open(name, 'w').write('deep')\n"
                                         "    os.chmod(name, 0o640)\n"
                                         "    os.utime(name, ns=(1, 1000000007 if name == 'kept' else 2000000007))\n" +
                                         look.mid(look.indexOf("for")));
        if (before.isNull())
            QSKIP("no such paths here");
        const QString method = QString::fromLatin1(QTest::currentDataTag());
        const bool takesTarget = method == u"move"_s || method == u"backup"_s;
        const ProgramRun done =
            clean(method, QStringList(u"--apply"_s) +
                              (takesTarget ? QStringList{u"--target"_s, m_tree->path(u"away"_s)} : QStringList()));
        QCOMPARE(done.errors, QByteArray());
        QCOMPARE(script(look), cleaned);
        const ProgramRun undone = run({u"undo"_s, u"last"_s, u"--apply"_s});
        QCOMPARE(undone.errors, QByteArray());
        QCOMPARE(script(look), before);
        if (method != u"backup"_s)
            return;
        QCOMPARE(clean(method, {u"--apply"_s}).status, 0);
        QCOMPARE(run({u"restore"_s, u"--all"_s}).output, QByteArray("3 of 3 files restored\n"));
        QCOMPARE(script(look), before);
    }

    void backUpAndRestoreAll()
    {
        const DiskTree before = source();
        QCOMPARE(clean(u"backup"_s, {u"--apply"_s}).status, 0);
        QCOMPARE(source().size(), 2);
        const ProgramRun list = run({u"restore"_s});
        QCOMPARE(list.output.count("  <-  " + m_program->dataFolder().toUtf8() + "/Backup/"), 2);
        const ProgramRun restored = run({u"restore"_s, u"--all"_s});
        QCOMPARE(restored.output, QByteArray("2 of 2 files restored\n"));
        QCOMPARE(restored.status, 0);
        QCOMPARE(source(), before);
        QStringList lines = logged(4);
        for (const QByteArray &line : list.output.trimmed().split('\n'))
            QVERIFY(lines.removeOne(u"restore: "_s + QString::fromUtf8(line.trimmed())));
        QVERIFY(lines.isEmpty());
        QCOMPARE(run({u"restore"_s}).output, QByteArray());
    }

    /// The latest backup of a path comes back; the earlier one stays where it is.
    void restoreChosen()
    {
        const QString path = m_tree->path(u"src/a"_s);
        QCOMPARE(clean(u"backup"_s, {u"--apply"_s}).status, 0);
        m_tree->write(u"src/a"_s, "CONTENT");
        QCOMPARE(clean(u"backup"_s, {u"--apply"_s}).status, 0);
        const ProgramRun restored = run({u"restore"_s, path, u"nothing"_s});
        QCOMPARE(restored.errors, QByteArray("mirrix-cli: nothing: not in the backup folder\n"));
        QCOMPARE(restored.status, 1);
        QCOMPARE(contentOf(path), QByteArray("CONTENT"));
        const ProgramRun occupied = run({u"restore"_s, path});
        QCOMPARE(occupied.errors,
                 "mirrix-cli: A file already exists at the original path; restore cancelled: " + path.toUtf8() + '\n');
        QCOMPARE(contentOf(path), QByteArray("CONTENT"));
    }

    void emptyFolders()
    {
        for (const QString &folder :
             {u"src/e/f/g"_s, u"src/full/e"_s, u"src/repo.git/refs"_s, u"src/.svn"_s, u"src/out"_s})
            m_tree->makeFolder(folder);
        m_tree->write(u"src/full/.hidden"_s, "x");
        const bool hasLink = m_tree->symbolicLink(u"src/out"_s, u"src/linked/link"_s);
        const QStringList arguments = {u"clean"_s, u"--empty-folders"_s, u"--exclude"_s, m_tree->path(u"src/out"_s),
                                       m_tree->path(u"src"_s)};
        const QString folder = m_tree->path(u"src/"_s);
        const ProgramRun told = run(arguments);
        QCOMPARE(QString::fromUtf8(told.output).remove(folder),
                 u"remove full/e\nremove e/f/g\nremove e/f\nremove e\n4 empty folders. Nothing was changed; run again "
                 "with --apply to do this.\n"_s);
        QVERIFY(QFileInfo::exists(folder + u"e/f/g"_s));
        std::filesystem::permissions(exactNative(folder + u"e/f"_s), std::filesystem::perms(0710));
        const QStringList paths = {u"full/e"_s, u"e/f/g"_s, u"e/f"_s, u"e"_s};
        const QByteArray before = folderMarks(paths);
        const ProgramRun done = run(arguments + QStringList(u"--apply"_s));
        QCOMPARE(done.output, "4 of 4 empty folders removed\n");
        QCOMPARE(done.status, 0);
        for (const QString &gone : {u"e"_s, u"full/e"_s})
            QVERIFY2(!QFileInfo::exists(folder + gone), qPrintable(gone));
        for (const QString &kept : {u"full/.hidden"_s, u"repo.git/refs"_s, u".svn"_s, u"out"_s, u"other"_s})
            QVERIFY2(QFileInfo::exists(folder + kept), qPrintable(kept));
        QVERIFY(!hasLink || QFileInfo(folder + u"linked/link"_s).isSymLink());
        QCOMPARE(logged(), QStringList({u"empty_folders: "_s + folder + paths.join(u'|' + folder),
                                        u"empty_folders_removed: count=4 of=4"_s}));
        QVERIFY(run({u"history"_s}).output.contains(" empty-folders            4/4 files"));
        const ProgramRun undone = run({u"undo"_s, u"last"_s, u"--apply"_s});
        QVERIFY(undone.output.startsWith("4 of 4 files undone"));
        QCOMPARE(undone.errors, QByteArray());
        QCOMPARE(folderMarks(paths), before);
        const QString undo = QString::fromLatin1(undone.output.mid(undone.output.indexOf("(run ") + 5, 20));
        QVERIFY(run({u"undo"_s, undo, u"--apply"_s}).output.startsWith("4 of 4 files undone"));
        QVERIFY(!QFileInfo::exists(folder + u"e"_s) && !QFileInfo::exists(folder + u"full/e"_s));
        QCOMPARE(run({u"clean"_s, u"--empty-folders"_s, u"--keep"_s, u"newest"_s, folder}).errors,
                 usageErrorText(u"--keep cannot be used with --empty-folders"_s));
    }

    void emptyFiles_data()
    {
        const auto row = columns<QString>({"method"});
        for (const char *method : {"delete", "recycle", "move", "backup"})
            row(method, QString::fromLatin1(method));
    }

    void emptyFiles()
    {
        QFETCH(QString, method);
        for (const QString &name : {u"src/none"_s, u"src/deep/nothing"_s, u"src/.git/none"_s})
            m_tree->write(name, {});
        m_tree->setModified(u"src/none"_s, 1234567890000);
        const DiskTree before = source();
        QStringList arguments = {u"clean"_s, u"--empty-files"_s, u"--method"_s, method};
        if (method == u"move"_s || method == u"backup"_s)
            arguments += {u"--target"_s, m_tree->path(u"away"_s)};
        arguments.append(m_tree->path(u"src"_s));
        QVERIFY(run(arguments).output.contains("\n2 files, 0 B"));
        QCOMPARE(source(), before);
        const ProgramRun done = run(arguments + QStringList(u"--apply"_s));
        QCOMPARE(done.errors, QByteArray());
        QVERIFY(done.output.startsWith("2 of 2 files processed"));
        DiskTree left = before;
        left.removeIf(
            [](const auto &file) { return file.value().startsWith(" @") && !file.key().startsWith(u".git/"_s); });
        QCOMPARE(left.size(), before.size() - 2);
        QCOMPARE(source(), left);
        const ProgramRun undone = run({u"undo"_s, u"last"_s, u"--apply"_s});
        QCOMPARE(undone.errors, QByteArray());
        QCOMPARE(source(), before);
        const QString undo = QString::fromLatin1(undone.output.mid(undone.output.indexOf("(run ") + 5, 20));
        QVERIFY(run({u"undo"_s, undo, u"--apply"_s}).output.startsWith("2 of 2 files undone"));
        QCOMPARE(source(), left);
    }

    void failuresAreNamed()
    {
        m_tree->write(u"away/a"_s, "in the way");
        const ProgramRun done = clean(u"move"_s, {u"--apply"_s, u"--target"_s, m_tree->path(u"away"_s)});
        QCOMPARE(done.errors, "mirrix-cli: Destination already exists: " + m_tree->path(u"away/a"_s).toUtf8() + '\n');
        QCOMPARE(done.output, QByteArray("1 of 2 files processed (move); frees 0 B\n"));
        QCOMPARE(done.status, 1);
        QCOMPARE(source().keys(), (QStringList{u"a"_s, u"b"_s, u"other"_s}));
    }

    /// A polite request to end that arrives while the first file moves: that one is finished, listed and logged.
    void interrupted()
    {
        ProgramRun done;
        if (!traced(u"backup"_s,
                    {u"-o"_s, u"/dev/null"_s, u"-e"_s, u"trace=renameat2"_s, u"-e"_s,
                     u"inject=renameat2:signal=SIGTERM:when=1"_s},
                    done))
            QSKIP("cannot trace processes");
        QCOMPARE(done.errors, QByteArray("mirrix-cli: cancelled\n"));
        QCOMPARE(done.status, 3);
        QCOMPARE(source().size(), 3);
        QCOMPARE(run({u"restore"_s}).output.count("\n"), 1);
        QCOMPARE(logged(3), QStringList{u"backup_batch: count=1"_s});
    }

    /// What an index that cannot be read now lists would be lost to its owners, were it written anew.
    void unreadableIndexStays()
    {
        QCOMPARE(clean(u"backup"_s, {u"--apply"_s}).status, 0);
        m_tree->write(u"src/late"_s, "CONTENT");
        m_tree->write(u"src/later"_s, "CONTENT");
        const QString index = m_program->dataFolder() + u"/Backup/backup_index.json"_s;
        const QByteArray before = contentOf(index);
        const DiskTree source = this->source();
        ProgramRun done;
        if (!traced(u"backup"_s, {u"-o"_s, u"/dev/null"_s, u"-P"_s, index, u"-e"_s, u"inject=openat:error=EIO"_s},
                    done))
            QSKIP("cannot trace processes");
        QCOMPARE(done.status, 1);
        QCOMPARE(this->source(), source);
        QVERIFY(!before.isEmpty());
        QCOMPARE(contentOf(index), before);
    }

    /// Two programs share the backup folder, the caches and the log.
    void twoAtOnce()
    {
        constexpr int pairs = 60;
        for (int side = 0; side < 2; ++side) {
            for (int i = 0; i < pairs; ++i) {
                for (const QString &folder : {u"keep"_s, u"copy"_s})
                    m_tree->write(u"side%1/%2/%3"_s.arg(side).arg(folder).arg(i), "content " + QByteArray::number(i));
            }
        }
        const DiskTree before = treeBelow(m_tree->path());
        QProcess processes[2];
        for (int side = 0; side < 2; ++side) {
            m_program->prepare(processes[side],
                               {u"clean"_s, u"--data-dir"_s, m_program->dataFolder(), u"--keep"_s, u"shallowest"_s,
                                u"--method"_s, u"backup"_s, u"--apply"_s, m_tree->path(u"side%1"_s.arg(side))});
        }
        for (QProcess &process : processes)
            process.start();
        for (QProcess &process : processes) {
            const ProgramRun done = Program::ended(process);
            QCOMPARE(done.errors, QByteArray());
            QCOMPARE(done.output, QByteArray::number(pairs) + " of " + QByteArray::number(pairs) +
                                      " files processed (backup); frees 0 B, 590 B held in the backup folder\n");
        }
        QCOMPARE(run({u"restore"_s, u"--list"_s}).output.count('\n'), 2 * pairs);
        QCOMPARE(logged().filter(u"backup_batch: count=60"_s).size(), 2);
        QCOMPARE(run({u"restore"_s, u"--all"_s}).status, 0);
        QCOMPARE(treeBelow(m_tree->path()), before);
    }

    void rememberedDigestsDestroyNothing_data()
    {
        QTest::addColumn<QString>("written");
        for (const char *method : {"delete", "symlink", "hardlink"}) {
            QTest::addRow("%s, surplus", method) << u"src/a"_s;
            QTest::addRow("%s, keeper", method) << u"src/b"_s;
        }
    }

    /// A file that was written and given its old time and size again has the remembered digest of its old content.
    void rememberedDigestsDestroyNothing()
    {
        QFETCH(QString, written);
        const QString method = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
        if (method == u"symlink"_s && !m_tree->symbolicLink(u"src/b"_s, u"probe"_s))
            QSKIP("no symbolic links");
        QCOMPARE(clean(method).status, 0); // remembers
        const qint64 modifiedMs = QFileInfo(m_tree->path(written)).lastModified().toMSecsSinceEpoch();
        m_tree->write(written, "CoNtEnT");
        m_tree->setModified(written, modifiedMs);
        const DiskTree before = source();
        const bool isKeeper = written == u"src/b"_s;
        const ProgramRun done = clean(method, {u"--apply"_s});
        QCOMPARE(done.output, QByteArray(isKeeper ? "0" : "1") + " of 2 files processed (" + method.toLatin1() +
                                  "); frees " + (isKeeper ? "0" : "7") + " B\n");
        QCOMPARE(done.status, 1);
        DiskTree expected = before;
        if (!isKeeper && method == u"delete"_s)
            expected.remove(u"deep/日本"_s);
        else if (!isKeeper)
            expected[u"deep/日本"_s] = (method == u"symlink"_s ? "link to " : "") + before[u"b"_s];
        QCOMPARE(source(), expected);
    }

    void collidingDigestsMoveNothing_data()
    {
        const auto row = columns<QString>({"method"});
        for (const char *method : {"recycle", "delete", "move", "symlink", "hardlink", "backup"})
            row(method, QString::fromLatin1(method));
    }

    /// Two contents of one MD5, published by Wang and others in 2004, are a group to the scan and two files to the
    /// cleaner.
    void collidingDigestsMoveNothing()
    {
        QByteArray content = QByteArray::fromHex("d131dd02c5e6eec4693d9a0698aff95c2fcab58712467eab4004583eb8fb7f89"
                                                 "55ad340609f4b30283e488832571415a085125e8f7cdc99fd91dbdf280373c5b"
                                                 "d8823e3156348f5bae6dacd436c919c6dd53e2b487da03fd02396306d248cda0"
                                                 "e99f33420f577ee8ce54b67080a80d1ec69821bcb6a8839396f9652b6ff72a70");
        m_tree->write(u"src/collision/one"_s, content);
        for (const int place : {19, 45, 59, 83, 109, 123})
            content[place] = static_cast<char>(content[place] ^ 0x80);
        m_tree->write(u"src/collision/two"_s, content);
        QFETCH(QString, method);
        // Without the cache small files have no quick digests, which begin with the size and so do not collide.
        QStringList arguments = {u"clean"_s,    u"--no-cache"_s, u"--hash"_s,
                                 u"md5"_s,      u"--keep"_s,     u"newest"_s,
                                 u"--method"_s, method,          m_tree->path(u"src/collision"_s)};
        if (method == u"move"_s)
            arguments += {u"--target"_s, m_tree->path(u"away"_s)};
        const DiskTree before = source();
        QVERIFY(run(arguments).output.contains("\n1 file, 128 B"));
        const ProgramRun done = run(arguments + QStringList{u"--apply"_s});
        QVERIFY2(done.output.startsWith("0 of 1 files processed"), done.output.constData());
        QVERIFY2(done.errors.contains("Content differs from the file to keep"), done.errors.constData());
        QCOMPARE(done.status, 1);
        QCOMPARE(source(), before);
    }

    void twoPathsToOneFolder_data()
    {
        QTest::addColumn<bool>("isCollapsed");
        for (const char *method : {"delete", "backup", "move", "hardlink"}) {
            QTest::addRow("%s, collapsed", method) << true;
            QTest::addRow("%s, each path", method) << false;
        }
    }

    /// However many paths lead to a file, one copy of it stays.
    void twoPathsToOneFolder()
    {
        QFETCH(bool, isCollapsed);
        if (!m_tree->symbolicLink(u"src"_s, u"again"_s))
            QSKIP("no symbolic links");
        const DiskTree before = source();
        const QString method = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
        QStringList more = {u"--apply"_s, m_tree->path(u"again"_s)};
        if (method == u"backup"_s || method == u"move"_s)
            more += {u"--target"_s, m_tree->path(u"away"_s)};
        if (!isCollapsed)
            more += {u"--set"_s, u"collapseHardLinks=false"_s};
        const ProgramRun done = clean(method, more);
        QVERIFY(done.status == 0 || !isCollapsed);
        DiskTree after = source();
        QCOMPARE(after[u"other"_s], before[u"other"_s]);
        const auto isContent = [](const QByteArray &state) { return state.startsWith("content @"); };
        QVERIFY(std::any_of(after.begin(), after.end(), isContent));
        const DiskTree away = treeBelow(m_tree->path(u"away"_s));
        const qsizetype kept =
            std::count_if(after.begin(), after.end(), isContent) + std::count_if(away.begin(), away.end(), isContent);
        QCOMPARE(kept, method == u"delete"_s ? 1 : 3);
    }

    /// The kept file and its name are flushed before a copy of it goes, and no user's file is opened for writing.
    void keptFileIsOnTheDiskFirst()
    {
        const QString trace = m_tree->path(u"trace"_s);
        ProgramRun done;
        if (!traced(u"delete"_s,
                    {u"-y"_s, u"-o"_s, trace, u"-e"_s,
                     u"trace=fsync,fdatasync,unlink,unlinkat,rename,renameat2,open,openat,creat,truncate"_s},
                    done))
            QSKIP("cannot trace processes");
        QCOMPARE(done.status, 0);
        const QByteArray folder = m_tree->path(u"src"_s).toUtf8();
        bool isContentFlushed = false;
        bool isNameFlushed = false;
        int removed = 0;
        for (const QByteArray &call : contentOf(trace).split('\n')) {
            const bool isFlush = call.contains(" fsync(") && call.endsWith("= 0");
            isContentFlushed = isContentFlushed || (isFlush && call.contains('<' + folder + "/b>)"));
            isNameFlushed = isNameFlushed || (isFlush && call.contains('<' + folder + ">)"));
            if (call.contains(" unlink") && call.contains('"' + folder)) {
                QVERIFY2(isContentFlushed && isNameFlushed, call.constData());
                ++removed;
            }
            const bool isOpening = call.contains(" open") || call.contains(" creat(") || call.contains(" truncate(");
            QVERIFY2(!isOpening || !call.contains('"' + folder) || call.contains("O_RDONLY"), call.constData());
        }
        QCOMPARE(removed, 2);
    }

    void onlyCopiesInPlaceAreKept_data()
    {
        const auto row = columns<QString>({"place"});
        row("recycle bin", u"src/further/down/.Trash-1000/files/z"_s);
        row("backup folder", u"src/further/down/store/z"_s);
        row("snapshots", u"src/further/down/.snapshots/1/z"_s);
    }

    /// The rule wants the copy that was put away: one in place stays all the same, however often the run is repeated.
    void onlyCopiesInPlaceAreKept()
    {
        QFETCH(QString, place);
        m_tree->write(place, "content");
        if (place.contains(u"store"_s))
            m_tree->write(u"src/further/down/store/backup_index.json"_s, "[]");
        const QByteArray away = source()[place.mid(4)];
        for (int repeat = 0; repeat < 2; ++repeat) {
            const ProgramRun done = run({u"clean"_s, u"--keep"_s, u"deepest"_s, u"--method"_s, u"delete"_s,
                                         u"--apply"_s, m_tree->path(u"src"_s)});
            QCOMPARE(done.errors, QByteArray());
            QVERIFY(source().contains(u"deep/日本"_s));
            QVERIFY(!source().contains(u"a"_s) && !source().contains(u"b"_s));
            QCOMPARE(source()[place.mid(4)], away);
        }
    }

    void exclusionThroughLink_data()
    {
        // link: to what
        const auto row = columns<QString, QString>({"link", "excluded"});
        row("the excluded folder", u"src/deep"_s, u"%1/link"_s);
        row("above, relative", QString(), u"src/deep"_s);
        row("above, absolute", QString(), u"%1/link/src/deep"_s);
    }

    void exclusionThroughLink()
    {
        QFETCH(QString, link);
        QFETCH(QString, excluded);
        if (!m_tree->symbolicLink(link, u"link"_s))
            QSKIP("no symbolic links");
        const QString folder = m_tree->path(link.isEmpty() ? u"link"_s : QString());
        const ProgramRun done = m_program->run({u"clean"_s, u"--data-dir"_s, m_program->dataFolder(), u"--keep"_s,
                                                u"oldest"_s, u"--method"_s, u"delete"_s, u"--apply"_s, u"--exclude"_s,
                                                excluded.replace(u"%1"_s, m_tree->path()), folder + u"/src"_s},
                                               folder);
        QCOMPARE(done.status, 0);
        QCOMPARE(source().keys(), (QStringList{u"b"_s, u"deep/日本"_s, u"other"_s}));
    }

    void linksNeedEqualAccess_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QStringList>("change"); // of the kept file
        for (const char *method : {"symlink", "hardlink"}) {
            QTest::addRow("%s, permissions", method)
                << QString::fromLatin1(method) << QStringList{u"chmod"_s, u"600"_s};
            QTest::addRow("%s, owner", method) << QString::fromLatin1(method) << QStringList{u"chown"_s, u"65534"_s};
            QTest::addRow("%s, group", method) << QString::fromLatin1(method) << QStringList{u"chgrp"_s, u"65534"_s};
        }
    }

    /// A link from a private file to a public one, or the other way round, changes who may read.
    void linksNeedEqualAccess()
    {
        QFETCH(QString, method);
        QFETCH(QStringList, change);
        const auto access = [this](const char *name) {
            const QFileInfo info(m_tree->path(QLatin1String(name)));
            return std::tuple(info.permissions().toInt(), info.ownerId(), info.groupId());
        };
        QProcess::execute(change[0], {change[1], m_tree->path(u"src/b"_s)});
        if (access("src/b") == access("src/a"))
            QSKIP("the system does not let access differ here");
        const DiskTree before = source();
        const ProgramRun done = clean(method, {u"--apply"_s});
        QCOMPARE(done.status, 1);
        for (const QString &name : {u"src/a"_s, u"src/deep/日本"_s})
            QVERIFY2(done.errors.contains(": " + m_tree->path(name).toUtf8() + '\n'), done.errors.constData());
        QCOMPARE(done.errors.count('\n'), 2);
        QCOMPARE(source(), before);
    }

    void targetHoldsTheFolder_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("target");
        for (const char *method : {"move", "backup", "symlink"}) {
            QTest::addRow("%s, the folder", method) << QString::fromLatin1(method) << u"src"_s;
            QTest::addRow("%s, its parent", method) << QString::fromLatin1(method) << QString();
            QTest::addRow("%s, in other letters", method) << QString::fromLatin1(method) << u"SRC"_s;
            QTest::addRow("%s, by a link", method) << QString::fromLatin1(method) << u"link"_s;
        }
    }

    void targetHoldsTheFolder()
    {
        QFETCH(QString, method);
        QFETCH(QString, target);
        if (target == u"link" && !m_tree->symbolicLink(u"src"_s, target))
            QSKIP("no symbolic links");
        if (!QFileInfo::exists(m_tree->path(target)))
            QSKIP("letter case matters here");
        const DiskTree before = source();
        const ProgramRun done = clean(method, {u"--apply"_s, u"--target"_s, m_tree->path(target)});
        QCOMPARE(done.errors,
                 usageErrorText(u"the target folder %1 must not be the scanned folder %2 or contain it"_s.arg(
                     QDir::cleanPath(m_tree->path(target)), m_tree->path(u"src"_s))));
        QCOMPARE(done.status, 2);
        QCOMPARE(source(), before);
    }

    /// No name forges a line, and a list that was cut is no success.
    void planIsPrintedWholeOrFails()
    {
        if (!namesAreBytes || !takesNothing(u"/dev/full"_s))
            QSKIP("no device that takes nothing");
        m_tree->write(u"src/c\n  delete \x1b[2J"_s, "content");
        const ProgramRun told = clean(u"delete"_s);
        QCOMPARE(told.output.count('\n'), 5);
        QCOMPARE(told.output.count("\n  delete "), 3);
        QVERIFY(!told.output.contains('\x1b'));
        QProcess process;
        m_program->prepare(process, {u"clean"_s, u"--data-dir"_s, m_program->dataFolder(), u"--keep"_s, u"oldest"_s,
                                     u"--method"_s, u"delete"_s, m_tree->path(u"src"_s)});
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start();
        QCOMPARE(Program::ended(process).status, 1);
    }

    void mistakes_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        const auto row = [](const QString &arguments, const QString &message) {
            QTest::newRow(qPrintable(arguments)) << arguments.split(u' ') << message;
        };
        row(u"clean --method delete /a"_s, u"--keep is missing; it must be newest, oldest, shallowest or deepest"_s);
        row(u"clean --keep newest --method burn /a"_s,
            u"--method must be recycle, delete, move, symlink, hardlink or backup, not \"burn\""_s);
        row(u"clean --keep newest --method delete"_s, u"no folder to scan"_s);
        row(u"clean --keep newest --method move /a"_s, u"--method move needs --target DIR"_s);
        row(u"clean --keep newest --method delete --target /b /a"_s, u"--target cannot be used with --method delete"_s);
        for (const QString &loose :
             {u"contentMatch=2"_s, u"searchMode=1"_s, uR"(locations=[{"path":"/a","findKind":1}])"_s})
            row(u"clean --keep newest --method delete --set "_s + loose + u" /a"_s,
                u"clean acts on files of identical content only"_s);
        row(u"clean --keep newest --method delete --exclude /a/typo /a"_s,
            u"cannot exclude %1: no such folder"_s.arg(MirrixCore::absolutePath(u"/a/typo"_s)));
        row(u"restore --all x"_s, u"--list, --all, --verify and ENTRY cannot be combined"_s);
        row(u"log --format csv"_s, u"--format must be text or json, not \"csv\""_s);
    }

    void mistakes()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const ProgramRun done = run(arguments);
        QCOMPARE(done.errors, usageErrorText(message));
        QCOMPARE(done.status, 2);
    }

private:
    [[nodiscard]] ProgramRun run(const QStringList &arguments) const
    {
        return m_program->run(QStringList{arguments[0], u"--data-dir"_s, m_program->dataFolder()} + arguments.mid(1));
    }
    [[nodiscard]] ProgramRun clean(const QString &method, const QStringList &more = {}) const
    {
        return run(QStringList{u"clean"_s, u"--keep"_s, u"oldest"_s, u"--method"_s, method} + more +
                   QStringList{m_tree->path(u"src"_s)});
    }
    /// The same as clean with --apply, under strace with `options`. False where nothing can be traced.
    [[nodiscard]] bool traced(const QString &method, const QStringList &options, ProgramRun &done) const
    {
        QProcess process;
        m_program->prepare(process, QStringList{u"-E"_s, u"ASAN_OPTIONS=detect_leaks=0"_s, u"-f"_s, u"-qq"_s} +
                                        options +
                                        QStringList{Program::builtExecutable(), u"clean"_s, u"--data-dir"_s,
                                                    m_program->dataFolder(), u"--keep"_s, u"oldest"_s, u"--method"_s,
                                                    method, u"--apply"_s, m_tree->path(u"src"_s)});
        process.setProgram(u"strace"_s);
        process.start();
        done = Program::ended(process);
        return process.error() != QProcess::FailedToStart;
    }
    /// Times and permissions of folders in "src".
    [[nodiscard]] QByteArray folderMarks(const QStringList &folders) const
    {
        QByteArray marks;
        for (const QString &folder : folders) {
            const std::filesystem::path path = exactNative(m_tree->path(u"src/"_s + folder));
            marks += QByteArray::number(qint64(std::filesystem::last_write_time(path).time_since_epoch().count())) +
                     ' ' + QByteArray::number(static_cast<int>(std::filesystem::status(path).permissions()), 8) + '\n';
        }
        return marks;
    }
    [[nodiscard]] DiskTree source() const { return treeBelow(m_tree->path(u"src"_s)); }
    /// The log's records behind `skipped` ones, as "action: detail".
    [[nodiscard]] QStringList logged(int skipped = 0) const
    {
        QStringList lines;
        const QJsonArray items = QJsonDocument::fromJson(run({u"log"_s, u"--format"_s, u"json"_s}).output).array();
        for (const QJsonValue &item : items)
            lines.append(item[u"action"_s].toString() + u": "_s + item[u"detail"_s].toString());
        return lines.mid(skipped);
    }

    /// What the lines of Python print when they run in the folder "src"; null when they fail.
    [[nodiscard]] QByteArray script(const QByteArray &lines) const
    {
        QProcess process;
        process.setWorkingDirectory(m_tree->path(u"src"_s));
        process.start(u"python3"_s, {u"-c"_s, QString::fromLatin1(lines)});
        const bool isDone = process.waitForFinished() && process.exitCode() == 0;
        return isDone ? process.readAll() + '.' : QByteArray();
    }

    std::unique_ptr<TempTree> m_tree;
    std::unique_ptr<Program> m_program;
};

QTEST_GUILESS_MAIN(CleanCommandTest)
#include "tst_cleancommand.moc"
