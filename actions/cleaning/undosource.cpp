#include "actions/cleaning/undosource.h"

#include "actions/cleaning/createdlink.h"
#include "actions/cleaning/undotexts.h"
#include "actions/files/movefile.h"

#include <cstdlib>

namespace Mirrix {

namespace {

using Way = UndoSource::Way;

bool isFile(const QString &path)
{
    return pathState(path).kind == PathState::Kind::File;
}

} // namespace

UndoSources::UndoSources(const StoredRun &run, const QString &backupFolder)
    : m_run(run)
    , m_method(methodNamed(run.summary.header.method))
    , m_backupFolder(backupFolder)
{}

UndoSource UndoSources::of(qsizetype index)
{
    const RunItem &item = m_run.items[index];
    const ItemOutcome &outcome = m_run.outcomes[index];
    const bool isOpen = outcome.state == ItemState::Planned;
    if (outcome.state == ItemState::Undone || (outcome.state == ItemState::Failed && outcome.now.isEmpty()) ||
        (isOpen && m_run.summary.isComplete))
        return {};
    if (m_run.summary.header.method == emptyFoldersMethod)
        return asFolder(index);
    if (!m_method)
        return {Way::Copy, {}, notBackText(item.original)};
    const PathState there = pathState(item.original);
    const bool isLink = CreatedLink(item, *m_method).isInPlace();
    if (!isLink && isAsRecorded(there, item)) // a copy that an undo could not remove any more is still held
        return {isOpen || (!outcome.now.isEmpty() && isFile(outcome.now)) ? Way::None : Way::Home, {}};
    UndoSource source = isOpen ? whereInterrupted(index) : whereIs(index);
    if (!isLink && there.kind != PathState::Kind::Missing && source.problem.isEmpty())
        source.problem =
            there.kind == PathState::Kind::Unknown ? notBackText(item.original) : occupiedText(item.original);
    return source;
}

UndoSource UndoSources::asFolder(qsizetype index) const
{
    const QString &original = m_run.items[index].original;
    switch (pathState(original).kind) {
    case PathState::Kind::Missing:
        return {Way::EmptyFolder, {}};
    case PathState::Kind::Folder:
        return {m_run.outcomes[index].state == ItemState::Planned ? Way::None : Way::Home, {}};
    case PathState::Kind::Unknown:
        return {Way::EmptyFolder, {}, notBackText(original)};
    default:
        return {Way::EmptyFolder, {}, occupiedText(original)};
    }
}

UndoSource UndoSources::whereIs(qsizetype index)
{
    const QString &now = m_run.outcomes[index].now;
    if (*m_method == CleaningMethod::Recycle)
        return inBin(index);
    if (now.isEmpty()) // destroyed, or deleted from the backup folder
        return asCopy(index);
    if (*m_method == CleaningMethod::Move)
        return inFolder(index, now);
    if (isBackingUp(*m_method))
        return inStore(index, now);
    return isFile(now) ? UndoSource{Way::Aside, now}
                       : UndoSource{Way::Aside, now, notThereText(m_run.items[index].original, now)};
}

UndoSource UndoSources::whereInterrupted(qsizetype index)
{
    const RunItem &item = m_run.items[index];
    const CreatedLink link(item, *m_method);
    if (isBackingUp(*m_method)) {
        const UndoSource stored = inStore(index, item.aside);
        if (stored.problem.isEmpty())
            return stored;
    } else if (!item.aside.isEmpty() && isFile(item.aside)) {
        return {Way::Aside, item.aside};
    }
    const bool wasThere = item.modifiedExact != 0 || item.mode != 0;
    const bool isThere = pathState(item.original).kind != PathState::Kind::Missing;
    if (!wasThere || (isThere && !link.isInPlace()))
        return {};
    if (*m_method == CleaningMethod::Recycle) {
        const UndoSource recycled = inBin(index);
        if (recycled.problem.isEmpty())
            return recycled;
    } else if (*m_method == CleaningMethod::Move) {
        const UndoSource moved = inFolder(index, joinedPath(m_run.summary.header.target, fileNameOf(item.original)));
        if (moved.problem.isEmpty())
            return moved;
    }
    return asCopy(index);
}

UndoSource UndoSources::inStore(qsizetype index, const QString &backup) const
{
    for (const QString &folder : {m_run.summary.header.target, m_backupFolder}) {
        const QString path = joinedPath(folder, fileNameOf(backup));
        if (!folder.isEmpty() && isFile(path))
            return {Way::Backup, path, {}, digestOf(index)};
    }
    return {Way::Backup, backup, notThereText(m_run.items[index].original, backup)};
}

UndoSource UndoSources::inFolder(qsizetype index, const QString &path) const
{
    const RunItem &item = m_run.items[index];
    return {Way::Folder, path, isAsRecorded(pathState(path), item) ? QString() : notThereText(item.original, path)};
}

UndoSource UndoSources::inBin(qsizetype index)
{
    const RunItem &item = m_run.items[index];
    const QString &now = m_run.outcomes[index].now;
    std::optional<BinEntry> entry;
    if (!now.isEmpty() && isAsRecorded(pathState(now), item))
        entry = binEntryAt(now);
    if (!entry)
        entry = m_bins.find(item.original, item.sizeBytes, item.modifiedMs, m_run.summary.header.startedMs);
    if (!entry)
        return {Way::Bin, now, notInBinText(item.original)};
    entry->original = item.original; // the note is not trusted to say where the file goes
    return {Way::Bin, entry->filePath, {}, {}, *entry};
}

UndoSource UndoSources::asCopy(qsizetype index) const
{
    const RunItem &item = m_run.items[index];
    const QString digest = digestOf(index);
    if (item.sizeBytes == 0 && item.kept.isEmpty())
        return {Way::EmptyFile, {}};
    if (item.kept.isEmpty() || digest.isEmpty())
        return {Way::Copy, item.kept, notComparedText(item.original)};
    const PathState kept = pathState(item.kept);
    const bool mayBeEqual = kept.kind == PathState::Kind::File && kept.sizeBytes == item.sizeBytes;
    return {Way::Copy, item.kept, mayBeEqual ? QString() : keptCopyGoneText(item.original, item.kept), digest};
}

QString UndoSources::digestOf(qsizetype index) const
{
    const QString &proved = m_run.outcomes[index].digest;
    return proved.isEmpty() ? m_run.items[index].digest : proved;
}

bool isAsRecorded(const PathState &state, const RunItem &item)
{
    if (state.kind != PathState::Kind::File || state.sizeBytes != item.sizeBytes)
        return false;
    constexpr qint64 coarsestMs = 2000; // FAT
    const bool isRounded = state.modifiedMs % 1000 == 0 && std::abs(state.modifiedMs - item.modifiedMs) < coarsestMs;
    return state.modifiedExact == item.modifiedExact || isRounded;
}

} // namespace Mirrix
