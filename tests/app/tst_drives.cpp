#include "app/drives.h"

#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

using namespace Mirrix;
using namespace Qt::StringLiterals;

class DrivesTest : public QObject
{
    Q_OBJECT

private slots:
    void listsThisMachine();
    void rootIsNoMountPoint();
    void scannable_data();
    void scannable();
};

/// Sizes are compared with what the standard library says of the same folder.
void DrivesTest::listsThisMachine()
{
    const QList<Drive> drives = listDrives();
    QVERIFY(!drives.isEmpty());
    QSet<QString> roots;
    qsizetype systemDrives = 0;
    for (const Drive &drive : drives) {
        QVERIFY2(drive.root.endsWith(u'/') && !drive.root.contains(u'\\'), qPrintable(drive.root));
        QVERIFY2(!roots.contains(drive.root), qPrintable(drive.root));
        roots.insert(drive.root);
        QVERIFY(drive.freeBytes >= 0 && drive.freeBytes <= drive.totalBytes);
        systemDrives += drive.isSystem ? 1 : 0;
        std::error_code error;
        const auto space = std::filesystem::space(drive.root.toStdU16String(), error);
        QCOMPARE(drive.totalBytes, error ? qint64(0) : qint64(space.capacity));
    }
    QCOMPARE(systemDrives, 1);
    const QString systemRoot = QString::fromStdU16String(std::filesystem::current_path().root_path().u16string());
    if (systemRoot == u'/')
        QVERIFY(drives.first().isSystem && drives.first().totalBytes > 0);
    else
        QVERIFY(roots.contains(u"C:/"_s));
}

/// As in containers: everything is mounted somewhere below a root that is a mere folder.
void DrivesTest::rootIsNoMountPoint()
{
    const QTemporaryDir root;
    const QString script =
        u"for d in /*; do "
        "if [ -L \"$d\" ]; then cp -P \"$d\" \"$0$d\"; "
        "elif [ -d \"$d\" ]; then mkdir \"$0$d\" && mount --rbind \"$d\" \"$0$d\" || exit 77; fi; done; "
        "exec chroot \"$0\" \"$1\" listsThisMachine"_s;
    QProcess process;
    process.start(u"unshare"_s,
                  {u"-m"_s, u"sh"_s, u"-c"_s, script, root.path(), QCoreApplication::applicationFilePath()});
    process.waitForFinished();
    const QByteArray output = process.readAll();
    if (!output.contains("listsThisMachine"))
        QSKIP("cannot mount");
    QVERIFY2(process.exitCode() == 0, output.constData());
}

void DrivesTest::scannable_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<qint64>("totalBytes");
    QTest::addColumn<bool>("expected");
    QTest::newRow("disk") << int(DriveType::Fixed) << qint64(5) << true;
    QTest::newRow("locked disk") << int(DriveType::Fixed) << qint64(0) << true;
    QTest::newRow("sleeping share") << int(DriveType::Remote) << qint64(0) << true;
    QTest::newRow("no disc") << int(DriveType::Optical) << qint64(0) << false;
    QTest::newRow("disc") << int(DriveType::Optical) << qint64(5) << true;
    QTest::newRow("empty card reader") << int(DriveType::Removable) << qint64(0) << false;
}

void DrivesTest::scannable()
{
    QFETCH(int, type);
    QFETCH(qint64, totalBytes);
    Drive drive;
    drive.type = DriveType(type);
    drive.totalBytes = totalBytes;
    QTEST(isScannable(drive), "expected");
}

QTEST_GUILESS_MAIN(DrivesTest)
#include "tst_drives.moc"
