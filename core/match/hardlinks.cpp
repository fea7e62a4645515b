#include "core/match/hardlinks.h"

#include <QSet>

#include <utility>

namespace MirrixCore {

namespace {

void collapse(DuplicateGroup &group)
{
    QSet<std::pair<quint32, quint64>> kept;
    const qsizetype before = group.files.size();
    group.files.removeIf([&](const FileEntry &file) {
        if (!file.hasFileId || file.fileIndex == 0)
            return false;
        const std::pair identity(file.volumeSerial, file.fileIndex);
        if (kept.contains(identity))
            return true;
        kept.insert(identity);
        return false;
    });
    if (group.files.size() != before)
        group.wastedBytes = wasteOf(group.files);
}

} // namespace

void collapseHardLinks(QList<DuplicateGroup> &groups)
{
    for (DuplicateGroup &group : groups)
        collapse(group);
    groups.removeIf([](const DuplicateGroup &group) { return group.files.size() < 2; });
}

} // namespace MirrixCore
