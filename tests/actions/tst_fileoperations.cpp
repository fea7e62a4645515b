#include "actions/files/fileoperations.h"

#include "actions/files/movefile.h"
#include "actions/files/recyclebin.h"
#include "core/platform/nativepath.h"
#include "tests/actions/actiontest.h"

#include <QDateTime>

namespace {

constexpr qint64 modifiedMs = 1234567890123;

enum class Act
{
    Delete,
    Move,
    Copy,
    SymbolicLink,
    HardLink
};
constexpr Act allActs[] = {Act::Delete, Act::Move, Act::Copy, Act::SymbolicLink, Act::HardLink};
const char *const actNames[] = {"delete", "move", "copy", "symlink", "hardlink"};

/// Whether this system deletes files that are marked read-only.
bool deletesReadOnly()
{
    const TempTree tree;
    const QString path = tree.write(u"probe"_s, "x");
    QFile::setPermissions(path, QFileDevice::ReadOwner);
    std::error_code error;
    const bool isGone = std::filesystem::remove(exactNative(path), error);
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    return isGone;
}

BatchResult run(Act act, const QString &path, const QString &folder, const QString &target)
{
    if (act != Act::Copy) {
        const RemovalMethod methods[] = {RemovalMethod::Delete, RemovalMethod::Move, RemovalMethod::Move,
                                         RemovalMethod::SymbolicLink, RemovalMethod::HardLink};
        return removeFiles(methods[static_cast<int>(act)], {path}, folder, target);
    }
    BatchResult result;
    QString error;
    result.count = copyToFolder(path, folder, &error) ? 1 : 0;
    if (!error.isEmpty())
        result.errors.append(error);
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Act)

class FileOperationsTest : public ActionTest
{
    Q_OBJECT

private slots:
    void init() { renew(); }

    void matrix_data()
    {
        const auto row = columns<QString, Act, QString>({"name", "act", "error"}); // as below; "" succeeds
        const auto rows = [&row](const QString &condition, const QString &name, const QStringList &errors) {
            for (const Act act : allActs)
                row(qPrintable(condition + u'|' + QLatin1String(actNames[static_cast<int>(act)])), name, act,
                    errors[static_cast<int>(act)]);
        };
        // %1 is the path, %2 the destination, %3 its folder
        const QString taken = u"链接路径已存在: %1"_s;
        const QStringList onFile = {{}, {}, {}, taken, taken};
        const QStringList failing = {u"无法删除: %1"_s, u"无法移动: %1"_s, u"无法复制: %1"_s};
        rows(u"plain"_s, u"a.txt"_s, onFile);
        rows(u"odd name"_s, u"日本 %2 &$'é"_s, onFile);
        rows(u"dot at the end"_s, u"a.txt."_s, onFile);
        rows(u"long path"_s, (QString(100, u'a') + u'/').repeated(3) + u"b.txt"_s, onFile);
        rows(u"missing"_s, u"a.txt"_s, failing + QStringList{{}, {}});
        rows(u"folder"_s, u"a.txt"_s, failing + QStringList{taken, taken});
        rows(u"occupied"_s, u"a.txt"_s, {{}, u"目标已存在: %2"_s, u"目标已存在: %2"_s, taken, taken});
        rows(u"no folder possible"_s, u"a.txt"_s,
             {{}, u"无法创建目标目录: %3"_s, u"无法创建目标目录: %3"_s, taken, taken});
        rows(u"read-only"_s, u"a.txt"_s, {deletesReadOnly() ? QString() : failing[0], {}, {}, taken, taken});
        rows(u"no link target"_s, u"gone.txt"_s,
             failing + QStringList{u"无法创建符号链接: %1"_s, u"无法创建硬链接: %1"_s});
    }

