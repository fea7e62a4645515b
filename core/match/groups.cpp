#include "core/match/groups.h"

#include "core/match/hardlinks.h"
#include "core/platform/pathtext.h"

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

void finishGroups(QList<DuplicateGroup> &groups, const ScanOptions &options)
{
    groups.removeIf([&](const DuplicateGroup &group) {
        return group.files.size() < 2 || (options.ignoreSameFolderGroups && isInOneFolder(group));
    });
    for (DuplicateGroup &group : groups)
        group.wastedBytes = wasteOf(group.files);
}

void finishResult(ScanResult &result, const ScanOptions &options)
{
    if (options.collapseHardLinks)
        collapseHardLinks(result.groups);
    result.wastedBytes = totalWaste(result.groups);
    sortByWaste(result.groups);
}

} // namespace MirrixCore
