#include "actions/cleaning/backupstore.h"

#include "core/platform/nativepath.h"
#include "tests/actions/actiontest.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

class BackupStoreTest : public ActionTest
{
    Q_OBJECT

private slots:
    void init() { renew(); }

    void thereAndBack()
    {
        const QStringList paths = fill({u"a/same.txt"_s, u"b/same.txt"_s, u"日本 %1.txt"_s});
        const DiskTree before = source();
        const qint64 start = QDateTime::currentMSecsSinceEpoch();
        const BatchResult result = backupFiles(store(), paths);
        QCOMPARE(result.errors, QStringList());
        QCOMPARE(result.count, 3);
        QVERIFY(source().isEmpty());

        const QByteArray index = contentOf(indexPath());
        const QJsonArray items = QJsonDocument::fromJson(index).array();
        QCOMPARE(index, QJsonDocument(items).toJson(QJsonDocument::Compact));
        QCOMPARE(items.size(), 3);
        static const QRegularExpression form(u"^[0-9]{8}_[0-9]{6}__[0-9a-f]{8}__(.*)$"_s);
        for (qsizetype i = 0; i < 3; ++i) {
            const QJsonObject item = items[i].toObject();
            QCOMPARE(item.keys(), (QStringList{u"at"_s, u"backup"_s, u"original"_s, u"size"_s}));
            QCOMPARE(item[u"original"_s].toString(), paths[i]);
            const QFileInfo backup(item[u"backup"_s].toString());
            QCOMPARE(backup.path(), store());
            QCOMPARE(form.match(backup.fileName()).captured(1), QFileInfo(paths[i]).fileName());
            QVERIFY(backup.fileName().startsWith(
                QDateTime::fromMSecsSinceEpoch(item[u"at"_s].toInteger()).toString(u"yyyyMMdd_HHmmss"_s)));
            QCOMPARE(item[u"size"_s].toInteger(), backup.size());
            QVERIFY(item[u"at"_s].toInteger() >= start);
            QCOMPARE(item[u"at"_s], items[0][u"at"_s]);
        }

        const QList<BackupEntry> entries = restorableEntries(store());
        QCOMPARE(entries.size(), 3);
        QVERIFY(restoreBackup(store(), entries[1]));
        QCOMPARE(loadBackupIndex(store()), (QList<BackupEntry>{entries[0], entries[2]}));
        QCOMPARE(restoreBackups(store(), {entries[0], entries[2]}).count, 2);
        QCOMPARE(source(), before);
        QCOMPARE(contentOf(indexPath()), "[]");
        QCOMPARE(treeBelow(store()).keys(), QStringList{u"backup_index.json"_s});
    }

    void namesOfBytes()
    {
        if (!namesAreBytes)
            QSKIP("names are no bytes here");
        const QString path = m_tree->writeNamedByBytes("a\xFF\xC3(", "odd");
        QCOMPARE(backupFiles(store(), {path}).count, 1);
        QCOMPARE(restoreBackups(store(), restorableEntries(store())).count, 1);
        QCOMPARE(contentAt(MirrixCore::filesystemPath(path)), "odd");
    }

    void longAndOddNames()
    {
        const QString longest(u"日"_s.repeated(83) + u".jpeg"_s); // 254 bytes
        QStringList names = {longest,
                             QString(250, u'n') + u".jpeg"_s,
                             u"."_s + QString(254, u'd'),
                             u"caf\u00e9"_s,
                             u"cafe\u0301"_s, // its twin, composed otherwise
                             u"photo\u202egpj.exe"_s,
                             u"dot."_s,
                             u"blank "_s};
        if (namesAreBytes)
            names.append(u"line\nbreak\\and:more"_s);
        QStringList paths;
        for (const QString &name : std::as_const(names))
            paths.append(m_tree->writeExactly(u"src/"_s + name, "content of " + name.toUtf8()));
        const DiskTree before = source();
        QCOMPARE(before.size(), names.size());
        const BatchResult result = backupFiles(store(), paths);
        QCOMPARE(result.errors.join(u'\n'), QString());
        QVERIFY(source().isEmpty());
        const QStringList stored = treeBelow(store()).keys();
        QCOMPARE(stored.filter(u".jpeg"_s).size(), 2); // a cut name keeps its suffix
        QCOMPARE(restoreBackups(store(), restorableEntries(store())).errors.join(u'\n'), QString());
        QCOMPARE(source(), before);
    }

