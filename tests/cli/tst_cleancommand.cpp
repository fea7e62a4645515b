#include "tests/cli/clitest.h"

#include <QScopeGuard>

#include <tuple>

class CleanCommandTest : public CliTest
{
    Q_OBJECT

private slots:
    /// Three equal files, "b" the oldest and so the one that stays, and one of its own.
    void init()
    {
        renew();
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
        QCOMPARE(told.errors, "");
        QCOMPARE(told.status, 0);
        QList<QByteArray> lines = told.output.split('\n');
        std::sort(lines.begin() + 1, lines.begin() + 3);
        const QByteArray folder = path(u"src/"_s).toUtf8();
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
        const QString method = rowMethod();
        if (method == u"symlink"_s && !m_tree->symbolicLink(u"src/b"_s, u"probe"_s))
            QSKIP("no symbolic links");
        DiskTree expected = source();
        for (const QString &name : {u"a"_s, u"deep/日本"_s}) {
            if (method.endsWith(u"link"_s))
                expected[name] = (method == u"symlink"_s ? "link to " : "") + expected[u"b"_s];
            else
                expected.remove(name);
        }
        const QString line = withTarget(method).replace(u"away"_s, u"src/away"_s) + u" --apply"_s;
        const ProgramRun done = clean(line); // the target lies below the folder that is scanned
        QCOMPARE(done.errors, "");
        QCOMPARE(done.status, 0);
        DiskTree after = source();
        const qsizetype away = after.removeIf([](const auto &file) { return file.key().startsWith(u"away/"_s); });
        QCOMPARE(after, expected);
        QCOMPARE(away, method == u"move"_s ? 2 : method == u"backup"_s ? 3 : 0);
        QCOMPARE(logged(),
                 (QStringList{u"scan_start: "_s + path(u"src"_s), u"scan_done: groups=1 wasted=14 candidates=4"_s,
                              u"auto_keep: rule=1 count=2"_s, record}));
        const QStringList said = QString::fromUtf8(run(u"log"_s).output).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(said.size(), 4);
        QVERIFY2(said[1].endsWith(u"  scan finished: 1 group, 14 B reclaimable"_s), qPrintable(said[1]));
        QVERIFY2(said[2].endsWith(u"  surplus files chosen: 2 files, keeping the oldest"_s), qPrintable(said[2]));
        QVERIFY2(said[3].endsWith(u": 2 files"_s) && !said[3].contains(u"_batch"_s), qPrintable(said[3]));
        QCOMPARE(clean(line).output, QByteArray("0 of 0 files processed (" + method.toLatin1() + ")\n"));
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
        const auto removal = qScopeGuard([&] { QProcess::execute(u"rm"_s, {u"-rf"_s, path(u"src"_s)}); });
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
        const QString method = rowMethod();
        const ProgramRun done = clean(withTarget(method) + u" --apply"_s);
        QCOMPARE(done.errors, "");
        QCOMPARE(script(look), cleaned);
        const ProgramRun undone = run(u"undo last --apply"_s);
        QCOMPARE(undone.errors, "");
        QCOMPARE(script(look), before);
        if (method != u"backup"_s)
            return;
        QCOMPARE(clean(method + u" --apply"_s).status, 0);
        QCOMPARE(run(u"restore --all"_s).output, QByteArray("3 of 3 files restored\n"));
        QCOMPARE(script(look), before);
    }

    void backUpAndRestoreAll()
    {
        const DiskTree before = source();
        QCOMPARE(clean(u"backup --apply"_s).status, 0);
        QCOMPARE(source().size(), 2);
        const ProgramRun list = run(u"restore"_s);
        QCOMPARE(list.output.count("  <-  " + m_program->dataFolder().toUtf8() + "/Backup/"), 2);
        const ProgramRun restored = run(u"restore --all"_s);
        QCOMPARE(restored.output, "2 of 2 files restored\n");
        QCOMPARE(restored.status, 0);
        QCOMPARE(source(), before);
        QStringList lines = logged(4);
        for (const QByteArray &line : list.output.trimmed().split('\n'))
            QVERIFY(lines.removeOne(u"restore: "_s + QString::fromUtf8(line.trimmed())));
        QVERIFY(lines.isEmpty());
        QCOMPARE(run(u"restore"_s).output, "");
    }

