#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/match/memberorder.h"
#include "core/platform/filestatus.h"
#include "core/platform/nativepath.h"
#include "core/scan/duplicatescanner.h"
#include "core/walk/enumeration.h"
#include "tests/support/coretest.h"
#include "tests/support/disk.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRandomGenerator>

#include <atomic>

namespace {

constexpr qint64 mib = 1048576;
constexpr qint64 largeBytes = 20000; ///< more than the quick hash reads
constexpr qint64 smallBytes = 100;   ///< read whole by the quick hash
constexpr qint64 someTimeMs = 1600000000000;

ScanResult scan(const ScanOptions &options)
{
    return DuplicateScanner::scan(options, {}, {});
}

QString foundIn(const TempTree &tree)
{
    return groupsText(scan(optionsFor(tree)), tree);
}

QByteArray withByteChanged(QByteArray bytes, qint64 position)
{
    bytes[position] = static_cast<char>(~bytes[position]);
    return bytes;
}

QJsonObject cacheEntryOf(const QString &path)
{
    return QJsonDocument::fromJson(contentOf(cachePathFor(path))).object();
}

} // namespace

class ExactTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        setCacheRoot({});
        setContentHashAlgorithm(ContentHashAlgorithm::Md5);
    }

    void narrowsStageByStage()
    {
        const TempTree tree;
        const QByteArray content = patternBytes(mib);
        tree.writeAll(u"a b"_s, content);
        tree.write(u"lastbyte"_s, withByteChanged(content, mib - 1)); // differs in its tail
        tree.write(u"behindhead"_s, withByteChanged(content, quickWindowBytes));
        tree.write(u"beforetail"_s, withByteChanged(content, mib - quickWindowBytes - 1));
        tree.writeAll(u"empty1 empty2"_s, "");
        tree.write(u"alone"_s, "x");
        QMap<QString, qint64> totals;
        const auto note = [&](const ScanProgress &report) { totals[report.phase] = report.total; };
        const ScanResult result = DuplicateScanner::scan(optionsFor(tree), note, {});
        QCOMPARE(groupsText(result, tree), u"a b"_s);
        QCOMPARE(result.wastedBytes, mib);
        QCOMPARE(result.candidates, 5);
        QCOMPARE(result.filesScanned, 8);
        QCOMPARE(result.totalBytes, 5 * mib + 1);
        QCOMPARE(totals[Phase::QuickHash], 5);
        QCOMPARE(totals[Phase::FullHash], 4);
    }

    void ordersByWaste()
    {
        const TempTree tree;
        tree.writeAll(u"middle1 middle2"_s, patternBytes(1000));
        tree.writeAll(u"most1 most2 most3 most4"_s, patternBytes(600));
        tree.writeAll(u"least1 least2 least3"_s, patternBytes(10));
        const ScanResult result = scan(optionsFor(tree));
        QList<qint64> wastes;
        for (const DuplicateGroup &group : result.groups)
            wastes.append(group.wastedBytes);
        QCOMPARE(wastes, QList<qint64>({1800, 1000, 20}));
        QCOMPARE(result.wastedBytes, 2820);
    }

    void ordersMembers_data()
    {
        const auto row = columns<QString>({"ordered"});
        row("the shorter path", u"z/a|a/bc|a/bd|a/b/c"_s);
        row("no copy words", u"deep/down/photo.jpg|photo (1).jpg|photo (2).jpg|photo (copy).jpg|photo - Copy.jpg|"
                             "Copy of photo.jpg|photo (another copy).jpg"_s);
        row("nothing but copy words", u"(1).x|Copy.x|of copy.d|of copy (1).d"_s);
        row("code points", u"zz|\uFFFDz|😀"_s);
    }

    void ordersMembers()
    {
        QFETCH(QString, ordered);
        DuplicateGroup group;
        for (const QString &path : ordered.split(u'|'))
            group.files.prepend(fileAt(path));
        for (qsizetype turn = 0; turn < group.files.size(); ++turn) {
            group.files.append(group.files.takeFirst());
            QList<DuplicateGroup> groups = {group};
            orderMembers(groups);
            QCOMPARE(pathsOf(groups[0].files).join(u'|'), ordered);
        }
    }

    void ordersGroupsAndMembers()
    {
        const TempTree tree;
        const QStringList folders = {u"m"_s, u"a"_s, u"z"_s};
        QList<QStringList> expected = {{u"a/0"_s, u"m/0"_s, u"z/0"_s}};
        tree.writeAll(u"m/0 a/0 z/0"_s, patternBytes(largeBytes));
        for (const int seed : {1, 2, 3}) {
            tree.writeAll(u"m/%1 a/%1 z/%1"_s.arg(seed), patternBytes(smallBytes, quint32(seed)));
            expected.append({u"a/%1"_s.arg(seed), u"m/%1"_s.arg(seed), u"z/%1"_s.arg(seed)});
        }
        const ScanOptions options = optionsFor(tree, folders);
        const ScanResult result = scan(options);
        QCOMPARE(groupsOf(result, tree), expected);
        // Members are the records of the walk, nothing left out.
        QVERIFY(enumerateFiles(options, {}, {}).contains(result.groups[0].files[0]));
    }

    void namesGroupsByDigest()
    {
        const auto md5 = [](qint64 size) {
            return QString::fromLatin1(QCryptographicHash::hash(patternBytes(size), QCryptographicHash::Md5).toHex());
        };
        const QStringList blake3 = {u"8580ab9b2e3eedc742090ec6a363bac80784fc90fff9aeaaf0e82d68a98e277e"_s,
                                    u"822e90685b4a54554ae1f99711ac77b8f6f6fcaab8967bd07a0c5073283c8090"_s};
        const TempTree tree;
        tree.writeAll(u"files/a files/b"_s, patternBytes(largeBytes));
        tree.writeAll(u"files/c files/d"_s, patternBytes(smallBytes));
        for (const bool isBlake3 : {false, true}) {
            setContentHashAlgorithm(isBlake3 ? ContentHashAlgorithm::Blake3 : ContentHashAlgorithm::Md5);
            for (const QString &cache : {QString(), tree.path(u"cache"_s), tree.path(u"cache"_s)}) {
                setCacheRoot(cache);
                const ScanResult result = scan(optionsFor(tree, {u"files"_s}));
                QCOMPARE(result.groups.size(), 2);
                QCOMPARE(QStringList({result.groups[0].key, result.groups[1].key}),
                         isBlake3 ? blake3 : QStringList({md5(largeBytes), md5(smallBytes)}));
            }
        }
    }

    void findsOddNames_data()
    {
        const auto row = columns<QString, QByteArray>({"name", "bytes"});
        const auto text = [&](const char *name, const QString &odd) { row(name, odd, {}); };
        text("trailing dot", u"twin."_s);
        text("trailing blank", u"twin "_s);
        text("dots and blanks", u"...a  b"_s);
        text("shortcut ending", u"twin.lnk"_s);
        text("non-ASCII", u"Übung – 重复.txt"_s);
        text("beyond the basic plane", u"😀"_s);
        text("accent apart", u"e\u0301"_s);
        text("byte order mark first", u"\uFEFFtwin"_s);
        text("swapped byte order mark first", u"\uFFFEtwin"_s);
        text("much like a device", u"con-.txt"_s);
        text("more than 260 characters", QString(u"d"_s.repeated(80) + u'/').repeated(4) + u"leaf"_s);
        row("Latin-1", u"caf\xDCE9"_s, "caf\xE9");
        row("overlong", u"\xDCC0\xDCAF"_s, "\xC0\xAF");
        row("CESU-8", u"\xDCED\xDCA0\xDCBD\xDCED\xDCB8\xDC80"_s, "\xED\xA0\xBD\xED\xB8\x80");
        row("line break and backslash", u"a\nb\\c"_s, "a\nb\\c");
    }

    /// Listed, looked up, read and cached under just this name and no other.
    void findsOddNames()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const TempTree tree;
        const TempTree cache;
        setCacheRoot(cache.path());
        if (bytes.isEmpty())
            tree.writeExactly(name, patternBytes(largeBytes));
        else if (namesAreBytes)
            static_cast<void>(tree.writeNamedByBytes(bytes, patternBytes(largeBytes)));
        else
            QSKIP("names are not bytes here");
        tree.write(u"plain"_s, patternBytes(largeBytes));
        tree.writeAll(u"twin café é"_s, patternBytes(largeBytes, 1));
        ScanOptions options = optionsFor(tree);
        options.readFileIdentity = true;
        for (int round = 0; round < 2; ++round) {
            const ScanResult result = scan(options);
            QVERIFY(result.unread.isEmpty());
            QCOMPARE(result.filesScanned, 5);
            QVERIFY(sortedText(groupsOf(result, tree))
                        .split(u'|')
                        .contains(sortedText({{QDir(tree.path()).relativeFilePath(tree.path(name)), u"plain"_s}})));
        }
        QCOMPARE(fileStatus(tree.path(name)).sizeBytes, largeBytes);
    }

    void equalsBruteForce_data()
    {
        const auto row = columns<ContentHashAlgorithm, bool, int>({"algorithm", "usesCache", "threads"});
        row("MD5", ContentHashAlgorithm::Md5, false, 1);
        row("MD5, two threads, cache", ContentHashAlgorithm::Md5, true, 2);
        row("BLAKE3, automatic", ContentHashAlgorithm::Blake3, false, 0);
        row("BLAKE3, one thread, cache", ContentHashAlgorithm::Blake3, true, 1);
    }

    void equalsBruteForce()
    {
        QFETCH(ContentHashAlgorithm, algorithm);
        QFETCH(bool, usesCache);
        QFETCH(int, threads);
        const TempTree cache;
        const TempTree tree;
        QRandomGenerator random(20240817);
        QMap<QByteArray, QStringList> pathsOfContent;
        // Around the edges of the windows, so that a change at any place must be seen by the right stage.
        const QList<qint64> sizes = {0, 1, 2, 4095, 4096, 4097, 8191, 8192, 8193, 12288, 12289, 20000};
        for (int i = 0; i < 250; ++i) {
            QByteArray content = patternBytes(sizes[random.bounded(sizes.size())]);
            const QList<qint64> places = {0, content.size() / 2, content.size() - 1};
            if (!content.isEmpty() && random.bounded(2) == 1)
                content = withByteChanged(content, places[random.bounded(places.size())]);
            const QString path = u"%1/%2"_s.arg(random.bounded(8)).arg(i);
            tree.write(path, content);
            pathsOfContent[content].append(path);
        }
        QList<QStringList> expected;
        qint64 waste = 0;
        for (auto it = pathsOfContent.begin(); it != pathsOfContent.end(); ++it) {
            if (it.key().isEmpty() || it->size() < 2)
                continue;
            expected.append(*it);
            waste += it.key().size() * (it->size() - 1);
        }
        setContentHashAlgorithm(algorithm);
        setCacheRoot(usesCache ? cache.path() : QString());
        ScanOptions options = optionsFor(tree);
        options.threads = threads;
        for (int round = 0; round < 2; ++round) {
            const ScanResult result = scan(options);
            QCOMPARE(groupsText(result, tree), sortedText(expected));
            QCOMPARE(result.wastedBytes, waste);
        }
    }

    void collapsesHardLinks()
    {
        const TempTree tree;
        tree.writeAll(u"1/file 3/copy"_s, patternBytes(largeBytes));
        tree.write(u"1/alone"_s, patternBytes(smallBytes));
        tree.makeFolder(u"2"_s);
        if (!tree.hardLink(u"1/file"_s, u"2/file"_s) || !tree.hardLink(u"1/alone"_s, u"2/alone"_s))
            QSKIP("no hard links here");
        ScanOptions options = optionsFor(tree);
        options.readFileIdentity = true;
        QCOMPARE(groupsText(scan(options), tree), u"1/alone 2/alone|1/file 2/file 3/copy"_s);
        options.collapseHardLinks = true;
        const ScanResult result = scan(options);
        QCOMPARE(result.groups.size(), 1);
        QCOMPARE(result.groups[0].files.size(), 2);
        QCOMPARE(result.groups[0].wastedBytes, largeBytes);
        QCOMPARE(result.wastedBytes, largeBytes);
    }

    /// Reading a terabyte of zeros would take an hour, and nothing asks for it: no other file has that size.
    void readsNoLoneGiant()
    {
        const TempTree tree;
        const QString giant = tree.write(u"giant"_s, "x");
        if (!QFile::resize(giant, qint64(1) << 40))
            QSKIP("no sparse files here");
        tree.writeAll(u"one two"_s, "same");
        const ScanResult result = scan(optionsFor(tree));
        QCOMPARE(groupsText(result, tree), u"one two"_s);
        QCOMPARE(result.totalBytes, (qint64(1) << 40) + 8);
        QVERIFY(result.unread.isEmpty());
    }

    /// The cancellation query is asked before each piece that is read, so it can touch files in the middle of the
    /// reading.
    void dropsWhatChangesWhileItIsRead()
    {
        const TempTree cache;
        const TempTree tree;
        setCacheRoot(cache.path());
        tree.writeAll(u"a b c"_s, patternBytes(2 * streamChunkBytes + 1));
        std::atomic<bool> isReading = false;
        qint64 timeMs = someTimeMs;
        const auto touch = [&] {
            if (isReading)
                tree.setModified(u"b"_s, timeMs += 1000);
            return false;
        };
        ScanOptions options = optionsFor(tree);
        options.threads = 1;
        const ScanResult result =
            DuplicateScanner::scan(options, atEndOf(Phase::QuickHash, [&] { isReading = true; }), touch);
        QCOMPARE(groupsText(result, tree), u"a c"_s);
        QCOMPARE(result.unread.size(), 1);
        QCOMPARE(result.unread[0].path, tree.path(u"b"_s));
        QVERIFY(!result.unread[0].reason.isEmpty());
        QVERIFY(!cacheEntryOf(tree.path(u"b"_s)).contains(u"full"_s));
        QVERIFY(cacheEntryOf(tree.path(u"a"_s)).contains(u"full"_s));
    }

    void reportsProgressInSteps()
    {
        const TempTree tree;
        constexpr qint64 count = 300;
        for (qint64 i = 0; i < count; ++i)
            tree.write(QString::number(i), patternBytes(largeBytes));
        ScanOptions options = optionsFor(tree);
        options.threads = 4;
        std::atomic<int> inside = 0;
        bool hasOverlap = false;
        QStringList phases;
        QString faults;
        qint64 processed = 0;
        const auto note = [&](const ScanProgress &report) {
            hasOverlap |= inside.fetch_add(1) != 0;
            for (int i = 0; i < 200; ++i) // gives others the chance to come in
                QThread::yieldCurrentThread();
            if (phases.isEmpty() || phases.constLast() != report.phase) {
                phases.append(report.phase);
                processed = 0;
            }
            const bool isWalk = report.phase == Phase::Enumerating;
            const bool isStep =
                report.processed > processed && (report.processed % 64 == 0 || report.processed == count);
            const bool isKnown = report.total == count && report.filesFound == count;
            if (!isWalk && !(isStep && isKnown && report.currentPath.startsWith(tree.path() + u'/')))
                faults += u" %1 %2"_s.arg(report.phase).arg(report.processed);
            processed = report.processed;
            inside.fetch_sub(1);
        };
        QCOMPARE(DuplicateScanner::scan(options, note, {}).groups.size(), 1);
        QVERIFY(!hasOverlap);
        QCOMPARE(faults, QString());
        QCOMPARE(processed, count);
        QCOMPARE(phases, QStringList({Phase::Enumerating, Phase::QuickHash, Phase::FullHash}));
    }

    /// Nothing shows better that a file was not read than changed content that stays unnoticed.
    void readsAgainOnlyWhatWasTouched()
    {
        const TempTree cache;
        const TempTree tree;
        const auto writeAll = [&](quint32 seed, qint64 timeMs) {
            tree.writeAll(u"large1 large2"_s, patternBytes(largeBytes));
            tree.writeAll(u"small1 small2"_s, patternBytes(smallBytes));
            tree.write(u"large2"_s, seed == 0 ? patternBytes(largeBytes) // else with equal quick digests
                                              : withByteChanged(patternBytes(largeBytes), largeBytes / 2));
            tree.write(u"small2"_s, patternBytes(smallBytes, seed));
            for (const QString &name : {u"large1"_s, u"large2"_s, u"small1"_s, u"small2"_s})
                tree.setModified(name, name.endsWith(u'2') ? timeMs : someTimeMs);
        };
        setCacheRoot(cache.path());
        writeAll(0, someTimeMs);
        QCOMPARE(foundIn(tree), u"large1 large2|small1 small2"_s);
        writeAll(77, someTimeMs);
        QCOMPARE(foundIn(tree), u"large1 large2|small1 small2"_s);
        writeAll(77, someTimeMs + 1);
        for (int round = 0; round < 2; ++round) // the second time from the new entries
            QCOMPARE(foundIn(tree), QString());
        writeAll(0, someTimeMs + 2);
        for (int round = 0; round < 2; ++round)
            QCOMPARE(foundIn(tree), u"large1 large2|small1 small2"_s);
    }

    void storesWhatItHashed()
    {
        const TempTree cache;
        const TempTree tree;
        setCacheRoot(cache.path());
        for (const qint64 size : {smallBytes, largeBytes}) {
            tree.writeAll(u"a%1 b%1"_s.arg(size), patternBytes(size));
            tree.write(u"c%1"_s.arg(size), patternBytes(size, 77));
        }
        tree.write(u"alone"_s, patternBytes(5));
        tree.writeAll(u"empty1 empty2"_s, "");
        QCOMPARE(foundIn(tree), u"a100 b100|a20000 b20000"_s);
        for (const QString &name : {u"a100"_s, u"b100"_s, u"c100"_s, u"a20000"_s, u"b20000"_s, u"c20000"_s}) {
            const QString path = tree.path(name);
            QJsonObject expected{{u"algo"_s, u"md5"_s},
                                 {u"size"_s, name.mid(1).toInt()},
                                 {u"mtimeMs"_s, double(fileStatus(path).modifiedMs)},
                                 {u"quick"_s, QString::fromLatin1(quickHash(path).toHex())}};
            if (name != u"c20000"_s) // small files are read only once
                expected.insert(u"full"_s, QString::fromLatin1(fullContentHash(path).toHex()));
            QCOMPARE(cacheEntryOf(path), expected);
        }
        for (const QString &name : {u"alone"_s, u"empty1"_s})
            QVERIFY(!QFileInfo::exists(cachePathFor(tree.path(name))));
    }

    /// Whatever ends the program now, only the few digests that wait to be written are lost.
    void writesDigestsAsTheyAreGained()
    {
        constexpr int files = 1000;
        constexpr int mostLost = 256 + 10;
        const TempTree cache;
        const TempTree tree;
        setCacheRoot(cache.path());
        QStringList paths;
        for (int i = 0; i < files; ++i)
            paths.append(tree.write(QString::number(i), patternBytes(largeBytes, quint32(i / 2))));
        qsizetype written = 0;
        const auto count = [&] {
            written = std::count_if(paths.begin(), paths.end(),
                                    [](const QString &path) { return QFileInfo::exists(cachePathFor(path)); });
        };
        const auto note = atEndOf(Phase::QuickHash, count);
        QCOMPARE(DuplicateScanner::scan(optionsFor(tree), note, {}).groups.size(), files / 2);
        QVERIFY2(written >= files - mostLost, QByteArray::number(written).constData());
    }

    void keepsDigestsWhenCancelled()
    {
        const TempTree cache;
        const TempTree tree;
        setCacheRoot(cache.path());
        tree.writeAll(u"a b"_s, patternBytes(largeBytes));
        std::atomic<bool> isCancelled = false;
        const auto cancel = atEndOf(Phase::QuickHash, [&] { isCancelled = true; });
        (void)DuplicateScanner::scan(optionsFor(tree), cancel, [&] { return isCancelled.load(); });
        const QString path = tree.path(u"a"_s);
        QCOMPARE(lookupFingerprint(path, largeBytes, fileStatus(path).modifiedMs).quick, quickHash(path));
        QVERIFY(!cacheEntryOf(path).contains(u"full"_s));
        QCOMPARE(foundIn(tree), u"a b"_s);
        QVERIFY(cacheEntryOf(path).contains(u"full"_s));
    }

    /// Entries that others have made or damaged: links, pipes, folders, cut and changed texts. The digests of a whole
    /// entry for the file's very state are the only ones that are believed.
    void survivesHostileCache()
    {
        // Done to an entry whose digests would make all files equal if they were believed.
        const QList<std::pair<QByteArray, QByteArray>> edits = {{"\"size\":", "\"size\":1"},
                                                                {"\"size\":", "\"size\":1e400,\"other\":"},
                                                                {"\"size\":", "\"size\":[1],\"other\":"},
                                                                {"\"mtimeMs\":", "\"mtimeMs\":-"},
                                                                {"\"mtimeMs\":", "\"mtimeMs\":1e300,\"other\":"},
                                                                {"\"md5\"", "\"blake3\""},
                                                                {"a\"", "g\""},
                                                                {"a\"", "\""}};
        const TempTree cache;
        const TempTree tree;
        setCacheRoot(cache.path());
        const QString outside = tree.write(u"outside"_s, "mine");
        QRandomGenerator random(1000);
        QList<QStringList> pairs;
        for (int i = 0; i < 1000; i += 2) {
            pairs.append({QString::number(i), QString::number(i + 1)});
            tree.writeAll(pairs.constLast().join(u' '), patternBytes(i < 200 ? 200 + i : largeBytes, quint32(i)));
        }
        QCOMPARE(foundIn(tree), sortedText(pairs));
        const DiskTree before = treeBelow(tree.path());
        for (int i = 0; i < 1000; ++i) {
            const QString entry = cachePathFor(tree.path(QString::number(i)));
            QByteArray text = contentOf(entry);
            QVERIFY(!text.isEmpty() && QFile::remove(entry));
            const int kind = random.bounded(16);
            if ((kind == 8 && QFile::link(outside, entry)) || (kind == 9 && QFile::link(u"/dev/zero"_s, entry)) ||
                (kind == 10 && QFile::link(entry, entry)) || (kind == 11 && QDir().mkpath(entry + u"/in"_s)) ||
                (kind == 12 && i % 10 == 0 && makePipe(entry)) || // making one takes a process
                (kind == 13 && tree.hardLink(u"outside"_s, QDir(tree.path()).relativeFilePath(entry))))
                continue;
            if (kind < edits.size()) {
                for (const char *key : {"\"quick\":\"", "\"full\":\""}) {
                    if (const qsizetype at = text.indexOf(key); at >= 0)
                        text.replace(at + qsizetype(qstrlen(key)), 32, QByteArray(32, 'a'));
                }
                text.replace(edits[kind].first, edits[kind].second);
            } else if (kind < 14) {
                text = QByteArray(random.bounded(3 << 20), '[');
            } else if (kind == 14) {
                text.truncate(random.bounded(static_cast<int>(text.size())));
            } else {
                for (int edit = 0; edit < 3; ++edit) // no digit: a whole digest is believed
                    text[random.bounded(static_cast<int>(text.size()))] = "\"{}[]:,xg\\\0\xFF"[random.bounded(12)];
            }
            cache.write(QDir(cache.path()).relativeFilePath(entry), text);
        }
        for (int round = 0; round < 2; ++round)
            QCOMPARE(foundIn(tree), sortedText(pairs));
        QCOMPARE(treeBelow(tree.path()).keys(), before.keys());
        QCOMPARE(contentOf(outside), "mine");
    }

    void writesNothingWithoutCache()
    {
        const TempTree current;
        const TempTree tree;
        tree.writeAll(u"a b"_s, patternBytes(largeBytes));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(current.path())); // where an entry without a folder would land
        const QString found = foundIn(tree);
        QDir::setCurrent(before);
        QCOMPARE(found, u"a b"_s);
        QVERIFY(QDir(current.path()).isEmpty());
        QCOMPARE(treeBelow(tree.path()).size(), 2);
        QVERIFY(cachePathFor(tree.path(u"a"_s)).isEmpty());
    }
};

QTEST_GUILESS_MAIN(ExactTest)
#include "tst_exact.moc"
