#include "core/walk/folderreader.h"

#include "core/platform/filereader.h"
#include "core/platform/filestatus.h"
#include "core/platform/nativepath.h"
#include "core/walk/windowsattributes.h"
#include "tests/support/probes.h"
#include "tests/support/temptree.h"

#include <QDateTime>
#include <QFile>
#include <QMap>
#include <QScopeGuard>
#include <QTest>

#include <filesystem>
#include <system_error>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

using Kind = FolderItem::Kind;

namespace {

/// All entries of a folder by name. Fails the test when a name comes twice or the folder cannot be read.
QMap<QString, FolderItem> itemsOf(const QString &folder)
{
    QMap<QString, FolderItem> items;
    FolderReader reader(folder);
    FolderItem item;
    while (reader.next(item)) {
        if (items.contains(item.name) || !item.reason.isEmpty())
            qFatal("twice or unreadable: %s", qPrintable(item.name));
        items.insert(item.name, item);
    }
    if (!reader.errorText().isEmpty())
        qFatal("%s", qPrintable(reader.errorText()));
    return items;
}

/// Removes a file whose name Qt's own functions may not see.
void remove(const std::filesystem::path &path)
{
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
}

} // namespace

class FolderReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void listsFilesAndFolders();
    void tellsSizesAndTimes();
    void tellsTimesBefore1970AsUnknown();
    void listsLargeFolders();
    void listsOddNames_data();
    void listsOddNames();
    void listsNamesOfBytes_data();
    void listsNamesOfBytes();
    void readsLongPaths();
    void tellsHardLinks();
    void givesNoLinkAsFileOrFolder();
    void followsWantedLinksOnly();
    void kindsByAttributes_data();
    void kindsByAttributes();
    void givesNoPipeAsFile();
    void tellsWhatIsHidden();
    void failsOnWhatIsNoFolder_data();
    void failsOnWhatIsNoFolder();
    void tellsStatus();
    void comparesNoUnknownIdentities();
};

void FolderReaderTest::listsFilesAndFolders()
{
    const TempTree tree;
    tree.write(u"file.txt"_s, "x");
    tree.write(u"folder/inner.txt"_s, "x");
    tree.makeFolder(u"empty"_s);
    const auto items = itemsOf(tree.path());
    QCOMPARE(items.keys(), QStringList({u"empty"_s, u"file.txt"_s, u"folder"_s}));
    QCOMPARE(items[u"file.txt"_s].kind, Kind::File);
    QCOMPARE(items[u"folder"_s].kind, Kind::Folder);
    QVERIFY(!items[u"folder"_s].isFolderLink);
    QVERIFY(!items[u"file.txt"_s].isPlaceholder);
    QCOMPARE(itemsOf(tree.path(u"empty"_s)).size(), 0);
}

void FolderReaderTest::tellsSizesAndTimes()
{
    const TempTree tree;
    tree.write(u"none"_s, "");
    tree.write(u"some"_s, patternBytes(70000));
    tree.setModified(u"some"_s, 1234567890123);
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const auto items = itemsOf(tree.path());
    QCOMPARE(items[u"none"_s].sizeBytes, 0);
    QCOMPARE(items[u"some"_s].sizeBytes, 70000);
    QCOMPARE(items[u"some"_s].modifiedMs, 1234567890123);
    constexpr qint64 minuteMs = 60000;
    QVERIFY(qAbs(items[u"none"_s].modifiedMs - now) < minuteMs);
    // Of the file whose times were not set: not every system keeps the two apart.
    const qint64 created = items[u"none"_s].createdMs;
    QVERIFY2(created == 0 || qAbs(created - now) < minuteMs, QByteArray::number(created).constData());
}

