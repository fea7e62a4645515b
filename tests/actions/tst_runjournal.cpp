#include "actions/records/runjournal.h"

#include "actions/records/runhistory.h"
#include "tests/actions/actiontest.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonDocument>
#include <QSysInfo>
#include <QtEndian>

namespace {

const QString id = u"20240229-235959-0af3"_s;

RunHeader header()
{
    return {id, 1709251199123, u"clean --keep newest \"C:\\\x01\""_s, u"backup"_s, u"/Sicherung ä"_s, u"newest"_s, 0,
            {}};
}

/// Names that are no Unicode, numbers that no double holds, and what JSON escapes.
QList<RunItem> items()
{
    const QString odd = u"/a/"_s + QChar(0xDC80) + u"\n\"\\😀"_s + QChar(0xD83D) + QChar(u'\0');
    return {{odd, u"/kept"_s, 9007199254740993, -1, 9223372036854775807, 0xFFFFFFFF, u"md5:00"_s, u"older"_s, odd},
            {u"/b"_s, odd, 0, 0, 0, 0, {}, {}, {}},
            {u"/c"_s, u"/kept"_s, 5, 1709251199000, 1, 0644, {}, {}, {}}};
}

QList<ItemOutcome> outcomes()
{
    return {{1, ItemState::Failed, {}, u"in use"_s, {}, 0, 0},
            {2, ItemState::Done, items()[0].original, {}, u"blake3:11"_s, 3, 2},
            {1, ItemState::Done, {}, {}, {}, 100, 0}};
}

/// The ends of the records in a journal, by its layout.
QList<qsizetype> recordEnds(const QByteArray &bytes)
{
    QList<qsizetype> ends;
    for (qsizetype at = 0; at < bytes.size(); ends.append(at))
        at += 4 + qFromLittleEndian<quint32>(bytes.constData() + at);
    return ends;
}

} // namespace

class RunJournalTest : public ActionTest
{
    Q_OBJECT

private slots:
    void init() { renew(); }

    /// From the paper that defines the mode (McGrew and Viega), test case 16.
    void cipherVector()
    {
        AesGcmKey key(QByteArray::fromHex("feffe9928665731c6d6a8f9467308308").repeated(2));
        const QByteArray plain = QByteArray::fromHex("d9313225f88406e5a55909c5aff5269a86a7a9531534f7da2e4c303d8a318a72"
                                                     "1c3c0c95956809532fcf0e2449a6b525b16aedf5aa0de657ba637b39");
        QList<QByteArray> parts = {
            QByteArray::fromHex("cafebabefacedbaddecaf888"),
            QByteArray::fromHex("522dc1f099567d07f47f37a32a84427d643a8cdcbfe5c0c97598a2bd2555d1aa"
                                "8cb08e48590dbb3da7b08b1056828838c5f61e6393ba7a0abcc9f662"
                                "76fc6ece0f4e1768cddf8853bb2d551b"),
            QByteArray::fromHex("feedfacedeadbeeffeedfacedeadbeefabaddad2")};
        QCOMPARE(key.encrypt(parts[0], plain, parts[2]), parts[1]);
        QCOMPARE(key.decrypt(parts[0], parts[1], parts[2]), plain);
        for (QByteArray &part : parts) {
            for (char &byte : part) {
                byte = static_cast<char>(byte ^ 1);
                QVERIFY(!key.decrypt(parts[0], parts[1], parts[2]));
                byte = static_cast<char>(byte ^ 1);
            }
        }
        QVERIFY(!key.decrypt(parts[0], parts[1].first(15), parts[2]));
        QVERIFY(AesGcmKey(QByteArray(16, 'k')).encrypt(parts[0], plain, {}).isEmpty());
    }

    void roundTrip()
    {
        QVERIFY(!written().isEmpty());
        RunHeader expected = header();
        expected.planned = 3;
        const StoredRun run = readRun(path());
        QVERIFY(run.summary.header == expected);
        QVERIFY(run.items == items());
        QVERIFY(run.outcomes == (QList<ItemOutcome>{{}, outcomes()[2], outcomes()[1]}));
        QVERIFY(run.summary.isReadable && run.summary.isComplete && !run.summary.isDamaged);

        const QString undo = u"20240301-000000-0000"_s;
        RunJournalWriter interrupted;
        QVERIFY(interrupted.create(data(), {undo, 1709251200000, {}, {}, {}, {}, 0, id}, {}));
        QVERIFY(appendUndone(data(), id, {{2, ItemState::Done, u"/c"_s, {}, {}, 0, 0}}));
        const QList<RunSummary> runs = listRuns(data());
        QCOMPARE(runs.size(), 2);
        QCOMPARE(runs[0].header.id, undo);
        QCOMPARE(runs[0].header.undoOf, id);
        QVERIFY(!runs[0].isComplete && !runs[0].isDamaged);
        QVERIFY(runs[1].totals == (RunTally::Totals{1, 0, 1, 100, 0}));
        QVERIFY(runs[1].isComplete && runs[1].header == expected);
        QCOMPARE(readRun(path()).outcomes[2].state, ItemState::Undone);
        QVERIFY(removeRun(data(), id));
        QCOMPARE(listRuns(data()).size(), 1);
    }

