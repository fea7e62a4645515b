#include "core/hash/contenthash.h"
#include "core/platform/mappedreader.h"
#include "tests/support/probes.h"
#include "tests/support/temptree.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <filesystem>

using namespace MirrixCore;
using namespace MirrixTest;

namespace {

QString hexOf(const QByteArray &digest)
{
    return QString::fromLatin1(digest.toHex());
}

/// The digests that scripts/make-hash-vectors.py computed.
QJsonArray vectors()
{
    return QJsonDocument::fromJson(testData(QStringLiteral("core/data/hash-vectors.json"))).array();
}

/// Removes the read permission; false where that keeps nobody from reading (administrators).
bool makeUnreadable(const QString &path)
{
    QFile::setPermissions(path, QFile::WriteOwner);
    return !QFile(path).open(QIODevice::ReadOnly);
}

/// Cuts a file that may be mapped. Windows refuses that, and Wine keeps to it; but behind Wine's back it can be done.
bool cutShort(const QString &path, qint64 length)
{
    std::error_code error;
    std::filesystem::resize_file(path.toStdU16String(), static_cast<std::uintmax_t>(length), error);
    if (!error)
        return true;
    QProcess translator;
    translator.start(QStringLiteral("winepath"), {QStringLiteral("-u"), path});
    if (!translator.waitForFinished() || translator.exitCode() != 0)
        return false;
    const QString behind = QString::fromUtf8(translator.readAllStandardOutput()).trimmed();
    const QStringList arguments{QStringLiteral("-s"), QString::number(length), behind};
    return QProcess::startDetached(QStringLiteral("Z:/usr/bin/truncate"), arguments) &&
           QTest::qWaitFor([&] { return QFileInfo(path).size() == length; });
}

} // namespace

class ContentHashTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void digests_data();
    void digests();
    void prefixWithoutLimitIsFull();
    void smallFilesInOneRead();
    void smallFileOfAnotherSize();
    void mappedLikeStreamed();
    void mappingStopsWithItsSink();
    void mappingSurvivesTruncation();
    void failures_data();
    void failures();
    void unreadableFile();
    void pipeIsNotWaitedFor();
    void cancelled();
    void notes();
    void notesGrowth();
    void oddNames_data();
    void oddNames();
    void namesOfBytes();
    void whatDigestsTell();
    void algorithmNames();
};

void ContentHashTest::cleanup()
{
    setContentHashAlgorithm(ContentHashAlgorithm::Md5);
}

void ContentHashTest::digests_data()
{
    QTest::addColumn<QJsonObject>("expected");
    const QJsonArray all = vectors();
    QCOMPARE(all.size(), 14);
    for (const QJsonValue &value : all) {
        const QJsonObject vector = value.toObject();
        QTest::addRow("%lld bytes", vector[QStringLiteral("size")].toInteger()) << vector;
    }
}

void ContentHashTest::digests()
{
    QFETCH(QJsonObject, expected);
    const auto text = [&](const char *name) { return expected[QLatin1String(name)].toString(); };
    const TempTree tree;
    const QString file = tree.write(QStringLiteral("f"), patternBytes(expected[QStringLiteral("size")].toInteger()));

    QCOMPARE(hexOf(fullContentHashBlake3(file)), text("blake3"));
    QCOMPARE(hexOf(hashFileWith(file, QCryptographicHash::Md5)), text("md5"));
    QCOMPARE(hexOf(hashFileWith(file, QCryptographicHash::Sha1)), text("sha1"));
    QCOMPARE(hexOf(hashFileWith(file, QCryptographicHash::Sha256)), text("sha256"));
    for (const bool isBlake3 : {false, true}) {
        setContentHashAlgorithm(isBlake3 ? ContentHashAlgorithm::Blake3 : ContentHashAlgorithm::Md5);
        QCOMPARE(hexOf(fullContentHash(file)), text(isBlake3 ? "blake3" : "md5"));
        QCOMPARE(hexOf(quickHash(file)), text(isBlake3 ? "quickBlake3" : "quickMd5"));
        QCOMPARE(hexOf(sampleHash(file)), text("sample"));
        const QJsonArray prefixes = expected[QStringLiteral("prefixes")].toArray();
        for (const QJsonValue &prefix : prefixes) {
            const QByteArray digest = prefixHash(file, prefix[QStringLiteral("limit")].toInteger());
            QCOMPARE(hexOf(digest), prefix[isBlake3 ? QStringLiteral("blake3") : QStringLiteral("md5")].toString());
        }
    }
}

void ContentHashTest::prefixWithoutLimitIsFull()
{
    const TempTree tree;
    const QString file = tree.write(QStringLiteral("f"), "abc");
    const QString md5OfAbc = QStringLiteral("900150983cd24fb0d6963f7d28e17f72"); // RFC 1321
    QCOMPARE(hexOf(prefixHash(file, 0)), md5OfAbc);
    QCOMPARE(hexOf(prefixHash(file, -1)), md5OfAbc);
}