    void matrix()
    {
        const QString condition = QString::fromUtf8(QTest::currentDataTag()).section(u'|', 0, 0);
        QFETCH(QString, name);
        QFETCH(Act, act);
        QFETCH(QString, error);
        const QString path = at(u"src/"_s + name);
        const QString folder = at(u"new/dst"_s);
        const QString moved = u"new/dst/"_s + fileNameOf(name);
        const QString keeper = m_tree->write(u"keep"_s, "kept");
        m_tree->write(u"src/a.tx"_s, "beside"); // what careless calls would take instead
        if (condition == u"folder"_s)
            m_tree->write(u"src/a.txt/inside"_s, "inside");
        else if (condition != u"missing"_s && condition != u"no link target"_s)
            m_tree->writeExactly(u"src/"_s + name, "content");
        if (condition == u"occupied"_s)
            m_tree->write(moved, "other");
        if (condition == u"no folder possible"_s)
            m_tree->write(u"new"_s, "a file");
        if (condition == u"no link target"_s)
            QVERIFY(QFile::remove(keeper));
        if (condition == u"read-only"_s)
            QFile::setPermissions(path, QFileDevice::ReadOwner);
        if (condition == u"missing"_s && act == Act::SymbolicLink && !m_tree->symbolicLink(u"keep"_s, u"probe"_s))
            error = u"无法创建符号链接: %1"_s;
        DiskTree expected = treeAt();

        const BatchResult result = run(act, path, folder, keeper);

        const QString source = u"src/"_s + name;
        if (error.isEmpty()) {
            if (act == Act::SymbolicLink || act == Act::HardLink)
                expected[source] = (act == Act::SymbolicLink ? "link to " : "") + expected[u"keep"_s];
            if (act == Act::Move || act == Act::Copy)
                expected[moved] = expected[source];
            if (act == Act::Move || act == Act::Delete)
                expected.remove(source);
            QCOMPARE(result.errors, QStringList());
            QCOMPARE(result.count, 1);
        } else {
            error.replace(u"%3"_s, folder).replace(u"%2"_s, at(moved)).replace(u"%1"_s, path);
            QCOMPARE(result.errors, QStringList{error});
            QCOMPARE(result.count, 0);
        }
        QCOMPARE(treeAt(), expected);
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }

    /// What appears at the target after it was looked for, as from another program, stays too.
    void neverReplaces()
    {
        const QString from = m_tree->write(u"from"_s, "one");
        const QString to = m_tree->write(u"to"_s, "other");
        using Act = FileFault (*)(const QString &, const QString &);
        const Act copyNew = [](const QString &source, const QString &target) { return copyToNewFile(source, target); };
        for (const Act act : {Act(renameExclusively), Act(moveFile), Act(copyFile), copyNew}) {
            QCOMPARE(act(from, to), FileFault::Occupied);
            QCOMPARE(contentOf(from), "one");
            QCOMPARE(contentOf(to), "other");
        }
        QCOMPARE(treeAt().size(), 2);
    }

    /// Names that differ in case or composition alone are two or one, as the file system has it; no content is lost.
    void twinsInOneFolder()
    {
        const QList<QStringList> twins = {{u"Name.txt"_s, u"name.TXT"_s}, {u"caf\u00e9"_s, u"cafe\u0301"_s}};
        for (const QStringList &names : twins) {
            const QString first = m_tree->write(u"one/"_s + names[0], "first");
            const QString second = m_tree->write(u"two/"_s + names[1], "second");
            QVERIFY(moveToFolder(first, at(u"target"_s)));
            const bool areTwo = moveToFolder(second, at(u"target"_s));
            QCOMPARE(contentOf(at(u"target/"_s + names[0])), "first");
            QCOMPARE(contentOf(areTwo ? at(u"target/"_s + names[1]) : second), "second");
            QCOMPARE(QFile::exists(second), !areTwo);
        }
    }

    /// A program that has a file open on Windows keeps others from taking it away.
    void heldOpenByOthers()
    {
        if (namesAreBytes)
            QSKIP("others do not mind here");
        for (const RemovalMethod method : {RemovalMethod::Delete, RemovalMethod::Move}) {
            const QString path = m_tree->write(u"held"_s, "content");
            QFile holder(path);
            QVERIFY(holder.open(QIODevice::ReadOnly));
            const BatchResult refused = removeFiles(method, {path}, at(u"target"_s), {});
            QCOMPARE(refused.count, 0);
            QCOMPARE(refused.errors.size(), 1);
            QCOMPARE(contentOf(path), "content");
            QVERIFY(treeAt(u"target"_s).isEmpty());
            holder.close();
            QCOMPARE(removeFiles(method, {path}, at(u"target"_s), {}).count, 1);
            QVERIFY(!QFile::exists(path));
        }
    }

