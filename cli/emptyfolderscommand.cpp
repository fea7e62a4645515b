#include "cli/emptyfolderscommand.h"

#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/emptyfolderremoval.h"
#include "actions/records/operationslog.h"
#include "app/settings.h"
#include "cli/counted.h"
#include "cli/output.h"
#include "cli/progressline.h"
#include "cli/scancommand.h"
#include "cli/selection.h"
#include "cli/terminal.h"
#include "cli/unread.h"
#include "core/walk/emptyfolders.h"

namespace MirrixCli {

namespace {

using namespace Mirrix;

const QString emptyFoldersOption = QStringLiteral("empty-folders");

/// Where the folders are looked for: never among the program's own.
MirrixCore::ScanOptions optionsOf(const QCommandLineParser &parser)
{
    MirrixCore::ScanOptions options;
    readSelection(parser, options);
    if (!options.files.isEmpty())
        throw UsageError{QStringLiteral("--empty-folders takes folders only, not %1").arg(options.files.constFirst())};
    const QString dataDirectory = recordsDirectoryOf(parser);
    options.excludeFolders += {dataDirectory, backupFolderPath(readSettings(dataDirectory).backupRoot)};
    return options;
}

bool printFolders(const QStringList &folders, bool isQuiet)
{
    Output output;
    if (!output.open({}))
        return false;
    for (const QString &folder : folders)
        output.write("remove " + shownPath(folder, true) + '\n');
    if (!isQuiet)
        output.write(QStringLiteral("%1. Nothing was changed; run again with --apply to do this.\n")
                         .arg(counted(folders.size(), QStringLiteral("empty folder")))
                         .toUtf8());
    return output.finish();
}

/// False when some folders stayed.
bool removeFolders(const QStringList &folders, const QCommandLineParser &parser)
{
    const QString dataDirectory = recordsDirectoryOf(parser);
    OperationsLog log(operationsLogPath(dataDirectory));
    const CleaningResult result =
        removeEmptyFolders(folders, {log, dataDirectory, commandText()}, [](auto, auto) { return !isInterrupted(); });
    for (const QString &error : result.errors)
        printError(error);
    if (!isQuiet(parser))
        printText(QStringLiteral("%1 of %2 empty folders removed\n").arg(result.count).arg(folders.size()));
    return result.errors.isEmpty();
}

} // namespace

bool wantsEmptyFolders(const QCommandLineParser &parser)
{
    return parser.isSet(emptyFoldersOption);
}

void addEmptyFoldersOption(QCommandLineParser &parser)
{
    parser.addOption(
        {emptyFoldersOption, QStringLiteral("Remove folders that are empty or contain only empty folders, instead of "
                                            "copies. --keep and --method cannot be used with it. Recycle bins, backup "
                                            "folders, snapshots and version control folders are left alone.")});
}

ExitStatus cleanEmptyFolders(const QCommandLineParser &parser, bool isApplied)
{
    const MirrixCore::ScanOptions options = optionsOf(parser);
    catchInterrupts();
    QList<MirrixCore::UnreadPath> unread;
    const QStringList folders = MirrixCore::findEmptyFolders(options, isInterrupted, unread);
    printUnread(unread);
    bool isDone = !isAnyWanted(unread, options);
    if (!isInterrupted())
        isDone = (isApplied ? removeFolders(folders, parser) : printFolders(folders, isQuiet(parser))) && isDone;
    if (isInterrupted()) {
        printError(QStringLiteral("cancelled"));
        return ExitStatus::Cancelled;
    }
    return isDone ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace MirrixCli
