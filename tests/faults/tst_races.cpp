#include "tests/support/disk.h"
#include "tests/support/program.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <atomic>
#include <future>

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

/// `side` tells two programs apart that share nothing but the files.
QStringList commandFor(const QString &method, const TempTree &tree, const QString &keep = u"newest"_s,
                       const QString &side = {})
{
    QString line = method == u"scan" ? u"scan"_s : u"clean --keep %1 --apply --method %2"_s.arg(keep, method);
    if (method != u"scan" && method != u"delete" && method != u"recycle")
        line += u" --target "_s + tree.path(u"target"_s + side);
    return (line + u" --data-dir %1 %2"_s.arg(tree.path(u"data"_s + side), tree.path(u"src"_s))).split(u' ');
}

/// How many files the program says it dealt with.
qsizetype toldCount(const QByteArray &output)
{
    static const QRegularExpression claim(u"(\\d+) of (\\d+) files"_s);
    return claim.match(QString::fromUtf8(output)).captured(1).toInt();
}

/// What is wrong after a run that printed `output`; empty when all is well.
QString problemOf(const QString &method, const Findings &found, const QByteArray &output)
{
    const qsizetype told = toldCount(output);
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

constexpr int pairCount = 6;
constexpr int stampBytes = 8;

/// Equal pairs for programs that fight over them: "N-old" and "N-new", beginning with room for a stamp.
class Pairs
{
public:
    explicit Pairs(qsizetype sizeBytes)
    {
        for (int pair = 0; pair < pairCount; ++pair) {
            const QByteArray content =
                QByteArray(stampBytes, '.') + char('A' + pair) + patternBytes(int(sizeBytes), char(pair));
            m_contents.append(content);
            for (const QString &age : {u"-old"_s, u"-new"_s}) {
                const QString name = u"src/"_s + QString::number(pair) + age;
                m_tree.write(name, content);
                m_tree.setModified(name, age == u"-old" ? 1000000000000 : 1100000000000);
                m_paths.append(m_tree.path(name));
            }
        }
    }

    [[nodiscard]] const TempTree &tree() const { return m_tree; }
    [[nodiscard]] const QStringList &paths() const { return m_paths; }
    [[nodiscard]] const QByteArray &contentOf(qsizetype path) const { return m_contents[path / 2]; }

    /// What differs on the disk from `told` files dealt with; empty when nothing does.
    [[nodiscard]] QString problem(const QString &method, qsizetype told) const
    {
        QSet<ino_t> files;
        qsizetype links = 0;
        for (const QString &path : m_paths) {
            struct stat status = {};
            const bool isThere = lstat(path.toUtf8().constData(), &status) == 0;
            links += isThere && S_ISLNK(status.st_mode) && QFile::exists(path) ? 1 : 0;
            if (isThere && S_ISREG(status.st_mode))
                files.insert(status.st_ino);
        }
        if (m_paths.size() - files.size() != told || (method == u"symlink" && links != told))
            return u"%1 files and %2 links left, %3 told"_s.arg(files.size()).arg(links).arg(told);
        const QStringList names = QDir(m_tree.path(u"src"_s)).entryList(QDir::Files | QDir::Hidden | QDir::System);
        return names.filter(u".mirrix-"_s).isEmpty() ? QString() : u"left behind: "_s + names.join(u' ');
    }

private:
    TempTree m_tree;
    QStringList m_paths;
    QByteArrayList m_contents;
};

/// Writes stamps into files until it is told to end.
class Editor
{
public:
    Editor(const QStringList &paths, quint32 seed)
        : m_paths(paths)
        , m_folder(QFileInfo(paths[0]).path())
        , m_random(seed)
    {}

    /// What each file, by its number, was given last.
    [[nodiscard]] QHash<ino_t, QByteArray> run(const std::atomic_bool &isOver)
    {
        while (!isOver) {
            if (m_random.bounded(100) == 0)
                stamp(m_paths[m_random.bounded(int(m_paths.size()))]);
            stampFilesSetAside();
            usleep(30);
        }
        return m_stamps;
    }

private:
    /// Only files set aside just now, whose comparison goes on for a while: a write between the last check of a file
    /// and its removal cannot be noticed.
    void stampFilesSetAside()
    {
        constexpr qint64 justNowNs = 150'000;
        const QStringList found = QDir(m_folder).entryList({u".mirrix-*.aside"_s}, QDir::Files | QDir::Hidden);
        for (const QString &name : found) {
            if (m_known.contains(name))
                continue;
            m_known.insert(name);
            if (m_sinceLastLook.isValid() && m_sinceLastLook.nsecsElapsed() < justNowNs)
                stamp(m_folder + u'/' + name);
        }
        m_sinceLastLook.start();
    }

    void stamp(const QString &path)
    {
        const QByteArray stamp = QByteArray::number(++m_count).rightJustified(stampBytes, '0');
        const int file = open(path.toUtf8().constData(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC);
        struct stat status = {};
        if (file >= 0 && fstat(file, &status) == 0 && pwrite(file, stamp.constData(), stampBytes, 0) == stampBytes)
            m_stamps.insert(status.st_ino, stamp);
        if (file >= 0)
            close(file);
    }

    QStringList m_paths;
    QString m_folder;
    QRandomGenerator m_random;
    QHash<ino_t, QByteArray> m_stamps;
    QSet<QString> m_known;
    QElapsedTimer m_sinceLastLook;
    int m_count = 0;
};

void addMethods(const QStringList &methods)
{
    const auto row = columns<QString>({"method"});
    for (const QString &method : methods)
        row(qPrintable(method), method);
}

} // namespace

class RacesTest : public QObject
{
    Q_OBJECT

private slots:
    void everyContentStays_data() { addMethods(u"scan delete move recycle symlink hardlink backup"_s.split(u' ')); }

    /// Whatever another process does meanwhile, a whole copy of each content is left, what was moved is whole, and the
    /// program tells no more than it did.
    void everyContentStays()
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
            QVERIFY2(problem.isEmpty(), qPrintable(u"seed %1: %2\n"_s.arg(seed).arg(problem) +
                                                   QString::fromUtf8(run.output + run.errors)));
        }
        qInfo("%d of %d runs disturbed", disturbed, rounds);
    }

    void contraryRules_data() { addMethods(u"delete move recycle symlink hardlink backup"_s.split(u' ')); }

    /// Each of two programs takes the other's kept files for surplus.
    void contraryRules()
    {
        QFETCH(QString, method);
        const int rounds = std::max(34, qEnvironmentVariableIntValue("MIRRIX_RACE_ROUNDS") / 6);
        int disturbed = 0;
        for (int round = 0; round < rounds; ++round) {
            const Pairs pairs(round % 2 ? 300 : 90000);
            const Program programs[2];
            QProcess processes[2];
            for (int side = 0; side < 2; ++side)
                programs[side].prepare(
                    processes[side],
                    commandFor(method, pairs.tree(), side ? u"newest"_s : u"oldest"_s, QString::number(side)));
            for (QProcess &process : processes)
                process.start();
            qsizetype told = 0;
            QByteArray said;
            for (QProcess &process : processes) {
                const ProgramRun run = Program::ended(process);
                said += run.output + run.errors;
                QVERIFY2(run.status == 0 || run.status == 1, said.constData());
                disturbed += run.status;
                told += toldCount(run.output);
            }
            QString problem = pairs.problem(method, told);
            for (qsizetype i = 0; i < pairs.paths().size(); i += 2) {
                if (contentOf(pairs.paths()[i]) != pairs.contentOf(i) &&
                    contentOf(pairs.paths()[i + 1]) != pairs.contentOf(i))
                    problem += u" lost: "_s + pairs.paths()[i];
            }
            QVERIFY2(problem.isEmpty(), problem.toUtf8() + '\n' + said);
        }
        qInfo("%d runs disturbed in %d rounds", disturbed, rounds);
    }

    void editsMeanwhile_data() { contraryRules_data(); }

    /// Another program writes into files while they are compared and taken away: what it wrote last stays, and so does
    /// what it left alone.
    void editsMeanwhile()
    {
        QFETCH(QString, method);
        const int rounds = std::max(34, qEnvironmentVariableIntValue("MIRRIX_RACE_ROUNDS") / 6);
        const bool isCompared = method == u"delete" || method.endsWith(u"link");
        int disturbed = 0;
        for (int round = 0; round < rounds; ++round) {
            const Pairs pairs(isCompared ? 1 << 20 : 200000); // takes longer to compare than to come in
            const Program program;
            QHash<QString, ino_t> numbers;
            for (const QString &path : pairs.paths()) {
                struct stat status = {};
                QVERIFY(lstat(path.toUtf8().constData(), &status) == 0);
                numbers.insert(path, status.st_ino);
            }
            std::atomic_bool isOver = false;
            auto editor = std::async(std::launch::async, [&, seed = QRandomGenerator::global()->generate()] {
                return Editor(pairs.paths(), seed).run(isOver);
            });
            QProcess process;
            program.prepare(process, commandFor(method, pairs.tree()));
            process.start();
            const ProgramRun run = Program::ended(process);
            isOver = true;
            const QHash<ino_t, QByteArray> stamps = editor.get();
            QVERIFY2(run.status == 0 || run.status == 1, run.errors.constData());
            disturbed += run.status;
            QString problem = pairs.problem(method, toldCount(run.output));
            QSet<QByteArray> left;
            for (const DiskTree &tree : {treeBelow(pairs.tree().path()), treeBelow(program.dataFolder() + u"/.."_s)}) {
                for (const QByteArray &file : tree)
                    left.insert(file.left(file.lastIndexOf(" @")));
            }
            for (qsizetype i = 0; i < pairs.paths().size(); ++i) {
                const ino_t number = numbers[pairs.paths()[i]];
                const bool isPairWritten = stamps.contains(number) || stamps.contains(numbers[pairs.paths()[i ^ 1]]);
                const QByteArray content = stamps.value(number) + pairs.contentOf(i).mid(stamps.value(number).size());
                if ((stamps.contains(number) || !isPairWritten) && !left.contains(content))
                    problem += u" lost: "_s + pairs.paths()[i];
            }
            QVERIFY2(problem.isEmpty(), problem.toUtf8() + '\n' + run.output + run.errors);
        }
        qInfo("%d of %d runs disturbed", disturbed, rounds);
    }
};

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
