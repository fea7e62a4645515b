#include "actions/cleaning/emptyfolderremoval.h"

#include "actions/files/nativefile.h"
#include "actions/records/logevents.h"
#include "actions/records/operationslog.h"
#include "actions/records/runjournal.h"

#include <QCoreApplication>
#include <QDateTime>

namespace Mirrix {

namespace {

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

/// The folders as they are before the first one goes, which changes the times of those above.
QList<RunItem> plannedItems(const QStringList &folders)
{
    QList<RunItem> items;
    for (const QString &folder : folders) {
        const PathState state = pathState(folder);
        RunItem item;
        item.original = folder;
        item.modifiedMs = state.modifiedMs;
        item.modifiedExact = state.modifiedExact;
        item.mode = state.mode;
        items.append(item);
    }
    return items;
}

/// Empty, or why the folder stays.
QString removalProblem(const QString &folder)
{
    // On Windows the call would remove a link to a folder as well.
    const bool isFolder = pathState(folder).kind == PathState::Kind::Folder;
    return isFolder && removeEmptyFolder(folder) == FileFault::None
               ? QString()
               : text(QT_TRANSLATE_NOOP("Mirrix", "文件夹已不为空，或不允许删除: %1"), folder);
}

} // namespace

CleaningResult removeEmptyFolders(const QStringList &folders, const CleaningServices &services,
                                  const BatchProgress &progress, const QString &undoOf)
{
    CleaningResult result;
    if (folders.isEmpty())
        return result;
    const QString &log = services.log.filePath();
    if (!services.log.append({emptyFoldersEvent(folders)})) {
        result.errors.append(text(QT_TRANSLATE_NOOP("Mirrix", "无法写入操作记录，未处理任何文件: %1"), log));
        return result;
    }
    RunJournalWriter journal;
    RunHeader header;
    header.startedMs = QDateTime::currentMSecsSinceEpoch();
    header.command = services.command;
    header.method = emptyFoldersMethod;
    header.undoOf = undoOf;
    if (!journal.create(services.dataDirectory, header, plannedItems(folders))) {
        result.errors.append(journal.errorText());
        return result;
    }
    result.runId = journal.id();
    bool isNoted = true;
    for (qsizetype i = 0; isNoted && i < folders.size(); ++i) {
        result.isCancelled = progress && !progress(i, folders.size());
        if (result.isCancelled)
            break;
        const QString problem = removalProblem(folders[i]);
        if (problem.isEmpty())
            ++result.count;
        else
            result.errors.append(problem);
        isNoted = journal.outcome({i, problem.isEmpty() ? ItemState::Done : ItemState::Failed, {}, problem, {}, 0, 0});
    }
    if (!journal.finish())
        result.errors.append(journal.errorText());
    if (!services.log.append({emptyFoldersRemovedEvent(result.count, folders.size())}))
        result.errors.append(text(QT_TRANSLATE_NOOP("Mirrix", "无法写入操作日志: %1"), log));
    return result;
}

} // namespace Mirrix
