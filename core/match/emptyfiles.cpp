#include "core/match/emptyfiles.h"

namespace MirrixCore {

ScanResult groupEmptyFiles(const QList<FileEntry> &files)
{
    ScanResult result = resultOn(files);
    DuplicateGroup group;
    group.key = QStringLiteral("empty");
    for (const FileEntry &file : files) {
        if (file.size == 0)
            group.files.append(file);
    }
    if (!group.files.isEmpty())
        result.groups.append(group);
    return result;
}

} // namespace MirrixCore
