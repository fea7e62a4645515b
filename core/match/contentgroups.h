#pragma once

#include "core/match/candidates.h"
#include "core/scan/scanoptions.h"
#include "core/scan/scanprogress.h"
#include "core/scan/scanresult.h"

namespace MirrixCore {

/// Adds a group for each full digest that two or more candidates share, keyed by its lower-case hex digits, members in
/// input order. `isEqualContent`: whether those digests are of whole files. The candidates end up sorted.
void collectGroups(Candidates &candidates, const QList<FileEntry> &files, bool isEqualContent, ScanResult &result);

/// What every matcher of contents does to its groups at last: splits them by the rules that are on, drops further names
/// of one file when asked to, counts the waste and sorts by it.
void finishContentGroups(ScanResult &result, const ScanOptions &options, const CancelQuery &cancelled);

} // namespace MirrixCore
