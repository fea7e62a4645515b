#include "core/walk/pathrules.h"

#include "core/platform/pathtext.h"

#include "tests/support/probes.h"
#include "tests/support/temptree.h"

#include <QTest>

using namespace MirrixCore;
using namespace MirrixTest;
using namespace Qt::StringLiterals;

class PathRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void cleansPaths_data();
    void cleansPaths();
    void tellsWhatIsBelow_data();
    void tellsWhatIsBelow();
    void excludesListedFolders_data();
    void excludesListedFolders();
    void excludesSystemFolders_data();
    void excludesSystemFolders();
    void excludesHiddenFolders();
    void tellsListedFromMerelyBelow();
    void takesSuffixes_data();
    void takesSuffixes();
};

void PathRulesTest::cleansPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("clean");
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("clean") << u"/a/b"_s << u"/a/b"_s;
    QTest::newRow("dots") << u"/x/a/../b/./c/"_s << u"/x/b/c"_s;
    QTest::newRow("double slash") << u"/a//b"_s << u"/a/b"_s;
    QTest::newRow("root") << u"/"_s << u"/"_s;
    QTest::newRow("drive") << u"C:"_s << u"C:/"_s;
    QTest::newRow("drive root") << u"d:/"_s << u"d:/"_s;
    QTest::newRow("below drive") << u"C:/a/../b/"_s << u"C:/b"_s;
}

void PathRulesTest::cleansPaths()
{
    QFETCH(QString, path);
    QTEST(cleanedPath(path), "clean");
}

void PathRulesTest::tellsWhatIsBelow_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("isBelow");

    QTest::newRow("equal") << u"C:/Data"_s << u"C:/Data"_s << true;
    QTest::newRow("file") << u"C:/Data/a.txt"_s << u"C:/Data"_s << true;
    QTest::newRow("deep") << u"/data/a/b/c"_s << u"/data"_s << true;
    QTest::newRow("sibling of longer name") << u"C:/Data2/a.txt"_s << u"C:/Data"_s << false;
    QTest::newRow("sibling folder of longer name") << u"C:/Data2"_s << u"C:/Data"_s << false;
    QTest::newRow("parent") << u"C:/"_s << u"C:/Data"_s << false;
    QTest::newRow("elsewhere") << u"D:/Data/a"_s << u"C:/Data"_s << false;
    QTest::newRow("case of folder") << u"c:/data/A"_s << u"C:/DATA"_s << true;
    QTest::newRow("case beyond ASCII") << u"/ÜBUNG/a"_s << u"/übung"_s << true;
    QTest::newRow("backslashes in path") << u"C:\\Data\\a.txt"_s << u"C:/Data"_s << true;
    QTest::newRow("backslashes in folder") << u"C:/Data/Sub/a.txt"_s << u"c:\\data\\sub"_s << true;
    QTest::newRow("backslash sibling") << u"C:\\Data2\\a.txt"_s << u"C:\\Data"_s << false;
    QTest::newRow("trailing slash of folder") << u"C:/Data/a"_s << u"C:/Data/"_s << true;
    QTest::newRow("trailing slash, equal") << u"C:/Data"_s << u"C:/Data/"_s << true;
    QTest::newRow("trailing slash of path") << u"C:/Data/"_s << u"C:/Data"_s << true;
    QTest::newRow("drive root") << u"C:/a"_s << u"C:/"_s << true;
    QTest::newRow("drive root, equal") << u"C:/"_s << u"C:/"_s << true;
    QTest::newRow("other drive") << u"D:/a"_s << u"C:/"_s << false;
    QTest::newRow("root") << u"/a/b"_s << u"/"_s << true;
    QTest::newRow("climbs out") << u"C:/Data/../Other/a"_s << u"C:/Data"_s << false;
    QTest::newRow("climbs in") << u"C:/Other/../Data/a"_s << u"C:/Data"_s << true;
}

void PathRulesTest::tellsWhatIsBelow()
{
    QFETCH(QString, path);
    QFETCH(QString, folder);
    QTEST(isUnderFolder(path, folder), "isBelow");
}

