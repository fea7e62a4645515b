#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthasher.h"
#include "core/scan/duplicatescanner.h"
#include "tests/support/disk.h"
#include "tests/support/probes.h"
#include "tests/support/scans.h"
#include "tests/support/temptree.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QtConcurrent>

#include <atomic>
#include <memory>
#include <numeric>
#include <random>

using namespace MirrixCore;
using namespace MirrixTest;

namespace {

const QString file = QStringLiteral("/data/a file.txt");
const QByteArray quick = QByteArray::fromHex("00112233445566778899aabbccddeeff");
const QByteArray full = QByteArray::fromHex("ffeeddccbbaa99887766554433221100");
constexpr qint64 size = 1234;
constexpr qint64 modified = 1700000000123;

} // namespace

class FingerprintCacheTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void entryLiesWhereItsPathSays();
    void entryHoldsExactlyItsMembers();
    void storedDigestsAreFound();
    void nothingWorthStoring();
    void validity_data();
    void validity();
    void otherMembersStay();
    void fullOfAnotherStateGoes();
    void fullOfAnotherAlgorithmGoes();
    void brokenEntryIsReplaced_data();
    void brokenEntryIsReplaced();
    void entryThatIsNoPlainFile_data();
    void entryThatIsNoPlainFile();
    void hostileEntries();
    void unwritableFolderIsSilent();
    void offWithoutRoot();
    void oddNamesDoNotMeet();
    void manyThreads();

private:
    QJsonObject entry() const;
    void writeEntry(const QByteArray &text) const;

    std::unique_ptr<TempTree> m_tree;
};

void FingerprintCacheTest::init()
{
    m_tree = std::make_unique<TempTree>();
    setCacheRoot(m_tree->path());
    setContentHashAlgorithm(ContentHashAlgorithm::Md5);
}

void FingerprintCacheTest::cleanup()
{
    setCacheRoot({});
    setContentHashAlgorithm(ContentHashAlgorithm::Md5);
}

QJsonObject FingerprintCacheTest::entry() const
{
    QFile stored(cachePathFor(file));
    return stored.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(stored.readAll()).object() : QJsonObject();
}

void FingerprintCacheTest::writeEntry(const QByteArray &text) const
{
    m_tree->write(QDir(m_tree->path()).relativeFilePath(cachePathFor(file)), text);
}

void FingerprintCacheTest::entryLiesWhereItsPathSays()
{
    // printf %s '/data/ä.txt' | sha256sum
    const QString hex = QStringLiteral("a37ac86e974edb6be86ad7ea286e3f0ea28317c2543b7b2595208c30ec9a89f5");
    QCOMPARE(cachePathFor(QString::fromUtf8("/data/\xC3\xA4.txt")),
             m_tree->path(QStringLiteral("fingerprint_cache/%1/%2.json").arg(hex.left(2), hex)));
    QVERIFY(cachePathFor(QStringLiteral("/data/A")) != cachePathFor(QStringLiteral("/data/a")));
}

void FingerprintCacheTest::entryHoldsExactlyItsMembers()
{
    storeQuick(file, size, modified, quick);
    QJsonObject expected{{QStringLiteral("algo"), QStringLiteral("md5")},
                         {QStringLiteral("size"), 1234},
                         {QStringLiteral("mtimeMs"), 1700000000123.0},
                         {QStringLiteral("quick"), QStringLiteral("00112233445566778899aabbccddeeff")}};
    QCOMPARE(entry(), expected);
    storeQuickAndFull(file, size, modified, quick, full);
    expected.insert(QStringLiteral("full"), QStringLiteral("ffeeddccbbaa99887766554433221100"));
    QCOMPARE(entry(), expected);
    QFile stored(cachePathFor(file));
    QVERIFY(stored.open(QIODevice::ReadOnly));
    const QByteArray text = stored.readAll();
    QVERIFY2(!text.contains('\n') && !text.contains(' '), text.constData());
}

