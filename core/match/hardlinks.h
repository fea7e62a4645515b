#pragma once

#include "core/model/scanresult.h"

namespace MirrixCore {

/// Keeps of each group only the first name of each file: further names of it are the same data, and removing them would
/// free nothing. Files whose identity is not known for certain all stay. Groups left with one member are dropped, the
/// waste of the others is counted again.
void collapseHardLinks(QList<DuplicateGroup> &groups);

} // namespace MirrixCore
