#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/scan/duplicatescanner.h"
#include "tests/support/coretest.h"
#include "tests/support/disk.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>

#include <atomic>
#include <stdexcept>

namespace {

constexpr qint64 smallBytes = 100;   ///< read whole at once
constexpr qint64 largeBytes = 20000; ///< read in several pieces

const QByteArray exact = "{}";
const QByteArray similar = R"({"contentMatch": 1})";
const QByteArray audio = R"({"searchMode": 2, "mediaCompareDepth": 0})";
const QByteArray audioStart = R"({"searchMode": 2, "mediaCompareDepth": 1})";
const QByteArray images = R"({"searchMode": 1})";

ScanOptions optionsIn(const TempTree &tree, const QByteArray &mode, const QStringList &folders)
{
    ScanOptions options = optionsFrom(mode);
    options.roots = optionsFor(tree, folders).roots;
    return options;
}

} // namespace

/// What goes wrong during a scan, in each way to compare contents.
class FailuresTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { setCacheRoot({}); }

    void dropsWhatFailsMeanwhile_data()
    {
        const auto row = columns<QByteArray, QString, QString, qint64>({"mode", "phase", "change", "size"});
        for (const char *change : {"deleted", "closed", "folder", "pipe", "cut", "grown", "rewritten"}) {
            const auto rowFor = [&](const char *when, const QByteArray &mode, const QString &phase,
                                    qint64 size = largeBytes) {
                row(qPrintable(u"%1 %2"_s.arg(QLatin1String(change), QLatin1String(when))), mode, phase,
                    QLatin1String(change), size);
            };
            rowFor("before the quick hash, small", exact, Phase::Enumerating, smallBytes);
            rowFor("before the quick hash, large", exact, Phase::Enumerating);
            rowFor("before the full hash", exact, Phase::QuickHash);
            rowFor("before the samples", audioStart, Phase::Enumerating);
            rowFor("before the opening", audioStart, Phase::SampleHash);
            rowFor("before the whole", audio, Phase::SampleHash);
            rowFor("before comparing", similar, Phase::Enumerating);
        }
        row("grown beyond small", exact, Phase::Enumerating, u"grown large"_s, smallBytes);
    }

    /// Two files of four change at the end of a phase. Neither may count as equal to anything, nor be cached for the
    /// state that the walk saw.
    void dropsWhatFailsMeanwhile()
    {
        QFETCH(QByteArray, mode);
        QFETCH(QString, phase);
        QFETCH(QString, change);
        QFETCH(qint64, size);
        const TempTree cache;
        const TempTree tree;
        setCacheRoot(cache.path());
        tree.writeAll(u"in/a in/b in/c in/d"_s, patternBytes(size));
        const QStringList victims = {tree.path(u"in/b"_s), tree.path(u"in/d"_s)};
        const auto spoil = [&](const QString &path) {
            const qint64 extra = path == victims[0] ? 1 : 2; // or they would be equal again
            if (change.startsWith(u"grown"_s)) {
                QFile file(path);
                const qint64 more = extra + (change == u"grown"_s ? 0 : largeBytes);
                return file.open(QIODevice::Append) && file.write(patternBytes(more)) == more;
            }
            if (change == u"rewritten"_s) { // to another content of the same size
                const QString name = QDir(tree.path()).relativeFilePath(path);
                tree.write(name, patternBytes(size, quint32(extra)));
                tree.setModified(name, 1600000000000);
                return true;
            }
            if (change == u"cut"_s)
                return QFile::resize(path, size / 2 + extra);
            if (change == u"closed"_s)
                return QFile::setPermissions(path, {}) && !QFile(path).open(QIODevice::ReadOnly);
            return QFile::remove(path) && (change != u"folder"_s || QDir().mkpath(path)) &&
                   (change != u"pipe"_s || makePipe(path));
        };
        bool isDone = false;
        const auto act = [&] { isDone = spoil(victims[0]) && spoil(victims[1]); };
        const ScanResult result =
            DuplicateScanner::scan(optionsIn(tree, mode, {u"missing"_s, u"in"_s}), atEndOf(phase, act), {});
        if (!isDone && (change == u"pipe"_s || change == u"closed"_s))
            QSKIP("cannot be done here");
        QVERIFY(isDone);
        QCOMPARE(groupsText(result, tree), u"in/a in/c"_s);
        QCOMPARE(result.candidates, 4);
        QCOMPARE(result.filesScanned, 4);
        QStringList unread;
        for (const UnreadPath &path : result.unread) {
            QVERIFY(!path.reason.isEmpty());
            unread.append(path.path);
        }
        QCOMPARE(unread.takeFirst(), tree.path(u"missing"_s)); // the walk's first
        unread.sort();
        const bool hasOtherDigest = change.startsWith(u"grown"_s) || change == u"cut"_s || change == u"rewritten"_s;
        QVERIFY2(unread == victims || hasOtherDigest, qPrintable(unread.join(u' ')));
        for (const QString &victim : victims) {
            const QJsonObject entry = QJsonDocument::fromJson(contentOf(cachePathFor(victim))).object();
            QVERIFY(!entry.contains(u"full"_s));
            QVERIFY(phase == Phase::QuickHash || !entry.contains(u"quick"_s));
        }
    }

    void returnsCountsWhenCancelled_data()
    {
        const auto row = columns<QByteArray, QString, qint64>({"mode", "phase", "candidates"});
        row("quick hash", exact, Phase::QuickHash, 3);
        row("full hash", exact, Phase::FullHash, 3);
        row("samples", audioStart, Phase::SampleHash, 3);
        row("opening", audioStart, Phase::PrefixHash, 3);
        row("whole", audio, Phase::PrefixHash, 3);
        row("comparing", similar, Phase::SimilarContent, 3);
        row("images", images, Phase::ImageHash, 4);
    }

    void returnsCountsWhenCancelled()
    {
        QFETCH(QByteArray, mode);
        QFETCH(QString, phase);
        QByteArray picture;
        QBuffer buffer(&picture);
        QImage image(40, 40, QImage::Format_RGB32);
        for (int i = 0; i < 1600; ++i)
            image.setPixel(i % 40, i / 40, 0x10305u * static_cast<uint>(i % 40));
        QVERIFY(image.save(&buffer, "bmp"));
        const TempTree tree;
        tree.writeAll(u"a.bmp b.bmp c.bmp"_s, picture);
        tree.write(u"other.bmp"_s, picture + "longer");
        std::atomic<bool> isCancelled = false;
        QString last;
        const auto note = [&](const ScanProgress &report) {
            last = report.phase;
            atEndOf(phase, [&] { isCancelled = true; })(report);
        };
        const ScanResult result =
            DuplicateScanner::scan(optionsIn(tree, mode, {u""_s}), note, [&] { return isCancelled.load(); });
        QCOMPARE(last, phase);
        QCOMPARE(result.groups.size(), 0);
        QCOMPARE(result.wastedBytes, 0);
        QCOMPARE(result.filesScanned, 4);
        QCOMPARE(result.totalBytes, 4 * picture.size() + 6);
        QTEST(result.candidates, "candidates");
    }

    void stopsWithinStage_data()
    {
        const auto row = columns<QByteArray, qint64>({"mode", "steps"}); // reported before it is cancelled
        row("exact", exact, 64);
        row("audio", audioStart, 64);
        row("similar, while reading", similar, 64);
        row("similar, while comparing", similar, 768); // of 704 files and 66 squares of pairs
    }

    void stopsWithinStage()
    {
        QFETCH(QByteArray, mode);
        QFETCH(qint64, steps);
        const TempTree tree;
        for (int i = 0; i < 704; ++i)
            tree.write(QString::number(i), patternBytes(50, static_cast<quint32>(i * 1000)));
        ScanOptions options = optionsIn(tree, mode, {u""_s});
        options.threads = 1;
        std::atomic<bool> isCancelled = false;
        qint64 processed = 0;
        const auto note = [&](const ScanProgress &report) {
            if (report.phase != Phase::Enumerating)
                isCancelled = isCancelled || (processed = report.processed) >= steps;
        };
        const ScanResult result = DuplicateScanner::scan(options, note, [&] { return isCancelled.load(); });
        QCOMPARE(processed, steps);
        QCOMPARE(result.groups.size(), 0);
        QCOMPARE(result.candidates, 704);
    }

    /// At once or in the walk.
    void returnsNothingWhenCancelledEarly()
    {
        const TempTree tree;
        for (int i = 0; i < 5; ++i)
            tree.writeAll(u"%1/a %1/b"_s.arg(i));
        for (const int polls : {0, 5}) {
            int asked = 0;
            bool hasHashed = false;
            const auto note = [&](const ScanProgress &report) { hasHashed |= report.phase != Phase::Enumerating; };
            const auto isCancelled = [&] { return asked++ >= polls; };
            QVERIFY(DuplicateScanner::scan(optionsFor(tree, {u""_s, u"missing"_s}), note, isCancelled) == ScanResult());
            QVERIFY(!hasHashed);
        }
    }

    /// From the scanning thread and from those of the pool. The text of an exception is what the user gets to see of
    /// it.
    void handsExceptionsOn()
    {
        const TempTree tree;
        tree.writeAll(u"a b"_s, patternBytes(largeBytes));
        for (const QString &phase : {Phase::Enumerating, Phase::QuickHash, Phase::FullHash}) {
            const auto fail = atEndOf(phase, [] { throw std::runtime_error("the drive is gone"); });
            QByteArray text;
            try {
                (void)DuplicateScanner::scan(optionsFor(tree), fail, {});
            } catch (const std::exception &error) {
                text = error.what();
            }
            QCOMPARE(text, "the drive is gone");
            QCOMPARE(DuplicateScanner::scan(optionsFor(tree), {}, {}).groups.size(), 1);
        }
    }
};

QTEST_GUILESS_MAIN(FailuresTest)
#include "tst_failures.moc"
