#include "core/match/emptyfiles.h"

namespace MirrixCore {

ScanResult groupEmptyFiles(const QList<FileEntry> &files)
{
    ScanResult result = resultOn(files);
    DuplicateGroup group;
    group.key = emptyFilesKey;
    for (const FileEntry &file : files) {
        if (file.size == 0)
            group.files.append(file);
    }
    group.isEqualContent = true;
    if (!group.files.isEmpty())
        result.groups.append(group);
    return result;
}

} // namespace MirrixCore
