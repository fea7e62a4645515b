#include "core/match/emptyfiles.h"

namespace MirrixCore {

ScanResult groupEmptyFiles(const QList<FileEntry> &files)
{
    ScanResult result;
    result.filesScanned = files.size();
    DuplicateGroup group;
    group.key = QStringLiteral("empty");
    for (const FileEntry &file : files) {
        result.totalBytes += file.size;
        if (file.size == 0)
            group.files.append(file);
    }
    if (!group.files.isEmpty())
        result.groups.append(group);
    return result;
}

} // namespace MirrixCore