    void timesOfOtherCenturies()
    {
        if (!namesAreBytes)
            QSKIP("the means of this test cannot set such times here");
        const QStringList paths = fill({u"a"_s, u"b"_s, u"c"_s});
        using Time = std::filesystem::file_time_type;
        const Time now = Time::clock::now();
        const qint64 ages[] = {66, 56, -165}; // about 1960, the epoch and 2191
        for (int i = 0; i < 3; ++i)
            std::filesystem::last_write_time(exactNative(paths[i]), now - std::chrono::hours(ages[i] * 24 * 365));
        const DiskTree before = source();
        const auto other = folderOnOtherVolume(at());
        for (const QString &folder : {store(), other ? other->path() : store()}) {
            QCOMPARE(backupFiles(folder, paths).errors, QStringList());
            QVERIFY(source().isEmpty());
            QCOMPARE(restoreBackups(folder, restorableEntries(folder)).errors, QStringList());
            QCOMPARE(source(), before);
        }
    }

    void whatCannotBeBackedUpStays()
    {
        const QStringList paths = fill({u"good"_s, u"folder/inside"_s});
        m_tree->write(u"store/deep/lies here"_s, "x");
        const QStringList bad = {at(u"src/missing"_s), at(u"src/folder"_s), at(u"store/deep/lies here"_s)};
        BatchControl control;
        control.guard = [](const QString &path) { return path.endsWith(u"inside"_s) ? u"refused"_s : QString(); };
        const BatchResult result = backupFiles(store(), bad + paths, control);
        QStringList errors;
        for (const QString &path : bad)
            errors.append(u"无法移动到备份目录: "_s + path);
        QCOMPARE(result.errors, errors + QStringList{u"refused"_s});
        QCOMPARE(result.count, 1);
        QCOMPARE(loadBackupIndex(store()).size(), 1);
        QCOMPARE(source().keys(), QStringList{u"folder/inside"_s});
        QCOMPARE(treeBelow(store()).size(), 3);
    }

    void nothingMovesWithoutIndex()
    {
        // A folder that stands for the index is set aside like any damaged index; then the batch may go on.
        for (const QString &obstacle : {u"store"_s, u"store/deep/backup_index.json/x"_s}) {
            renew();
            const QStringList paths = fill({u"one"_s, u"two"_s});
            m_tree->write(obstacle, "x");
            const DiskTree before = source();
            const BatchResult result = backupFiles(store(), paths);
            QCOMPARE(result.count + source().size(), 2);
            QCOMPARE(result.count == 0, source() == before);
            QCOMPARE(restorableEntries(store()).size(), result.count);
            QCOMPARE(result.errors.size(), 2 - result.count);
        }
    }

    /// The store is full after the first file and the index: what did not get in is where it was, the rest is listed.
    void fullDisk()
    {
        MIRRIX_ON_SMALL_DISK();
        const QStringList paths = fill({u"1"_s, u"2"_s});
        m_tree->write(u"src/2"_s, patternBytes(30000));
        const DiskTree before = source();
        const BatchResult result = backupFiles(smallDisk(), paths);
        QCOMPARE(result.count, 1);
        QCOMPARE(result.errors, QStringList{u"无法移动到备份目录: "_s + paths[1]});
        QCOMPARE(source().keys(), QStringList{u"2"_s});
        QCOMPARE(restoreBackups(smallDisk(), restorableEntries(smallDisk())).count, 1);
        QCOMPARE(source(), before);
    }

    void cancelling()
    {
        const QStringList paths = fill({u"1"_s, u"2"_s, u"3"_s});
        BatchControl control;
        control.progress = [](qsizetype done, qsizetype total) { return done < 1 && total == 3; };
        const BatchResult result = backupFiles(store(), paths, control);
        QVERIFY(result.isCancelled);
        QCOMPARE(result.count, 1);
        QCOMPARE(loadBackupIndex(store()).size(), 1);
        QCOMPARE(source().keys(), (QStringList{u"2"_s, u"3"_s}));
    }

    void nothingIsOverwritten()
    {
        const QStringList paths = fill({u"file"_s});
        QCOMPARE(backupFiles(store(), paths).count, 1);
        m_tree->write(u"src/file"_s, "newer");
        const DiskTree before = treeAt();
        QString error;
        QVERIFY(!restoreBackup(store(), loadBackupIndex(store()).constFirst(), &error));
        QCOMPARE(error, u"原路径已存在文件，已取消恢复: "_s + paths[0]);
        QCOMPARE(treeAt(), before);
    }

