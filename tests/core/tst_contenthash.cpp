#include "core/hash/contenthash.h"
#include "core/hash/samples.h"
#include "core/platform/mappedreader.h"
#include "tests/support/coretest.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <filesystem>
#include <limits>

namespace {

QString hexOf(const QByteArray &digest)
{
    return QString::fromLatin1(digest.toHex());
}

QByteArray md5Of(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

/// `bytes` with those from `from` on turned over.
QByteArray changed(QByteArray bytes, qsizetype from, qsizetype count = 1)
{
    for (qsizetype i = from; i < from + count; ++i)
        bytes[i] = static_cast<char>(~bytes[i]);
    return bytes;
}

/// Cuts a file that may be mapped. Windows refuses that, and Wine keeps to it; but behind Wine's back it can be done.
bool cutShort(const QString &path, qint64 length)
{
    std::error_code error;
    std::filesystem::resize_file(path.toStdU16String(), static_cast<std::uintmax_t>(length), error);
    if (!error)
        return true;
    QProcess translator;
    translator.start(u"winepath"_s, {u"-u"_s, path});
    if (!translator.waitForFinished() || translator.exitCode() != 0)
        return false;
    const QString behind = QString::fromUtf8(translator.readAllStandardOutput()).trimmed();
    return QProcess::startDetached(u"Z:/usr/bin/truncate"_s, {u"-s"_s, QString::number(length), behind}) &&
           QTest::qWaitFor([&] { return QFileInfo(path).size() == length; });
}

} // namespace

class ContentHashTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setContentHashAlgorithm(ContentHashAlgorithm::Md5); }

    /// The digests that scripts/make-hash-vectors.py computed.
    void digests_data()
    {
        QTest::addColumn<QJsonObject>("expected");
        const QJsonArray all = QJsonDocument::fromJson(testData(u"core/data/hash-vectors.json"_s)).array();
        QCOMPARE(all.size(), 14);
        for (const QJsonValue &vector : all)
            QTest::addRow("%lld bytes", vector[u"size"_s].toInteger()) << vector.toObject();
    }

    void digests()
    {
        QFETCH(QJsonObject, expected);
        const auto text = [&](const char *name) { return expected[QLatin1String(name)].toString(); };
        const TempTree tree;
        const qint64 size = expected[u"size"_s].toInteger();
        const QString file = tree.write(u"f"_s, patternBytes(size));
        QCOMPARE(hexOf(fullContentHashBlake3(file)), text("blake3"));
        QCOMPARE(hexOf(hashFileWith(file, QCryptographicHash::Md5)), text("md5"));
        QCOMPARE(hexOf(hashFileWith(file, QCryptographicHash::Sha1)), text("sha1"));
        QCOMPARE(hexOf(hashFileWith(file, QCryptographicHash::Sha256)), text("sha256"));
        for (const bool isBlake3 : {false, true}) {
            setContentHashAlgorithm(isBlake3 ? ContentHashAlgorithm::Blake3 : ContentHashAlgorithm::Md5);
            const QString full = text(isBlake3 ? "blake3" : "md5");
            const QString quick = text(isBlake3 ? "quickBlake3" : "quickMd5");
            QCOMPARE(hexOf(fullContentHash(file)), full);
            QCOMPARE(hexOf(prefixHash(file, 0)), full);
            QCOMPARE(hexOf(prefixHash(file, -1)), full);
            QCOMPARE(hexOf(quickHash(file)), quick);
            QCOMPARE(hexOf(sampleHash(file)), text("sample"));
            if (size >= 1 && size <= quickCoversBytes) { // both in one read
                QCOMPARE(hexOf(smallFileDigests(file, size, true).full), full);
                QCOMPARE(hexOf(smallFileDigests(file, size, true).quick), quick);
                QCOMPARE(hexOf(smallFileDigests(file, size, false).full), full);
            }
            const QJsonArray prefixes = expected[u"prefixes"_s].toArray();
            for (const QJsonValue &prefix : prefixes)
                QCOMPARE(hexOf(prefixHash(file, prefix[u"limit"_s].toInteger())),
                         prefix[isBlake3 ? u"blake3"_s : u"md5"_s].toString());
        }
    }

    void smallFileOfAnotherSize()
    {
        const TempTree tree;
        const QString file = tree.write(u"f"_s, "abcd");
        for (const qint64 expected : {3, 5, 8192}) {
            for (const bool forCache : {false, true}) {
                HashNotes notes;
                QVERIFY(smallFileDigests(file, expected, forCache, &notes).full.isEmpty());
                QVERIFY(notes.hasChanged);
            }
        }
    }

    void mappedLikeStreamed()
    {
        const TempTree tree;
        const QByteArray content = patternBytes(mapViewBytes + 4097); // a second, short view
        const QString file = tree.write(u"f"_s, content);
        QCryptographicHash hash(QCryptographicHash::Md5);
        if (!mapFileIntoHash(file, hash))
            QSKIP("files are not mapped here");
        QCOMPARE(hash.result(), md5Of(content));
        QByteArray fed;
        QVERIFY(mapFileIntoSink(file, [&](const char *bytes, qint64 length) {
            fed.append(bytes, length);
            return true;
        }));
        QVERIFY(fed == content);
        QVERIFY(mapFileIntoSink(tree.write(u"empty"_s, {}), [](const char *, qint64) { return false; }));
        int calls = 0;
        QVERIFY(!mapFileIntoSink(file, [&](const char *, qint64) { return ++calls < 1; }));
        QCOMPARE(calls, 1);
    }

    void mappingSurvivesTruncation()
    {
        const TempTree tree;
        const QString path = tree.write(u"f"_s, patternBytes(mapThresholdBytes));
        bool isCut = false;
        const bool isWhole = mapFileIntoSink(path, [&](const char *, qint64) {
            isCut = isCut || cutShort(path, 100);
            return true;
        });
        if (!isCut)
            QSKIP("files are not mapped here, or the system keeps mapped files whole");
        QVERIFY(!isWhole);
        QCOMPARE(fullContentHash(path), md5Of(patternBytes(100)));
    }

    void failures_data()
    {
        const auto row = columns<QString>({"name"});
        for (const char *name : {"missing", "file/below", "folder", "closed", "pipe"})
            row(name, QLatin1String(name));
        row("no name", QString());
    }

    /// A pipe would make it hang if it were opened like a file.
    void failures()
    {
        QFETCH(QString, name);
        const TempTree tree;
        tree.write(u"file"_s, "x");
        tree.makeFolder(u"folder"_s);
        QFile::setPermissions(tree.write(u"closed"_s, "x"), QFile::WriteOwner);
        if (name == u"closed"_s && QFile(tree.path(name)).open(QIODevice::ReadOnly))
            QSKIP("this user may read everything");
        if (name == u"pipe"_s && !makePipe(tree.path(name)))
            QSKIP("no named pipes here");
        const QString path = name.isEmpty() ? QString() : tree.path(name);
        HashNotes full;
        HashNotes quick;
        HashNotes small;
        QVERIFY(fullContentHash(path, {}, &full).isEmpty());
        QVERIFY(quickHash(path, &quick).isEmpty());
        QVERIFY(smallFileDigests(path, 1, false, &small).full.isEmpty());
        QVERIFY(!full.failure.isEmpty() && !quick.failure.isEmpty() && !small.failure.isEmpty());
        QVERIFY(prefixHash(path, 10).isEmpty());
        QVERIFY(sampleHash(path).isEmpty());
        QVERIFY(fullContentHashBlake3(path).isEmpty());
        QVERIFY(hashFileWith(path, QCryptographicHash::Sha1).isEmpty());
        QCOMPARE(sampledByteSimilarity(path, tree.path(u"file"_s)), 0);
        QCOMPARE(sampledByteSimilarity(tree.path(u"file"_s), path), 0);
    }

    void cancelled()
    {
        const TempTree tree;
        const QString file = tree.write(u"f"_s, patternBytes(2 * streamChunkBytes + 1));
        for (const int piecesBefore : {0, 1}) {
            int asked = 0;
            HashNotes notes;
            const auto isCancelled = [&] { return asked++ >= piecesBefore; };
            QVERIFY(fullContentHash(file, isCancelled, &notes).isEmpty());
            QVERIFY(notes.failure.isEmpty());
            QCOMPARE(asked, piecesBefore + 1);
        }
        QVERIFY(prefixHash(file, 5, [] { return true; }).isEmpty());
        QVERIFY(hashFileWith(file, QCryptographicHash::Md5, [] { return true; }).isEmpty());
    }

    void notesState()
    {
        const TempTree tree;
        const QString path = tree.write(u"f"_s, patternBytes(2 * streamChunkBytes + 1));
        tree.setModified(u"f"_s, 1234567890123);
        HashNotes notes;
        QVERIFY(!quickHash(path, &notes).isEmpty());
        QCOMPARE(notes.sizeBytes, 2 * streamChunkBytes + 1);
        QCOMPARE(notes.modifiedMs, 1234567890123);
        QVERIFY(!notes.hasChanged);
        bool hasGrown = false;
        const auto grow = [&] {
            QFile file(path);
            if (!hasGrown && file.open(QIODevice::Append))
                hasGrown = file.write("more") == 4;
            return false;
        };
        QCOMPARE(fullContentHash(path, grow, &notes), md5Of(patternBytes(2 * streamChunkBytes + 1) + "more"));
        QVERIFY(hasGrown);
        QVERIFY(notes.hasChanged);
    }

    void algorithmNames()
    {
        for (const char *other : {"BLAKE3", "md5", "sha256", ""})
            QCOMPARE(contentHashAlgorithmFrom(QLatin1String(other)), ContentHashAlgorithm::Md5);
        QCOMPARE(currentHashAlgorithmName(), u"md5"_s);
        QCOMPARE(currentDigestLength(), 16);
        setContentHashAlgorithm(contentHashAlgorithmFrom(u"blake3"_s));
        QCOMPARE(currentHashAlgorithmName(), u"blake3"_s);
        QCOMPARE(currentDigestLength(), 32);
    }

    void sampleOffsets_data()
    {
        const auto row = columns<qint64, QList<qint64>>({"size", "expected"});
        row("empty", 0, {});
        row("one block", 4096, {0});
        row("tail overlaps head", 4097, {0, 1});
        row("two blocks", 8192, {0, 4096});
        row("middle begins", 8193, {0, 2048, 4097});
        row("four blocks", 16384, {0, 6144, 12288});
        row("quarters begin", 16385, {0, 6144, 12289, 4096, 12288});
        row("largest", std::numeric_limits<qint64>::max(),
            {0, 4611686018427385855, 9223372036854771711, 2305843009213693951, 6917529027641081855});
    }

    void sampleOffsets()
    {
        QFETCH(qint64, size);
        QTEST(MirrixCore::sampleOffsets(size), "expected");
    }

    void similarity_data()
    {
        const auto row = columns<QByteArray, QByteArray, int>({"a", "b", "expected"});
        const QByteArray base = patternBytes(20000); // blocks begin at 0, 5000, 7952, 15000, 15904
        row("equal", base, base, 100);
        row("sizes differ", base, base.left(19999), 0);
        row("empty", "", "", 0);
        row("two of three", "abc", "abd", 66);
        row("nothing", "abc", "bca", 0);
        row("outside the samples", base, changed(base, 4500), 100);
        row("one block of five", base, changed(base, 0, 4096), 80);
        row("rounded down", base, changed(base, 0), 99);
    }

    void similarity()
    {
        QFETCH(QByteArray, a);
        QFETCH(QByteArray, b);
        const TempTree tree;
        tree.write(u"a"_s, a);
        tree.write(u"b"_s, b);
        QTEST(sampledByteSimilarity(tree.path(u"a"_s), tree.path(u"b"_s)), "expected");
        QTEST(sampledByteSimilarity(tree.path(u"b"_s), tree.path(u"a"_s)), "expected");
    }
};

QTEST_GUILESS_MAIN(ContentHashTest)
#include "tst_contenthash.moc"