    /// Read by the letter of the layout: what one release writes, another has to read.
    void layout()
    {
        const QByteArray bytes = written();
        AesGcmKey key(QCryptographicHash::hash(QSysInfo::machineUniqueId() + QByteArray("Mirrix-RunJournal-Key-v01"),
                                               QCryptographicHash::Sha256));
        QList<QByteArray> texts;
        qsizetype begin = 0;
        for (const qsizetype end : recordEnds(bytes)) {
            QByteArray number(8, '\0');
            number[0] = static_cast<char>(texts.size());
            texts.append(key.decrypt(bytes.sliced(begin + 4, 12), bytes.sliced(begin + 16, end - begin - 16), number)
                             .value_or("not authentic"));
            begin = end;
        }
        QCOMPARE(texts.size(), 6);
        QCOMPARE(QJsonDocument::fromJson(texts[0])[u"run"]["startedMs"_L1].toInteger(), 1709251199123);
        QVERIFY(
            texts[1].startsWith("{\"planned\":[[\"/a/\\udc80\\u000a\\\"\\\\\xF0\x9F\x98\x80\\ud83d\\u0000\",\"/kept\","
                                "9007199254740993,-1,9223372036854775807,4294967295,\"md5:00\",\"older\","));
        QCOMPARE(texts[2], R"({"outcomes":[[1,"failed","","in use","",0,0]]})");
        QCOMPARE(texts[5], R"({"end":{"done":2,"failed":0,"freedBytes":103,"heldBytes":2}})");
    }

    void cutOrFlippedAnywhere()
    {
        const QByteArray bytes = written();
        const QList<qsizetype> ends = recordEnds(bytes);
        for (qsizetype at = 0; at <= bytes.size(); ++at) {
            const auto whole = std::upper_bound(ends.begin(), ends.end(), at) - ends.begin();
            const bool isBetween = at == 0 || ends.contains(at);
            QByteArray flipped = bytes;
            flipped[at % bytes.size()] = static_cast<char>(flipped[at % bytes.size()] ^ (1 << (at % 8)));
            for (const bool isCut : {true, at == bytes.size()}) {
                replace(isCut ? bytes.first(at) : flipped);
                const StoredRun run = readRun(path());
                QVERIFY(run.summary.isReadable || (!isCut && whole == 0));
                QVERIFY(run.summary.header.startedMs > 0);
                QCOMPARE(run.summary.isDamaged, !isCut || !isBetween);
                QCOMPARE(run.summary.message.isEmpty(), !run.summary.isDamaged);
                QCOMPARE(run.summary.isComplete, at == bytes.size());
                QCOMPARE(run.items.size(), whole > 1 ? 3 : 0);
                QCOMPARE(run.summary.totals.done, whole > 4 ? 2 : whole > 3 ? 1 : 0);
                QVERIFY(listRuns(data()).constFirst().totals == run.summary.totals);
            }
        }
    }

    void garbage()
    {
        RecordWriter foreign(QByteArray(32, 'k')); // another machine's
        QVERIFY(foreign.create(at(u"foreign"_s)) && foreign.append(headerText(header())) && foreign.flush());
        const QByteArray tooShort = QByteArray::fromHex("1b000000") + QByteArray(27, 'x'); // for nonce and tag
        const QByteArray ofFourGibi(4096, '\xFF');
        for (const QByteArray &content : {ofFourGibi, tooShort, patternBytes(5000), contentOf(at(u"foreign"_s))}) {
            replace(content);
            const QList<RunSummary> runs = listRuns(data());
            QCOMPARE(runs.size(), 1);
            QCOMPARE(runs[0].header.id, id);
            QVERIFY(runs[0].header.startedMs > 0 && runs[0].message.contains(path()));
            QVERIFY(!runs[0].isReadable && !runs[0].isComplete);
            QString error;
            QVERIFY(!appendUndone(data(), id, {{0, ItemState::Undone, {}, {}, {}, 0, 0}}, &error));
            QVERIFY(error.contains(path()));
            QCOMPARE(contentOf(path()), content);
        }
    }

    void continuesAfterACut()
    {
        const QByteArray bytes = written();
        for (const qsizetype missing : {1, 30, 200}) {
            replace(bytes.chopped(missing) + (missing == 30 ? QByteArray(4096, '\0') : QByteArray()));
            QVERIFY(readRun(path()).summary.isDamaged);
            QVERIFY(appendUndone(data(), id, {{0, ItemState::Done, u"/a"_s, {}, {}, 9, 9}}));
            const StoredRun run = readRun(path());
            QVERIFY(!run.summary.isDamaged && !run.summary.isComplete);
            QCOMPARE(run.outcomes[0].state, ItemState::Undone);
            QCOMPARE(run.summary.totals.undone, 1);
        }
    }

