#include "app/storedfile.h"

#include "tests/support/disk.h"
#include "tests/support/temptree.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <memory>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

class StoredFileTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TempTree> m_tree;

    [[nodiscard]] QString names() const
    {
        return QDir(m_tree->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).join(u' ');
    }

private slots:
    void init() { m_tree = std::make_unique<TempTree>(); }

    void replaces()
    {
        const QString path = m_tree->path(u"file"_s);
        for (const QByteArray &content : {QByteArray("first"), QByteArray(), QByteArray("a\r\nb\n\0\x1a\xFF", 8),
                                          patternBytes(100000), QByteArray("last")}) {
            QVERIFY(replaceFile(path, content));
            QCOMPARE(contentOf(path), content);
            QCOMPARE(names(), u"file"_s); // no temporary file stays
        }
    }

    void failsWithoutTarget()
    {
        m_tree->write(u"file"_s, "old");
        m_tree->makeFolder(u"folder"_s);
        for (const QString &target : {u"missing/file"_s, u"file/file"_s, u"folder"_s}) {
            QVERIFY(!replaceFile(m_tree->path(target), "new"));
            QCOMPARE(names(), u"file folder"_s);
            QCOMPARE(contentOf(m_tree->path(u"file"_s)), "old");
        }
    }

    /// A shell's limit on the size of files ends a write in its middle, as a full disk does, and needs no rights. The
    /// test runs again below it.
    void keepsTheOldFileOnAFullDisk()
    {
        const QString limited = qEnvironmentVariable("MIRRIX_LIMITED_FILE");
        if (!limited.isEmpty()) {
            for (const int length : {9000, 100000}) // in one buffer, in one write
                QVERIFY(!replaceFile(limited, patternBytes(length)));
            return;
        }
        const QString path = m_tree->write(u"file"_s, "old");
        qputenv("MIRRIX_LIMITED_FILE", QFile::encodeName(path));
        const QString again = u"trap '' XFSZ && ulimit -f 8 && exec \"$0\" keepsTheOldFileOnAFullDisk"_s; // 8 x 512
        QProcess process;
        process.start(u"sh"_s, {u"-c"_s, again, QCoreApplication::applicationFilePath()});
        process.waitForFinished();
        qunsetenv("MIRRIX_LIMITED_FILE");
        if (process.error() == QProcess::FailedToStart)
            QSKIP("no shell that limits the size of files");
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                 process.readAll().constData());
        QCOMPARE(contentOf(path), "old");
        QCOMPARE(names(), u"file"_s);
    }
};

QTEST_GUILESS_MAIN(StoredFileTest)
#include "tst_storedfile.moc"
