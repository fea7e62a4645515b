#include "actions/files/binlookup.h"

#include "actions/files/recyclebin.h"
#include "core/platform/nativepath.h"
#include "tests/actions/actiontest.h"

#include <QDateTime>
#include <QtEndian>

namespace {

const QDateTime noon(QDate(2024, 2, 29), QTime(12, 0));

QByteArray numberBytes(quint64 number, qsizetype size)
{
    QByteArray bytes(8, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes.first(size);
}

/// A $I file, by its public description.
QByteArray recycleNote(int version, const QString &path, const QDateTime &deleted, quint64 sizeBytes)
{
    QByteArray text;
    for (const QChar unit : path + QChar(u'\0'))
        text += numberBytes(unit.unicode(), 2);
    const auto ticks = static_cast<quint64>((deleted.toMSecsSinceEpoch() + 11644473600000) * 10000);
    return numberBytes(static_cast<quint64>(version), 8) + numberBytes(sizeBytes, 8) + numberBytes(ticks, 8) +
           (version == 1 ? text.leftJustified(520, '\xCC')
                         : numberBytes(static_cast<quint64>(path.size() + 1), 4) + text);
}

QByteArray trashNote(const QByteArray &path, const QDateTime &deleted)
{
    return "[Trash Info]\nPath=" + path + "\nDeletionDate=" + deleted.toString(u"yyyy-MM-ddTHH:mm:ss"_s).toLatin1() +
           "\n";
}

} // namespace

class BinLookupTest : public ActionTest
{
    Q_OBJECT

private slots:
    void init() { renew(); }

    void trashNotes_data()
    {
        const auto row = columns<QByteArray, QString, QString>({"text", "top", "original"});
        row("absolute", QByteArray("[Trash Info]\nPath=/a%20b/%C3%A4%0A\n"), QString(), u"/a b/ä\n"_s);
        row("relative", QByteArray("[Trash Info]\r\nDeletionDate=x\r\nPath=a/b\r\n"), u"/media/x"_s, u"/media/x/a/b"_s);
        row("relative to a root", QByteArray("[Trash Info]\nPath=a\n"), u"/"_s, u"/a"_s);
        row("no Unicode", QByteArray("[Trash Info]\nPath=/%FF\n"), QString(), MirrixCore::pathFromBytes("/\xFF"));
        row("first counts", QByteArray("[Trash Info]\nPath=/a\nPath=/b\n"), QString(), u"/a"_s);
        row("relative to nothing", QByteArray("[Trash Info]\nPath=a\n"), QString(), QString());
        row("another group", QByteArray("[Trash Info]\n[Other]\nPath=/a\n"), QString(), QString());
        row("no note", QByteArray("Path=/a\n"), QString(), QString());
        row("empty", QByteArray(), QString(), QString());
    }