    void refuses()
    {
        for (const QString &wrong : {u"../../x"_s, id + u'\n', u"20240229-235959-0AF3"_s, u"٢0240229-235959-0af3"_s}) {
            QVERIFY(!isRunId(wrong));
            QVERIFY(!RunJournalWriter().create(data(), {wrong, 1, {}, {}, {}, {}, 0, {}}, {}));
            QVERIFY(!RunJournalWriter().resume(data(), wrong) && !removeRun(data(), wrong));
        }
        QVERIFY(!QFile::exists(data()));
        QVERIFY(isRunId(newRunId(1709251199123)));
        const QByteArray bytes = written();
        RunJournalWriter second;
        QVERIFY(!second.create(data(), header(), {}) && second.errorText().contains(path()));
        QCOMPARE(contentOf(path()), bytes);
        RunJournalWriter holder;
        QVERIFY(holder.resume(data(), id));
        QVERIFY(!second.resume(data(), id));
        m_tree->write(u"full/runs"_s, "a file where the folder should be");
        QVERIFY(!second.create(at(u"full"_s), header(), items()) && !second.errorText().isEmpty());
        QCOMPARE(QDir(at(u"full"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"runs"_s});
    }

    /// More than one record takes, by number and by bytes.
    void manyFiles()
    {
        QList<RunItem> many(300, items()[1]);
        for (RunItem &item : many)
            item.original = QString::number(&item - many.data()).rightJustified(40000, u'é');
        RunJournalWriter writer;
        QVERIFY(writer.create(data(), header(), many));
        for (qsizetype i = 0; i < many.size(); ++i)
            QVERIFY(writer.outcome({i, ItemState::Done, {}, {}, {}, 1, 0}));
        QVERIFY(writer.finish());
        const StoredRun run = readRun(path());
        QVERIFY(run.items == many && run.summary.isComplete);
        QCOMPARE(run.summary.totals.freedBytes, 300);
    }

    void flushesByItself()
    {
        RunJournalWriter writer;
        QVERIFY(writer.create(data(), header(), items()));
        QTRY_VERIFY(writer.outcome(outcomes()[1]) && readRun(path()).summary.totals.done == 1);
    }

    /// What was written stays readable, and goes on when there is room again.
    void fullDisk()
    {
        MIRRIX_ON_SMALL_DISK();
        RunJournalWriter writer;
        QVERIFY(!writer.create(smallDisk(), header(), QList<RunItem>(1000, items()[0])));
        QCOMPARE(QDir(smallDisk() + u"/runs"_s).entryList(QDir::Files | QDir::Hidden), QStringList());
        QVERIFY(writer.create(smallDisk(), header(), items()));
        QFile ballast(smallDisk() + u"/ballast"_s);
        QVERIFY(ballast.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                ballast.write(QByteArray(8192, 'x')) == 8192);
        int saved = 0;
        const ItemOutcome one = {0, ItemState::Done, {}, QString(300, u'x'), {}, 1, 0};
        while (writer.outcome(one) && writer.flush())
            ++saved;
        QVERIFY(saved > 0 && !writer.errorText().isEmpty() && !writer.finish());
        const QString path = runJournalPath(smallDisk(), id);
        QVERIFY(!readRun(path).summary.isDamaged);
        QCOMPARE(readRun(path).outcomes[0], one);
        QVERIFY(ballast.remove() && writer.outcome({1, ItemState::Failed, {}, {}, {}, 0, 0}) == false &&
                writer.finish());
        QVERIFY(readRun(path).summary.totals == (RunTally::Totals{1, 1, 0, 1, 0}));
        QVERIFY(readRun(path).summary.isComplete);
    }

private:
    [[nodiscard]] QString data() const { return at(u"data"_s); }
    [[nodiscard]] QString path() const { return runJournalPath(data(), id); }
    /// the bytes of a journal with one outcome a record
    [[nodiscard]] QByteArray written()
    {
        RunJournalWriter writer;
        if (!writer.create(data(), header(), items()))
            return {};
        for (const ItemOutcome &outcome : outcomes()) {
            if (!writer.outcome(outcome) || !writer.flush())
                return {};
        }
        return writer.finish() ? contentOf(path()) : QByteArray();
    }

    void replace(const QByteArray &bytes)
    {
        QFile::remove(path()); // a file system may wait for the disk when a file is cut to nothing
        m_tree->write(u"data/runs/"_s + id + u".journal"_s, bytes);
    }
};

QTEST_GUILESS_MAIN(RunJournalTest)
#include "tst_runjournal.moc"
