#include "cli/restorecommand.h"

#include "actions/cleaning/backupcheck.h"
#include "actions/cleaning/backupstore.h"
#include "actions/files/movefile.h"
#include "actions/records/logevents.h"
#include "actions/records/operationslog.h"
#include "app/settings.h"
#include "cli/output.h"
#include "cli/progressline.h"
#include "cli/terminal.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <algorithm>

namespace MirrixCli {

namespace {

using namespace Mirrix;

const QString targetOption = QStringLiteral("target");
const QString listOption = QStringLiteral("list");
const QString allOption = QStringLiteral("all");
const QString verifyOption = QStringLiteral("verify");

using Entries = QList<BackupEntry>;

ExitStatus listEntries(const Entries &entries)
{
    Output output;
    if (!output.open({}))
        return ExitStatus::SomeFailed;
    for (const BackupEntry &entry : entries)
        output.write(shownPath(backupLine(entry), output.isTerminal()) +
                     (hasBackupFile(entry) ? "\n" : "  (missing)\n"));
    return output.finish() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

QByteArray stateText(BackupState state)
{
    switch (state) {
    case BackupState::Intact:
        break;
    case BackupState::Missing:
        return "missing";
    case BackupState::Damaged:
        return "damaged";
    case BackupState::Unreadable:
        return "unreadable";
    case BackupState::Refused:
        return "not a backup";
    }
    return "intact";
}

ExitStatus verifyEntries(const Entries &entries)
{
    Output output;
    if (!output.open({}))
        return ExitStatus::SomeFailed;
    catchInterrupts();
    qsizetype intact = 0;
    ProgressLine line;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        line.show({entries.size(), i, entries.size(), entries[i].backup, QStringLiteral("checking")});
        const BackupState state = backupState(entries[i], isInterrupted);
        if (isInterrupted()) {
            printError(QStringLiteral("cancelled"));
            return ExitStatus::Cancelled;
        }
        if (state == BackupState::Intact)
            ++intact;
        else
            output.write(stateText(state) + ": " + shownPath(backupLine(entries[i]), output.isTerminal()) + '\n');
    }
    output.write(QStringLiteral("%1 of %2 backups intact\n").arg(intact).arg(entries.size()).toUtf8());
    return output.finish() && intact == entries.size() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

/// The entry that `word` means, the latest where a path was backed up more than once, of those whose file is there if
/// there are any.
Entries::const_reverse_iterator findEntry(const Entries &entries, const QString &word)
{
    const QString path = MirrixCore::cleanedPath(MirrixCore::absolutePath(word));
    const auto isMeant = [&](const BackupEntry &entry) {
        return entry.original == path || entry.backup == path || fileNameOf(entry.backup) == word;
    };
    const auto present = std::find_if(entries.crbegin(), entries.crend(),
                                      [&](const BackupEntry &entry) { return isMeant(entry) && hasBackupFile(entry); });
    return present != entries.crend() ? present : std::find_if(entries.crbegin(), entries.crend(), isMeant);
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

/// Takes out and names what has no file any more. Returns how many.
qsizetype dropMissing(Entries &chosen)
{
    return chosen.removeIf([](const BackupEntry &entry) {
        const bool isMissing = !hasBackupFile(entry);
        if (isMissing)
            printError(QStringLiteral("%1: missing in the backup folder: %2").arg(entry.original, entry.backup));
        return isMissing;
    });
}

void logRestored(const QString &dataDirectory, const Entries &restored)
{
    QList<LogEntry> records;
    for (const BackupEntry &entry : restored)
        records.append(restoredEvent(entry));
    if (!records.isEmpty())
        OperationsLog(operationsLogPath(dataDirectory)).append(records);
}

ExitStatus restoreChosen(const QCommandLineParser &parser, const QString &folder, const Entries &entries)
{
    QStringList unknown;
    Entries chosen = chosenEntries(parser, entries, unknown);
    const qsizetype total = chosen.size();
    for (const QString &word : unknown)
        printError(QStringLiteral("%1: not in the backup folder").arg(word));
    const qsizetype missing = dropMissing(chosen);
    catchInterrupts();
    const RestoreResult result = chosen.isEmpty() ? RestoreResult() : restoreWithProgress(folder, chosen);
    logRestored(recordsDirectoryOf(parser), result.restored);
    for (const QString &message : result.errors + result.notes)
        printError(message);
    printText(QStringLiteral("%1 of %2 files restored\n").arg(result.count).arg(total));
    if (result.isCancelled) {
        printError(QStringLiteral("cancelled"));
        return ExitStatus::Cancelled;
    }
    const bool isDone = result.errors.isEmpty() && unknown.isEmpty() && missing == 0;
    return isDone ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace

void addRestoreOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {targetOption, QStringLiteral("The backup folder (default: from the settings)."), QStringLiteral("DIR")},
        {listOption, QStringLiteral("List what can be restored (the default).")},
        {allOption, QStringLiteral("Restore everything.")},
        {verifyOption, QStringLiteral("Check that every backup is present and unchanged. Nothing is restored.")},
    });
    parser.addPositionalArgument(
        QStringLiteral("ENTRY"),
        QStringLiteral("Files to restore, given by original path, or by path or name in the backup folder."),
        QStringLiteral("[ENTRY...]"));
}

ExitStatus runRestore(const QCommandLineParser &parser)
{
    const bool hasWords = !parser.positionalArguments().isEmpty();
    if (parser.isSet(listOption) + parser.isSet(allOption) + parser.isSet(verifyOption) + hasWords > 1)
        throw UsageError{QStringLiteral("--list, --all, --verify and ENTRY cannot be combined")};
    const QString dataDirectory = recordsDirectoryOf(parser);
    const QString given = parser.value(targetOption);
    const QString folder = backupFolderPath(given.isEmpty() ? readSettings(dataDirectory).backupRoot : given);
    requireUnicodeName(
        given.isEmpty() ? QStringLiteral("the backup folder of the settings") : QStringLiteral("--target"), folder);
    bool isRead = false;
    const Entries entries = locatedEntries(folder, &isRead);
    if (!isRead) {
        printError(QStringLiteral("cannot read the index in %1").arg(folder));
        return ExitStatus::SomeFailed;
    }
    if (parser.isSet(verifyOption))
        return verifyEntries(entries);
    return parser.isSet(allOption) || hasWords ? restoreChosen(parser, folder, entries) : listEntries(entries);
}

} // namespace MirrixCli
