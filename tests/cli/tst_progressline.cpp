#include "cli/progressline.h"

#include "tests/support/tables.h"

#include <QTest>

#include <limits>

using namespace MirrixTest;
using namespace MirrixCli;
using namespace MirrixCore;
using namespace Qt::StringLiterals;

class ProgressLineTest : public QObject
{
    Q_OBJECT

private slots:
    void texts_data()
    {
        const auto row = columns<ScanProgress, int, QString>({"progress", "columns", "expected"});
        const QString path = u"/some/folder/name.txt"_s; // 21 characters
        const ScanProgress walk{12, 12, 0, path, Phase::Enumerating};
        const ScanProgress hash{1000, 50, 200, path, Phase::FullHash};
        row("total unknown", walk, 80, u"enumerating 12  /some/folder/name.txt"_s);
        row("total known", hash, 80, u"full-hash 50/200 (25%)  /some/folder/name.txt"_s);
        row("just fits", hash, 45, u"full-hash 50/200 (25%)  /some/folder/name.txt"_s);
        row("one too narrow", hash, 44, u"full-hash 50/200 (25%)  …ome/folder/name.txt"_s);
        row("ten columns for the path", hash, 34, u"full-hash 50/200 (25%)  …/name.txt"_s);
        row("nine are too few", hash, 33, u"full-hash 50/200 (25%)"_s);
        row("narrower than the counts", hash, 9, u"full-hash"_s);
        row("no room", hash, 0, QString());
        row("no path", ScanProgress{0, 0, 7, {}, Phase::QuickHash}, 80, u"quick-hash 0/7 (0%)  "_s);
        row("done", ScanProgress{7, 7, 7, {}, Phase::QuickHash}, 19, u"quick-hash 7/7 (100"_s);
        row("rounded down", ScanProgress{0, 999, 1000, {}, Phase::QuickHash}, 30, u"quick-hash 999/1000 (99%)"_s);
        constexpr qint64 million = 1000000;
        row("many files", ScanProgress{0, 500 * million, 1000 * million, u"f"_s, Phase::QuickHash}, 80,
            u"quick-hash 500000000/1000000000 (50%)  f"_s);
    }

    void texts()
    {
        QFETCH(ScanProgress, progress);
        QFETCH(int, columns);
        QTEST(progressText(progress, columns), "expected");
    }

    void neverWiderThanItsColumns()
    {
        const ScanProgress progress{0, 3, 9, QString(300, u'x'), Phase::FullHash};
        for (int columns = 0; columns <= 200; ++columns)
            QVERIFY(progressText(progress, columns).size() <= columns);
    }
};

QTEST_GUILESS_MAIN(ProgressLineTest)
#include "tst_progressline.moc"