void FolderReaderTest::tellsTimesBefore1970AsUnknown()
{
    const TempTree tree;
    tree.write(u"old"_s, "x");
    tree.setModified(u"old"_s, -86400000);
    QCOMPARE(itemsOf(tree.path())[u"old"_s].modifiedMs, 0);
    QCOMPARE(fileStatus(tree.path(u"old"_s)).modifiedMs, 0);
    FileReader reader;
    QVERIFY(reader.open(tree.path(u"old"_s)) && reader.readState());
    QCOMPARE(reader.modifiedMs(), 0);
}

void FolderReaderTest::listsLargeFolders()
{
    const TempTree tree;
    constexpr int count = 1500; // more than one call to the system hands out
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(u"a file with a name that takes some room %1"_s.arg(i, 4, 10, QChar(u'0')));
        tree.write(names.constLast(), "");
    }
    QCOMPARE(itemsOf(tree.path()).keys(), names);
}

void FolderReaderTest::listsOddNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("non-ASCII") << u"Übung – 重复.txt"_s;
    QTest::newRow("beyond the basic plane") << u"😀"_s;
    QTest::newRow("accent apart") << u"e\u0301"_s;
    QTest::newRow("leading dot") << u".hidden"_s;
    QTest::newRow("dots and blanks") << u"...a  b"_s;
    QTest::newRow("byte order mark first") << u"\uFEFFmark"_s;
    QTest::newRow("swapped byte order mark first") << u"\uFFFEmark"_s;
    QTest::newRow("much like a device") << u"con-.txt"_s;
}

void FolderReaderTest::listsOddNames()
{
    QFETCH(QString, name);
    const TempTree tree;
    tree.write(name, "12345");
    const auto cleanUp = qScopeGuard([&] { remove(tree.path(name).toStdU16String()); });
    const auto items = itemsOf(tree.path());
    QCOMPARE(items.keys(), QStringList(name));
    QCOMPARE(items[name].kind, Kind::File);
    QCOMPARE(items[name].sizeBytes, 5);
    QCOMPARE(fileStatus(tree.path(name)).sizeBytes, 5);
}

void FolderReaderTest::listsNamesOfBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("Latin-1") << QByteArray("caf\xE9");
    QTest::newRow("overlong") << QByteArray("\xC0\xAF");
    QTest::newRow("surrogates as CESU-8") << QByteArray("\xED\xA0\xBD\xED\xB8\x80");
    QTest::newRow("line break") << QByteArray("a\nb\\c");
}

void FolderReaderTest::listsNamesOfBytes()
{
    if (!namesAreBytes)
        QSKIP("names are not bytes here");
    QFETCH(QByteArray, bytes);
    const TempTree tree;
    tree.writeNamedByBytes(bytes, "12345");
    const auto cleanUp = qScopeGuard([&] { remove((QFile::encodeName(tree.path()) + '/' + bytes).toStdString()); });
    const auto items = itemsOf(tree.path());
    QCOMPARE(items.size(), 1);
    QCOMPARE(pathBytes(items.firstKey()), bytes);
    QCOMPARE(items.first().sizeBytes, 5);
    QCOMPARE(fileStatus(tree.path() + u'/' + items.firstKey()).kind, FileStatus::Kind::File);
}

void FolderReaderTest::readsLongPaths()
{
    const TempTree tree;
    const QString level(80, u'd');
    const QString folder = QStringList(4, level).join(u'/');
    const QString path = tree.write(folder + u"/leaf"_s, "123");
    QVERIFY(path.size() > 260);
    QCOMPARE(itemsOf(tree.path(folder)).keys(), QStringList(u"leaf"_s));
    QCOMPARE(fileStatus(path).sizeBytes, 3);
}