    /// The latest backup of a path comes back; the earlier one stays where it is.
    void restoreChosen()
    {
        QCOMPARE(clean(u"backup --apply"_s).status, 0);
        m_tree->write(u"src/a"_s, "CONTENT");
        QCOMPARE(clean(u"backup --apply"_s).status, 0);
        const ProgramRun restored = run(u"restore %1/src/a nothing"_s);
        QCOMPARE(restored.errors, "mirrix-cli: nothing: not in the backup folder\n");
        QCOMPARE(restored.status, 1);
        QCOMPARE(contentOf(path(u"src/a"_s)), "CONTENT");
        const ProgramRun occupied = run(u"restore %1/src/a"_s);
        QCOMPARE(occupied.errors, "mirrix-cli: A file already exists at the original path; restore cancelled: " +
                                      path(u"src/a"_s).toUtf8() + '\n');
        QCOMPARE(contentOf(path(u"src/a"_s)), "CONTENT");
    }

    void emptyFolders()
    {
        for (const QString &folder :
             {u"src/e/f/g"_s, u"src/full/e"_s, u"src/repo.git/refs"_s, u"src/.svn"_s, u"src/out"_s})
            m_tree->makeFolder(folder);
        m_tree->write(u"src/full/.hidden"_s, "x");
        const bool hasLink = m_tree->symbolicLink(u"src/out"_s, u"src/linked/link"_s);
        const QString line = u"clean --empty-folders --exclude %1/src/out %1/src"_s;
        const QString folder = path(u"src/"_s);
        const ProgramRun told = run(line);
        QCOMPARE(QString::fromUtf8(told.output).remove(folder),
                 u"remove full/e\nremove e/f/g\nremove e/f\nremove e\n4 empty folders. Nothing was changed; run again "
                 "with --apply to do this.\n"_s);
        QVERIFY(QFileInfo::exists(folder + u"e/f/g"_s));
        std::filesystem::permissions(exactNative(folder + u"e/f"_s), std::filesystem::perms(0710));
        const QStringList paths = {u"full/e"_s, u"e/f/g"_s, u"e/f"_s, u"e"_s};
        const QByteArray before = folderMarks(paths);
        const ProgramRun done = run(line + u" --apply"_s);
        QCOMPARE(done.output, "4 of 4 empty folders removed\n");
        QCOMPARE(done.status, 0);
        for (const QString &gone : {u"e"_s, u"full/e"_s})
            QVERIFY2(!QFileInfo::exists(folder + gone), qPrintable(gone));
        for (const QString &kept : {u"full/.hidden"_s, u"repo.git/refs"_s, u".svn"_s, u"out"_s, u"other"_s})
            QVERIFY2(QFileInfo::exists(folder + kept), qPrintable(kept));
        QVERIFY(!hasLink || QFileInfo(folder + u"linked/link"_s).isSymLink());
        QCOMPARE(logged(), QStringList({u"empty_folders: "_s + folder + paths.join(u'|' + folder),
                                        u"empty_folders_removed: count=4 of=4"_s}));
        QVERIFY(run(u"history"_s).output.contains(" empty-folders            4/4 files"));
        const ProgramRun undone = run(u"undo last --apply"_s);
        QVERIFY(undone.output.startsWith("4 of 4 files undone"));
        QCOMPARE(undone.errors, "");
        QCOMPARE(folderMarks(paths), before);
        QVERIFY(run(u"undo --apply "_s + runOf(undone)).output.startsWith("4 of 4 files undone"));
        QVERIFY(!QFileInfo::exists(folder + u"e"_s) && !QFileInfo::exists(folder + u"full/e"_s));
        QCOMPARE(run(u"clean --empty-folders --keep newest %1/src"_s).errors,
                 usageErrorText(u"--keep cannot be used with --empty-folders"_s));
    }

    void emptyFiles_data() { methods({"delete", "recycle", "move", "backup"}); }