    /// Only an entry whose file is at its old path, as a crash leaves it, goes with the next write.
    void missingBackupsStayListed()
    {
        const QStringList paths = fill({u"1"_s, u"2"_s, u"3"_s, u"4"_s});
        QCOMPARE(backupFiles(store(), paths.first(3)).count, 3);
        QList<BackupEntry> entries = loadBackupIndex(store());
        entries.append({at(u"away/x"_s), at(u"away/.mirrix-0.aside"_s), 1, 1});
        QVERIFY(saveBackupIndex(store(), entries));
        QVERIFY(QFile::remove(entries[0].backup));
        QVERIFY(QFile::rename(entries[2].backup, paths[2]));
        QCOMPARE(restorableEntries(store()), QList<BackupEntry>{entries[1]});
        QCOMPARE(backupFiles(store(), {paths[3]}).count, 1);
        const QList<BackupEntry> after = loadBackupIndex(store());
        QCOMPARE(after.first(3), (QList<BackupEntry>{entries[0], entries[1], entries[3]}));
        QCOMPARE(after[3].original, paths[3]);
    }

    void renamedFolder()
    {
        const QStringList paths = fill({u"1"_s, u"2"_s});
        const DiskTree before = source();
        QCOMPARE(backupFiles(store(), {paths[0]}).count, 1);
        const QString moved = at(u"mounted elsewhere"_s);
        QVERIFY(QDir().rename(store(), moved));
        QCOMPARE(backupFiles(moved, {paths[1]}).count, 1);
        const QList<BackupEntry> entries = restorableEntries(moved);
        QCOMPARE(entries.size(), 2);
        QVERIFY(entries[0].backup.startsWith(moved + u'/'));
        QCOMPARE(restoreBackups(moved, entries).errors, QStringList());
        QCOMPARE(source(), before);
        QVERIFY(loadBackupIndex(moved).isEmpty());
    }

    void damagedBackups_data()
    {
        // digest: of the bytes "content of 1"
        const auto row = columns<QString, QByteArray, bool>({"digest", "found", "isRestored"});
        const QString md5 =
            u"md5:"_s + QLatin1String(QCryptographicHash::hash("content of 1", QCryptographicHash::Md5).toHex());
        const QString blake3 = u"blake3:c315b79a8e962d7125ff793567b79c48786d2f2b0754bdacb5b71c9216619f98"_s;
        row("cut", QString(), "content of", false);
        row("a byte flipped, MD5", md5, "content oF 1", false);
        row("a byte flipped, BLAKE3", blake3, "content oF 1", false);
        row("whole, MD5", md5.toUpper().replace(u"MD5"_s, u"md5"_s), "content of 1", true);
        row("whole, BLAKE3", blake3, "content of 1", true);
        row("digest of a later version", u"sha999:00"_s, "content of 1", true);
    }

    /// What differs from what was backed up stays in the folder and in the index.
    void damagedBackups()
    {
        QFETCH(QString, digest);
        QFETCH(QByteArray, found);
        QFETCH(bool, isRestored);
        const QStringList paths = fill({u"1"_s});
        QCOMPARE(backupFiles(store(), paths, {}, {digest}).count, 1);
        QList<BackupEntry> entries = loadBackupIndex(store());
        QCOMPARE(entries[0].digest, digest);
        entries[0].others = {{u"later"_s, 7}};
        QVERIFY(saveBackupIndex(store(), entries));
        m_tree->write(u"store/deep/"_s + QFileInfo(entries[0].backup).fileName(), found);
        const RestoreResult result = restoreBackups(store(), restorableEntries(store()));
        QCOMPARE(result.errors, isRestored ? QStringList() : QStringList{u"备份文件已损坏，未恢复: "_s + paths[0]});
        QCOMPARE(QFile::exists(paths[0]), isRestored);
        QCOMPARE(backupFiles(store(), fill({u"2"_s})).count, 1);
        QCOMPARE(loadBackupIndex(store()).first() == entries[0], !isRestored);
    }

