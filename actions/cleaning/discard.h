#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "actions/cleaning/durablefiles.h"
#include "actions/cleaning/volumetraits.h"
#include "actions/files/heldfile.h"

#include <QString>

namespace Mirrix {

/// The outcome for one file.
struct CleaningOutcome
{
    QString problem;       ///< why nothing was done, translated; empty when the file was processed
    QString now;           ///< where the file is, when that is neither its old place nor nowhere
    QString digest = {};   ///< "blake3:HEX" of the content that was found equal; empty where it was not read whole
    PathState before = {}; ///< the file as it was found; set when it was processed
};

/// Destroys the surplus file of `item`, or puts a link in its place, once it is proved that the kept file is another
/// file with the same bytes, on the disk: the surplus file is set aside under `asidePath` in its own folder; the kept
/// one must still be there; both are held open and compared; neither may have been written to in between; the kept file
/// is flushed; only then the surplus file is removed. On any failure it is put back. Where that fails, too, `now` is
/// `asidePath`. Two programs with opposite rules cannot remove both files: each has to find its kept file in place
/// after it has set its surplus file aside. In a group that is not one of equal contents the comparison is skipped, and
/// without a kept file everything that concerns it. Blocks for as long as reading both files takes; `isStopped` ends
/// that.
[[nodiscard]] CleaningOutcome discard(const CleaningItem &item, CleaningMethod method, const QString &asidePath,
                                      DurableFiles &durable, VolumeTraits &volumes, const StopQuery &isStopped);

} // namespace Mirrix