void FingerprintCacheTest::storedDigestsAreFound()
{
    QByteArray digest = "old";
    QVERIFY(!lookupQuick(file, size, modified, digest));
    QVERIFY(digest.isEmpty());
    storeQuick(file, size, modified, quick);
    QVERIFY(lookupQuick(file, size, modified, digest));
    QCOMPARE(digest, quick);
    QVERIFY(!lookupFull(file, size, modified, digest));
    QVERIFY(digest.isEmpty());
    storeQuickAndFull(file, size, modified, quick, full);
    QVERIFY(lookupFull(file, size, modified, digest));
    QCOMPARE(digest, full);
    QVERIFY(!lookupFull(QStringLiteral("/data/A file.txt"), size, modified, digest));
}

void FingerprintCacheTest::nothingWorthStoring()
{
    storeQuick(file, 0, modified, quick);
    storeQuick(file, size, modified, {});
    storeQuickAndFull(file, 0, modified, quick, full);
    storeQuickAndFull(file, size, modified, quick, {});
    storeQuickAndFull(file, size, modified, {}, full);
    QVERIFY(!QFile::exists(cachePathFor(file)));
}

void FingerprintCacheTest::validity_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isHit");
    const auto row = [](const char *name, const char *text, bool isHit) {
        QTest::newRow(name) << QByteArray(text) << isHit;
    };
    row("valid", R"({"algo":"md5","size":1234,"mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff"})",
        true);
    row("no algorithm", R"({"size":1234,"mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff"})", true);
    row("empty algorithm",
        R"({"algo":"","size":1234,"mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff"})", true);
    row("fractions are cut", R"({"size":1234.9,"mtimeMs":1700000000123.75,"quick":"00112233445566778899aabbccddeeff"})",
        true);
    row("other algorithm",
        R"({"algo":"blake3","size":1234,"mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff"})", false);
    row("other case",
        R"({"algo":"MD5","size":1234,"mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff"})", false);
    row("other size",
        R"({"algo":"md5","size":1235,"mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff"})", false);
    row("other time",
        R"({"algo":"md5","size":1234,"mtimeMs":1700000000124,"quick":"00112233445566778899aabbccddeeff"})", false);
    row("no size", R"({"algo":"md5","mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff"})", false);
    row("size as text", R"({"size":"1234","mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff"})", false);
    row("size beyond all numbers",
        R"({"size":1e300,"mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff"})", false);
    row("no digest", R"({"algo":"md5","size":1234,"mtimeMs":1700000000123})", false);
    row("empty digest", R"({"algo":"md5","size":1234,"mtimeMs":1700000000123,"quick":""})", false);
    row("digest as number", R"({"algo":"md5","size":1234,"mtimeMs":1700000000123,"quick":11})", false);
    row("digest too short", R"({"algo":"md5","size":1234,"mtimeMs":1700000000123,"quick":"0011"})", false);
    row("of another algorithm's length",
        R"({"algo":"md5","size":1234,"mtimeMs":1700000000123,"quick":"00112233445566778899aabbccddeeff)"
        R"(00112233445566778899aabbccddeeff"})",
        false);
    row("of no algorithm's length", R"({"size":1234,"mtimeMs":1700000000123,"quick":"0011"})", false);
    row("array", "[]", false);
    row("cut short", R"({"algo":"md5","size":1234,"mtimeMs":17)", false);
    row("empty file", "", false);
    row("noise", "\x01\x02\xFF", false);
}

void FingerprintCacheTest::validity()
{
    QFETCH(QByteArray, text);
    writeEntry(text);
    QByteArray digest;
    QTEST(lookupQuick(file, size, modified, digest), "isHit");
    QVERIFY(digest.isEmpty() || digest == quick);
}

void FingerprintCacheTest::otherMembersStay()
{
    writeEntry(R"({"algo":"md5","size":1234,"mtimeMs":1700000000123,"quick":"0011","note":[1,{"a":"b"}],)"
               R"("full":"ffeeddccbbaa99887766554433221100"})");
    storeQuick(file, size, modified, quick);
    const QJsonArray note{1, QJsonObject{{QStringLiteral("a"), QStringLiteral("b")}}};
    QCOMPARE(entry()[QStringLiteral("note")].toArray(), note);
    QByteArray digest;
    QVERIFY(lookupFull(file, size, modified, digest)); // still the same state of the file
    QCOMPARE(digest, full);
}

