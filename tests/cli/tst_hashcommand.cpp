#include "tests/cli/clitest.h"

namespace {

const QByteArray md5OfAbc = "900150983cd24fb0d6963f7d28e17f72"; // RFC 1321
const QByteArray md5OfNothing = "d41d8cd98f00b204e9800998ecf8427e";

} // namespace

class HashCommandTest : public CliTest
{
    Q_OBJECT

private slots:
    void init()
    {
        renew();
        m_tree->write(u"abc"_s, "abc");
        m_tree->write(u"z"_s, {});
        m_tree->makeFolder(u"empty"_s);
        for (const QString &name : {u"b"_s, u"a/2"_s, u"a/10"_s, u"a/sub/x y"_s, u"ä"_s, u"c.d/e"_s, u"Z"_s})
            m_tree->write(u"folder/"_s + name, "abc");
    }

    void digests_data()
    {
        const auto row = columns<QByteArray>({"expected"});
        // Made with md5sum, sha1sum, sha256sum and b3sum, of "abc" and, for the fingerprints, of "3abc" and "3ab".
        const QByteArray blake3OfAbc = "6437b3ac38465133ffb63b75273a8db548c558465d79db03fd359c6cd5bd9d85";
        const QByteArray md5Of3abc = "2f4fe09bb4f6bb9ad8ee6e7579e8f5e1";
        row("-- ", md5OfAbc);
        row("--algorithm md5 ", md5OfAbc);
        row("--algorithm sha1 ", "a9993e364706816aba3e25717850c26c9cd0d89d");
        row("--algorithm=sha256 ", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
        row("--algorithm blake3 ", blake3OfAbc);
        row("--window full ", md5OfAbc);
        row("--window quick ", md5Of3abc);
        row("--window sample ", md5Of3abc);
        row("--window prefix:2 ", "831eae3fa74b59c3c943ad25f7b952bf");
        row("--window prefix:9 ", md5Of3abc);
        row("--window prefix:0 ", md5OfAbc);
        row("--window quick --algorithm blake3 ", "9d637507f93110d8271e5b9d26981a0612a690e517508f4e29c9f303f94f156e");
        row("--window prefix:2 --algorithm blake3 ",
            "f4ceef348e7aa39c8e2734c694200e629443c821e754653e2683fc7450ed869f");
        row("--window prefix:0 --algorithm blake3 ", blake3OfAbc);
    }

    void digests()
    {
        QFETCH(QByteArray, expected);
        const ProgramRun done = hash(QLatin1String(QTest::currentDataTag()) + path(u"abc"_s));
        QCOMPARE(done.output, expected + "  " + path(u"abc"_s).toUtf8() + '\n');
        QCOMPARE(done.errors, "");
        QCOMPARE(done.status, 0);
    }

    void lines_data()
    {
        const auto row = columns<QByteArray, QByteArray>({"output", "errors"});
        const QByteArray nothing = md5OfNothing + "  z\n";
        const QByteArray abc = md5OfAbc + "  abc\n";
        row("z abc z", nothing + abc + nothing, {});
        QByteArray sorted;
        for (const char *name : {"Z", "a/10", "a/2", "a/sub/x y", "b", "c.d/e", "\xC3\xA4"})
            sorted += md5OfAbc + "  folder/" + name + '\n';
        row("abc folder/ empty", abc + sorted, {});
        row("./folder", sorted, {});
        row("folder/../abc", md5OfAbc + "  folder/../abc\n", {}); // a file as it was named
        row("--window quick z", {}, "mirrix-cli: z: nothing to hash\n");
        const QByteArray md5OfZero = "cfcd208495d565ef66e7dff9f98764da  z\n"; // the size is all there is to hash
        row("--window sample z", md5OfZero, {});
        row("--window prefix:5 z", md5OfZero, {});
    }

    void lines()
    {
        QFETCH(QByteArray, errors);
        const ProgramRun done = hash(QLatin1String(QTest::currentDataTag()));
        QTEST(done.output, "output");
        QCOMPARE(done.errors, errors);
        QCOMPARE(done.status, errors.isEmpty() ? 0 : 1);
    }

    void failuresAreNamed()
    {
        const ProgramRun done = hash(u"none abc abc/below"_s);
        QCOMPARE(done.output, md5OfAbc + "  abc\n");
        const QList<QByteArray> lines = done.errors.split('\n');
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines[0].startsWith("mirrix-cli: none: ") && lines[0].size() > 18, lines[0].constData());
        QVERIFY2(lines[1].startsWith("mirrix-cli: abc/below: ") && lines[1].size() > 23, lines[1].constData());
        QCOMPARE(done.status, 1);
    }

