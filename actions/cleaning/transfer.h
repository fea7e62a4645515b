#pragma once

#include "actions/cleaning/discard.h"
#include "actions/cleaning/volumetraits.h"

namespace Mirrix {

/// Moves the surplus file of `item` to the free path `to`, where it stays whole, and with a method that links puts a
/// link in its place. Before, both files are compared, in samples or in all their bytes; afterwards the kept file must
/// still be there, else the surplus file is put back, as it is when the link fails. Where that fails `now` is `to`; it
/// is that, too, when all went well. Blocks.
[[nodiscard]] CleaningOutcome transfer(const CleaningItem &item, CleaningMethod method, const QString &to,
                                       bool comparesWholeContents, VolumeTraits &volumes, const StopQuery &isStopped);

} // namespace Mirrix
