#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "actions/cleaning/volumetraits.h"
#include "actions/files/heldfile.h"
#include "actions/files/nativefile.h"

#include <QString>

namespace Mirrix {

// What a scan found may no longer be so when it is acted on. Texts are translated and name the file; empty means that
// the file may be processed. Nothing is changed on the disk. Thread-safe.

/// Whether `state` is that of the plain file that the scan saw.
[[nodiscard]] bool isAsScanned(const PathState &state, const ScannedFile &file);

/// Whether the surplus file is a plain file of the size, time and (where the scan noted it) number that the scan saw,
/// and so is the kept one, and both are two files as far as the system knows. Asks the disk twice. `surplus`, where
/// given, gets what the surplus file is.
[[nodiscard]] QString itemProblem(const CleaningItem &item, PathState *surplus = nullptr);

/// Whether the kept file is where it should be once the surplus file has left its place: had both paths led to one file
/// by way of mounts, links or letter case, it is gone now. Empty for an item without a kept file.
[[nodiscard]] QString keptProblem(const CleaningItem &item, VolumeTraits &volumes);

/// Whether both, still in their places, agree in their sample blocks, at most 20 KiB each, or in all bytes. Nothing is
/// read where the group is not one of equal contents.
[[nodiscard]] QString contentProblem(const CleaningItem &item, bool comparesWholeContents, const StopQuery &isStopped);

/// Whether a link to `target` may take the place of `file`: with another owner or other permissions, some user would
/// gain or lose access.
[[nodiscard]] QString accessProblem(const QString &file, const QString &target);

// Messages that several steps share.
[[nodiscard]] QString keptChangedText(const CleaningItem &item);
[[nodiscard]] QString sameFileText(const QString &path);
[[nodiscard]] QString changedText(const QString &path);
[[nodiscard]] QString differsText(const QString &path);
[[nodiscard]] QString inUseText(const QString &path);
[[nodiscard]] QString stoppedText(const QString &path);

} // namespace Mirrix
