#include "core/walk/enumeration.h"
#include "tests/support/probes.h"
#include "tests/support/scans.h"
#include "tests/support/temptree.h"

#include <QScopeGuard>
#include <QTemporaryFile>
#include <QTest>

#include <array>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

class WindowsPathsTest : public QObject
{
    Q_OBJECT

private slots:
    void followsJunctionsButNotInCircles();
    void walksDriveRoots();
};

void WindowsPathsTest::followsJunctionsButNotInCircles()
{
    const TempTree tree;
    tree.write(u"in/a"_s, "x");
    tree.write(u"in/deep/b"_s, "x");
    tree.write(u"out/c"_s, "x");
    tree.write(u"out/$Recycle.Bin/d"_s, "x");
    const QList<std::array<QString, 3>> links = {{u"in"_s, u"to out"_s, u"out"_s},
                                                 {u"in/deep"_s, u"to in"_s, u"in"_s},
                                                 {u"in/deep"_s, u"to itself"_s, u"in/deep"_s},
                                                 {u"in"_s, u"to bin"_s, u"out/$Recycle.Bin"_s},
                                                 {u"out"_s, u"back"_s, u"in"_s}};
    const auto cleanUp = qScopeGuard([&] {
        for (const auto &[folder, name, target] : links)
            removeJunction(tree.path(folder) + u'/' + name);
    });
    for (const auto &[folder, name, target] : links) {
        if (!makeJunction(tree.path(folder), name, tree.path(target)))
            QSKIP("no junctions here");
    }
    QList<UnreadPath> unread;
    ScanOptions options = optionsFor(tree, {u"in"_s});
    const auto walked = [&] {
        QStringList paths;
        for (const FileEntry &file : enumerateFiles(options, {}, {}, &unread)) {
            const bool isInBin = file.place == FilePlace::RecycleBin;
            paths.append(QDir(tree.path()).relativeFilePath(file.path) + (isInBin ? u" in the bin"_s : QString()));
        }
        paths.sort();
        return paths;
    };
    QCOMPARE(walked(), QStringList({u"in/a"_s, u"in/deep/b"_s, u"in/to bin/d in the bin"_s,
                                    u"in/to out/$Recycle.Bin/d in the bin"_s, u"in/to out/c"_s}));
    // What lies below an excluded folder stays out whatever junction leads there.
    options.excludeFolders = {tree.path(u"out"_s)};
    QCOMPARE(walked(), QStringList({u"in/a"_s, u"in/deep/b"_s}));
    QCOMPARE(unread.size(), 0);
}

void WindowsPathsTest::walksDriveRoots()
{
    const QString root = QDir::rootPath();
    QTemporaryFile probe(root + u"mirrix-XXXXXX.probe"_s);
    if (!probe.open())
        QSKIP("the root is not for writing here");
    const QString path = probe.fileName(); // a temporary file has no name until it is asked for
    ScanOptions options;
    options.roots = {root};
    options.locations = {{root, false, 0, false}};
    options.includeExtensions = {u"probe"_s};
    QStringList paths;
    for (const FileEntry &file : enumerateFiles(options, {}, {}))
        paths.append(file.path);
    QVERIFY2(paths.contains(path), qPrintable(paths.join(u'\n')));
}

QTEST_GUILESS_MAIN(WindowsPathsTest)
#include "tst_windowspaths.moc"
