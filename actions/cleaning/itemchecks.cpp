#include "actions/cleaning/itemchecks.h"

#include "actions/files/fileaccess.h"
#include "actions/files/movefile.h"
#include "core/hash/samples.h"
#include "core/platform/filereader.h"

#include <QCoreApplication>

namespace Mirrix {

namespace {

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

/// Opens both files; false with the reason when one cannot be opened.
bool openBoth(const CleaningItem &item, HeldFile &file, HeldFile &kept, QString &problem)
{
    if (!file.open(item.file.path, HeldFile::Purpose::Remove))
        problem = file.isInUse() ? inUseText(item.file.path) : changedText(item.file.path);
    else if (!kept.open(item.kept.path, HeldFile::Purpose::Keep))
        problem = kept.isInUse() ? inUseText(item.kept.path) : keptChangedText(item);
    return problem.isEmpty();
}

} // namespace

bool isAsScanned(const PathState &state, const ScannedFile &file)
{
    return state.kind == PathState::Kind::File && state.sizeBytes == file.sizeBytes &&
           state.modifiedMs == file.modifiedMs &&
           (!state.identity.isOtherThan(file.identity) || mayReassignFileIds(file.path));
}

QString itemProblem(const CleaningItem &item, PathState *surplus)
{
    const PathState file = pathState(item.file.path);
    if (surplus)
        *surplus = file;
    if (file.kind == PathState::Kind::Missing)
        return text(QT_TRANSLATE_NOOP("Mirrix", "文件不存在: %1"), item.file.path);
    if (!isAsScanned(file, item.file))
        return changedText(item.file.path);
    if (!item.hasKept())
        return {};
    const PathState kept = pathState(item.kept.path);
    if (!isAsScanned(kept, item.kept))
        return keptChangedText(item);
    // Unknown identities count as the same file: keeping a copy too many loses nothing.
    if (!file.identity.isOtherThan(kept.identity))
        return text(QT_TRANSLATE_NOOP("Mirrix", "与要保留的文件可能是同一个文件，未处理: %1"), item.file.path);
    return {};
}

QString keptProblem(const CleaningItem &item, VolumeTraits &volumes)
{
    if (!item.hasKept())
        return {};
    const PathState kept = pathState(item.kept.path);
    const bool isGone =
        kept.kind == PathState::Kind::Missing ||
        (volumes.mayReassignFileIds(item.kept.path, kept.identity) && !MirrixCore::FileReader().open(item.kept.path));
    if (isGone)
        return sameFileText(item.file.path);
    return isAsScanned(kept, item.kept) ? QString() : keptChangedText(item);
}

QString contentProblem(const CleaningItem &item, bool comparesWholeContents, const StopQuery &isStopped)
{
    if (!item.hasKept() || !item.isEqualContent || item.file.sizeBytes == 0)
        return {};
    if (!comparesWholeContents) { // samples are enough: the file is moved, not destroyed
        const bool agree = MirrixCore::sampledByteSimilarity(item.file.path, item.kept.path) == 100;
        return agree ? QString() : differsText(item.file.path);
    }
    HeldFile file;
    HeldFile kept;
    QString problem;
    if (!openBoth(item, file, kept, problem))
        return problem;
    const Comparison comparison = compareContents(file, kept, isStopped);
    if (comparison == Comparison::Stopped)
        return stoppedText(item.file.path);
    return comparison == Comparison::Equal ? QString() : differsText(item.file.path);
}

QString accessProblem(const QString &file, const QString &target)
{
    if (haveSameAccess(file, target))
        return {};
    return text(QT_TRANSLATE_NOOP("Mirrix", "所有者或权限与链接目标不同，未处理: %1"), file);
}

QString sameFileText(const QString &path)
{
    return text(QT_TRANSLATE_NOOP("Mirrix", "要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1"), path);
}

QString keptChangedText(const CleaningItem &item)
{
    return text(QT_TRANSLATE_NOOP("Mirrix", "要保留的文件已更改，未处理: %1"), item.file.path);
}

QString changedText(const QString &path)
{
    return text(QT_TRANSLATE_NOOP("Mirrix", "文件在扫描后已更改，已保留: %1"), path);
}

QString differsText(const QString &path)
{
    return text(QT_TRANSLATE_NOOP("Mirrix", "内容与要保留的文件不同，已保留: %1"), path);
}

QString inUseText(const QString &path)
{
    return text(QT_TRANSLATE_NOOP("Mirrix", "文件正被其他程序使用，未处理: %1"), path);
}

QString stoppedText(const QString &path)
{
    return text(QT_TRANSLATE_NOOP("Mirrix", "已停止，未处理: %1"), path);
}

} // namespace Mirrix
