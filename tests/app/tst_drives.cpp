#include "app/drives.h"
#include "tests/support/tables.h"

#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <filesystem>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

class DrivesTest : public QObject
{
    Q_OBJECT

private slots:
    /// Sizes are compared with what the standard library says of the same folder.
    void listsThisMachine()
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
    void rootIsNoMountPoint()
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

    void scannable_data()
    {
        const auto row = columns<DriveType, qint64, bool>({"type", "totalBytes", "expected"});
        row("disk", DriveType::Fixed, 5, true);
        row("locked disk", DriveType::Fixed, 0, true);
        row("sleeping share", DriveType::Remote, 0, true);
        row("no disc", DriveType::Optical, 0, false);
        row("disc", DriveType::Optical, 5, true);
        row("empty card reader", DriveType::Removable, 0, false);
    }

    void scannable()
    {
        QFETCH(DriveType, type);
        QFETCH(qint64, totalBytes);
        Drive drive;
        drive.type = type;
        drive.totalBytes = totalBytes;
        QTEST(isScannable(drive), "expected");
    }
};

QTEST_GUILESS_MAIN(DrivesTest)
#include "tst_drives.moc"
