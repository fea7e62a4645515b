// A whole job in the window over real files: bench_window FOLDER. Scans the folder without and with cached digests,
// ticks by rule, inverts, exports in every form of one file, moves all surplus copies into a backup folder, opens the
// list of what can be put back, puts it all back, and prints how long the interface was blocked at most in each step.
// Everything else it writes lies in a temporary folder, which must be on the same volume for moving to be renaming.
//
// Runs without a display with QT_QPA_PLATFORM=offscreen.

#include "bench/consent.h"
#include "bench/watchdog.h"
#include "core/cache/cacheroot.h"
#include "ui/mirrix.h"
#include "ui/window/mainmenu.h"
#include "ui/window/theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc != 2 || !QFileInfo(QFile::decodeName(argv[1])).isDir()) {
        std::fprintf(stderr, "usage: bench_window FOLDER\n");
        return 2;
    }
    Mirrix::ensureFusionStyle();
    const QTemporaryDir own;
    Mirrix::Settings settings = Mirrix::defaultSettings(own.path());
    settings.trayEnabled = false;
    settings.backupRoot = own.filePath(u"backup"_s);
    MirrixCore::setCacheRoot(settings.directory);
    Consent prompts(own.path());
    MirrixUi::Mirrix window(settings, prompts);
    window.resize(1200, 800);
    window.show();
    window.addLocation(QFileInfo(QFile::decodeName(argv[1])).absoluteFilePath());

    const auto press = [&](const char16_t *name) {
        return [&window, name] { window.findChild<QAbstractButton *>(QString::fromUtf16(name))->click(); };
    };
    const auto isScanned = [&] { return !window.isScanning(); };
    Watchdog watchdog;
    watchdog.run(
        "scan", [&] { window.startScan(); }, isScanned);
    watchdog.run(
        "scan again", [&] { window.startScan(); }, isScanned);
    watchdog.run("tick by rule", press(u"AutoSelectButton"));
    watchdog.run("invert", press(u"InvertButton"));
    watchdog.run("invert back", press(u"InvertButton"));
    for (const int format : {0, 1, 3}) {
        prompts.exportFormat = format;
        watchdog.run(format == 0   ? "export, table"
                     : format == 1 ? "export, report"
                                   : "export, script",
                     press(u"ExportButton"));
    }
    watchdog.run("move to backup", press(u"MoveToBackupButton"));
    watchdog.run("put back", [&] { emit window.findChild<Mirrix::MainMenu *>()->restoreRequested(); });
    watchdog.run("clear", press(u"ClearResultsButton"));
    window.quitCompletely();
    return 0;
}