void FingerprintCacheTest::fullOfAnotherStateGoes()
{
    storeQuickAndFull(file, size, modified, quick, full);
    storeQuick(file, size, modified + 1, quick);
    QByteArray digest;
    QVERIFY(lookupQuick(file, size, modified + 1, digest));
    QVERIFY2(!lookupFull(file, size, modified + 1, digest), "an old digest passes for the new content");
}

void FingerprintCacheTest::fullOfAnotherAlgorithmGoes()
{
    storeQuickAndFull(file, size, modified, quick, full);
    setContentHashAlgorithm(ContentHashAlgorithm::Blake3);
    QByteArray digest;
    QVERIFY(!lookupQuick(file, size, modified, digest));
    storeQuick(file, size, modified, quick + quick);
    QVERIFY(!lookupFull(file, size, modified, digest));
}

void FingerprintCacheTest::brokenEntryIsReplaced_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("no JSON") << QByteArray("{\"algo\":");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("long") << QByteArray(3 << 20, 'x');
}

void FingerprintCacheTest::brokenEntryIsReplaced()
{
    QFETCH(QByteArray, text);
    writeEntry(text);
    storeQuick(file, size, modified, quick);
    QByteArray digest;
    QVERIFY(lookupQuick(file, size, modified, digest));
    QCOMPARE(entry().size(), 4);
}

void FingerprintCacheTest::entryThatIsNoPlainFile_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"symbolic link", "hard link", "pipe", "device"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

/// Somebody put it there. Nothing hangs, nothing is written through it, and the entry takes its place.
void FingerprintCacheTest::entryThatIsNoPlainFile()
{
    QFETCH(QString, kind);
    const QByteArray content = R"({"note":"the user's own"})";
    const QString users = m_tree->write(QStringLiteral("user's file"), content);
    const QString entryPath = cachePathFor(file);
    QVERIFY(QDir().mkpath(QFileInfo(entryPath).path()));
    const QString relative = QDir(m_tree->path()).relativeFilePath(entryPath);
    const bool isMade = kind == QLatin1String("hard link") ? m_tree->hardLink(QStringLiteral("user's file"), relative)
                        : kind == QLatin1String("symbolic link")
                            ? m_tree->symbolicLink(QStringLiteral("user's file"), relative)
                        : kind == QLatin1String("device") ? QFile::link(QStringLiteral("/dev/zero"), entryPath)
                                                          : makePipe(entryPath);
    if (!isMade)
        QSKIP("cannot be made here");
    QByteArray digest;
    QVERIFY(!lookupQuick(file, size, modified, digest));
    storeQuick(file, size, modified, quick);
    QCOMPARE(contentOf(users), content);
    QVERIFY(lookupQuick(file, size, modified, digest));
    QVERIFY(QFileInfo(entryPath).isFile() && !QFileInfo(entryPath).isSymLink());
}