void PathRulesTest::excludesListedFolders_data()
{
    QTest::addColumn<QStringList>("excluded");
    QTest::addColumn<bool>("isExcluded");
    QTest::newRow("none") << QStringList() << false;
    QTest::newRow("itself") << QStringList(u"/data/sub"_s) << true;
    QTest::newRow("parent, as second") << QStringList({u"/other"_s, u"/data/"_s}) << true;
    QTest::newRow("another case") << QStringList(u"/DATA/Sub"_s) << true;
    QTest::newRow("child") << QStringList(u"/data/sub/child"_s) << false;
    QTest::newRow("sibling of shorter name") << QStringList(u"/data/su"_s) << false;
    QTest::newRow("empty line") << QStringList(u""_s) << false;
}

void PathRulesTest::excludesListedFolders()
{
    QFETCH(QStringList, excluded);
    ScanOptions options;
    options.excludeFolders = excluded;
    QTEST(isExcludedFolder(u"/data/sub"_s, options), "isExcluded");
    QTEST(FolderRules(options).excludes(u"/data/sub"_s, false), "isExcluded");
}

void PathRulesTest::excludesSystemFolders_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isSystem");
    for (const char *name : {"Windows", "Program Files", "Program Files (x86)", "ProgramData", "$Recycle.Bin",
                             "System Volume Information", "Recovery", "PerfLogs"}) {
        QTest::newRow(name) << u"C:/"_s + QLatin1String(name) << true;
    }
    QTest::newRow("below") << u"C:/Windows/System32/drivers"_s << true;
    QTest::newRow("case and backslashes") << u"c:\\WINDOWS\\Temp"_s << true;
    QTest::newRow("other drive") << u"D:/Windows"_s << false;
    QTest::newRow("longer name") << u"C:/WindowsApps"_s << false;
    QTest::newRow("deeper") << u"C:/Users/Windows"_s << false;
    QTest::newRow("drive root") << u"C:/"_s << false;
    QTest::newRow("no drive") << u"/Windows"_s << false;
}

void PathRulesTest::excludesSystemFolders()
{
    QFETCH(QString, path);
    ScanOptions options;
    QVERIFY(!isExcludedFolder(path, options));
    options.skipSystemFolders = true;
    QTEST(isExcludedFolder(path, options), "isSystem");
    QTEST(FolderRules(options).excludes(QString(path).replace(u'\\', u'/'), false), "isSystem");
    QVERIFY(!FolderRules(options).isListed(path));
}

void PathRulesTest::excludesHiddenFolders()
{
    const TempTree tree;
    const QString hidden = tree.makeFolder(u".hidden"_s);
    const QString plain = tree.makeFolder(u"plain"_s);
    if (!hide(hidden))
        QSKIP("nothing is hidden here");
    ScanOptions options;
    QVERIFY(!isExcludedFolder(hidden, options));
    QVERIFY(!FolderRules(options).excludes(hidden, true));
    options.skipHidden = true;
    QVERIFY(isExcludedFolder(hidden, options));
    QVERIFY(!isExcludedFolder(plain, options));
    QVERIFY(FolderRules(options).excludes(plain, true));
    options.excludeFolders.append(plain);
    QVERIFY(isExcludedFolder(plain, options));
}

void PathRulesTest::tellsListedFromMerelyBelow()
{
    ScanOptions options;
    options.excludeFolders = {u"/Data/"_s, u""_s};
    const FolderRules rules(options);
    QVERIFY(rules.isListed(u"/data"_s));
    QVERIFY(!rules.isListed(u"/data/sub"_s));
    QVERIFY(!rules.isListed(u"/"_s));
    QVERIFY(!rules.isListed(u""_s));
}

void PathRulesTest::takesSuffixes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("plain") << u"a.txt"_s << u"txt"_s;
    QTest::newRow("upper case") << u"A.JPG"_s << u"jpg"_s;
    QTest::newRow("two dots") << u"a.tar.GZ"_s << u"gz"_s;
    QTest::newRow("no dot") << u"readme"_s << u""_s;
    QTest::newRow("dot last") << u"a."_s << u""_s;
    QTest::newRow("dot first") << u".profile"_s << u"profile"_s;
    QTest::newRow("beyond ASCII") << u"x.ÄÖ"_s << u"äö"_s;
}

void PathRulesTest::takesSuffixes()
{
    QFETCH(QString, name);
    QTEST(lowerSuffix(name), "suffix");
}

QTEST_GUILESS_MAIN(PathRulesTest)
#include "core/platform/pathtext.h"
#include "tst_pathrules.moc"
