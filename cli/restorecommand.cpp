#include "cli/restorecommand.h"

#include "actions/backupstore.h"
#include "actions/movefile.h"
#include "actions/operationslog.h"
#include "actions/records/logevents.h"
#include "app/settings.h"
#include "cli/output.h"
#include "cli/progressline.h"
#include "cli/terminal.h"
#include "core/platform/nativepath.h"
#include "core/walk/pathrules.h"

#include <algorithm>

namespace MirrixCli {

namespace {

using namespace Mirrix;

const QString targetOption = QStringLiteral("target");
const QString listOption = QStringLiteral("list");
const QString allOption = QStringLiteral("all");

using Entries = QList<BackupEntry>;

ExitStatus listEntries(const Entries &entries)
{
    Output output;
    if (!output.open({}))
        return ExitStatus::SomeFailed;
    for (const BackupEntry &entry : entries)
        output.write(shownPath(backupLine(entry), output.isTerminal()) + '\n');
    return output.finish() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

/// The entry that `word` means, the latest where a path was backed up more than once.
Entries::const_reverse_iterator findEntry(const Entries &entries, const QString &word)
{
    const QString path = MirrixCore::cleanedPath(MirrixCore::absolutePath(word));
    return std::find_if(entries.crbegin(), entries.crend(), [&](const BackupEntry &entry) {
        return entry.original == path || entry.backup == path || fileNameOf(entry.backup) == word;
    });
}

/// The entries chosen, the latest first: of several backups of one path only one can be put back.
Entries chosenEntries(const QCommandLineParser &parser, const Entries &entries, QStringList &unknown)
{
    Entries chosen;
    if (parser.isSet(allOption)) {
        std::copy(entries.crbegin(), entries.crend(), std::back_inserter(chosen));
        return chosen;
    }
    const QStringList words = parser.positionalArguments();
    for (const QString &word : words) {
        const auto entry = findEntry(entries, word);
        if (entry == entries.crend())
            unknown.append(word);
        else if (!chosen.contains(*entry))
            chosen.append(*entry);
    }
    return chosen;
}

RestoreResult restoreWithProgress(const QString &folder, const Entries &entries)
{
    ProgressLine line;
    BatchControl control;
    control.progress = [&line, &entries](qsizetype done, qsizetype total) {
        line.show({total, done, total, entries[done].original, QStringLiteral("restoring")});
        return !isInterrupted();
    };
    return restoreBackups(folder, entries, control);
}

void logRestored(const QString &dataDirectory, const Entries &restored)
{
    QList<LogEntry> records;
    for (const BackupEntry &entry : restored)
        records.append(restoredEvent(entry));
    if (!records.isEmpty())
        OperationsLog(operationsLogPath(dataDirectory)).append(records);
}

} // namespace

void addRestoreOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {targetOption, QStringLiteral("The backup folder (default: as in the settings)."), QStringLiteral("DIR")},
        {listOption, QStringLiteral("List what can be put back (this is also what happens without any choice).")},
        {allOption, QStringLiteral("Put everything back.")},
    });
    parser.addPositionalArgument(QStringLiteral("ENTRY"),
                                 QStringLiteral("Files to put back: old path, or path or name in the backup folder."),
                                 QStringLiteral("[ENTRY...]"));
}

ExitStatus runRestore(const QCommandLineParser &parser)
{
    const bool hasWords = !parser.positionalArguments().isEmpty();
    if (parser.isSet(listOption) + parser.isSet(allOption) + hasWords > 1)
        throw UsageError{QStringLiteral("--list, --all and entries exclude each other")};
    const QString dataDirectory = dataDirectoryOf(parser);
    const QString given = parser.value(targetOption);
    const QString folder = backupFolderPath(given.isEmpty() ? readSettings(dataDirectory).backupRoot : given);
    bool isRead = false;
    const Entries entries = restorableEntries(folder, &isRead);
    if (!isRead) {
        printError(QStringLiteral("cannot read the index in %1").arg(folder));
        return ExitStatus::SomeFailed;
    }
    if (!parser.isSet(allOption) && !hasWords)
        return listEntries(entries);

    QStringList unknown;
    const Entries chosen = chosenEntries(parser, entries, unknown);
    for (const QString &word : unknown)
        printError(QStringLiteral("%1: not in the backup folder").arg(word));
    catchInterrupts();
    const RestoreResult result = chosen.isEmpty() ? RestoreResult() : restoreWithProgress(folder, chosen);
    logRestored(dataDirectory, result.restored);
    for (const QString &error : result.errors)
        printError(error);
    printText(QStringLiteral("%1 of %2 files restored\n").arg(result.count).arg(chosen.size()));
    if (result.isCancelled) {
        printError(QStringLiteral("cancelled"));
        return ExitStatus::Cancelled;
    }
    return result.errors.isEmpty() && unknown.isEmpty() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace MirrixCli
