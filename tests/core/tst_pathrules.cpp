#include "core/walk/pathrules.h"

#include "core/platform/pathtext.h"
#include "tests/support/coretest.h"

class PathRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void cleansPaths_data()
    {
        const auto row = columns<QString, QString>({"path", "clean"});
        row("empty", u""_s, u""_s);
        row("dots", u"/x/a/../b/./c/"_s, u"/x/b/c"_s);
        row("double slash", u"/a//b"_s, u"/a/b"_s);
        row("root", u"/"_s, u"/"_s);
        row("drive", u"C:"_s, u"C:/"_s);
        row("drive root", u"d:/"_s, u"d:/"_s);
        row("below drive", u"C:/a/../b/"_s, u"C:/b"_s);
    }

    void cleansPaths()
    {
        QFETCH(QString, path);
        QTEST(cleanedPath(path), "clean");
    }

    void seesWhatIsBelow_data()
    {
        const auto row = columns<QString, QString, bool>({"path", "folder", "isBelow"});
        row("equal", u"C:/Data"_s, u"C:/Data"_s, true);
        row("deep", u"/data/a/b/c"_s, u"/data"_s, true);
        row("sibling of longer name", u"C:/Data2/a.txt"_s, u"C:/Data"_s, false);
        row("sibling folder of longer name", u"C:/Data2"_s, u"C:/Data"_s, false);
        row("parent", u"C:/"_s, u"C:/Data"_s, false);
        row("elsewhere", u"D:/Data/a"_s, u"C:/Data"_s, false);
        row("case of folder", u"c:/data/A"_s, u"C:/DATA"_s, true);
        row("case beyond ASCII", u"/ÜBUNG/a"_s, u"/übung"_s, true);
        row("backslashes in path", u"C:\\Data\\a.txt"_s, u"C:/Data"_s, true);
        row("backslashes in folder", u"C:/Data/Sub/a.txt"_s, u"c:\\data\\sub"_s, true);
        row("backslash sibling", u"C:\\Data2\\a.txt"_s, u"C:\\Data"_s, false);
        row("trailing slash of folder", u"C:/Data/a"_s, u"C:/Data/"_s, true);
        row("trailing slash, equal", u"C:/Data"_s, u"C:/Data/"_s, true);
        row("trailing slash of path", u"C:/Data/"_s, u"C:/Data"_s, true);
        row("drive root", u"C:/a"_s, u"C:/"_s, true);
        row("drive root, equal", u"C:/"_s, u"C:/"_s, true);
        row("other drive", u"D:/a"_s, u"C:/"_s, false);
        row("root", u"/a/b"_s, u"/"_s, true);
        row("climbs out", u"C:/Data/../Other/a"_s, u"C:/Data"_s, false);
        row("climbs in", u"C:/Other/../Data/a"_s, u"C:/Data"_s, true);
    }

    void seesWhatIsBelow()
    {
        QFETCH(QString, path);
        QFETCH(QString, folder);
        QTEST(isUnderFolder(path, folder), "isBelow");
    }

    void excludesListedFolders_data()
    {
        const auto row = columns<QStringList, bool, bool>({"excluded", "isExcluded", "isListed"});
        row("none", {}, false, false);
        row("itself, in another case", {u"/DATA/Sub/"_s}, true, true);
        row("parent, as second", {u"/other"_s, u"/data/"_s}, true, false);
        row("child", {u"/data/sub/child"_s}, false, false);
        row("sibling of shorter name", {u"/data/su"_s}, false, false);
        row("empty line", {u""_s}, false, false);
    }

    void excludesListedFolders()
    {
        QFETCH(QStringList, excluded);
        ScanOptions options;
        options.excludeFolders = excluded;
        QTEST(isExcludedFolder(u"/data/sub"_s, options), "isExcluded");
        QTEST(FolderRules(options).excludes(u"/data/sub"_s, false), "isExcluded");
        QTEST(FolderRules(options).isListed(u"/data/sub"_s), "isListed");
        QVERIFY(!FolderRules(options).isListed(u""_s));
    }

    void excludesSystemFolders()
    {
        ScanOptions options;
        options.skipSystemFolders = true;
        const QString excluded = u"C:/Windows|C:/Program Files|C:/Program Files (x86)|C:/ProgramData|C:/$Recycle.Bin|"
                                 "C:/System Volume Information|C:/Recovery|C:/PerfLogs|C:/Windows/System32/drivers|"
                                 "c:\\WINDOWS\\Temp"_s;
        const QString others = u"D:/Windows|C:/WindowsApps|C:/Users/Windows|C:/|/Windows"_s;
        for (const QString &path : (excluded + u'|' + others).split(u'|')) {
            const bool isSystem = excluded.split(u'|').contains(path);
            QVERIFY(!isExcludedFolder(path, {}));
            QVERIFY2(isExcludedFolder(path, options) == isSystem, qPrintable(path));
            const FolderRules rules(options);
            QVERIFY2(rules.excludes(QString(path).replace(u'\\', u'/'), false) == isSystem, qPrintable(path));
            QVERIFY(!rules.isListed(path));
        }
    }

    void excludesHiddenFolders()
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
    }

    void takesSuffixes()
    {
        QMap<QString, QString> suffixes = {{u"A.JPG"_s, u"jpg"_s}, {u"a.tar.GZ"_s, u"gz"_s},      {u"readme"_s, {}},
                                           {u"a."_s, {}},          {u".profile"_s, u"profile"_s}, {u"x.ÄÖ"_s, u"äö"_s}};
        for (auto name = suffixes.begin(); name != suffixes.end(); ++name)
            QCOMPARE(suffixOf(name.key()), name.value());
    }
};

QTEST_GUILESS_MAIN(PathRulesTest)
#include "tst_pathrules.moc"
