#pragma once

#include "actions/cleaning/discard.h"
#include "actions/cleaning/volumetraits.h"
#include "actions/files/recyclebin.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace Mirrix {

/// What is checked before a file is handed to the bin.
struct RecyclingChecks
{
    bool comparesWholeContents = false;
    VolumeTraits &volumes;
    StopQuery isStopped;
    std::function<bool(const CleaningItem &)> isAlias; ///< whether surplus and kept file are one
};

/// Sends the surplus files of `items`, at most as many as one call of the bin takes, to the bin. Before, each is
/// compared with its kept file, in samples or in all bytes; afterwards the kept file must still be there, else the
/// surplus file is put back. The outcomes are in the order of the items; `batchErrors` gets the bin's messages on the
/// whole batch. The disk, not the bin's answer, decides what counts as done. Blocks.
[[nodiscard]] QList<CleaningOutcome> recycle(const RecycleBin &bin, const QList<CleaningItem> &items,
                                             const RecyclingChecks &checks, QStringList &batchErrors);

} // namespace Mirrix
