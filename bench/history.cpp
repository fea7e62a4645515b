// Shows a run of many files in the cleaning history, works with it, and prints how long the interface was blocked at
// most in each step. Usage: bench_history [files]
//
// Runs without a display with QT_QPA_PLATFORM=offscreen.

#include "actions/records/operationslog.h"
#include "actions/records/runjournal.h"
#include "app/settings.h"
#include "bench/consent.h"
#include "bench/watchdog.h"
#include "ui/dialogs/historydialog.h"
#include "ui/window/theme.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>

#include <cstdio>

using namespace Mirrix;
using namespace Qt::StringLiterals;

namespace {

/// A run that deleted files which are in their places again, so that a check of each finds nothing to do.
bool addRun(const QString &directory, qsizetype files)
{
    QList<RunItem> items;
    for (qsizetype i = 0; i < files; ++i)
        items.append({u"/home/someone/Pictures/album %1/picture-%2.jpg"_s.arg(i % 997).arg(i),
                      u"/home/someone/Backup/phone/picture-%1.jpg"_s.arg(i), 5'000'000, 1'600'000'000'000, 1, 1,
                      u"md5:a9288fa382861ff3dcb8c9f759c15f56"_s, u"newest"_s,
                      u"/home/someone/Pictures/album %1/.mirrix-%2.aside"_s.arg(i % 997).arg(i)});
    RunJournalWriter journal;
    if (!journal.create(directory, {{}, 1'700'000'000'000, u"window"_s, u"delete"_s, {}, {}, files, {}}, items))
        return false;
    for (qsizetype i = 0; i < files; ++i)
        journal.outcome({i, ItemState::Done, {}, {}, {}, 5'000'000, 0});
    return journal.finish();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QTemporaryDir own;
    const qsizetype files = argc > 1 ? std::atoi(argv[1]) : 230'000;
    if (!addRun(own.path(), files))
        return 1;
    std::printf("a run of %lld files\n", static_cast<long long>(files));
    ensureFusionStyle();
    Settings settings = defaultSettings(own.path());
    OperationsLog log(own.filePath(u"log"_s));
    Consent prompts(own.path());
    HistoryDialog dialog(settings, prompts, log);
    auto *tree = dialog.findChild<QTreeView *>();
    auto *filter = dialog.findChild<QLineEdit *>(u"HistoryFilter"_s);
    const auto run = [tree] { return tree->model()->index(0, 0); };
    const auto isShown = [&](qsizetype rows) {
        return [tree, run, rows] { return run().isValid() && tree->model()->rowCount(run()) == rows; };
    };

    Watchdog watchdog;
    watchdog.run("nothing", [] {});
    watchdog.run(
        "open", [&] { dialog.show(); }, [&] { return run().isValid(); });
    watchdog.run(
        "expand", [&] { tree->expand(run()); }, isShown(files));
    watchdog.run("scroll to the end",
                 [&] { tree->verticalScrollBar()->setValue(tree->verticalScrollBar()->maximum()); });
    watchdog.run("select all", [&] { tree->selectAll(); });
    watchdog.run("copy", [&] { tree->actions().constFirst()->trigger(); });
    watchdog.run("select one", [&] { tree->setCurrentIndex(tree->model()->index(7, 0, run())); });
    watchdog.run(
        "filter, one file", [&] { filter->setText(u"picture-4711.jpg"_s); }, isShown(1));
    watchdog.run(
        "filter, all", [&] { filter->setText(u"picture"_s); }, isShown(files));
    watchdog.run("select all found", [&] { tree->selectAll(); });
    watchdog.run(
        "no filter", [&] { filter->clear(); }, isShown(files));
    watchdog.run("collapse", [&] { tree->collapse(run()); });
    watchdog.run("expand again", [&] { tree->expand(run()); });
    watchdog.run("select all again", [&] { tree->selectAll(); });
    watchdog.run("undo selected", [&] { dialog.findChild<QPushButton *>(u"UndoSelectedButton"_s)->click(); });
    watchdog.run("undo the run", [&] { dialog.findChild<QPushButton *>(u"UndoRunButton"_s)->click(); });
    watchdog.run("close", [&] { dialog.close(); });
    return 0;
}
