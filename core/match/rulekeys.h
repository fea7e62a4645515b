#pragma once

#include "core/scan/scanoptions.h"
#include "core/scan/scanresult.h"

namespace MirrixCore {

/// Groups files whose rule keys are equal. `includeMedia` adds the rules on media members. Not written yet: finds
/// nothing.
[[nodiscard]] ScanResult groupByRuleKeys(const QList<FileEntry> &files, const ScanOptions &options, bool includeMedia);

/// Whether a rule that splits content groups is on.
[[nodiscard]] bool hasRefiningRule(const ScanOptions &options);

/// Splits content groups by the rules on names, sizes, dates and paths; unchanged when none is on. Splitting is not
/// written yet: with a rule on it finds nothing, since an unsplit group would claim more than was asked.
[[nodiscard]] QList<DuplicateGroup> refineGroupsByRuleKeys(const QList<DuplicateGroup> &groups,
                                                           const ScanOptions &options);

} // namespace MirrixCore
