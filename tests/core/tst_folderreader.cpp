#include "core/walk/folderreader.h"

#include "core/platform/filereader.h"
#include "core/platform/filestatus.h"
#include "core/walk/windowsattributes.h"
#include "tests/support/coretest.h"

#include <QDateTime>
#include <QMap>

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

} // namespace

class FolderReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void listsFilesAndFolders()
    {
        const TempTree tree;
        tree.write(u"file"_s, patternBytes(70000));
        tree.setModified(u"file"_s, 1234567890123);
        tree.write(u"folder/inner"_s, "x");
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        tree.write(u"new"_s, "");
        const auto items = itemsOf(tree.path());
        QCOMPARE(items.keys().join(u' '), u"file folder new"_s);
        const FolderItem &file = items[u"file"_s];
        QCOMPARE(file.kind, Kind::File);
        QCOMPARE(file.sizeBytes, 70000);
        QCOMPARE(file.modifiedMs, 1234567890123);
        QVERIFY(!file.isPlaceholder);
        QCOMPARE(items[u"folder"_s].kind, Kind::Folder);
        QVERIFY(!items[u"folder"_s].isFolderLink);
        constexpr qint64 minuteMs = 60000;
        QCOMPARE(items[u"new"_s].sizeBytes, 0);
        QVERIFY(qAbs(items[u"new"_s].modifiedMs - now) < minuteMs);
        // Of the file whose times were not set: not every system keeps the two apart.
        const qint64 created = items[u"new"_s].createdMs;
        QVERIFY2(created == 0 || qAbs(created - now) < minuteMs, QByteArray::number(created).constData());

        const FileStatus status = fileStatus(tree.path(u"file"_s));
        QCOMPARE(status.kind, FileStatus::Kind::File);
        QCOMPARE(status.sizeBytes, 70000);
        QCOMPARE(status.modifiedMs, 1234567890123);
        QVERIFY(status.identity.isKnown && status.reason.isEmpty());
        QCOMPARE(fileStatus(tree.path()).kind, FileStatus::Kind::Folder);
        for (const QString &name : {u"missing"_s, u"missing/file"_s, u"file/below"_s}) {
            QCOMPARE(fileStatus(tree.path(name)).kind, FileStatus::Kind::Missing);
            QCOMPARE(fileStatus(tree.path(name)).reason, QString());
        }
    }

    void takesTimesBefore1970AsUnknown()
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

    void listsLargeFolders()
    {
        const TempTree tree;
        QStringList names;
        for (int i = 0; i < 1500; ++i) { // more than one call to the system hands out
            names.append(u"a file with a name that takes some room %1"_s.arg(i, 4, 10, QChar(u'0')));
            tree.write(names.constLast(), "");
        }
        QCOMPARE(itemsOf(tree.path()).keys(), names);
    }

    void recognisesHardLinks()
    {
        const TempTree tree;
        tree.writeAll(u"one other"_s);
        if (!tree.hardLink(u"one"_s, u"two"_s))
            QSKIP("no hard links here");
        const FileIdentity one = fileStatus(tree.path(u"one"_s)).identity;
        const FileIdentity other = fileStatus(tree.path(u"other"_s)).identity;
        QVERIFY(one.isSameAs(fileStatus(tree.path(u"two"_s)).identity));
        QVERIFY(!one.isSameAs(other));
        QCOMPARE(one.links, 2U);
        QCOMPARE(other.links, 1U);
        for (const FolderItem &item : itemsOf(tree.path())) {
            const FileIdentity status = fileStatus(tree.path(item.name)).identity;
            if (item.identity.isKnown)
                QVERIFY2(item.identity.isSameAs(status) && item.identity.links == status.links, qPrintable(item.name));
        }
    }

    void givesNoLinkAsFileOrFolder()
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

    /// A folder that became a link after its parent was read leads elsewhere.
    void followsWantedLinksOnly()
    {
        if (!namesAreBytes)
            QSKIP("not distinguished when opening");
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

    void kindsByAttributes_data()
    {
        const auto row = columns<quint32, Kind, bool, bool>({"attributes", "kind", "isPlaceholder", "isFolderLink"});
        row("plain", 0x80, Kind::File, false, false);
        row("archive, hidden", 0x22, Kind::File, false, false);
        row("recalled on access, as a drive shows it", 0x400020, Kind::File, true, false);
        row("recalled on access", 0x400420, Kind::File, true, false);
        row("recalled on opening", 0x40020, Kind::File, true, false);
        row("offline", 0x1020, Kind::File, true, false);
        row("pinned, but here", 0x80020, Kind::File, false, false);
        row("symbolic link", 0x420, Kind::Other, false, false);
        row("folder", 0x10, Kind::Folder, false, false);
        row("junction", 0x410, Kind::Folder, false, true);
    }

    void kindsByAttributes()
    {
        QFETCH(quint32, attributes);
        FolderItem item;
        setKind(item, attributes);
        QTEST(item.kind, "kind");
        QTEST(item.isPlaceholder, "isPlaceholder");
        QTEST(item.isFolderLink, "isFolderLink");
        QCOMPARE(item.isHidden, attributes == 0x22);
    }

    void givesNoPipeAsFile()
    {
        const TempTree tree;
        if (!makePipe(tree.path(u"pipe"_s)))
            QSKIP("no named pipes here");
        QCOMPARE(itemsOf(tree.path())[u"pipe"_s].kind, Kind::Other);
        QCOMPARE(fileStatus(tree.path(u"pipe"_s)).kind, FileStatus::Kind::Other);
        QVERIFY(!FolderReader(tree.path(u"pipe"_s)).errorText().isEmpty());
    }

    void seesWhatIsHidden()
    {
        const TempTree tree;
        tree.write(u"plain.file"_s, "x");
        tree.makeFolder(u"plain"_s);
        if (!hide(tree.write(u".file"_s, "x")) || !hide(tree.makeFolder(u".folder"_s)))
            QSKIP("nothing is hidden here");
        for (const FolderItem &item : itemsOf(tree.path())) {
            const bool isHidden = item.name.startsWith(u'.');
            QVERIFY2(item.isHidden == isHidden, qPrintable(item.name));
            QVERIFY2(fileStatus(tree.path(item.name)).isHidden == isHidden, qPrintable(item.name));
        }
    }

    void failsOnWhatIsNoFolder()
    {
        const TempTree tree;
        tree.write(u"file"_s, "x");
        for (const QString &name : {u"missing"_s, u"missing/folder"_s, u"file"_s}) {
            FolderReader reader(tree.path(name));
            FolderItem item;
            QVERIFY(!reader.next(item));
            QVERIFY(!reader.next(item));
            QVERIFY(!reader.errorText().isEmpty());
        }
    }

    void comparesNoUnknownIdentities()
    {
        const FileIdentity known{7, 42, 1, true};
        QVERIFY(known.isSameAs({7, 42, 3, true}) && !known.isOtherThan(known));
        for (const FileIdentity &other : {FileIdentity{8, 42, 1, true}, FileIdentity{7, 43, 1, true}})
            QVERIFY(known.isOtherThan(other) && !known.isSameAs(other));
        for (const FileIdentity &unknown : {FileIdentity{7, 42, 1, false}, FileIdentity{7, 0, 1, true}}) {
            QVERIFY(!known.isSameAs(unknown) && !unknown.isSameAs(known) && !unknown.isSameAs(unknown));
            QVERIFY(!known.isOtherThan(unknown) && !unknown.isOtherThan(known));
        }
    }
};

QTEST_GUILESS_MAIN(FolderReaderTest)
#include "tst_folderreader.moc"
