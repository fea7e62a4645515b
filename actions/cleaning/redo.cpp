#include "actions/cleaning/redo.h"

#include "actions/cleaning/createdlink.h"
#include "actions/cleaning/emptyfolderremoval.h"
#include "actions/cleaning/itemchecks.h"
#include "actions/cleaning/undorecord.h"
#include "actions/cleaning/undosource.h"
#include "actions/cleaning/undotexts.h"
#include "actions/records/runjournal.h"

namespace Mirrix {

namespace {

ScannedFile asItIs(const QString &path)
{
    if (path.isEmpty())
        return {};
    const PathState state = pathState(path);
    return {path, state.sizeBytes, state.modifiedMs, state.identity, state.allocatedBytes};
}

CleaningItem cleaningItem(const RunItem &item)
{
    return {asItIs(item.original), asItIs(item.kept), item.linkTarget, item.digest, !item.digest.isEmpty()};
}

bool areFolders(const StoredRun &undo)
{
    return undoneMethodName(undo.summary.header.method) == emptyFoldersMethod;
}

/// Without a proof nothing is destroyed a second time.
QString redoProblem(const RunItem &item, CleaningMethod method)
{
    if (!isAsRecorded(pathState(item.original), item))
        return changedText(item.original);
    if (isDestroying(method) && item.sizeBytes > 0 && (item.kept.isEmpty() || item.digest.isEmpty()))
        return notComparedText(item.original);
    return itemProblem(cleaningItem(item));
}

CleaningResult cleanAgain(const UndoPlan &plan, const QList<qsizetype> &items, const CleaningServices &services,
                          const BatchProgress &progress)
{
    const RunHeader &header = plan.run.summary.header;
    CleaningPlan cleaning;
    cleaning.method = cleaningMethod(header);
    cleaning.targetFolder = header.target;
    cleaning.backupFolder = isBackingUp(cleaning.method) ? header.target : plan.backupFolder;
    cleaning.undoOf = header.id;
    for (const qsizetype item : items)
        cleaning.items.append(cleaningItem(plan.run.items[item]));
    return runCleaning(cleaning, services, progress);
}

CleaningResult removeAgain(const UndoPlan &plan, const QList<qsizetype> &items, const CleaningServices &services,
                           const BatchProgress &progress)
{
    QStringList folders;
    for (const qsizetype item : items) // in the order in which they were removed the first time
        folders.append(plan.run.items[item].original);
    return removeEmptyFolders(folders, services, progress, plan.run.summary.header.id);
}

} // namespace

QList<UndoStep> redoSteps(const StoredRun &undo, const BatchProgress &progress)
{
    QList<UndoStep> steps;
    const CleaningMethod method = cleaningMethod(undo.summary.header);
    for (qsizetype i = 0; i < undo.items.size() && (!progress || progress(i, undo.items.size())); ++i) {
        const RunItem &item = undo.items[i];
        if (areFolders(undo)) {
            const bool isThere = pathState(item.original).kind == PathState::Kind::Folder;
            if (undo.outcomes[i].state == ItemState::Done && isThere)
                steps.append(UndoStep{i, {}});
            continue;
        }
        const bool isCut = undo.outcomes[i].state == ItemState::Planned && !undo.summary.isComplete &&
                           isAsRecorded(pathState(item.original), item) && !CreatedLink(item, method).isInPlace();
        if (undo.outcomes[i].state == ItemState::Done || isCut)
            steps.append({i, redoProblem(item, method)});
    }
    return steps;
}

UndoResult redo(const UndoPlan &plan, const QList<qsizetype> &items, const CleaningServices &services,
                const BatchProgress &progress)
{
    const CleaningResult cleaned = areFolders(plan.run) ? removeAgain(plan, items, services, progress)
                                                        : cleanAgain(plan, items, services, progress);
    UndoResult result{{cleaned.count, cleaned.errors, cleaned.isCancelled}, {}, cleaned.runId};
    if (cleaned.runId.isEmpty())
        return result;
    QList<ItemOutcome> undone = readRun(runJournalPath(services.dataDirectory, cleaned.runId)).outcomes;
    undone.removeIf([](const ItemOutcome &outcome) { return outcome.state != ItemState::Done; });
    for (ItemOutcome &outcome : undone)
        outcome = {items[outcome.item], ItemState::Undone, {}, {}, {}, 0, 0};
    QString error;
    if (!appendUndone(services.dataDirectory, plan.run.summary.header.id, undone, &error))
        result.notes.append(error);
    return result;
}

} // namespace Mirrix