/// 1,000 entries, each spoilt in one of many ways: the groups are those that the contents make, and nothing outside of
/// the cache is written.
void FingerprintCacheTest::hostileEntries()
{
    constexpr int count = 1000;
    QList<QStringList> expected(count / 2);
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        paths.append(m_tree->write(QStringLiteral("files/%1").arg(i, 4, 10, QLatin1Char('0')),
                                   QByteArray::number(1000 + i / 2).repeated(3000)));
        expected[i / 2].append(QStringLiteral("files/%1").arg(i, 4, 10, QLatin1Char('0')));
    }
    const ScanOptions options = optionsFor(*m_tree, {QStringLiteral("files")});
    QCOMPARE(DuplicateScanner::scan(options, {}, {}).groups.size(), count / 2);
    const QString users = m_tree->write(QStringLiteral("user's"), "own");
    const DiskTree before = treeBelow(m_tree->path(QStringLiteral("files")));
    std::mt19937 random(7);
    const auto mutated = [&random](QByteArray text) {
        for (int edit = 0; edit < 3; ++edit)
            text[static_cast<qsizetype>(random() % static_cast<quint32>(text.size()))] =
                "\"{}[]:,xg\\\0\xFF"[random() % 13]; // no digit: a whole digest is believed
        return text;
    };
    for (int i = 0; i < count; ++i) {
        const QString entryPath = cachePathFor(paths[i]);
        const QString relative = QDir(m_tree->path()).relativeFilePath(entryPath);
        QJsonObject told = QJsonDocument::fromJson(contentOf(entryPath)).object();
        const QString same(32, QLatin1Char('a'));
        QVERIFY(!told.isEmpty() && QFile::remove(entryPath));
        const auto with = [&](const char *key, const QJsonValue &value) {
            told.insert(QStringLiteral("quick"), same);
            told.insert(QStringLiteral("full"), same);
            told.insert(QLatin1String(key), value);
            return QJsonDocument(told).toJson();
        };
        switch (i % 14) {
        case 0:
            m_tree->write(relative, with("size", told[QStringLiteral("size")].toInteger() + 1));
            break;
        case 1:
            m_tree->write(relative, with("mtimeMs", 1e300));
            break;
        case 2:
            m_tree->write(relative, with("algo", QStringLiteral("blake3")));
            break;
        case 3:
            told.insert(QStringLiteral("full"), QStringLiteral("aa"));
            m_tree->write(relative, QJsonDocument(told).toJson());
            break;
        case 4:
            m_tree->write(relative, QByteArray(3 << 20, '['));
            break;
        case 5:
            m_tree->write(relative, with("size", QJsonArray{told[QStringLiteral("size")]}));
            break;
        case 6:
            m_tree->makeFolder(relative + QStringLiteral("/in"));
            break;
        case 7:
            static_cast<void>(m_tree->symbolicLink(QStringLiteral("user's"), relative));
            break;
        case 8:
            static_cast<void>(m_tree->hardLink(QStringLiteral("user's"), relative));
            break;
        case 9:
            static_cast<void>(makePipe(entryPath));
            break;
        case 10:
            QFile::link(QStringLiteral("/dev/zero"), entryPath);
            break;
        case 11:
            QFile::link(entryPath, entryPath);
            break;
        default:
            m_tree->write(relative, mutated(QJsonDocument(told).toJson().left(random() % 2 ? 90 : 1000)));
        }
    }
    QList<QStringList> groups = groupsOf(DuplicateScanner::scan(options, {}, {}), *m_tree);
    std::sort(groups.begin(), groups.end());
    QCOMPARE(groups, expected);
    QCOMPARE(treeBelow(m_tree->path(QStringLiteral("files"))), before);
    QCOMPARE(contentOf(users), QByteArray("own"));
}

void FingerprintCacheTest::unwritableFolderIsSilent()
{
    const QString inTheWay = m_tree->write(QStringLiteral("in the way"), "x");
    setCacheRoot(inTheWay);
    storeQuick(file, size, modified, quick);
    QByteArray digest;
    QVERIFY(!lookupQuick(file, size, modified, digest));
    QCOMPARE(QFile(inTheWay).size(), 1);
}

void FingerprintCacheTest::offWithoutRoot()
{
    setCacheRoot({});
    QVERIFY(cachePathFor(file).isEmpty());
    storeQuick(file, size, modified, quick);
    QByteArray digest;
    QVERIFY(!lookupQuick(file, size, modified, digest));
}

void FingerprintCacheTest::oddNamesDoNotMeet()
{
    // Both become "?" or U+FFFD when they are turned into UTF-8 without care.
    const QString one = QStringLiteral("/data/") + QChar(char16_t(0xDCFE));
    const QString other = QStringLiteral("/data/") + QChar(char16_t(0xDCFF));
    storeQuick(one, size, modified, quick);
    QByteArray digest;
    QVERIFY(lookupQuick(one, size, modified, digest));
    QVERIFY(!lookupQuick(other, size, modified, digest));
    QVERIFY(!lookupQuick(QStringLiteral("/data/?"), size, modified, digest));
}

void FingerprintCacheTest::manyThreads()
{
    QList<int> rounds(400);
    std::iota(rounds.begin(), rounds.end(), 0);
    std::atomic<int> wrong = 0;
    QtConcurrent::blockingMap(rounds, [&](int &round) {
        const QString name = file + QString::number(round % 4); // four files, so that threads meet
        storeQuickAndFull(name, size, modified, quick, full);
        QByteArray digest;
        if (!lookupFull(name, size, modified, digest) || digest != full)
            ++wrong;
    });
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(FingerprintCacheTest)
#include "tst_fingerprintcache.moc"
