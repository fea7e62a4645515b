#include "core/model/scanresult.h"

#include <algorithm>

namespace MirrixCore {

void sortByWaste(QList<DuplicateGroup> &groups)
{
    std::sort(groups.begin(), groups.end(),
              [](const DuplicateGroup &a, const DuplicateGroup &b) { return a.wastedBytes > b.wastedBytes; });
}

qint64 wasteOf(const QList<FileEntry> &files)
{
    qint64 sum = 0;
    qint64 largest = 0;
    for (const FileEntry &file : files) {
        sum += file.size;
        largest = std::max(largest, file.size);
    }
    return sum - largest;
}

qint64 totalSize(const QList<FileEntry> &files)
{
    qint64 sum = 0;
    for (const FileEntry &file : files)
        sum += file.size;
    return sum;
}

ScanResult resultOn(const QList<FileEntry> &files)
{
    ScanResult result;
    result.filesScanned = files.size();
    result.totalBytes = totalSize(files);
    return result;
}

qint64 totalWaste(const QList<DuplicateGroup> &groups)
{
    qint64 sum = 0;
    for (const DuplicateGroup &group : groups)
        sum += group.wastedBytes;
    return sum;
}

} // namespace MirrixCore
