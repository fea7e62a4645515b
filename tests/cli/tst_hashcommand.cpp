#include "core/platform/nativepath.h"
#include "tests/support/probes.h"
#include "tests/support/program.h"
#include "tests/support/tables.h"
#include "tests/support/temptree.h"

#include <QTest>

#include <memory>

using namespace MirrixTest;
using namespace Qt::StringLiterals;

namespace {

const QByteArray md5OfAbc = "900150983cd24fb0d6963f7d28e17f72"; // RFC 1321
const QByteArray md5OfNothing = "d41d8cd98f00b204e9800998ecf8427e";

} // namespace

class HashCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_tree = std::make_unique<TempTree>();
        m_tree->write(u"abc"_s, "abc");
    }

    void digests_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const QString &arguments, const char *expected) {
            QTest::newRow(qPrintable(arguments)) << arguments.split(u' ', Qt::SkipEmptyParts) << QByteArray(expected);
        };
        // Made with md5sum, sha1sum, sha256sum and b3sum, of "abc" and, for the fingerprints, of "3abc" and "3ab".
        const char blake3OfAbc[] = "6437b3ac38465133ffb63b75273a8db548c558465d79db03fd359c6cd5bd9d85";
        const char md5Of3abc[] = "2f4fe09bb4f6bb9ad8ee6e7579e8f5e1";
        const char blake3Of3abc[] = "9d637507f93110d8271e5b9d26981a0612a690e517508f4e29c9f303f94f156e";
        row(u" "_s, md5OfAbc.constData());
        row(u"--algorithm md5"_s, md5OfAbc.constData());
        row(u"--algorithm sha1"_s, "a9993e364706816aba3e25717850c26c9cd0d89d");
        row(u"--algorithm=sha256"_s, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
        row(u"--algorithm blake3"_s, blake3OfAbc);
        row(u"--window full"_s, md5OfAbc.constData());
        row(u"--window quick"_s, md5Of3abc);
        row(u"--window sample"_s, md5Of3abc);
        row(u"--window prefix:2"_s, "831eae3fa74b59c3c943ad25f7b952bf");
        row(u"--window prefix:9"_s, md5Of3abc);
        row(u"--window prefix:0"_s, md5OfAbc.constData());
        row(u"--window quick --algorithm blake3"_s, blake3Of3abc);
        row(u"--window prefix:2 --algorithm blake3"_s,
            "f4ceef348e7aa39c8e2734c694200e629443c821e754653e2683fc7450ed869f");
        row(u"--window prefix:0 --algorithm blake3"_s, blake3OfAbc);
    }

    void digests()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, expected);
        const QString file = m_tree->path(u"abc"_s);
        const ProgramRun run = hash(arguments + QStringList{file});
        QCOMPARE(run.output, expected + "  " + file.toUtf8() + '\n');
        QCOMPARE(run.errors, "");
        QCOMPARE(run.status, 0);
    }

    void severalFiles()
    {
        m_tree->write(u"z"_s, {});
        const ProgramRun run = hash({u"z"_s, u"abc"_s, u"z"_s});
        QCOMPARE(run.output, md5OfNothing + "  z\n" + md5OfAbc + "  abc\n" + md5OfNothing + "  z\n");
        QCOMPARE(run.status, 0);
    }

    void foldersAreSorted()
    {
        for (const QString &name : {u"b"_s, u"a/2"_s, u"a/10"_s, u"a/sub/x y"_s, u"ä"_s, u"c.d/e"_s, u"Z"_s})
            m_tree->write(u"folder/"_s + name, "abc");
        m_tree->makeFolder(u"empty"_s);
        QByteArray expected = md5OfAbc + "  abc\n";
        for (const char *name : {"Z", "a/10", "a/2", "a/sub/x y", "b", "c.d/e", "\xC3\xA4"})
            expected += md5OfAbc + "  folder/" + name + '\n';
        const ProgramRun run = hash({u"abc"_s, u"folder/"_s, u"empty"_s});
        QCOMPARE(run.output, expected);
        QCOMPARE(run.errors, "");
        QCOMPARE(run.status, 0);
    }

    void relativePaths()
    {
        m_tree->write(u"folder/f"_s, "abc");
        QCOMPARE(hash({u"folder/../abc"_s}).output, md5OfAbc + "  folder/../abc\n"); // a file as it was named
        QCOMPARE(hash({u"folder"_s}).output, md5OfAbc + "  folder/f\n");
        QCOMPARE(hash({u"./folder"_s}).output, md5OfAbc + "  folder/f\n");
    }

    void failuresAreNamed()
    {
        const ProgramRun run = hash({u"none"_s, u"abc"_s, u"abc/below"_s});
        QCOMPARE(run.output, md5OfAbc + "  abc\n");
        const QList<QByteArray> lines = run.errors.split('\n');
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines[0].startsWith("mirrix-cli: none: ") && lines[0].size() > 18, lines[0].constData());
        QVERIFY2(lines[1].startsWith("mirrix-cli: abc/below: ") && lines[1].size() > 23, lines[1].constData());
        QCOMPARE(run.status, 1);
    }

    void emptyFiles()
    {
        m_tree->write(u"z"_s, {});
        const ProgramRun run = hash({u"--window"_s, u"quick"_s, u"z"_s});
        QCOMPARE(run.output, "");
        QCOMPARE(run.errors, "mirrix-cli: z: nothing to hash\n");
        QCOMPARE(run.status, 1);
        // The size, "0", is all the others have to hash.
        QCOMPARE(hash({u"--window"_s, u"sample"_s, u"z"_s}).output, "cfcd208495d565ef66e7dff9f98764da  z\n");
        QCOMPARE(hash({u"--window"_s, u"prefix:5"_s, u"z"_s}).output, "cfcd208495d565ef66e7dff9f98764da  z\n");
    }

    void escapedNames_data()
    {
        // shown: behind the blanks
        const auto row = columns<QString, QByteArray, bool>({"name", "shown", "isEscaped"});
        row("line break", u"a\nb"_s, QByteArray("a\\nb"), true);
        row("carriage return", u"a\rb"_s, QByteArray("a\\rb"), true);
        row("backslash", u"a\\nb"_s, QByteArray("a\\\\nb"), true);
        row("tab and star", u"*a\tb"_s, QByteArray("*a\tb"), false);
    }

    void escapedNames()
    {
        if (!namesAreBytes)
            QSKIP("no file can have this name here");
        QFETCH(QString, name);
        QFETCH(QByteArray, shown);
        QFETCH(bool, isEscaped);
        m_tree->write(name, "abc");
        QCOMPARE(hash({name}).output, (isEscaped ? "\\" : "") + md5OfAbc + "  " + shown + '\n');
    }

    void namesOfBytes()
    {
        if (!namesAreBytes)
            QSKIP("names are not bytes here");
        const TempTree tree;
        tree.writeNamedByBytes("caf\xE9", "abc");
        tree.writeNamedByBytes("caf\xE8", "");
        const QByteArray folder = tree.path().toUtf8();
        const ProgramRun run = hash({tree.path()});
        QCOMPARE(run.output, md5OfNothing + "  " + folder + "/caf\xE8\n" + md5OfAbc + "  " + folder + "/caf\xE9\n");
        QCOMPARE(run.status, 0);
        QCOMPARE(hash({u"--window"_s, u"quick"_s, tree.path()}).errors,
                 "mirrix-cli: " + folder + "/caf\xE8: nothing to hash\n");
    }

    void pipeIsNotWaitedFor()
    {
        if (!makePipe(m_tree->path(u"pipe"_s)))
            QSKIP("no named pipes here");
        const ProgramRun run = hash({u"pipe"_s, u"abc"_s});
        QCOMPARE(run.output, md5OfAbc + "  abc\n");
        QVERIFY2(run.errors.startsWith("mirrix-cli: pipe: "), run.errors.constData());
        QCOMPARE(run.status, 1);
    }

    void closedOutputIsAFailure()
    {
        if (!takesNothing(u"/dev/full"_s))
            QSKIP("no device that takes nothing");
        const Program program;
        QProcess process;
        program.prepare(process, {u"hash"_s, m_tree->path(u"abc"_s)});
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start();
        const ProgramRun run = Program::ended(process);
        QVERIFY2(run.errors.startsWith("mirrix-cli: cannot write "), run.errors.constData());
        QCOMPARE(run.status, 1);
    }

    void mistakes_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("message");
        const auto row = [](const QString &arguments, const QString &message) {
            QTest::newRow(qPrintable(arguments)) << arguments << message;
        };
        const QString window = u"--window must be full, quick, sample or prefix:N, not \"%1\""_s;
        const QString notMade = u"--window %1 cannot be used with --algorithm %2"_s;
        row(u"--window full"_s, u"no file to hash"_s);
        row(u"abc "_s, u"an empty file name"_s);
        row(u"--algorithm MD5 abc"_s, u"--algorithm must be md5, sha1, sha256 or blake3, not \"MD5\""_s);
        row(u"--algorithm sha512 abc"_s, u"--algorithm must be md5, sha1, sha256 or blake3, not \"sha512\""_s);
        for (const QString &name : {u"half"_s, u"Quick"_s, u"prefix"_s, u"prefix:"_s, u"prefix:-1"_s, u"prefix:1k"_s,
                                    u"prefix:9223372036854775808"_s})
            row(u"abc --window "_s + name, window.arg(name));
        row(u"--window quick --algorithm sha1 abc"_s, notMade.arg(u"quick"_s, u"sha1"_s));
        row(u"--window prefix:5 --algorithm sha256 abc"_s, notMade.arg(u"prefix:5"_s, u"sha256"_s));
        row(u"--window sample --algorithm sha1 abc"_s, notMade.arg(u"sample"_s, u"sha1"_s));
        row(u"--window sample --algorithm blake3 abc"_s, notMade.arg(u"sample"_s, u"blake3"_s));
        row(u"--format json abc"_s, u"Unknown option 'format'."_s);
        row(u"abc --algorithm"_s, u"Missing value after '--algorithm'."_s);
    }

    void mistakes()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, message);
        const ProgramRun run = hash(arguments.split(u' '));
        QCOMPARE(run.errors, usageErrorText(message));
        QCOMPARE(run.output, "");
        QCOMPARE(run.status, 2);
    }

private:
    [[nodiscard]] ProgramRun hash(const QStringList &arguments) const
    {
        return Program().run(QStringList{u"hash"_s} + arguments, m_tree->path());
    }

    std::unique_ptr<TempTree> m_tree;
};

QTEST_GUILESS_MAIN(HashCommandTest)
#include "tst_hashcommand.moc"