    void damagedIndexIsKept()
    {
        const QByteArrayList damages = {"[{\"original\": \"/a\", \"backup", QByteArray(200, '\0'),
                                        R"({"version": 2, "entries": []})",
                                        QByteArray(100'000, '[') + QByteArray(100'000, ']')};
        for (const QByteArray &damaged : damages) {
            renew();
            m_tree->write(u"store/deep/backup_index.json"_s, damaged);
            QVERIFY(loadBackupIndex(store()).isEmpty());
            QCOMPARE(backupFiles(store(), fill({u"1"_s})).count, 1);
            QCOMPARE(loadBackupIndex(store()).size(), 1);
            QCOMPARE(contentOf(store() + u"/backup_index.damaged1.json"_s), damaged);
        }
    }

    /// No part of an index tells of other files than the whole.
    void indexCutAnywhere()
    {
        QCOMPARE(backupFiles(store(), fill({u"one"_s, u"two"_s})).count, 2);
        const QByteArray whole = contentOf(indexPath());
        QCOMPARE(loadBackupIndex(store()).size(), 2);
        for (qsizetype length = 0; length < whole.size(); ++length) {
            m_tree->write(u"store/deep/backup_index.json"_s, whole.first(length));
            QVERIFY2(loadBackupIndex(store()).isEmpty(), qPrintable(QString::number(length)));
            m_tree->write(u"store/deep/backup_index.json"_s,
                          whole.first(length) + QByteArray(whole.size() - length, '\0'));
            QVERIFY2(loadBackupIndex(store()).isEmpty(), qPrintable(QString::number(length)));
        }
    }

    void hostileEntries_data()
    {
        const auto row = columns<QString, QString>({"original", "backup"});
        row("a file from elsewhere", u"src/new"_s, u"src/victim"_s);
        row("out of the store by dots", u"src/new"_s, u"store/deep/../../src/victim"_s);
        row("from below the store", u"src/new"_s, u"store/deep/sub/other"_s);
        row("the index", u"src/new"_s, u"store/deep/backup_index.json"_s);
        row("its lock", u"src/new"_s, u"store/deep/Backup_Index.damaged1.json"_s);
        row("a begun copy", u"src/new"_s, u"store/deep/.mirrix-1.part"_s);
        row("aside name from elsewhere", u"new"_s, u"src/.mirrix-1.aside"_s);
        row("dots in the old path", u"src/../new"_s, u"store/deep/file"_s);
        row("a zero in the old path", u"src/new"_s + QChar(0) + u'x', u"store/deep/file"_s);
        row("a folder", u"src/new"_s, u"store/deep/sub"_s);
        row("onto a file", u"src/victim"_s, u"store/deep/file"_s);
        row("a link in the store", u"src/new"_s, u"store/deep/link"_s);
        row("onto the index", u"store/deep/backup_index.json"_s, u"store/deep/file"_s);
        row("below a file", u"src/victim/new"_s, u"store/deep/file"_s);
        row("relative", QString(), u"store/deep/file"_s);
    }

    void hostileEntries()
    {
        QFETCH(QString, original);
        QFETCH(QString, backup);
        for (const QString &name :
             {u"src/victim"_s, u"src/.mirrix-1.aside"_s, u"store/deep/file"_s, u"store/deep/sub/other"_s,
              u"store/deep/Backup_Index.damaged1.json"_s, u"store/deep/.mirrix-1.part"_s})
            m_tree->write(name, name.toUtf8());
        if (backup.endsWith(u"link"_s) && !m_tree->symbolicLink(u"src/victim"_s, backup))
            QSKIP("no symbolic links");
        const QString to = original.isEmpty() ? u"new"_s : at() + u'/' + original;
        QVERIFY(saveBackupIndex(store(), {{to, at() + u'/' + backup, 0, 1}}));
        const DiskTree before = treeAt();
        const RestoreResult result = restoreBackups(store(), loadBackupIndex(store()));
        QCOMPARE(result.errors.size(), 1);
        QCOMPARE(result.count, 0);
        QCOMPARE(treeAt(), before);
    }

private:
    [[nodiscard]] QString store() const { return at(u"store/deep"_s); }
    [[nodiscard]] QString indexPath() const { return store() + u"/backup_index.json"_s; }
    [[nodiscard]] DiskTree source() const { return treeAt(u"src"_s); }
    /// Writes files below src and returns their paths.
    QStringList fill(const QStringList &names) const
    {
        QStringList paths;
        for (const QString &name : names) {
            paths.append(m_tree->write(u"src/"_s + name, "content of " + name.toUtf8()));
            m_tree->setModified(u"src/"_s + name, 1234567890123 + paths.size());
        }
        return paths;
    }
};

QTEST_GUILESS_MAIN(BackupStoreTest)
#include "tst_backupstore.moc"