    void acrossVolumes()
    {
        const auto other = folderOnOtherVolume(at());
        if (!other)
            QSKIP("no second volume");
        for (const int size : {0, 1, 3 << 20}) {
            const QString name = QString::number(size);
            const QString path = m_tree->write(name, patternBytes(size));
            m_tree->setModified(name, modifiedMs);
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup);
            DiskTree expected = treeAt();
            QVERIFY(copyToFolder(path, other->path()));
            QCOMPARE(treeBelow(other->path()), expected);
            QVERIFY(!moveToFolder(path, other->path()));
            QCOMPARE(treeAt(), expected);
            QVERIFY(QFile::remove(other->filePath(name)));
            QVERIFY(moveToFolder(path, other->path()));
            QCOMPARE(treeBelow(other->path()), expected);
            QVERIFY(treeAt().isEmpty());
            QVERIFY(QFile::remove(other->filePath(name)));
        }
        const QString readOnly =
            m_tree->write(u"read-only"_s, "content"); // where it cannot be removed, no copy is left
        QFile::setPermissions(readOnly, QFile::ReadOwner | QFile::ReadUser);
        const DiskTree expected = treeAt();
        const bool isMoved = moveToFolder(readOnly, other->path());
        QCOMPARE(isMoved, deletesReadOnly());
        QCOMPARE(treeBelow(isMoved ? other->path() : at()), expected);
        QVERIFY(treeBelow(isMoved ? at() : other->path()).isEmpty());
        for (const QString &path : {readOnly, other->filePath(u"read-only"_s)}) {
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
            QFile::remove(path);
        }
        QString error;
        const QString link = other->filePath(u"link"_s);
        QVERIFY(!createHardLink(link, m_tree->write(u"target"_s, "x"), &error));
        QCOMPARE(error, u"无法创建硬链接: "_s + link);
        QVERIFY(treeBelow(other->path()).isEmpty());
    }

    void sparseFilesStaySparse()
    {
        const auto other = folderOnOtherVolume(at());
        if (!other || !namesAreBytes)
            QSKIP("no second volume, or no blocks to count");
        for (const QList<int> &written : QList<QList<int>>{{0}, {(64 << 20) - 5}, {0, 10 << 20, 30 << 20}, {}}) {
            QFile file(at(u"sparse"_s));
            QVERIFY(file.open(QIODevice::ReadWrite) && file.resize(64 << 20));
            for (const int offset : written)
                QVERIFY(file.seek(offset) && file.write("bytes") == 5);
            file.close();
            const DiskTree before = treeAt();
            QVERIFY(moveToFolder(file.fileName(), other->path()));
            QCOMPARE(treeBelow(other->path()), before);
            QProcess blocks;
            blocks.start(u"stat"_s, {u"-c"_s, u"%b"_s, other->filePath(u"sparse"_s)});
            QVERIFY(blocks.waitForFinished());
            QVERIFY(blocks.readAll().toInt() <= 8192); // of 512 bytes; 131072 without holes
            QVERIFY(QFile::remove(other->filePath(u"sparse"_s)));
        }
    }

    /// FAT over FUSE answers ENOSYS where others have modes and times, and renames only with replacing.
    void volumeWithoutAttributes()
    {
        MIRRIX_IN_SCENE("MIRRIX_NO_ATTRIBUTES",
                        "MIRRIX_NO_ATTRIBUTES=1 ASAN_OPTIONS=detect_leaks=0 exec strace -f -qq -o \"$0/trace\" "
                        "-e inject=fchmod,fchown,utimensat,fsetxattr,renameat2,linkat:error=ENOSYS \"$@\"");
        const auto other = folderOnOtherVolume(at());
        if (!other)
            QSKIP("no second volume");
        const QString path = m_tree->write(u"file"_s, patternBytes(3 << 20));
        QVERIFY(moveToFolder(path, other->path()));
        QCOMPARE(contentOf(other->filePath(u"file"_s)), patternBytes(3 << 20));
        QCOMPARE(treeBelow(other->path()).size(), 1);
        const QString twin = m_tree->write(u"away/file"_s, "other");
        QCOMPARE(renameExclusively(twin, other->filePath(u"file"_s)), FileFault::Occupied);
        QCOMPARE(renameExclusively(twin, path), FileFault::None);
        QCOMPARE(contentOf(path), "other");
    }

