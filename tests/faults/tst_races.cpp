#include "tests/support/disk.h"
#include "tests/support/program.h"
#include "tests/support/temptree.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

constexpr int folderCount = 3;
constexpr int filesInFolder = 8;
constexpr int fileCount = folderCount * filesInFolder;
constexpr int kindCount = 4;

QString fileOf(int number)
{
    return u"d%1/f%2"_s.arg(number / filesInFolder).arg(number % filesInFolder);
}

/// Contents are told apart by their first byte, and are long enough for several reads.
QByteArray contentOfKind(int kind)
{
    return char('A' + kind) + patternBytes(kind % 2 ? 300 : 90000, 7);
}

/// The mutating process, which changes the tree at random until it is ended. It destroys no content but such as it has
/// put there itself, which begins with a small letter; its own files are m0 to m3 in each folder.
class Mutator
{
public:
    Mutator(const QByteArray &root, quint32 seed)
        : m_root(root)
        , m_random(seed)
    {}

    [[noreturn]] void run()
    {
        for (;;) {
            change();
            usleep(m_random.bounded(200));
        }
    }

private:
    void change()
    {
        const QByteArray folder = m_root + "/d" + QByteArray::number(m_random.bounded(folderCount));
        const QByteArray own = folder + "/m" + QByteArray::number(m_random.bounded(4));
        const QByteArray file = m_root + '/' + fileOf(int(m_random.bounded(fileCount))).toLatin1();
        switch (m_random.bounded(8)) {
        case 0: // of a size at which it is compared
            write(own, 'a' + contentOfKind(int(m_random.bounded(kindCount))).mid(1), O_CREAT | O_TRUNC);
            break;
        case 1:
            write(own, "grown", O_APPEND);
            break;
        case 2:
            cut(own, off_t(m_random.bounded(90000)));
            break;
        case 3:
            unlink(own.constData());
            rmdir(own.constData());
            break;
        case 4:
            static_cast<void>(m_random.bounded(2) ? symlink(file.constData(), own.constData())
                                                  : mkdir(own.constData(), 0700));
            break;
        case 5:
            static_cast<void>(rename(folder.constData(), (folder + "-away").constData()));
            usleep(m_random.bounded(300));
            static_cast<void>(rename((folder + "-away").constData(), folder.constData()));
            break;
        case 6:
            moveAsideOrBack(file, file + "-moved");
            break;
        default:
            fchmodat(AT_FDCWD, own.constData(), m_random.bounded(2) ? 0000 : 0600, AT_SYMLINK_NOFOLLOW);
        }
    }

