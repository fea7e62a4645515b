#include "actions/cleaning/emptyfolderremoval.h"

#include "actions/nativefile.h"
#include "actions/operationslog.h"
#include "actions/records/logevents.h"

namespace Mirrix {

BatchResult removeEmptyFolders(const QStringList &folders, OperationsLog &log, const BatchProgress &progress)
{
    BatchResult result;
    if (folders.isEmpty())
        return result;
    if (!log.append({emptyFoldersEvent(folders)})) {
        result.errors.append(QStringLiteral("cannot write the log %1; nothing was done").arg(log.filePath()));
        return result;
    }
    for (qsizetype i = 0; i < folders.size(); ++i) {
        result.isCancelled = progress && !progress(i, folders.size());
        if (result.isCancelled)
            break;
        const bool isFolder = pathState(folders[i]).kind == PathState::Kind::Folder;
        if (isFolder && removeEmptyFolder(folders[i]) == FileFault::None)
            ++result.count;
        else
            result.errors.append(
                QStringLiteral("%1: no empty folder any more, or it must not be removed").arg(folders[i]));
    }
    if (!log.append({emptyFoldersRemovedEvent(result.count, folders.size())}))
        result.errors.append(QStringLiteral("cannot write the log %1").arg(log.filePath()));
    return result;
}

} // namespace Mirrix