    void fullDisk_data()
    {
        const auto row = columns<int>({"size"});
        for (const int size :
             {16384, 20481, 32768, 2000000}) // fits, is a byte too long, cut in the last write, much too long
            row(qPrintable(QString::number(size)), size);
    }

    void fullDisk()
    {
        QFETCH(int, size);
        MIRRIX_ON_SMALL_DISK();
        const bool fits = size <= 20480;
        const QString path = m_tree->write(u"file"_s, patternBytes(size));
        const DiskTree before = treeAt();
        QString error;
        QCOMPARE(moveToFolder(path, smallDisk(), &error), fits);
        QCOMPARE(error, fits ? QString() : u"无法移动: "_s + path);
        QCOMPARE(treeAt(), fits ? DiskTree() : before);
        QCOMPARE(treeBelow(smallDisk()), fits ? before : DiskTree());
    }

    void guardAndCancel()
    {
        QStringList paths;
        for (const QString &name : {u"1"_s, u"2"_s, u"3"_s, u"4"_s})
            paths.append(m_tree->write(name, name.toLatin1()));
        QList<qsizetype> reports;
        BatchControl control;
        control.progress = [&reports](qsizetype done, qsizetype total) {
            reports.append(done * 10 + total);
            return done < 3;
        };
        control.guard = [&paths](const QString &path) { return path == paths[1] ? u"refused"_s : QString(); };
        const BatchResult result = removeFiles(RemovalMethod::Delete, paths, {}, {}, control);
        QCOMPARE(result.count, 2);
        QCOMPARE(result.errors, QStringList{u"refused"_s});
        QVERIFY(result.isCancelled);
        QCOMPARE(reports, (QList<qsizetype>{4, 14, 24, 34}));
        QCOMPARE(treeAt().keys(), (QStringList{u"2"_s, u"4"_s}));
    }

    void recyclesInBatches()
    {
        QStringList paths;
        for (int i = 0; i < 401; ++i)
            paths.append(m_tree->write(QString::number(i), "x"));
        QList<qsizetype> calls;
        const RecycleBin bin = {400, [](const QString &) { return true; },
                                [&calls](const QStringList &batch) {
                                    calls.append(batch.size());
                                    for (const QString &path : batch)
                                        QFile::remove(path);
                                    return RecycleBin::Answer();
                                }};
        QCOMPARE(recycleInto(bin, paths, {}).count, 401);
        QCOMPARE(calls, (QList<qsizetype>{400, 1}));
        const BatchResult again = recycleInto(bin, paths, {});
        QCOMPARE(again.errors.size(), 401);
        QCOMPARE(again.errors[7], u"文件不存在: "_s + paths[7]);
        QCOMPARE(calls.size(), 2);
    }