void ContentHashTest::smallFilesInOneRead()
{
    const TempTree tree;
    for (const qint64 size : {1, 4095, 4096, 4097, 8191, 8192}) {
        const QString file = tree.write(QStringLiteral("f"), patternBytes(size));
        for (const auto algorithm : {ContentHashAlgorithm::Md5, ContentHashAlgorithm::Blake3}) {
            setContentHashAlgorithm(algorithm);
            const SmallFileDigests digests = smallFileDigests(file, size, true);
            QCOMPARE(digests.quick, quickHash(file));
            QCOMPARE(digests.full, fullContentHash(file));
            const SmallFileDigests fullOnly = smallFileDigests(file, size, false);
            QCOMPARE(fullOnly.full, digests.full);
            QVERIFY(fullOnly.quick.isEmpty());
        }
    }
}

void ContentHashTest::smallFileOfAnotherSize()
{
    const TempTree tree;
    const QString file = tree.write(QStringLiteral("f"), "abcd");
    for (const qint64 expected : {3, 5, 8192}) {
        for (const bool forCache : {false, true}) {
            HashNotes notes;
            QVERIFY(smallFileDigests(file, expected, forCache, &notes).full.isEmpty());
            QVERIFY(notes.hasChanged);
        }
    }
}

void ContentHashTest::mappedLikeStreamed()
{
    const TempTree tree;
    const QByteArray content = patternBytes(mapViewBytes + 4097); // a second, short view
    const QString file = tree.write(QStringLiteral("f"), content);
    QCryptographicHash hash(QCryptographicHash::Md5);
    if (!mapFileIntoHash(file, hash))
        QSKIP("files are not mapped here");
    QCOMPARE(hash.result(), QCryptographicHash::hash(content, QCryptographicHash::Md5));
    QByteArray fed;
    QVERIFY(mapFileIntoSink(file, [&](const char *bytes, qint64 length) {
        fed.append(bytes, length);
        return true;
    }));
    QVERIFY(fed == content);
    QVERIFY(mapFileIntoSink(tree.write(QStringLiteral("empty"), {}), [](const char *, qint64) { return false; }));
}

void ContentHashTest::mappingStopsWithItsSink()
{
    const TempTree tree;
    const QString file = tree.write(QStringLiteral("f"), patternBytes(mapThresholdBytes));
    int calls = 0;
    QVERIFY(!mapFileIntoSink(file, [&](const char *, qint64) {
        ++calls;
        return false;
    }));
    QVERIFY(calls <= 1);
}

void ContentHashTest::mappingSurvivesTruncation()
{
    const TempTree tree;
    const QString path = tree.write(QStringLiteral("f"), patternBytes(mapThresholdBytes));
    bool isCut = false;
    const bool isWhole = mapFileIntoSink(path, [&](const char *, qint64) {
        isCut = isCut || cutShort(path, 100);
        return true;
    });
    if (!isCut)
        QSKIP("files are not mapped here, or the system keeps mapped files whole");
    QVERIFY(!isWhole);
    QCOMPARE(fullContentHash(path), QCryptographicHash::hash(patternBytes(100), QCryptographicHash::Md5));
}

void ContentHashTest::failures_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing");
    QTest::newRow("below a file") << QStringLiteral("file/below");
    QTest::newRow("folder") << QStringLiteral("folder");
    QTest::newRow("empty name") << QString();
}

void ContentHashTest::failures()
{
    QFETCH(QString, name);
    const TempTree tree;
    tree.write(QStringLiteral("file"), "x");
    tree.makeFolder(QStringLiteral("folder"));
    const QString path = name.isEmpty() ? QString() : tree.path(name);
    HashNotes notes;
    QVERIFY(fullContentHash(path, {}, &notes).isEmpty());
    QVERIFY(!notes.failure.isEmpty());
    QVERIFY(quickHash(path).isEmpty());
    QVERIFY(prefixHash(path, 10).isEmpty());
    QVERIFY(sampleHash(path).isEmpty());
    QVERIFY(fullContentHashBlake3(path).isEmpty());
    QVERIFY(hashFileWith(path, QCryptographicHash::Sha1).isEmpty());
    notes = {};
    QVERIFY(smallFileDigests(path, 1, false, &notes).full.isEmpty());
    QVERIFY(!notes.failure.isEmpty());
}

void ContentHashTest::unreadableFile()
{
    const TempTree tree;
    const QString file = tree.write(QStringLiteral("f"), "x");
    if (!makeUnreadable(file))
        QSKIP("this user may read everything");
    HashNotes notes;
    QVERIFY(quickHash(file, &notes).isEmpty());
    QVERIFY(!notes.failure.isEmpty());
}

void ContentHashTest::pipeIsNotWaitedFor()
{
    const TempTree tree;
    const QString pipe = tree.path(QStringLiteral("pipe"));
    if (!makePipe(pipe))
        QSKIP("no named pipes here");
    QVERIFY(quickHash(pipe).isEmpty()); // would hang if it were opened like a file
    QVERIFY(fullContentHash(pipe).isEmpty());
    QVERIFY(smallFileDigests(pipe, 5, false).full.isEmpty());
}