    void escapedNames()
    {
        if (!namesAreBytes)
            QSKIP("no file can have these names here");
        for (const auto &[name, shown] : {std::pair(u"a\nb"_s, "\\%1  a\\nb\n"),
                                          {u"a\rb"_s, "\\%1  a\\rb\n"},
                                          {u"a\\nb"_s, "\\%1  a\\\\nb\n"},
                                          {u"*a\tb"_s, "%1  *a\tb\n"}}) {
            m_tree->write(name, "abc");
            QCOMPARE(m_program->run({u"hash"_s, name}, path()).output, QByteArray(shown).replace("%1", md5OfAbc));
        }
    }

    void namesOfBytes()
    {
        if (!namesAreBytes)
            QSKIP("names are not bytes here");
        const TempTree tree;
        tree.writeNamedByBytes("caf\xE9", "abc");
        tree.writeNamedByBytes("caf\xE8", "");
        const QByteArray folder = tree.path().toUtf8();
        const ProgramRun done = hash(tree.path());
        QCOMPARE(done.output, md5OfNothing + "  " + folder + "/caf\xE8\n" + md5OfAbc + "  " + folder + "/caf\xE9\n");
        QCOMPARE(done.status, 0);
        QCOMPARE(hash(u"--window quick "_s + tree.path()).errors,
                 "mirrix-cli: " + folder + "/caf\xE8: nothing to hash\n");
    }

    void pipeIsNotWaitedFor()
    {
        if (!makePipe(path(u"pipe"_s)))
            QSKIP("no named pipes here");
        const ProgramRun done = hash(u"pipe abc"_s);
        QCOMPARE(done.output, md5OfAbc + "  abc\n");
        QVERIFY2(done.errors.startsWith("mirrix-cli: pipe: "), done.errors.constData());
        QCOMPARE(done.status, 1);
    }

    void closedOutputIsAFailure()
    {
        if (!takesNothing(u"/dev/full"_s))
            QSKIP("no device that takes nothing");
        const ProgramRun done = runOntoFullDevice(u"hash %1/abc"_s);
        QVERIFY2(done.errors.startsWith("mirrix-cli: cannot write "), done.errors.constData());
        QCOMPARE(done.status, 1);
    }

    void mistakes_data()
    {
        const auto add = columns<QString>({"message"});
        const auto row = [&add](const QString &line, const QString &message) { add(qPrintable(line), message); };
        row(u"--window full"_s, u"no file to hash"_s);
        row(u"abc "_s, u"an empty file name"_s);
        for (const QString &name : {u"MD5"_s, u"sha512"_s})
            row(u"abc --algorithm "_s + name,
                u"--algorithm must be md5, sha1, sha256 or blake3, not \"%1\""_s.arg(name));
        for (const QString &name : {u"half"_s, u"Quick"_s, u"prefix"_s, u"prefix:"_s, u"prefix:-1"_s, u"prefix:1k"_s,
                                    u"prefix:9223372036854775808"_s})
            row(u"abc --window "_s + name, u"--window must be full, quick, sample or prefix:N, not \"%1\""_s.arg(name));
        for (const auto &[window, algorithm] : {std::pair(u"quick"_s, u"sha1"_s),
                                                {u"prefix:5"_s, u"sha256"_s},
                                                {u"sample"_s, u"sha1"_s},
                                                {u"sample"_s, u"blake3"_s}})
            row(u"--window %1 --algorithm %2 abc"_s.arg(window, algorithm),
                u"--window %1 cannot be used with --algorithm %2"_s.arg(window, algorithm));
        row(u"--format json abc"_s, u"Unknown option 'format'."_s);
        row(u"abc --algorithm"_s, u"Missing value after '--algorithm'."_s);
    }

    void mistakes()
    {
        QFETCH(QString, message);
        const ProgramRun done = hash(QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(done.errors, usageErrorText(message));
        QCOMPARE(done.output, "");
        QCOMPARE(done.status, 2);
    }

private:
    [[nodiscard]] ProgramRun hash(const QString &line) const
    {
        return m_program->run(words(u"hash "_s + line), path());
    }
};

QTEST_GUILESS_MAIN(HashCommandTest)
#include "tst_hashcommand.moc"
