#include "actions/records/operationslog.h"

#include "actions/records/aescbc.h"
#include "tests/actions/actiontest.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSysInfo>

namespace {

/// As the layout has it, written down once more.
QByteArray machineKey()
{
    return QCryptographicHash::hash(QSysInfo::machineUniqueId() + QByteArray("Mirrix-OpsJournal-Key-v01"),
                                    QCryptographicHash::Sha256);
}

} // namespace

class OperationsLogTest : public ActionTest
{
    Q_OBJECT

private slots:
    void init() { renew(); }

    /// NIST SP 800-38A, F.2.6, with the padding block that any other implementation gives.
    void cipherVector()
    {
        const QByteArray key = QByteArray::fromHex("603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4");
        const QByteArray encrypted =
            QByteArray::fromHex("000102030405060708090a0b0c0d0e0f"
                                "f58c4c04d6e5f1ba779eabfb5f7bfbd6485a5c81519cf378fa36d42b8547edc0");
        QCOMPARE(decryptAesCbc(key, encrypted).toHex(), "6bc1bee22e409f96e93d7e117393172a");
        for (const qsizetype size : {0, 1, 15, 16, 17, 5000}) {
            const QByteArray sealed = encryptAesCbc(key, patternBytes(size));
            QCOMPARE(sealed.size(), 16 + (size / 16 + 1) * 16);
            QCOMPARE(decryptAesCbc(key, sealed), patternBytes(size));
        }
        QVERIFY(encryptAesCbc(key.first(16), "text").isEmpty());
    }