void FolderReaderTest::tellsHardLinks()
{
    const TempTree tree;
    tree.write(u"one"_s, "same bytes");
    tree.write(u"other"_s, "same bytes");
    if (!tree.hardLink(u"one"_s, u"two"_s))
        QSKIP("no hard links here");
    const FileIdentity one = fileStatus(tree.path(u"one"_s)).identity;
    QVERIFY(one.isSameAs(fileStatus(tree.path(u"two"_s)).identity));
    QVERIFY(!one.isSameAs(fileStatus(tree.path(u"other"_s)).identity));
    QCOMPARE(one.links, 2U);
    QCOMPARE(fileStatus(tree.path(u"other"_s)).identity.links, 1U);
    const auto items = itemsOf(tree.path());
    for (const FolderItem &item : items) {
        const FileIdentity status = fileStatus(tree.path(item.name)).identity;
        if (item.identity.isKnown)
            QVERIFY2(item.identity.isSameAs(status) && item.identity.links == status.links, qPrintable(item.name));
    }
}

void FolderReaderTest::givesNoLinkAsFileOrFolder()
{
    const TempTree tree;
    tree.write(u"target/file"_s, "x");
    if (!tree.symbolicLink(u"target/file"_s, u"to file"_s) || !tree.symbolicLink(u"target"_s, u"to folder"_s) ||
        !tree.symbolicLink(u"nowhere"_s, u"dangling"_s)) {
        QSKIP("no symbolic links here");
    }
    const auto items = itemsOf(tree.path());
    for (const QString &name : {u"to file"_s, u"to folder"_s, u"dangling"_s})
        QCOMPARE(items[name].kind, Kind::Other);
    QCOMPARE(itemsOf(tree.path(u"to folder"_s)).keys(), QStringList(u"file"_s));
    QCOMPARE(fileStatus(tree.path(u"to file"_s)).kind, FileStatus::Kind::File);
    QCOMPARE(fileStatus(tree.path(u"dangling"_s)).kind, FileStatus::Kind::Missing);
}

void FolderReaderTest::givesNoPipeAsFile()
{
    const TempTree tree;
    if (!makePipe(tree.path(u"pipe"_s)))
        QSKIP("no named pipes here");
    QCOMPARE(itemsOf(tree.path())[u"pipe"_s].kind, Kind::Other);
    QCOMPARE(fileStatus(tree.path(u"pipe"_s)).kind, FileStatus::Kind::Other);
    QVERIFY(!FolderReader(tree.path(u"pipe"_s)).errorText().isEmpty());
}

void FolderReaderTest::tellsWhatIsHidden()
{
    const TempTree tree;
    tree.write(u"plain.file"_s, "x");
    tree.makeFolder(u"plain"_s);
    if (!hide(tree.write(u".file"_s, "x")) || !hide(tree.makeFolder(u".folder"_s)))
        QSKIP("nothing is hidden here");
    const auto items = itemsOf(tree.path());
    QCOMPARE(items.size(), 4);
    for (const FolderItem &item : items) {
        const bool isHidden = item.name.startsWith(u'.');
        QVERIFY2(item.isHidden == isHidden, qPrintable(item.name));
        QVERIFY2(fileStatus(tree.path(item.name)).isHidden == isHidden, qPrintable(item.name));
    }
}

void FolderReaderTest::failsOnWhatIsNoFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"missing"_s;
    QTest::newRow("below a missing folder") << u"missing/folder"_s;
    QTest::newRow("file") << u"file"_s;
}

void FolderReaderTest::failsOnWhatIsNoFolder()
{
    QFETCH(QString, name);
    const TempTree tree;
    tree.write(u"file"_s, "x");
    FolderReader reader(tree.path(name));
    FolderItem item;
    QVERIFY(!reader.next(item));
    QVERIFY(!reader.next(item));
    QVERIFY(!reader.errorText().isEmpty());
}

