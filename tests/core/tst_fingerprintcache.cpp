#include "core/cache/fingerprintcache.h"

#include "core/cache/cacheroot.h"
#include "core/hash/contenthasher.h"
#include "tests/support/coretest.h"
#include "tests/support/disk.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtConcurrent>

#include <atomic>
#include <memory>
#include <numeric>

namespace {

const QString file = u"/data/a file.txt"_s;
const QByteArray quick = QByteArray::fromHex("00112233445566778899aabbccddeeff");
const QByteArray full = QByteArray::fromHex("ffeeddccbbaa99887766554433221100");
constexpr qint64 size = 1234;
constexpr qint64 modified = 1700000000123;

/// "quick", "full", both or neither, as found for a state; "wrong" for digests that were never stored.
QString found(const QString &path = file, qint64 sizeBytes = size, qint64 modifiedMs = modified)
{
    QByteArray quickDigest = "old";
    QByteArray fullDigest = "old";
    const bool hasQuick = lookupQuick(path, sizeBytes, modifiedMs, quickDigest);
    const bool hasFull = lookupFull(path, sizeBytes, modifiedMs, fullDigest);
    if (quickDigest != (hasQuick ? quick : QByteArray()) || fullDigest != (hasFull ? full : QByteArray()))
        return u"wrong"_s;
    return (hasQuick ? u"quick "_s : QString()) + (hasFull ? u"full"_s : QString());
}

QByteArray withBraces(const QByteArray &members)
{
    return '{' + members + '}';
}

} // namespace

class FingerprintCacheTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TempTree> m_tree;

    void writeEntry(const QByteArray &text) const
    {
        m_tree->write(QDir(m_tree->path()).relativeFilePath(cachePathFor(file)), text);
    }

private slots:
    void init()
    {
        m_tree = std::make_unique<TempTree>();
        setCacheRoot(m_tree->path());
        setContentHashAlgorithm(ContentHashAlgorithm::Md5);
    }

    void cleanup() { setCacheRoot({}); }

    void entryHasItsPlaceAndForm();

    void storesNothingIncomplete()
    {
        storeQuick(file, 0, modified, quick);
        storeQuick(file, size, modified, {});
        storeQuickAndFull(file, 0, modified, quick, full);
        storeQuickAndFull(file, size, modified, quick, {});
        storeQuickAndFull(file, size, modified, {}, full);
        QVERIFY(!QFile::exists(cachePathFor(file)));
    }

    void validity_data();

    /// Whatever is there, a new entry replaces it.
    void validity()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isHit);
        writeEntry(text);
        QCOMPARE(found(), isHit ? u"quick "_s : QString());
        storeQuickAndFull(file, size, modified, quick, full);
        QCOMPARE(found(), u"quick full"_s);
        QCOMPARE(QJsonDocument::fromJson(contentOf(cachePathFor(file))).object().size(), 5);
    }

    void otherMembersStay();

    /// An old full digest would pass for the new content.
    void fullOfAnotherStateGoes()
    {
        storeQuickAndFull(file, size, modified, quick, full);
        storeQuick(file, size, modified + 1, quick);
        QCOMPARE(found(file, size, modified + 1), u"quick "_s);
        storeQuickAndFull(file, size, modified, quick, full);
        setContentHashAlgorithm(ContentHashAlgorithm::Blake3);
        QCOMPARE(found(), QString());
        storeQuick(file, size, modified, quick + quick);
        QByteArray digest;
        QVERIFY(!lookupFull(file, size, modified, digest));
    }

    void entryThatIsNoPlainFile_data()
    {
        const auto row = columns<QString>({"kind"});
        for (const char *kind : {"symbolic link", "hard link", "pipe", "device"})
            row(kind, QLatin1String(kind));
    }

    /// Another program put it there. Nothing hangs, nothing is written through it, and the entry takes its place.
    void entryThatIsNoPlainFile()
    {
        QFETCH(QString, kind);
        const QByteArray content = R"({"note":"mine"})";
        const QString users = m_tree->write(u"users"_s, content);
        const QString entryPath = cachePathFor(file);
        QVERIFY(QDir().mkpath(QFileInfo(entryPath).path()));
        const QString relative = QDir(m_tree->path()).relativeFilePath(entryPath);
        const bool isMade = kind == u"hard link"_s       ? m_tree->hardLink(u"users"_s, relative)
                            : kind == u"symbolic link"_s ? m_tree->symbolicLink(u"users"_s, relative)
                            : kind == u"device"_s        ? QFile::link(u"/dev/zero"_s, entryPath)
                                                         : makePipe(entryPath);
        if (!isMade)
            QSKIP("cannot be made here");
        QCOMPARE(found(), QString());
        storeQuick(file, size, modified, quick);
        QCOMPARE(contentOf(users), content);
        QCOMPARE(found(), u"quick "_s);
        QVERIFY(QFileInfo(entryPath).isFile() && !QFileInfo(entryPath).isSymLink());
    }

    void worksWithoutAFolder()
    {
        const QString inTheWay = m_tree->write(u"in the way"_s, "x");
        for (const QString &root : {inTheWay, QString()}) {
            setCacheRoot(root);
            storeQuick(file, size, modified, quick);
            QCOMPARE(found(), QString());
            QCOMPARE(cachePathFor(file).isEmpty(), root.isEmpty());
        }
        QCOMPARE(contentOf(inTheWay), "x");
    }

    /// Both become "?" or U+FFFD when they are turned into UTF-8 without care.
    void oddNamesDoNotMeet()
    {
        storeQuick(u"/data/\xDCFE"_s, size, modified, quick);
        QCOMPARE(found(u"/data/\xDCFE"_s), u"quick "_s);
        for (const QString &other : {u"/data/\xDCFF"_s, u"/data/?"_s, u"/data/\uFFFD"_s})
            QCOMPARE(found(other), QString());
    }

    void manyThreads()
    {
        QList<int> rounds(400);
        std::iota(rounds.begin(), rounds.end(), 0);
        std::atomic<int> wrong = 0;
        QtConcurrent::blockingMap(rounds, [&](int &round) {
            const QString name = file + QString::number(round % 4); // four files, so that threads meet
            storeQuickAndFull(name, size, modified, quick, full);
            wrong += found(name) != u"quick full"_s;
        });
        QCOMPARE(wrong.load(), 0);
    }
};

