#include "actions/linkreplacement.h"

#include "actions/backupstore.h"
#include "actions/changeguard.h"
#include "actions/fileoperations.h"
#include "core/walk/filestatus.h"
#include "tests/support/disk.h"
#include "tests/support/temptree.h"

#include <QTest>

#include <memory>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

MirrixCore::FileEntry entryOf(const QString &path)
{
    MirrixCore::FileEntry entry;
    const MirrixCore::FileStatus status = MirrixCore::fileStatus(path);
    entry.path = path;
    entry.size = status.sizeBytes;
    entry.modifiedMs = status.modifiedMs;
    entry.volumeSerial = status.identity.volume;
    entry.fileIndex = status.identity.index;
    entry.hasFileId = status.identity.isKnown;
    return entry;
}

} // namespace

Q_DECLARE_METATYPE(LinkKind)
Q_DECLARE_METATYPE(Originals)

class LinkReplacementTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void replaces_data() { kinds(); }
    void replaces();
    void putsBack_data() { kinds(); }
    void putsBack();
    void leavesAlone_data();
    void leavesAlone();
    void guardSeesChanges_data();
    void guardSeesChanges();

    void guardSeesOtherFiles_data();
    void guardSeesOtherFiles();
    void finalGuardComparesContents();

private:
    static void kinds()
    {
        QTest::addColumn<LinkKind>("kind");
        QTest::addColumn<Originals>("originals");
        QTest::newRow("symbolic, kept") << LinkKind::Symbolic << Originals::KeepInBackup;
        QTest::newRow("symbolic, discarded") << LinkKind::Symbolic << Originals::Discard;
        QTest::newRow("hard, kept") << LinkKind::Hard << Originals::KeepInBackup;
        QTest::newRow("hard, discarded") << LinkKind::Hard << Originals::Discard;
    }
    [[nodiscard]] QString store() const { return m_tree->path(u"store"_s); }
    [[nodiscard]] DiskTree source() const { return treeBelow(m_tree->path(u"src"_s)); }

    std::unique_ptr<TempTree> m_tree;
    QString m_keeper;
    QString m_copy;
};

void LinkReplacementTest::init()
{
    m_tree = std::make_unique<TempTree>();
    m_keeper = m_tree->write(u"src/keeper"_s, "same");
    m_copy = m_tree->write(u"src/copy"_s, "same");
    m_tree->setModified(u"src/copy"_s, 1234567890123);
}

void LinkReplacementTest::replaces()
{
    QFETCH(LinkKind, kind);
    QFETCH(Originals, originals);
    if (kind == LinkKind::Symbolic && !m_tree->symbolicLink(u"src/keeper"_s, u"probe"_s))
        QSKIP("no symbolic links");
    DiskTree expected = source();
    const QByteArray copy = expected[u"copy"_s];
    expected[u"copy"_s] = (kind == LinkKind::Symbolic ? "link to " : "") + expected[u"keeper"_s];
    const BatchResult result = replaceByLinks(store(), {{m_copy, m_keeper}}, kind, originals);
    QCOMPARE(result.errors, QStringList());
    QCOMPARE(result.count, 1);
    QCOMPARE(source(), expected);
    const QList<BackupEntry> kept = loadBackupIndex(store());
    QCOMPARE(kept.size(), originals == Originals::KeepInBackup ? 1 : 0);
    QCOMPARE(treeBelow(store()).size(), kept.size() + 1);
    if (!kept.isEmpty()) {
        QVERIFY(QFile::remove(m_copy));
        QVERIFY(restoreBackup(store(), kept.constFirst()));
        QCOMPARE(source()[u"copy"_s], copy);
    }
}

/// Hard links end at the volume and symbolic ones may be impossible: the file is back as if nothing had been tried.
void LinkReplacementTest::putsBack()
{
    QFETCH(LinkKind, kind);
    QFETCH(Originals, originals);
    const bool isSymbolic = kind == LinkKind::Symbolic;
    const auto other = folderOnOtherVolume(m_tree->path());
    QString target = m_keeper;
    if (!isSymbolic && other) {
        QFile::copy(m_keeper, other->filePath(u"keeper"_s));
        target = other->filePath(u"keeper"_s);
    }
    if (isSymbolic ? m_tree->symbolicLink(u"src/keeper"_s, u"probe"_s) : !other)
        QSKIP("these links can be made here");
    const DiskTree before = source();
    const BatchResult result = replaceByLinks(store(), {{m_copy, target}}, kind, originals);
    QCOMPARE(result.count, 0);
    QCOMPARE(result.errors, QStringList{(isSymbolic ? u"无法创建符号链接: "_s : u"无法创建硬链接: "_s) + m_copy});
    QCOMPARE(source(), before);
    QVERIFY(loadBackupIndex(store()).isEmpty());
    QCOMPARE(treeBelow(store()).size(), 1);
}

void LinkReplacementTest::leavesAlone_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("error"); // %1 is the path, %2 the target
    const QString same = u"与要保留的文件可能是同一个文件，未处理: %1"_s;
    QTest::newRow("itself") << u"src/copy"_s << u"src/copy"_s << same;
    QTest::newRow("another spelling") << u"src/copy"_s << u"src/../src/copy"_s << same;
    QTest::newRow("another name of it") << u"src/copy"_s << u"src/linked"_s << same;
    QTest::newRow("target missing") << u"src/copy"_s << u"src/missing"_s << u"链接目标不是可用的文件: %2"_s;
    QTest::newRow("target a folder") << u"src/copy"_s << u"src"_s << u"链接目标不是可用的文件: %2"_s;
    QTest::newRow("file missing") << u"src/missing"_s << u"src/copy"_s << u"文件不存在: %1"_s;
}