void FolderReaderTest::tellsStatus()
{
    const TempTree tree;
    tree.write(u"file"_s, patternBytes(4097));
    tree.setModified(u"file"_s, 1600000000456);
    const FileStatus file = fileStatus(tree.path(u"file"_s));
    QCOMPARE(file.kind, FileStatus::Kind::File);
    QCOMPARE(file.sizeBytes, 4097);
    QCOMPARE(file.modifiedMs, 1600000000456);
    QVERIFY(file.identity.isKnown);
    QVERIFY(file.reason.isEmpty());

    QCOMPARE(fileStatus(tree.path()).kind, FileStatus::Kind::Folder);
    for (const QString &name : {u"missing"_s, u"missing/file"_s, u"file/below"_s}) {
        const FileStatus status = fileStatus(tree.path(name));
        QCOMPARE(status.kind, FileStatus::Kind::Missing);
        QVERIFY2(status.reason.isEmpty(), qPrintable(name + u": "_s + status.reason));
    }
}

void FolderReaderTest::comparesNoUnknownIdentities()
{
    const FileIdentity known{7, 42, 1, true};
    QVERIFY(known.isSameAs({7, 42, 3, true}));
    QVERIFY(!known.isSameAs({8, 42, 1, true}));
    QVERIFY(!known.isSameAs({7, 43, 1, true}));
    QVERIFY(!known.isSameAs({7, 42, 1, false}));
    QVERIFY(!(FileIdentity{7, 42, 1, false}).isSameAs(known));
    QVERIFY(!(FileIdentity{7, 0, 1, true}).isSameAs({7, 0, 1, true}));
    QVERIFY(!known.isOtherThan(known));
    QVERIFY(known.isOtherThan({8, 42, 1, true}));
    QVERIFY(known.isOtherThan({7, 43, 1, true}));
    QVERIFY(!known.isOtherThan({7, 43, 1, false}));
    QVERIFY(!known.isOtherThan({7, 0, 1, true}));
    QVERIFY(!(FileIdentity{7, 0, 1, true}).isOtherThan(known));
}

/// A folder that became a link after its parent told of it leads elsewhere.
void FolderReaderTest::followsWantedLinksOnly()
{
    if (!namesAreBytes)
        QSKIP("not told at the opening");
    const TempTree tree;
    tree.write(u"folder/file"_s, "x");
    QVERIFY(tree.symbolicLink(u"folder"_s, u"link"_s));
    FolderItem item;
    QVERIFY(FolderReader(tree.path(u"link"_s)).next(item));
    FolderReader unwanted(tree.path(u"link"_s), false);
    QVERIFY(!unwanted.next(item));
    QVERIFY(!unwanted.errorText().isEmpty());
    QVERIFY(FolderReader(tree.path(u"folder"_s), false).next(item));
}

void FolderReaderTest::kindsByAttributes_data()
{
    QTest::addColumn<quint32>("attributes");
    QTest::addColumn<FolderItem::Kind>("kind");
    QTest::addColumn<bool>("isPlaceholder");
    QTest::addColumn<bool>("isFolderLink");
    using enum FolderItem::Kind;
    QTest::newRow("plain") << 0x80u << File << false << false;
    QTest::newRow("archive, hidden") << 0x22u << File << false << false;
    QTest::newRow("recalled on access, as a drive shows it") << 0x400020u << File << true << false;
    QTest::newRow("recalled on access") << 0x400420u << File << true << false;
    QTest::newRow("recalled on opening") << 0x40020u << File << true << false;
    QTest::newRow("offline") << 0x1020u << File << true << false;
    QTest::newRow("pinned, but here") << 0x80020u << File << false << false;
    QTest::newRow("symbolic link") << 0x420u << Other << false << false;
    QTest::newRow("folder") << 0x10u << Folder << false << false;
    QTest::newRow("junction") << 0x410u << Folder << false << true;
}

void FolderReaderTest::kindsByAttributes()
{
    QFETCH(quint32, attributes);
    FolderItem item;
    setKind(item, attributes);
    QTEST(item.kind, "kind");
    QTEST(item.isPlaceholder, "isPlaceholder");
    QTEST(item.isFolderLink, "isFolderLink");
    QCOMPARE(item.isHidden, attributes == 0x22);
}

QTEST_GUILESS_MAIN(FolderReaderTest)
#include "tst_folderreader.moc"
