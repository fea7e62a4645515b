#include "core/scan/scanresult.h"

#include <algorithm>

namespace MirrixCore {

void sortByWaste(QList<DuplicateGroup> &groups)
{
    std::sort(groups.begin(), groups.end(),
              [](const DuplicateGroup &a, const DuplicateGroup &b) { return a.wastedBytes > b.wastedBytes; });
}

qint64 wasteOfEqualFiles(const QList<FileEntry> &files)
{
    qint64 sum = 0;
    for (const FileEntry &file : files)
        sum += file.size;
    return files.isEmpty() ? 0 : sum - files.constFirst().size;
}

qint64 totalWaste(const QList<DuplicateGroup> &groups)
{
    qint64 sum = 0;
    for (const DuplicateGroup &group : groups)
        sum += group.wastedBytes;
    return sum;
}

} // namespace MirrixCore