    void emptyFiles()
    {
        for (const QString &name : {u"src/none"_s, u"src/deep/nothing"_s, u"src/.git/none"_s})
            m_tree->write(name, {});
        m_tree->setModified(u"src/none"_s, 1234567890000);
        const DiskTree before = source();
        const QString line = u"clean %1/src --empty-files --method "_s + withTarget(rowMethod());
        QVERIFY(run(line).output.contains("\n2 files, 0 B"));
        QCOMPARE(source(), before);
        const ProgramRun done = run(line + u" --apply"_s);
        QCOMPARE(done.errors, "");
        QVERIFY(done.output.startsWith("2 of 2 files processed"));
        DiskTree left = before;
        left.removeIf(
            [](const auto &file) { return file.value().startsWith(" @") && !file.key().startsWith(u".git/"_s); });
        QCOMPARE(left.size(), before.size() - 2);
        QCOMPARE(source(), left);
        if (rowMethod() == u"recycle"_s && !namesAreBytes)
            return; // Wine's bin is not one of Windows
        const ProgramRun undone = run(u"undo last --apply"_s);
        QCOMPARE(undone.errors, "");
        QCOMPARE(source(), before);
        QVERIFY(run(u"undo --apply "_s + runOf(undone)).output.startsWith("2 of 2 files undone"));
        QCOMPARE(source(), left);
    }

    void failuresAreNamed()
    {
        m_tree->write(u"away/a"_s, "in the way");
        const ProgramRun done = clean(u"move --target %1/away --apply"_s);
        QCOMPARE(done.errors, "mirrix-cli: Destination already exists: " + path(u"away/a"_s).toUtf8() + '\n');
        QCOMPARE(done.output, "1 of 2 files processed (move); frees 0 B\n");
        QCOMPARE(done.status, 1);
        QCOMPARE(source().keys(), (QStringList{u"a"_s, u"b"_s, u"other"_s}));
    }

    /// A polite request to end that arrives while the first file moves: that one is finished, listed and logged.
    void interrupted()
    {
        ProgramRun done;
        if (!traced(u"-o /dev/null -e trace=renameat2 -e inject=renameat2:signal=SIGTERM:when=1"_s,
                    cleaning(u"backup --apply"_s), done))
            QSKIP("cannot trace processes");
        QCOMPARE(done.errors, "mirrix-cli: cancelled\n");
        QCOMPARE(done.status, 3);
        QCOMPARE(source().size(), 3);
        QCOMPARE(run(u"restore"_s).output.count("\n"), 1);
        QCOMPARE(logged(3), QStringList{u"backup_batch: count=1"_s});
    }

    /// What an index that cannot be read now lists would be lost to its owners, were it written anew.
    void unreadableIndexStays()
    {
        QCOMPARE(clean(u"backup --apply"_s).status, 0);
        m_tree->write(u"src/late"_s, "CONTENT");
        m_tree->write(u"src/later"_s, "CONTENT");
        const QString index = m_program->dataFolder() + u"/Backup/backup_index.json"_s;
        const QByteArray before = contentOf(index);
        const DiskTree source = this->source();
        ProgramRun done;
        if (!traced(u"-o /dev/null -e inject=openat:error=EIO -P "_s + index, cleaning(u"backup --apply"_s), done))
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
        const DiskTree before = treeBelow(path());
        QProcess processes[2];
        for (int side = 0; side < 2; ++side)
            m_program->prepare(processes[side], arguments(u"clean --keep shallowest --method backup --apply %1/side"_s +
                                                          QString::number(side)));
        for (QProcess &process : processes)
            process.start();
        for (QProcess &process : processes) {
            const ProgramRun done = Program::ended(process);
            QCOMPARE(done.errors, "");
            QCOMPARE(done.output, "60 of 60 files processed (backup); frees 0 B, 590 B held in the backup folder\n");
        }
        QCOMPARE(run(u"restore --list"_s).output.count('\n'), 2 * pairs);
        QCOMPARE(logged().filter(u"backup_batch: count=60"_s).size(), 2);
        QCOMPARE(run(u"restore --all"_s).status, 0);
        QCOMPARE(treeBelow(path()), before);
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
        const DiskTree before = source();
        for (const QString &method : {u"recycle"_s, u"delete"_s, u"move"_s, u"symlink"_s, u"hardlink"_s, u"backup"_s}) {
            // Without the cache small files have no quick digests, which begin with the size and so do not collide.
            const QString line =
                u"clean %1/src/collision --no-cache --hash md5 --keep newest --method "_s + withTarget(method);
            QVERIFY(run(line).output.contains("\n1 file, 128 B"));
            const ProgramRun done = run(line + u" --apply"_s);
            QVERIFY2(done.output.startsWith("0 of 1 files processed"), done.output.constData());
            QVERIFY2(done.errors.contains("Content differs from the file to keep"), done.errors.constData());
            QCOMPARE(done.status, 1);
            QCOMPARE(source(), before);
        }
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
        const QString method = rowMethod();
        const ProgramRun done = clean(withTarget(method) + u" --apply %1/again"_s +
                                      (isCollapsed ? QString() : u" --set collapseHardLinks=false"_s));
        QVERIFY(done.status == 0 || !isCollapsed);
        DiskTree after = source();
        QCOMPARE(after[u"other"_s], before[u"other"_s]);
        const auto isContent = [](const QByteArray &state) { return state.startsWith("content @"); };
        QVERIFY(std::any_of(after.begin(), after.end(), isContent));
        const DiskTree away = treeBelow(path(u"away"_s));
        const qsizetype kept =
            std::count_if(after.begin(), after.end(), isContent) + std::count_if(away.begin(), away.end(), isContent);
        QCOMPARE(kept, method == u"delete"_s ? 1 : 3);
    }

