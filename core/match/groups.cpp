#include "core/match/groups.h"

#include <algorithm>

namespace MirrixCore {

namespace {

bool isInOneFolder(const DuplicateGroup &group)
{
    const QStringView folder = folderOf(group.files.constFirst().path);
    return std::all_of(group.files.begin(), group.files.end(),
                       [&](const FileEntry &file) { return folderOf(file.path) == folder; });
}

} // namespace

QStringView folderOf(QStringView path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    const bool isRoot = slash == 0 || (slash == 2 && path[1] == QLatin1Char(':'));
    return path.left(isRoot ? slash + 1 : std::max<qsizetype>(slash, 0));
}

QStringView nameOf(QStringView path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

void finishGroups(QList<DuplicateGroup> &groups, const ScanOptions &options)
{
    groups.removeIf([&](const DuplicateGroup &group) {
        return group.files.size() < 2 || (options.ignoreSameFolderGroups && isInOneFolder(group));
    });
    for (DuplicateGroup &group : groups)
        group.wastedBytes = wasteOf(group.files);
}

} // namespace MirrixCore
