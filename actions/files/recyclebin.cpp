#include "actions/files/recyclebin.h"

#include "actions/files/binlookup.h"
#include "actions/files/nativefile.h"

#include <QCoreApplication>
#include <QDateTime>

#include <optional>

namespace Mirrix {

namespace {

/// The state of the disk counts; only where that is unknown, what the system answered.
bool hasLeft(const QString &path, bool isSaidDone)
{
    const PathState::Kind kind = pathState(path).kind;
    return kind == PathState::Kind::Missing || (kind == PathState::Kind::Unknown && isSaidDone);
}

/// Why the file is not handed to the bin; empty when it is.
QString obstacle(const RecycleBin &bin, const QString &path, const BatchControl &control)
{
    const PathState state = pathState(path);
    if (state.kind == PathState::Kind::Missing)
        return QCoreApplication::translate("Mirrix", "文件不存在: %1").arg(path);
    const QString refusal = control.refusal(path);
    if (!refusal.isEmpty())
        return refusal;
    if (state.kind != PathState::Kind::File || !bin.canTake(path))
        return QCoreApplication::translate("Mirrix", "无法放入回收站，已保留: %1").arg(path);
    return {};
}

void sendBatch(const RecycleBin &bin, const QStringList &batch, BatchResult &result)
{
    const RecycleBin::Answer answer = bin.send(batch);
    const bool isSaidDone = answer.code == 0 && !answer.isAborted;
    if (!isSaidDone)
        result.errors.append(binFailureText(answer.code, batch.size()));
    for (const QString &path : batch) {
        if (hasLeft(path, isSaidDone))
            ++result.count;
        else
            result.errors.append(QCoreApplication::translate("Mirrix", "未移入回收站，仍在原处: %1").arg(path));
    }
}

} // namespace

bool putBackRecycled(const QString &path, const QString &placed)
{
    const std::optional<BinEntry> entry =
        placed.isEmpty() ? findInBin(path, 0, 0, QDateTime::currentMSecsSinceEpoch()) : binEntryAt(placed);
    return entry && putBackFromBin(*entry) == FileFault::None;
}

QString binFailureText(int code, qsizetype fileCount)
{
    return QCoreApplication::translate("Mirrix", "批量移入回收站失败 (code %1, %2 个文件)").arg(code).arg(fileCount);
}

BatchResult recycleInto(const RecycleBin &bin, const QStringList &paths, const BatchControl &control)
{
    BatchResult result;
    for (qsizetype begin = 0; begin < paths.size(); begin += bin.batchSize) {
        result.isCancelled = !control.mayGoOn(begin, paths.size());
        if (result.isCancelled)
            break;
        QStringList batch;
        const QStringList candidates = paths.mid(begin, bin.batchSize);
        for (const QString &path : candidates) {
            const QString problem = obstacle(bin, path, control);
            if (problem.isEmpty())
                batch.append(path);
            else
                result.errors.append(problem);
        }
        batch.removeDuplicates(); // a file counts once
        if (!batch.isEmpty())
            sendBatch(bin, batch, result);
    }
    return result;
}

} // namespace Mirrix
