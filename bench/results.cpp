// Opens, scrolls, expands, sorts and ticks a result of 1,000,000 files in 300,000 groups on the results page, and
// prints how long the interface was blocked at most in each step. Usage: bench_results [groups]
//
// Runs without a display with QT_QPA_PLATFORM=offscreen.

#include "actions/cleaning/cleaningplan.h"
#include "bench/watchdog.h"
#include "ui/results/resultspage.h"
#include "ui/results/resultstree.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QScrollBar>
#include <QTabWidget>
#include <QTimer>

#include <cstdio>

using namespace Mirrix;
using MirrixCore::DuplicateGroup;
using MirrixCore::FileEntry;

namespace {

FileEntry madeFile(qint64 number)
{
    FileEntry file;
    file.path = QStringLiteral("/home/someone/Pictures/album %1/picture-%2.jpg").arg(number % 997).arg(number);
    file.size = 1000 + number * 7919 % 5'000'000;
    file.modifiedMs = 1'600'000'000'000 + number * 104'729 % 100'000'000'000;
    return file;
}

void fill(ResultSet &results, int groups)
{
    qint64 number = 0;
    for (int i = 0; i < groups; ++i) {
        DuplicateGroup group;
        const int files = i % 3 == 0 ? 4 : 3; // 3.33 a group
        for (int j = 0; j < files; ++j)
            group.files.append(madeFile(number++));
        group.wastedBytes = group.files.first().size * (files - 1);
        results.groups.append(group);
    }
    for (qint64 i = 0; i < number; ++i)
        results.remaining.append(madeFile(number + i));
    results.marks.reset(results.groups);
    std::printf("%d groups, %lld files, as many remaining\n", groups, static_cast<long long>(number));
}

/// Twenty jumps and twenty small steps back, each in its own turn of the loop.
void scroll(QScrollBar *bar, int step = 1)
{
    constexpr int jumps = 20;
    if (step <= jumps)
        bar->setValue(bar->maximum() / jumps * step);
    else
        bar->setValue(bar->value() - bar->singleStep() * 3);
    if (step < 2 * jumps)
        QTimer::singleShot(10, bar, [bar, step] { scroll(bar, step + 1); });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    ResultSet results;
    ResultsPage page(results);
    page.resize(1200, 800);
    page.show();
    fill(results, argc > 1 ? std::atoi(argv[1]) : 300'000);
    auto *tree = page.findChild<ResultsTree *>(QStringLiteral("DuplicateFilesTree"));
    auto *tabs = page.findChild<QTabWidget *>(QStringLiteral("ResultsTabs"));
    auto *view = page.findChild<QComboBox *>(QStringLiteral("ResultsViewCombo"));
    const auto sort = [tree](int column) { tree->header()->setSortIndicator(column, Qt::DescendingOrder); };

    Watchdog watchdog;
    watchdog.run("nothing", [] {});
    watchdog.run("open", [&] { page.showResults(); });
    watchdog.run("scroll", [&] { scroll(tree->verticalScrollBar()); });
    watchdog.run("sort by size", [&] { sort(2); });
    watchdog.run("sort by name", [&] { sort(1); });
    watchdog.run("expand all", [&] { tree->expandEverything(); });
    watchdog.run("scroll, expanded", [&] { scroll(tree->verticalScrollBar()); });
    watchdog.run("sort by date, expanded", [&] { sort(3); });
    watchdog.run("collapse all", [&] { tree->collapseEverything(); });
    watchdog.run("mark all but one a group", [&] {
        for (qsizetype group = 0; group < results.groups.size(); ++group)
            results.marks.markOnly(group, Mirrix::chooseFirstInGroup(results.groups[group].files).surplus);
        page.marksReplaced();
    });
    watchdog.run("invert", [&] {
        results.marks.invert();
        page.marksReplaced();
    });
    watchdog.run("select all rows", [&] { tree->selectAll(); });
    watchdog.run("sort with all selected", [&] { sort(2); });
    watchdog.run("thumbnails", [&] { view->setCurrentIndex(1); });
    watchdog.run("remaining tab", [&] { tabs->setCurrentIndex(2); });
    auto *remaining = page.findChild<ResultsTree *>(QStringLiteral("RemainingFilesTree"));
    watchdog.run("sort remaining by size", [&] { remaining->header()->setSortIndicator(1, Qt::DescendingOrder); });
    watchdog.run("sort remaining by name", [&] { remaining->header()->setSortIndicator(0, Qt::AscendingOrder); });
    const ResultSet kept = results; // so that freeing the records is not part of the figure
    watchdog.run("clear", [&] {
        results = {};
        page.clearResults();
    });
}
