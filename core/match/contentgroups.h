#pragma once

#include "core/match/candidates.h"
#include "core/model/scancontext.h"
#include "core/model/scanresult.h"

namespace MirrixCore {

/// Which digests the members of a group share.
enum class Shared
{
    Full,        ///< the full one, of the whole content
    QuickAndFull ///< both, since neither covers the whole content
};

/// Adds a group for each digest, or pair of them, that two or more candidates share, keyed by the lower-case hex digits
/// of the full one, members in input order. Two groups may so have one key. `isEqualContent`: whether the full digests
/// are of whole files. The candidates end up sorted.
void collectGroups(Candidates &candidates, const QList<FileEntry> &files, Shared shared, bool isEqualContent,
                   ScanResult &result);

/// What every matcher of contents does to its groups at last: splits them by the rules that are on, drops further names
/// of one file when asked to, counts the waste and sorts by it.
void finishContentGroups(ScanResult &result, const ScanContext &context);

} // namespace MirrixCore
