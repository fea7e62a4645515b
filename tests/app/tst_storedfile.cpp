#include "app/storedfile.h"
#include "tests/support/temptree.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <memory>

using namespace Mirrix;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// The running row, as the test program's command line names it.
QString thisRow()
{
    return QLatin1String(QTest::currentTestFunction()) + u':' + QLatin1String(QTest::currentDataTag());
}

} // namespace

class StoredFileTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_tree = std::make_unique<TempTree>(); }
    void replaces_data();
    void replaces();
    void failsWithoutTarget_data();
    void failsWithoutTarget();
    void keepsTheOldFileOnAFullDisk_data();
    void keepsTheOldFileOnAFullDisk();

private:
    [[nodiscard]] QStringList names() const
    {
        return QDir(m_tree->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<TempTree> m_tree;
};

void StoredFileTest::replaces_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("every byte as it is") << QByteArray("a\r\nb\n\0\x1a\xFF", 8);
    QTest::newRow("more than a buffer") << patternBytes(100000);
}

void StoredFileTest::replaces()
{
    QFETCH(QByteArray, content);
    const QString path = m_tree->path(u"file"_s);
    QVERIFY(replaceFile(path, content));
    QCOMPARE(contentOf(path), content);
    QVERIFY(replaceFile(path, "another"));
    QCOMPARE(contentOf(path), "another");
    QVERIFY(replaceFile(path, content));
    QCOMPARE(contentOf(path), content);
    QCOMPARE(names(), QStringList{u"file"_s}); // no temporary file stays
}

void StoredFileTest::failsWithoutTarget_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("folder missing") << u"missing/file"_s;
    QTest::newRow("below a file") << u"file/file"_s;
    QTest::newRow("a folder itself") << u"folder"_s;
}

void StoredFileTest::failsWithoutTarget()
{
    QFETCH(QString, target);
    m_tree->write(u"file"_s, "old");
    m_tree->makeFolder(u"folder"_s);
    QVERIFY(!replaceFile(m_tree->path(target), "new"));
    QCOMPARE(names(), (QStringList{u"file"_s, u"folder"_s}));
    QCOMPARE(contentOf(m_tree->path(u"file"_s)), "old");
}

void StoredFileTest::keepsTheOldFileOnAFullDisk_data()
{
    QTest::addColumn<int>("length");
    QTest::newRow("in one buffer") << 9000;
    QTest::newRow("in one write") << 100000;
}

/// A shell's limit on the size of files ends a write in its middle, as a full disk does, and needs no rights. The test
/// runs once more below it.
void StoredFileTest::keepsTheOldFileOnAFullDisk()
{
    QFETCH(int, length);
    const QString limited = qEnvironmentVariable("MIRRIX_LIMITED_FILE");
    if (!limited.isEmpty()) {
        QVERIFY(!replaceFile(limited, patternBytes(length)));
        return;
    }
    const QString path = m_tree->write(u"file"_s, "old");
    qputenv("MIRRIX_LIMITED_FILE", QFile::encodeName(path));
    const QString again = u"trap '' XFSZ && ulimit -f 8 && exec \"$0\" \"$1\""_s; // 8 x 512 bytes
    QProcess process;
    process.start(u"sh"_s, {u"-c"_s, again, QCoreApplication::applicationFilePath(), thisRow()});
    process.waitForFinished();
    qunsetenv("MIRRIX_LIMITED_FILE");
    if (process.error() == QProcess::FailedToStart)
        QSKIP("no shell that limits the size of files");
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0, process.readAll().constData());
    QCOMPARE(contentOf(path), "old");
    QCOMPARE(names(), QStringList{u"file"_s});
}

QTEST_GUILESS_MAIN(StoredFileTest)
#include "tst_storedfile.moc"