// Not in the class, where the moc would take their raw strings apart and lose the slots behind them.

void FingerprintCacheTest::validity_data()
{
    const auto row = columns<QByteArray, bool>({"text", "isHit"});
    const QByteArray time = R"("mtimeMs":1700000000123,)";
    const QByteArray state = R"("size":1234,)" + time;
    const QByteArray digest = R"("quick":"00112233445566778899aabbccddeeff")";
    const auto rowOf = [&](const char *name, const QByteArray &members, bool isHit) {
        row(name, withBraces(members), isHit);
    };
    rowOf("valid", R"("algo":"md5",)" + state + digest, true);
    rowOf("no algorithm", state + digest, true);
    rowOf("empty algorithm", R"("algo":"",)" + state + digest, true);
    rowOf("fractions are cut", R"("size":1234.9,"mtimeMs":1700000000123.75,)" + digest, true);
    rowOf("other algorithm", R"("algo":"blake3",)" + state + digest, false);
    rowOf("other case", R"("algo":"MD5",)" + state + digest, false);
    rowOf("other size", R"("size":1235,)" + time + digest, false);
    rowOf("other time", R"("size":1234,"mtimeMs":1700000000124,)" + digest, false);
    rowOf("no size", time + digest, false);
    rowOf("size as text", R"("size":"1234",)" + time + digest, false);
    rowOf("size beyond all numbers", R"("size":1e300,)" + time + digest, false);
    rowOf("no digest", state.chopped(1), false);
    rowOf("digest as number", state + R"("quick":11)", false);
    rowOf("digest too short", state + R"("quick":"0011")", false);
    rowOf("of another algorithm's length", R"("algo":"md5",)" + state + R"("quick":")" + QByteArray(64, '0') + '"',
          false);
    row("cut short", withBraces(state + digest).chopped(10), false);
    row("array", "[]", false);
    row("empty file", "", false);
    row("noise", "\x01\x02\xFF", false);
    row("long", QByteArray(3 << 20, 'x'), false);
}

void FingerprintCacheTest::entryHasItsPlaceAndForm()
{
    // printf %s '/data/ä.txt' | sha256sum
    const QString hex = u"a37ac86e974edb6be86ad7ea286e3f0ea28317c2543b7b2595208c30ec9a89f5"_s;
    QCOMPARE(cachePathFor(u"/data/ä.txt"_s), m_tree->path(u"fingerprint_cache/%1/%2.json"_s.arg(hex.left(2), hex)));
    const QByteArray rest = R"("mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff","size":1234)";
    QCOMPARE(found(), QString());
    storeQuick(file, size, modified, quick);
    QCOMPARE(contentOf(cachePathFor(file)), withBraces(R"("algo":"md5",)" + rest));
    QCOMPARE(found(), u"quick "_s);
    storeQuickAndFull(file, size, modified, quick, full);
    QCOMPARE(contentOf(cachePathFor(file)),
             withBraces(R"("algo":"md5","full":"ffeeddccbbaa99887766554433221100",)" + rest));
    QCOMPARE(found(), u"quick full"_s);
    QCOMPARE(found(u"/data/A file.txt"_s), QString());
}

void FingerprintCacheTest::otherMembersStay()
{
    writeEntry(R"({"algo":"md5","size":1234,"mtimeMs":1700000000123,"quick":"0011","note":[1,{"a":"b"}],)"
               R"("full":"ffeeddccbbaa99887766554433221100"})");
    storeQuick(file, size, modified, quick);
    QVERIFY(contentOf(cachePathFor(file)).contains(R"("note":[1,{"a":"b"}])"));
    QCOMPARE(found(), u"quick full"_s); // still the same state of the file
}

QTEST_GUILESS_MAIN(FingerprintCacheTest)
#include "tst_fingerprintcache.moc"