    /// The kept file and its name are flushed before a copy of it goes, and no user's file is opened for writing.
    void keptFileIsOnTheDiskFirst()
    {
        ProgramRun done;
        if (!traced(u"-y -o %1/trace "
                    "-e trace=fsync,fdatasync,unlink,unlinkat,rename,renameat2,open,openat,creat,truncate"_s,
                    cleaning(u"delete --apply"_s), done))
            QSKIP("cannot trace processes");
        QCOMPARE(done.status, 0);
        const QByteArray folder = path(u"src"_s).toUtf8();
        bool isContentFlushed = false;
        bool isNameFlushed = false;
        int removed = 0;
        for (const QByteArray &call : contentOf(path(u"trace"_s)).split('\n')) {
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
        for (const QString &only : {u"1"_s, u"2"_s}) // with no copy in place
            m_tree->write(place + only, "put away");
        if (place.contains(u"store"_s))
            m_tree->write(u"src/further/down/store/backup_index.json"_s, "[]");
        const auto isInPlace = [](const auto &file) { return !file.key().startsWith(u"further"_s); };
        DiskTree away = source();
        away.removeIf(isInPlace);
        for (int repeat = 0; repeat < 2; ++repeat) {
            const ProgramRun done = run(u"clean --keep deepest --method delete --apply %1/src"_s);
            QCOMPARE(done.errors, "");
            DiskTree left = source();
            QVERIFY(left.contains(u"deep/日本"_s) && !left.contains(u"a"_s) && !left.contains(u"b"_s));
            left.removeIf(isInPlace);
            QCOMPARE(left, away);
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
        const QString folder = path(link.isEmpty() ? u"link"_s : QString());
        const ProgramRun done = m_program->run(
            arguments(u"clean --keep oldest --method delete --apply --exclude "_s + excluded, {folder + u"/src"_s}),
            folder);
        QCOMPARE(done.status, 0);
        QCOMPARE(source().keys(), (QStringList{u"b"_s, u"deep/日本"_s, u"other"_s}));
    }

    void linksNeedEqualAccess_data()
    {
        QTest::addColumn<QString>("change"); // of the kept file
        for (const char *method : {"symlink", "hardlink"}) {
            for (const QString &change : {u"chmod 600"_s, u"chown 65534"_s, u"chgrp 65534"_s})
                QTest::addRow("%s, %s", method, qPrintable(change)) << change;
        }
    }

    /// A link from a private file to a public one, or the other way round, changes who may read.
    void linksNeedEqualAccess()
    {
        QFETCH(QString, change);
        const auto access = [this](const char *name) {
            const QFileInfo info(path(QLatin1String(name)));
            return std::tuple(info.permissions().toInt(), info.ownerId(), info.groupId());
        };
        QProcess::execute(change.section(u' ', 0, 0), {change.section(u' ', 1), path(u"src/b"_s)});
        if (access("src/b") == access("src/a"))
            QSKIP("the system does not let access differ here");
        const DiskTree before = source();
        const ProgramRun done = clean(rowMethod() + u" --apply"_s);
        QCOMPARE(done.status, 1);
        for (const QString &name : {u"src/a"_s, u"src/deep/日本"_s})
            QVERIFY2(done.errors.contains(": " + path(name).toUtf8() + '\n'), done.errors.constData());
        QCOMPARE(done.errors.count('\n'), 2);
        QCOMPARE(source(), before);
    }

    void targetHoldsTheFolder_data()
    {
        const auto row = columns<QString>({"target"});
        row("the folder", u"src"_s);
        row("its parent", {});
        row("in other letters", u"SRC"_s);
        row("by a link", u"link"_s);
    }

    void targetHoldsTheFolder()
    {
        QFETCH(QString, target);
        if (target == u"link" && !m_tree->symbolicLink(u"src"_s, target))
            QSKIP("no symbolic links");
        if (!QFileInfo::exists(path(target)))
            QSKIP("letter case matters here");
        const DiskTree before = source();
        for (const QString &method : {u"move"_s, u"backup"_s, u"symlink"_s}) {
            const ProgramRun done = clean(method + u" --apply --target "_s + path(target));
            QCOMPARE(done.errors,
                     usageErrorText(u"the target folder %1 must not be the scanned folder %2 or contain it"_s.arg(
                         QDir::cleanPath(path(target)), path(u"src"_s))));
            QCOMPARE(done.status, 2);
            QCOMPARE(source(), before);
        }
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
        QCOMPARE(runOntoFullDevice(cleaning(u"delete"_s)).status, 1);
    }

    void mistakes_data()
    {
        const auto add = columns<QString>({"message"});
        const auto row = [&add](const QString &line, const QString &message) { add(qPrintable(line), message); };
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
        QFETCH(QString, message);
        const ProgramRun done = run(QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(done.errors, usageErrorText(message));
        QCOMPARE(done.status, 2);
    }

private:
    static void methods(const QByteArrayList &names)
    {
        QTest::addColumn<int>("none");
        for (const QByteArray &name : names)
            QTest::newRow(name.constData()) << 0;
    }
    /// The line begins with the method.
    [[nodiscard]] ProgramRun clean(const QString &line) const { return run(cleaning(line)); }
    [[nodiscard]] static QString cleaning(const QString &line)
    {
        return u"clean %1/src --keep oldest --method "_s + line;
    }
    /// Cleans by a method that takes a target folder or by one that does not.
    [[nodiscard]] static QString withTarget(const QString &method)
    {
        return method == u"move" || method == u"backup" ? method + u" --target %1/away"_s : method;
    }
    /// The row's text up to a comma.
    [[nodiscard]] static QString rowMethod()
    {
        return QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
    }
    /// The number of the run that an undo was recorded as.
    [[nodiscard]] static QString runOf(const ProgramRun &undone)
    {
        return QString::fromLatin1(undone.output.mid(undone.output.indexOf("(run ") + 5, 20));
    }
    /// Times and permissions of folders in "src".
    [[nodiscard]] QByteArray folderMarks(const QStringList &folders) const
    {
        QByteArray marks;
        for (const QString &folder : folders) {
            const std::filesystem::path native = exactNative(path(u"src/"_s + folder));
            marks += QByteArray::number(qint64(std::filesystem::last_write_time(native).time_since_epoch().count())) +
                     ' ' + QByteArray::number(static_cast<int>(std::filesystem::status(native).permissions()), 8) +
                     '\n';
        }
        return marks;
    }
    [[nodiscard]] DiskTree source() const { return treeBelow(path(u"src"_s)); }
    /// The log's records behind `skipped` ones, as "action: detail".
    [[nodiscard]] QStringList logged(int skipped = 0) const
    {
        QStringList lines;
        for (const QJsonValue &item : json(u"log"_s).array())
            lines.append(item[u"action"_s].toString() + u": "_s + item[u"detail"_s].toString());
        return lines.mid(skipped);
    }

    /// What the lines of Python print when they run in the folder "src"; null when they fail.
    [[nodiscard]] QByteArray script(const QByteArray &lines) const
    {
        QProcess process;
        process.setWorkingDirectory(path(u"src"_s));
        process.start(u"python3"_s, {u"-c"_s, QString::fromLatin1(lines)});
        const bool isDone = process.waitForFinished() && process.exitCode() == 0;
        return isDone ? process.readAll() + '.' : QByteArray();
    }
};

QTEST_GUILESS_MAIN(CleanCommandTest)
#include "tst_cleancommand.moc"
