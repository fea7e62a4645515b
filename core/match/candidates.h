#pragma once

#include "core/match/digest.h"
#include "core/model/fileentry.h"

#include <QList>

#include <span>
#include <vector>

namespace MirrixCore {

/// A file of a size that occurs more than once, and what is known of its content.
struct Candidate
{
    quint32 file = 0; ///< index into the matcher's input
    Digest quick;     ///< result of the cheap first stage; files whose values differ are different
    Digest full;      ///< what makes files duplicates
};

using Candidates = std::vector<Candidate>;

/// Candidates next to each other that have a digest in common.
using Run = std::span<Candidate>;

/// The files of `files` that are not empty and share their size with another, in input order.
[[nodiscard]] Candidates filesOfSharedSize(const QList<FileEntry> &files);

/// Sorts by `digest`, input order within, and returns each run of two or more equal, non-empty ones.
[[nodiscard]] std::vector<Run> runsOf(Candidates &candidates, Digest Candidate::*digest);

/// Brings the candidates that share a quick digest with another to the front, runs together, and takes the others' full
/// digests from them, which are never needed; returns how many are in front.
[[nodiscard]] qsizetype moveSharedToFront(Candidates &candidates);

} // namespace MirrixCore
