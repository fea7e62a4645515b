#include "actions/changeguard.h"

#include "actions/nativefile.h"

#include <QCoreApplication>
#include <QHash>

namespace Mirrix {

namespace {

using MirrixCore::FileEntry;

QString changedText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "文件在扫描后已更改，已保留: %1").arg(path);
}

bool matches(const PathState &state, qint64 sizeBytes, qint64 modifiedMs)
{
    return state.kind == PathState::Kind::File && state.sizeBytes == sizeBytes && state.modifiedMs == modifiedMs;
}

} // namespace

QString changeProblem(const FileEntry &file)
{
    return matches(pathState(file.path), file.size, file.modifiedMs) ? QString() : changedText(file.path);
}

QString surplusProblem(const FileEntry &surplus, const FileEntry &keeper)
{
    const PathState one = pathState(surplus.path);
    const PathState other = pathState(keeper.path);
    if (!matches(one, surplus.size, surplus.modifiedMs))
        return changedText(surplus.path);
    if (!matches(other, keeper.size, keeper.modifiedMs))
        return QCoreApplication::translate("Mirrix", "要保留的文件已更改，未处理: %1").arg(surplus.path);
    if (!one.identity.isOtherThan(other.identity))
        return QCoreApplication::translate("Mirrix", "与要保留的文件可能是同一个文件，未处理: %1").arg(surplus.path);
    return {};
}

PathGuard guardAgainstChanges(const QList<FileEntry> &files)
{
    QHash<QString, std::pair<qint64, qint64>> records;
    records.reserve(files.size());
    for (const FileEntry &file : files)
        records.insert(file.path, {file.size, file.modifiedMs});
    return [records](const QString &path) {
        const auto record = records.constFind(path);
        const bool isSame = record != records.cend() && matches(pathState(path), record->first, record->second);
        return isSame ? QString() : changedText(path);
    };
}

} // namespace Mirrix