void ContentHashTest::cancelled()
{
    const TempTree tree;
    const QString file = tree.write(QStringLiteral("f"), patternBytes(2 * streamChunkBytes + 1));
    for (const int piecesBefore : {0, 1}) {
        int asked = 0;
        HashNotes notes;
        const QByteArray digest = fullContentHash(
            file, [&] { return asked++ >= piecesBefore; }, &notes);
        QVERIFY(digest.isEmpty());
        QVERIFY(notes.failure.isEmpty());
        QCOMPARE(asked, piecesBefore + 1);
    }
    QVERIFY(prefixHash(file, 5, [] { return true; }).isEmpty());
    QVERIFY(hashFileWith(file, QCryptographicHash::Md5, [] { return true; }).isEmpty());
}

void ContentHashTest::notes()
{
    const TempTree tree;
    const QString file = tree.write(QStringLiteral("f"), patternBytes(10000));
    tree.setModified(QStringLiteral("f"), 1234567890123);
    HashNotes notes;
    QVERIFY(!quickHash(file, &notes).isEmpty());
    QCOMPARE(notes.sizeBytes, 10000);
    QCOMPARE(notes.modifiedMs, 1234567890123);
    QVERIFY(!notes.hasChanged);
}

void ContentHashTest::notesGrowth()
{
    const TempTree tree;
    const QString path = tree.write(QStringLiteral("f"), patternBytes(2 * streamChunkBytes + 1));
    HashNotes notes;
    bool hasGrown = false;
    const QByteArray digest = fullContentHash(
        path,
        [&] {
            QFile file(path);
            if (!hasGrown && file.open(QIODevice::Append))
                hasGrown = file.write("more") == 4;
            return false;
        },
        &notes);
    QVERIFY(hasGrown);
    QCOMPARE(digest,
             QCryptographicHash::hash(patternBytes(2 * streamChunkBytes + 1) + "more", QCryptographicHash::Md5));
    QVERIFY(notes.hasChanged);
}

void ContentHashTest::oddNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("trailing dot") << QStringLiteral("twin.");
    QTest::newRow("trailing blank") << QStringLiteral("twin ");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xF0\x9F\x98\x80.txt");
    QTest::newRow("shortcut ending") << QStringLiteral("twin.lnk");
    const QString part = QString(100, QLatin1Char('n')) + QLatin1Char('/');
    QTest::newRow("more than 260 characters") << part + part + part + QStringLiteral("f");
}

void ContentHashTest::oddNames()
{
    QFETCH(QString, name);
    const TempTree tree;
    tree.write(QStringLiteral("twin"), "another file");
    tree.writeExactly(name, "abc");
    QCOMPARE(hexOf(fullContentHash(tree.path(name))), QStringLiteral("900150983cd24fb0d6963f7d28e17f72"));
}

void ContentHashTest::namesOfBytes()
{
    if (!namesAreBytes)
        QSKIP("names are not bytes here");
    const TempTree tree;
    tree.writeNamedByBytes("caf\xC3\xA9", "another file");
    const QString file = tree.writeNamedByBytes("caf\xE9", "abc");
    QCOMPARE(hexOf(fullContentHash(file)), QStringLiteral("900150983cd24fb0d6963f7d28e17f72"));
}

/// What the matchers rely on: names do not count, sizes count in fingerprints, the middle counts only in full digests.
void ContentHashTest::whatDigestsTell()
{
    const TempTree tree;
    QByteArray content = patternBytes(20000);
    const QString file = tree.write(QStringLiteral("a"), content);
    const QString same = tree.write(QStringLiteral("b"), content);
    const QString shorter = tree.write(QStringLiteral("c"), content.first(8192) + content.last(8192));
    content[10000] = static_cast<char>(~content[10000]);
    const QString other = tree.write(QStringLiteral("d"), content);
    QCOMPARE(fullContentHash(same), fullContentHash(file));
    QVERIFY(quickHash(shorter) != quickHash(file));
    QVERIFY(prefixHash(shorter, 100) != prefixHash(file, 100));
    QCOMPARE(quickHash(other), quickHash(file));
    QVERIFY(fullContentHash(other) != fullContentHash(file));
    QVERIFY(sampleHash(other) != sampleHash(file));
}

void ContentHashTest::algorithmNames()
{
    QCOMPARE(contentHashAlgorithmFrom(QStringLiteral("blake3")), ContentHashAlgorithm::Blake3);
    for (const char *other : {"BLAKE3", "md5", "sha256", ""})
        QCOMPARE(contentHashAlgorithmFrom(QLatin1String(other)), ContentHashAlgorithm::Md5);
    QCOMPARE(currentHashAlgorithmName(), QStringLiteral("md5"));
    QCOMPARE(currentDigestLength(), 16);
    setContentHashAlgorithm(ContentHashAlgorithm::Blake3);
    QCOMPARE(currentHashAlgorithmName(), QStringLiteral("blake3"));
    QCOMPARE(currentDigestLength(), 32);
}

QTEST_GUILESS_MAIN(ContentHashTest)
#include "tst_contenthash.moc"