    void recordsInOrder()
    {
        OperationsLog log(path());
        QVERIFY(log.readAll().isEmpty());
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        QVERIFY(log.append(u"first"_s, QString()));
        QVERIFY(log.append({{7, u"second"_s, u"日本 \"quoted\"\n"_s}, {8, u"third"_s, QString(QChar(0xDC80))}}));
        const QList<LogEntry> entries = OperationsLog(path()).readAll();
        QCOMPARE(entries.size(), 3);
        QVERIFY(entries[0].timeMs >= before && entries[0].timeMs <= QDateTime::currentMSecsSinceEpoch());
        QCOMPARE(entries[0].action, u"first"_s);
        QCOMPARE(entries[0].detail, QString());
        QVERIFY(entries[1] == (LogEntry{7, u"second"_s, u"日本 \"quoted\"\n"_s}));
        QCOMPARE(entries[2].detail, QString(QChar(0xDC80)));
        QCOMPARE(QDir(at(u"new/folder"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"ops.log.enc"_s});
    }

    void plainContent()
    {
        QVERIFY(OperationsLog(path()).append({{1700000000123, u"restore"_s, u"/a  <-  /b"_s}, {2, u"x"_s, u"é"_s}}));
        const QByteArray stored = contentOf(path());
        QVERIFY(OperationsLog(path()).append(QList<LogEntry>()));
        const QByteArray again = contentOf(path());
        QVERIFY(again.size() == stored.size() && again.first(16) != stored.first(16));
        QCOMPARE(decryptAesCbc(machineKey(), stored),
                 QByteArray("[{\"t\":1700000000123,\"a\":\"restore\",\"d\":\"/a  <-  /b\"},"
                            "{\"t\":2,\"a\":\"x\",\"d\":\"\xC3\xA9\"}]"));
    }

    void continuesWhatIsAnArray_data();

    /// Whatever reads as records is kept, and whatever does not gives way: nothing is added to a text that stays
    /// unreadable.
    void continuesWhatIsAnArray()
    {
        QFETCH(QByteArray, content);
        m_tree->write(u"new/folder/ops.log.enc"_s, encryptAesCbc(machineKey(), content));
        QList<LogEntry> expected = OperationsLog(path()).readAll();
        expected.append({2, u"b"_s, QString()});
        QVERIFY(OperationsLog(path()).append({{2, u"b"_s, QString()}}));
        QCOMPARE(OperationsLog(path()).readAll().size(), expected.size());
        QVERIFY(OperationsLog(path()).readAll() == expected);
    }

    void unusableFiles_data();

    void unusableFiles()
    {
        QFETCH(QByteArray, content);
        m_tree->write(u"new/folder/ops.log.enc"_s, content);
        OperationsLog log(path());
        QVERIFY(log.readAll().isEmpty());
        QVERIFY(log.append(u"fresh"_s, u"start"_s));
        QCOMPARE(log.readAll().size(), 1);
        QCOMPARE(log.readAll().constFirst().action, u"fresh"_s);
    }

    void unwritable()
    {
        m_tree->write(u"new/folder"_s, "a file where the folder should be");
        QVERIFY(!OperationsLog(path()).append(u"a"_s, u"b"_s));
        // What is there but cannot be read is not replaced.
        m_tree->makeFolder(u"ops.log.enc"_s);
        QVERIFY(!OperationsLog(at(u"ops.log.enc"_s)).append(u"a"_s, u"b"_s));
        QVERIFY(QFileInfo(at(u"ops.log.enc"_s)).isDir());
    }

private:
    [[nodiscard]] QString path() const { return at(u"new/folder/ops.log.enc"_s); }
};

// Out of the class, where moc reads past raw strings.
void OperationsLogTest::continuesWhatIsAnArray_data()
{
    const auto row = columns<QByteArray>({"content"});
    const QByteArray own = "{\"t\":1,\"a\":\"x\",\"d\":\"C:\\\\a\\u001f\\\"]\"}";
    const QByteArray other = R"({ "a":"]", "t":1, "d":"d" })";
    row("empty", "[]");
    row("one", "[" + own + "]");
    row("two", "[" + own + "," + own + "]");
    row("negative time", R"([{"t":-1,"a":"","d":""}])");
    row("empty, blanks", " [ ]\n");
    row("another's form", "\n[\n" + other + "\n]\n");
    row("missing members", "[{},1]");
    // What the parser refuses, in the own form but for one thing.
    for (const char *wrong : {"[,]", "[{\"t\":1,\"a\":\"\",\"d\":\"\"},]", "[{\"t\":,\"a\":\"\",\"d\":\"\"}]",
                              "[{\"t\":01,\"a\":\"\",\"d\":\"\"}]", "[{\"t\":1,\"a\":\"\n\",\"d\":\"\"}]",
                              "[{\"t\":1,\"a\":\"\\x\",\"d\":\"\"}]", "[{\"t\":1,\"a\":\"\\u12g4\",\"d\":\"\"}]",
                              "[{\"t\":1,\"a\":\"\xFF\",\"d\":\"\"}]", "[{\"t\":1,\"a\":\"\\\",\"d\":\"\"}]",
                              "[{\"t\":1,\"a\":\"\",\"d\":\"\"}]]", "[{\"t\":1,\"a\":\"\",\"d\":\"\"}{}]"})
        row(wrong, QByteArray(wrong));
}

void OperationsLogTest::unusableFiles_data()
{
    const auto row = columns<QByteArray>({"content"});
    row("empty", QByteArray());
    row("shorter than the vector", QByteArray(15, 'x'));
    row("the vector only", QByteArray(16, 'x'));
    row("half a block", QByteArray(24, 'x'));
    row("noise", patternBytes(512));
    row("another machine's", encryptAesCbc(QByteArray(32, 'k'), R"([{"t":1,"a":"a","d":"d"}])"));
    row("no array", encryptAesCbc(machineKey(), R"({"t":1,"a":"a","d":"d"})"));
    row("cut short", encryptAesCbc(machineKey(), R"([{"t":1,"a":"a","d":"d"},{"t")"));
}

QTEST_GUILESS_MAIN(OperationsLogTest)
#include "tst_operationslog.moc"