void LinkReplacementTest::leavesAlone()
{
    QFETCH(QString, path);
    QFETCH(QString, target);
    QFETCH(QString, error);
    if (!m_tree->hardLink(u"src/copy"_s, u"src/linked"_s))
        QSKIP("no hard links");
    const DiskTree before = source();
    const BatchResult result =
        replaceByLinks(store(), {{m_tree->path(path), m_tree->path(target)}}, LinkKind::Hard, Originals::Discard);
    error.replace(u"%1"_s, m_tree->path(path)).replace(u"%2"_s, m_tree->path(target));
    QCOMPARE(result.errors, QStringList{error});
    QCOMPARE(source(), before);
    QVERIFY(!surplusProblem(entryOf(m_tree->path(path)), entryOf(m_tree->path(target))).isEmpty());
}

void LinkReplacementTest::guardSeesChanges_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<qint64>("shiftMs");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("untouched") << QByteArray("same") << qint64(0) << false;
    QTest::newRow("other content and time") << QByteArray("SAME") << qint64(1) << true;
    QTest::newRow("other size, same time") << QByteArray("same!") << qint64(0) << true;
    QTest::newRow("gone") << QByteArray() << qint64(0) << true;
}

void LinkReplacementTest::guardSeesChanges()
{
    QFETCH(QByteArray, content);
    QFETCH(qint64, shiftMs);
    QFETCH(bool, isRefused);
    const MirrixCore::FileEntry copy = entryOf(m_copy);
    const MirrixCore::FileEntry keeper = entryOf(m_keeper);
    if (content.isEmpty()) {
        QVERIFY(QFile::remove(m_copy));
    } else {
        m_tree->write(u"src/copy"_s, content);
        m_tree->setModified(u"src/copy"_s, copy.modifiedMs + shiftMs);
    }
    const DiskTree before = source();
    BatchControl control;
    control.guard = guardAgainstChanges({copy});
    QCOMPARE(changeProblem(copy).isEmpty(), !isRefused);
    QCOMPARE(surplusProblem(copy, keeper).isEmpty(), !isRefused);
    QCOMPARE(surplusProblem(keeper, copy).isEmpty(), !isRefused);
    const BatchResult result = removeFiles(RemovalMethod::Delete, {m_copy}, {}, {}, control);
    QCOMPARE(result.count, isRefused ? 0 : 1);
    if (isRefused)
        QCOMPARE(result.errors, QStringList{u"文件在扫描后已更改，已保留: "_s + m_copy});
    QCOMPARE(source() == before, isRefused);
}

void LinkReplacementTest::guardSeesOtherFiles_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"moved over it", "folder swapped for a link", "symbolic link", "hard link to the keeper"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

/// Other files of the same size and time in the place of the scanned one.
void LinkReplacementTest::guardSeesOtherFiles()
{
    QFETCH(QString, how);
    const QString victim = m_tree->write(u"src/sub/victim"_s, "same");
    const QString other = m_tree->write(u"src/other/victim"_s, "SAME");
    for (const QString &path : {u"src/sub/victim"_s, u"src/other/victim"_s, u"src/keeper"_s})
        m_tree->setModified(path, 1234567890123);
    const MirrixCore::FileEntry scanned = entryOf(victim);
    const MirrixCore::FileEntry keeper = entryOf(m_keeper);
    QVERIFY(scanned.hasFileId);
    QVERIFY(surplusProblem(scanned, keeper).isEmpty());
    const QString aside = m_tree->path(u"src/aside"_s);
    bool isMade = false;
    if (how == u"moved over it") {
        isMade = QFile::rename(victim, aside) && QFile::rename(other, victim);
    } else if (how == u"folder swapped for a link") {
        isMade = QFile::rename(m_tree->path(u"src/sub"_s), aside) && m_tree->symbolicLink(u"src/other"_s, u"src/sub"_s);
    } else {
        isMade = QFile::rename(victim, aside) &&
                 (how == u"symbolic link" ? m_tree->symbolicLink(u"src/keeper"_s, u"src/sub/victim"_s)
                                          : createHardLink(victim, m_keeper));
    }
    if (!isMade)
        QSKIP("cannot be made here");
    const DiskTree before = source();
    BatchControl control;
    control.guard = guardAgainstChanges({scanned});
    QVERIFY(!changeProblem(scanned).isEmpty());
    QVERIFY(!surplusProblem(scanned, keeper).isEmpty());
    QVERIFY(!surplusProblem(keeper, scanned).isEmpty());
    QCOMPARE(removeFiles(RemovalMethod::Delete, {victim}, {}, {}, control).count, 0);
    QCOMPARE(source(), before);
}

/// A file that was written and given its old time again looks as it did to the scan.
void LinkReplacementTest::finalGuardComparesContents()
{
    m_tree->setModified(u"src/keeper"_s, 1234567890123);
    const MirrixCore::FileEntry copy = entryOf(m_copy);
    const MirrixCore::FileEntry keeper = entryOf(m_keeper);
    QCOMPARE(finalSurplusProblem(copy, keeper), QString());
    m_tree->write(u"src/copy"_s, "sAme");
    m_tree->setModified(u"src/copy"_s, copy.modifiedMs);
    QCOMPARE(finalSurplusProblem(copy, keeper), u"文件在扫描后已更改，已保留: "_s + m_copy);
    QVERIFY(!finalSurplusProblem(keeper, copy).isEmpty());
}

QTEST_GUILESS_MAIN(LinkReplacementTest)
#include "tst_linkreplacement.moc"
