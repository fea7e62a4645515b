#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"

#include <QString>

namespace MirrixCore {

/// The rule key of a file: for each rule that is on a part such as "FN:name" or "SZ:17", joined by "|"; empty when no
/// rule is on. Tolerances make buckets, not distances. `includeMedia` adds the parts on media members for the options'
/// search mode. Thread-safe.
[[nodiscard]] QString buildRuleKey(const FileEntry &entry, const ScanOptions &options, bool includeMedia);

/// Groups files whose rule keys are equal; with `similarNames`, those of them whose names are similar as well, and then
/// files without a key too. Members in input order, groups by waste. Without groups when `cancelled` answers true.
/// Reports under the phase "metadata", the names that are compared again.
[[nodiscard]] ScanResult groupByRuleKeys(const QList<FileEntry> &files, const ScanOptions &options, bool includeMedia,
                                         const CancelQuery &cancelled = {}, const ProgressCallback &progress = {});

/// Whether a rule that splits content groups is on.
[[nodiscard]] bool hasRefiningRule(const ScanOptions &options);

/// Splits content groups by the rules on names, sizes, dates and paths (never media); unchanged when none is on. Keys
/// are the content key, "|", the rule key. Without groups when `cancelled` answers true.
[[nodiscard]] QList<DuplicateGroup> refineGroupsByRuleKeys(const QList<DuplicateGroup> &groups,
                                                           const ScanOptions &options,
                                                           const CancelQuery &cancelled = {});

} // namespace MirrixCore
