#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "actions/cleaning/undosource.h"
#include "actions/files/heldfile.h"

#include <QString>

namespace Mirrix {

/// The outcome of restoring one file.
struct UndoneItem
{
    QString problem;     ///< why it is not back, translated; empty when it is
    QString note = {};   ///< what could not be tidied up, translated
    bool isLeft = false; ///< its backup could not be removed
};

/// Brings the file of `item` back from a source without a problem, with its recorded time and permissions. A link that
/// the run made is set aside, a backup or a new copy is checked against its digest, and nothing else is ever replaced;
/// whatever fails puts the link back. A crash leaves the file whole in its place or where it was. That the name is on
/// the disk is left to the caller. Blocks for as long as reading the file takes; `isStopped` ends that.
[[nodiscard]] UndoneItem undoItem(const RunItem &item, CleaningMethod method, const UndoSource &source,
                                  const StopQuery &isStopped);

} // namespace Mirrix
