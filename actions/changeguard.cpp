#include "actions/changeguard.h"

#include "actions/movefile.h"

#include <QCoreApplication>
#include <QHash>

namespace Mirrix {

namespace {

using MirrixCore::FileEntry;

QString changedText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "文件在扫描后已更改，已保留: %1").arg(path);
}

/// What the guard of a batch keeps of a file.
struct Record
{
    qint64 sizeBytes;
    qint64 modifiedMs;
    MirrixCore::FileIdentity identity;
};

Record recordOf(const FileEntry &file)
{
    return {file.size, file.modifiedMs, {file.volumeSerial, file.fileIndex, file.linkCount, file.hasFileId}};
}

bool matches(const PathState &state, const Record &record, const QString &path)
{
    return state.kind == PathState::Kind::File && state.sizeBytes == record.sizeBytes &&
           state.modifiedMs == record.modifiedMs &&
           (!state.identity.isOtherThan(record.identity) || mayNumberAnew(path));
}

} // namespace

QString changeProblem(const FileEntry &file)
{
    return matches(pathState(file.path), recordOf(file), file.path) ? QString() : changedText(file.path);
}

QString surplusProblem(const FileEntry &surplus, const FileEntry &keeper)
{
    const PathState one = pathState(surplus.path);
    const PathState other = pathState(keeper.path);
    if (!matches(one, recordOf(surplus), surplus.path))
        return changedText(surplus.path);
    if (!matches(other, recordOf(keeper), keeper.path))
        return QCoreApplication::translate("Mirrix", "要保留的文件已更改，未处理: %1").arg(surplus.path);
    if (!one.identity.isOtherThan(other.identity))
        return QCoreApplication::translate("Mirrix", "与要保留的文件可能是同一个文件，未处理: %1").arg(surplus.path);
    return {};
}

QString finalSurplusProblem(const FileEntry &surplus, const FileEntry &keeper)
{
    const QString problem = surplusProblem(surplus, keeper);
    return problem.isEmpty() && !haveSameContent(surplus.path, keeper.path) ? changedText(surplus.path) : problem;
}

PathGuard guardAgainstChanges(const QList<FileEntry> &files)
{
    QHash<QString, Record> records;
    records.reserve(files.size());
    for (const FileEntry &file : files)
        records.insert(file.path, recordOf(file));
    return [records](const QString &path) {
        const auto record = records.constFind(path);
        const bool isSame = record != records.cend() && matches(pathState(path), *record, path);
        return isSame ? QString() : changedText(path);
    };
}

} // namespace Mirrix
