#include "actions/cleaning/undo.h"
#include "actions/files/movefile.h"
#include "actions/records/backupindex.h"
#include "actions/records/runjournal.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <QCoreApplication>
#include <QHash>

namespace Mirrix {

namespace {

bool isInBackup(const RunHeader &header)
{
    const std::optional<CleaningMethod> method = methodNamed(header.method);
    return method && isBackingUp(*method);
}

/// The items of a run whose files may still lie in the backup folder.
QList<qsizetype> storedItems(const StoredRun &run)
{
    QList<qsizetype> items;
    for (qsizetype i = 0; i < run.items.size() && isInBackup(run.summary.header); ++i) {
        const ItemOutcome &outcome = run.outcomes[i];
        if (outcome.state == ItemState::Done && !outcome.now.isEmpty())
            items.append(i);
    }
    return items;
}

/// The entries of an index by the names of their backups.
QHash<QString, BackupEntry> entriesByName(const QString &folder)
{
    QHash<QString, BackupEntry> entries;
    for (const BackupEntry &entry : loadBackupIndex(folder))
        entries.insert(fileNameOf(entry.backup), entry);
    return entries;
}

/// Only what the index lists for this very file, and only a plain file beside the index.
bool deleteBackup(const QString &path, const RunItem &item, const QHash<QString, BackupEntry> &listed)
{
    const auto entry = listed.constFind(fileNameOf(path));
    return entry != listed.cend() &&
           entry->original == MirrixCore::cleanedPath(MirrixCore::absolutePath(item.original)) &&
           pathState(path).kind == PathState::Kind::File && removeOwnCopy(path) == FileFault::None;
}

} // namespace

BatchResult freeBackups(const StoredRun &run, const CleaningServices &services, const BatchProgress &progress)
{
    BatchResult result;
    const QList<qsizetype> items = storedItems(run);
    const QString &folder = run.summary.header.target;
    RunJournalWriter journal;
    if (items.isEmpty())
        return result;
    if (!journal.resume(services.dataDirectory, run.summary.header.id)) {
        result.errors.append(journal.errorText());
        return result;
    }
    BackupIndexSession session(folder);
    const QHash<QString, BackupEntry> listed = entriesByName(folder);
    QList<BackupEntry> gone;
    bool isNoted = true;
    for (qsizetype i = 0; isNoted && i < items.size(); ++i) {
        result.isCancelled = progress && !progress(i, items.size());
        if (result.isCancelled)
            break;
        ItemOutcome outcome = run.outcomes[items[i]];
        const QString path = joinedPath(folder, fileNameOf(outcome.now));
        if (!deleteBackup(path, run.items[items[i]], listed)) {
            result.errors.append(QCoreApplication::translate("Mirrix", "无法删除: %1").arg(path));
            continue;
        }
        gone.append(listed[fileNameOf(path)]);
        outcome.now.clear();
        outcome.freedBytes += outcome.heldBytes;
        outcome.heldBytes = 0;
        isNoted = journal.outcome(outcome);
    }
    result.count = gone.size();
    if (!journal.finish())
        result.errors.append(journal.errorText());
    if (!gone.isEmpty() && !session.remove(gone))
        result.errors.append(QCoreApplication::translate("Mirrix", "备份索引无法写入: %1").arg(folder));
    return result;
}

qint64 heldInBackup(const RunSummary &run)
{
    return isInBackup(run.header) ? run.totals.heldBytes : 0;
}

} // namespace Mirrix