    /// Whatever stands among 400 paths, only the plain files that nobody refuses are handed to the bin, and each path
    /// gets its own account.
    void recyclesMixedBatch()
    {
        QStringList plain;
        for (int i = 0; i < 390; ++i)
            plain.append(m_tree->write(QStringLiteral("plain/%1").arg(i, 3, 10, QLatin1Char('0')), "x"));
        const QString locked = m_tree->write(u"locked"_s, "x");
        const QString readOnly = m_tree->write(u"read-only"_s, "x");
        QFile::setPermissions(readOnly, QFile::ReadOwner);
        const QString refused = m_tree->write(u"refused"_s, "x");
        const QString tooLong = m_tree->write((QString(100, u'a') + u'/').repeated(3) + u"b"_s, "x");
        const QString folder = at(u"folder"_s);
        m_tree->write(u"folder/inside"_s, "x");
        const QString link = at(u"link"_s);
        const bool hasLink = m_tree->symbolicLink(u"folder/inside"_s, u"link"_s);
        const QString missing = at(u"missing"_s);
        QStringList paths = {missing, folder, refused, tooLong, locked, readOnly, plain[5]};
        if (hasLink)
            paths.append(link);
        paths += plain;
        QStringList handed;
        const RecycleBin bin = {400, [](const QString &path) { return path.size() < 260; },
                                [&](const QStringList &batch) {
                                    handed += batch;
                                    for (const QString &path : batch) {
                                        if (path != locked && path != readOnly)
                                            QFile::remove(path);
                                    }
                                    return RecycleBin::Answer{32, true};
                                }};
        BatchControl control;
        control.guard = [&](const QString &path) { return path == refused ? u"changed"_s : QString(); };
        const BatchResult result = recycleInto(bin, paths, control);
        QStringList wanted = {locked, readOnly, plain[5]};
        for (const QString &path : std::as_const(plain)) {
            if (path != plain[5])
                wanted.append(path);
        }
        QCOMPARE(handed, wanted);
        QCOMPARE(result.count, 390);
        QStringList errors = {u"文件不存在: "_s + missing, u"无法放入回收站，已保留: "_s + folder, u"changed"_s,
                              u"无法放入回收站，已保留: "_s + tooLong};
        if (hasLink)
            errors.append(u"无法放入回收站，已保留: "_s + link);
        errors += {u"批量移入回收站失败 (code 32, 392 个文件)"_s, u"未移入回收站，仍在原处: "_s + locked,
                   u"未移入回收站，仍在原处: "_s + readOnly};
        QCOMPARE(result.errors, errors);
        QCOMPARE(contentOf(at(u"folder/inside"_s)), "x");
    }

    void recyclingTellsWhatTheDiskTells()
    {
        const QString goes = m_tree->write(u"goes"_s, "x");
        const QString stays = m_tree->write(u"stays"_s, "x");
        const QString refused = m_tree->write(u"refused"_s, "x");
        const RecycleBin bin = {400, [&refused](const QString &path) { return path != refused; },
                                [&](const QStringList &) {
                                    QFile::remove(goes);
                                    return RecycleBin::Answer();
                                }};
        const QStringList leftOvers = {u"无法放入回收站，已保留: "_s + refused, u"未移入回收站，仍在原处: "_s + stays};
        const BatchResult silent = recycleInto(bin, {goes, stays, refused}, {});
        QCOMPARE(silent.count, 1);
        QCOMPARE(silent.errors, leftOvers);
    }

    /// The shell takes other files, or more than it was told, or deletes for good, when it is handed these.
    void windowsBinTakes()
    {
        if (namesAreBytes)
            QSKIP("what the shell of Windows does");
        if (!systemRecycleBin().canTake(m_tree->write(u"probe.txt"_s, "x")))
            QSKIP("no bin here");
        m_tree->write(u"page_files/style.css"_s, "x");
        for (const QString &taken : {u"a.txt"_s, u"lone.htm"_s})
            QVERIFY(systemRecycleBin().canTake(m_tree->write(taken, "x")));
        for (const QString &left : {u"page.htm"_s, u"a.txt."_s, u"a.txt "_s, u"dot./a.txt"_s,
                                    (QString(100, u'a') + u'/').repeated(3) + u"b.txt"_s})
            QVERIFY2(!systemRecycleBin().canTake(m_tree->write(left, "x")), qPrintable(left));
    }

    /// Where there is a bin, the file is in it afterwards; where there is none, it stays.
    void realRecycling()
    {
        if (!namesAreBytes)
            QSKIP("the trash of this system has no known place");
        const QByteArray before = qgetenv("XDG_DATA_HOME");
        const QString path = m_tree->write(u"file"_s, "content");
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_tree->write(u"no folder"_s, "")));
        const BatchResult refused = recycleFiles({path});
        qputenv("XDG_DATA_HOME", QFile::encodeName(at(u"new/share"_s)));
        const BatchResult done = recycleFiles({path});
        before.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before);
        QCOMPARE(refused.errors, QStringList{u"无法放入回收站，已保留: "_s + path});
        QCOMPARE(done.errors, QStringList());
        QCOMPARE(done.count, 1);
        QVERIFY(!QFile::exists(path));
        QCOMPARE(contentOf(at(u"new/share/Trash/files/file"_s)), "content");
    }
};

QTEST_GUILESS_MAIN(FileOperationsTest)
#include "tst_fileoperations.moc"