    static void write(const QByteArray &path, const QByteArray &content, int flags)
    {
        const int file = open(path.constData(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC | flags, 0600);
        static_cast<void>(::write(file, content.constData(), size_t(content.size())));
        close(file);
    }

    static void cut(const QByteArray &path, off_t length)
    {
        const int file = open(path.constData(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC);
        static_cast<void>(ftruncate(file, length));
        close(file);
    }

    /// A link takes the place of the file, or the file that of the link.
    static void moveAsideOrBack(const QByteArray &file, const QByteArray &aside)
    {
        struct stat status = {};
        if (renameat2(AT_FDCWD, file.constData(), AT_FDCWD, aside.constData(), RENAME_NOREPLACE) == 0)
            static_cast<void>(symlink(aside.constData(), file.constData()));
        else if (renameat2(AT_FDCWD, file.constData(), AT_FDCWD, aside.constData(), RENAME_EXCHANGE) == 0 &&
                 lstat(aside.constData(), &status) == 0 && S_ISLNK(status.st_mode))
            unlink(aside.constData());
    }

    QByteArray m_root;
    QRandomGenerator m_random;
};

/// What is on the disk after a run.
struct Findings
{
    QSet<QByteArray> contents; ///< of the files that the test made
    qsizetype files = 0;       ///< that hold one of them
    qsizetype taken = 0;       ///< files in the folder into which files are moved
    bool areWhole = true;
};

Findings lookAt(const TempTree &tree)
{
    Findings found;
    for (const QString &folder : {u"src"_s, u"target"_s}) {
        const DiskTree files = treeBelow(tree.path(folder));
        for (auto file = files.begin(); file != files.end(); ++file) {
            found.taken += folder == u"target" && !file.key().startsWith(u"backup_index"_s) ? 1 : 0;
            const QByteArray content = file->left(file->lastIndexOf(" @"));
            if (content.isEmpty() || content[0] < 'A' || content[0] > 'Z')
                continue;
            found.areWhole = found.areWhole && content == contentOfKind(content[0] - 'A');
            found.contents.insert(content);
            ++found.files;
        }
    }
    return found;
}

QStringList commandFor(const QString &method, const TempTree &tree)
{
    const QStringList common = {u"--data-dir"_s, tree.path(u"data"_s), tree.path(u"src"_s)};
    if (method == u"scan")
        return QStringList{u"scan"_s} + common;
    const QStringList clean =
        QStringList{u"clean"_s, u"--keep"_s, u"newest"_s, u"--apply"_s, u"--method"_s, method} + common;
    const bool needsTarget = method != u"delete" && method != u"recycle";
    return needsTarget ? clean + QStringList{u"--target"_s, tree.path(u"target"_s)} : clean;
}

/// What is wrong after a run that printed `output`; empty when all is well.
QString problemOf(const QString &method, const Findings &found, const QByteArray &output)
{
    static const QRegularExpression claim(u"(\\d+) of (\\d+) files"_s);
    const qsizetype told = claim.match(QString::fromUtf8(output)).captured(1).toInt();
    if (!found.areWhole)
        return u"a file was cut or mixed"_s;
    if (found.contents.size() != kindCount)
        return u"%1 contents left"_s.arg(found.contents.size());
    const bool areKept = method == u"scan" || method == u"move" || method == u"backup";
    if (fileCount - found.files > (areKept ? 0 : told))
        return u"%1 files left, %2 told to be removed"_s.arg(found.files).arg(told);
    if ((method == u"move" || method == u"backup") && found.taken != told)
        return u"%1 files moved, %2 told"_s.arg(found.taken).arg(told);
    return {};
}

} // namespace

class RacesTest : public QObject
{
    Q_OBJECT

private slots:
    void everyContentStays_data();
    void everyContentStays();
};

void RacesTest::everyContentStays_data()
{
    QTest::addColumn<QString>("method");
    for (const char *method : {"scan", "delete", "move", "recycle", "symlink", "hardlink", "backup"})
        QTest::newRow(method) << QString::fromLatin1(method);
}

/// Whatever another process does meanwhile, a whole copy of each content is left, what was moved is whole, and the
/// program tells no more than it did.
void RacesTest::everyContentStays()
{
    QFETCH(QString, method);
    const int rounds = std::max(3, qEnvironmentVariableIntValue("MIRRIX_RACE_ROUNDS") / 7);
    int disturbed = 0;
    for (int round = 0; round < rounds; ++round) {
        const quint32 seed = QRandomGenerator::global()->generate();
        const TempTree tree;
        const Program program;
        tree.makeFolder(u"target"_s);
        for (int i = 0; i < fileCount; ++i)
            tree.write(u"src/"_s + fileOf(i), contentOfKind(i % kindCount));
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(),
                    {u"--mutate"_s, tree.path(u"src"_s), QString::number(seed)});
        QVERIFY(other.waitForStarted());
        const ProgramRun run = program.run(commandFor(method, tree));
        QCOMPARE(other.state(), QProcess::Running);
        other.kill();
        other.waitForFinished();
        QVERIFY2(run.status == 0 || run.status == 1, run.errors.constData());
        disturbed += run.status;
        const QString problem = problemOf(method, lookAt(tree), run.output);
        QVERIFY2(problem.isEmpty(),
                 qPrintable(u"seed %1: %2\n"_s.arg(seed).arg(problem) + QString::fromUtf8(run.output + run.errors)));
    }
    qInfo("%d of %d runs disturbed", disturbed, rounds);
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--mutate")
        Mutator(arguments.value(2).toUtf8(), arguments.value(3).toUInt()).run();
    RacesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_races.moc"
