#include "actions/cleaning/transfer.h"

#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/itemchecks.h"
#include "actions/files/fileoperations.h"
#include "actions/files/movefile.h"

#include <QCoreApplication>

namespace Mirrix {

namespace {

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

QString linkTarget(const CleaningItem &item)
{
    return item.linkTarget.isEmpty() ? item.kept.path : item.linkTarget;
}

/// Why no link can take the file's place; empty when one can.
QString linkObstacle(const CleaningItem &item, const PathState &file)
{
    const PathState target = pathState(linkTarget(item));
    if (target.kind != PathState::Kind::File)
        return text(QT_TRANSLATE_NOOP("Mirrix", "链接目标不是可用的文件: %1"), linkTarget(item));
    // Unknown identities count as the same: the link would lead nowhere once its target is moved.
    if (!file.identity.isOtherThan(target.identity))
        return text(QT_TRANSLATE_NOOP("Mirrix", "与要保留的文件可能是同一个文件，未处理: %1"), item.file.path);
    return accessProblem(item.file.path, linkTarget(item));
}

QString failureText(const CleaningItem &item, CleaningMethod method)
{
    return method == CleaningMethod::Move ? text(QT_TRANSLATE_NOOP("Mirrix", "无法移动: %1"), item.file.path)
                                          : backupFailureText(item.file.path);
}

CleaningOutcome putBack(const CleaningItem &item, const QString &from, const QString &problem)
{
    if (moveFile(from, item.file.path) == FileFault::None)
        return {problem, {}};
    const QString where = text(QT_TRANSLATE_NOOP("Mirrix", "原文件未能放回，可从备份中恢复: %1"), item.file.path);
    return {problem + QLatin1Char('\n') + where, from};
}

} // namespace

CleaningOutcome transfer(const CleaningItem &item, CleaningMethod method, const QString &to, bool comparesWholeContents,
                         VolumeTraits &volumes, const StopQuery &isStopped)
{
    PathState before;
    QString problem = itemProblem(item, &before);
    if (problem.isEmpty() && isLinking(method))
        problem = linkObstacle(item, before);
    if (problem.isEmpty())
        problem = contentProblem(item, comparesWholeContents, isStopped);
    if (!problem.isEmpty())
        return {problem, {}};
    const FileFault fault = moveFile(item.file.path, to);
    if (fault == FileFault::Occupied)
        return {text(QT_TRANSLATE_NOOP("Mirrix", "目标已存在: %1"), to), {}};
    if (fault != FileFault::None)
        return {failureText(item, method), {}};
    // Checked again now that the file has left its place: a kept path that led to the same file is gone.
    problem = keptProblem(item, volumes);
    const bool wantsLink = problem.isEmpty() && isLinking(method);
    if (wantsLink && method == CleaningMethod::BackupAndHardLink)
        static_cast<void>(createHardLink(item.file.path, linkTarget(item), &problem));
    else if (wantsLink)
        static_cast<void>(createSymbolicLink(item.file.path, linkTarget(item), &problem));
    return problem.isEmpty() ? CleaningOutcome{{}, to, {}, before} : putBack(item, to, problem);
}

} // namespace Mirrix
