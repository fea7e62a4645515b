#pragma once

#include "core/model/scanresult.h"
#include "ui/state/selectionmarks.h"

namespace Mirrix {

/// What the last scan found and what of it is ticked. Owned by the main window; the models of the results page read it
/// in place, so it must not change without their being notified.
struct ResultSet
{
    QList<MirrixCore::DuplicateGroup> groups;
    QList<MirrixCore::FolderGroup> folderGroups;
    QList<MirrixCore::FileEntry> remaining;
    qint64 filesScanned = 0;
    qint64 totalBytes = 0;
    qint64 wastedBytes = 0;
    qint64 elapsedMs = 0;
    qint64 candidates = 0;
    SelectionMarks marks;
};

} // namespace Mirrix
