#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanresult.h"

namespace MirrixCore {

/// Drops groups of fewer than two members and, with `ignoreSameFolderGroups`, those whose members all lie in one folder
/// (by exact text); counts the waste of the others as the sum of the sizes less the largest one.
void finishGroups(QList<DuplicateGroup> &groups, const ScanOptions &options);

/// The last step of every matcher: drops further names of one file when the options ask for it, counts the waste of
/// all groups and sorts by it.
void finishResult(ScanResult &result, const ScanOptions &options);

} // namespace MirrixCore