    void trashNotes()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, top);
        QTEST(readTrashNote(text, top).value_or(BinEntry()).original, "original");
    }

    void recycleNotes()
    {
        const QString path = u"C:\\Users\\ä"_s + QChar(0xD800) + u"\\x.txt"_s;
        const QString original = u"C:/Users/ä"_s + QChar(0xD800) + u"/x.txt"_s;
        for (const int version : {1, 2}) {
            const QByteArray note = recycleNote(version, path, noon, 5);
            QCOMPARE(readRecycleNote(note).value_or(BinEntry()).original, original);
            QCOMPARE(readRecycleNote(note).value_or(BinEntry()).deletedMs, noon.toMSecsSinceEpoch());
            for (qsizetype length = 0; length < note.size(); ++length)
                QVERIFY(!readRecycleNote(note.first(length)));
        }
        QVERIFY(!readRecycleNote(recycleNote(3, path, noon, 5)));
        QVERIFY(!readRecycleNote(recycleNote(2, {}, noon, 5)));
        QVERIFY(!readRecycleNote(recycleNote(2, path, noon, 5).replace(24, 4, "\xFF\xFF\xFF\xFF")));
    }

    void findsAndPutsBack_data()
    {
        const auto row = columns<int>({"version"});
        row("trash", 0);
        row("Recycle Bin, version 1", 1);
        row("Recycle Bin, version 2", 2);
    }

    void findsAndPutsBack()
    {
        QFETCH(int, version);
        const QString original = at(u"lost folder/ä.txt"_s);
        const auto layout = version == 0 ? BinFolder::Layout::Trash : BinFolder::Layout::RecycleBin;
        const BinFolder bin = {layout, at(u".Trash-1"_s), at()};
        const auto throwAway = [&](const QString &name, const QByteArray &content, const QDateTime &deleted) {
            const QString file = version == 0 ? u".Trash-1/files/%1"_s.arg(name) : u".Trash-1/$R%1"_s.arg(name);
            m_tree->write(file, content);
            m_tree->setModified(file, 1700000000000);
            if (version == 0)
                m_tree->write(u".Trash-1/info/%1.trashinfo"_s.arg(name),
                              trashNote("lost%20folder/%C3%A4.txt", deleted));
            else
                m_tree->write(u".Trash-1/$I%1"_s.arg(name),
                              recycleNote(version, QDir::toNativeSeparators(original), deleted, 3));
        };
        throwAway(u"1.txt"_s, "old", noon.addDays(-1));
        throwAway(u"2.txt"_s, "new", noon);
        throwAway(u"3.txt"_s, "other size", noon.addDays(1));
        BinContents bins([&bin](const QString &) { return QList<BinFolder>{bin}; });
        const auto find = [&](qint64 modifiedMs, const QDateTime &since) {
            return bins.find(original, 3, modifiedMs, since.toMSecsSinceEpoch());
        };
        QVERIFY(!find(1700000000001, noon.addYears(-1)));
        QVERIFY(!find(1700000000000, noon.addSecs(7200)));
        QVERIFY(!bins.find(original + u'x', 3, 0, 0));
        const std::optional<BinEntry> newest = find(1700000000000, noon.addYears(-1));
        QVERIFY(find(1700000000000, noon.addMSecs(999)).has_value());
        QVERIFY(newest && contentOf(newest->filePath) == "new");
        QCOMPARE(binEntryAt(newest->filePath).value_or(BinEntry()).original, original);
        QCOMPARE(putBackFromBin(*newest), FileFault::None);
        QCOMPARE(contentOf(original), "new");
        QVERIFY(!QFile::exists(newest->filePath) && !QFile::exists(newest->infoPath));
        QVERIFY(!find(0, noon) && !binEntryAt(newest->filePath));
        const std::optional<BinEntry> older = find(0, noon.addYears(-1));
        QVERIFY(older.has_value());
        QCOMPARE(putBackFromBin(*older), FileFault::Occupied); // nothing is overwritten
        QCOMPARE(contentOf(original), "new");
        QVERIFY(QFile::exists(older->filePath) && QFile::exists(older->infoPath));
    }

    void realTrash()
    {
        if (!namesAreBytes)
            QSKIP("the bin of this system does not tell where it puts files");
        const QByteArray before = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QFile::encodeName(at(u"share"_s)));
        m_tree->makeFolder(u"share/Trash"_s);
        const qint64 started = QDateTime::currentMSecsSinceEpoch();
        const QString one = m_tree->writeNamedByBytes("a\xFF%\n", "one");
        const QStringList placed = systemRecycleBin().send({one, at(u"missing"_s)}).placed;
        const std::optional<BinEntry> found = findInBin(one, 3, 0, started);
        before.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before);
        QCOMPARE(placed.size(), 2);
        QCOMPARE(placed[1], QString());
        QVERIFY(found && found->filePath == placed[0]);
        QCOMPARE(binEntryAt(placed[0]).value_or(BinEntry()).original, one);
        QCOMPARE(putBackFromBin(*found), FileFault::None);
        QCOMPARE(contentAt(MirrixCore::filesystemPath(one)), "one");
    }
};

QTEST_GUILESS_MAIN(BinLookupTest)
#include "tst_binlookup.moc"
