#include "actions/cleaning/keeprule.h"

#include "tests/support/tables.h"

#include <QTest>

using namespace MirrixTest;
using namespace Mirrix;
using namespace Qt::StringLiterals;

using Files = QList<MirrixCore::FileEntry>;

class KeepRuleTest : public QObject
{
    Q_OBJECT

private slots:
    void keeper_data()
    {
        // keepers: by rule 0 to 3 and an unknown one
        const auto row = columns<QStringList, QList<qint64>, QList<int>>({"paths", "times", "keepers"});
        row("nothing", {}, {}, {-1, -1, -1, -1, -1});
        row("one", {u"/a"_s}, {5}, {0, 0, 0, 0, 0});
        row("all equal", {u"/a/1"_s, u"/b/2"_s, u"/c/3"_s}, {5, 5, 5}, {0, 0, 0, 0, 0});
        row("all different", {u"/a/b/1"_s, u"/2"_s, u"/a/b/c/d/3"_s, u"/a/4"_s}, {20, 10, 30, 40}, {3, 1, 1, 2, 0});
        row("the first of the best", {u"/a/1"_s, u"/a/b/2"_s, u"/a/b/3"_s, u"/4"_s, u"/5"_s}, {20, 30, 30, 10, 10},
            {1, 3, 3, 1, 0});
        row("both separators", {u"C:/a/b/x"_s, u"C:\\a\\y"_s}, {1, 1}, {0, 0, 1, 0, 0});
        row("cleaned first", {u"/a/../a/./x"_s, u"/a/b/y"_s}, {1, 1}, {0, 0, 0, 1, 0});
        row("unknown times", {u"/a"_s, u"/b"_s}, {0, -5}, {0, 1, 0, 0, 0});
    }

    void keeper()
    {
        QFETCH(QStringList, paths);
        QFETCH(QList<qint64>, times);
        Files files;
        for (qsizetype i = 0; i < paths.size(); ++i) {
            files.append(MirrixCore::FileEntry());
            files.last().path = paths[i];
            files.last().modifiedMs = times[i];
        }
        QList<int> keepers;
        for (int rule = 0; rule <= 4; ++rule)
            keepers.append(static_cast<int>(chooseKeeper(files, static_cast<KeepRule>(rule))));
        QTEST(keepers, "keepers");
    }
};

QTEST_GUILESS_MAIN(KeepRuleTest)
#include "tst_keeprule.moc"
