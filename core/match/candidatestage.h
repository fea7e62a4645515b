#pragma once

#include "core/match/candidates.h"
#include "core/threads/stage.h"

namespace MirrixCore {

/// One stage over candidates among `files`: `hash(candidate)` for each, on the thread pool.
template <typename Hash>
void hashEach(const ScanContext &context, const QString &phase, const QList<FileEntry> &files, Candidates &candidates,
              Hash hash)
{
    runStage(
        context, phase, files.size(), std::ssize(candidates),
        [&](qsizetype i) { hash(candidates[static_cast<size_t>(i)]); },
        [&](qsizetype i) -> const QString & { return files[candidates[static_cast<size_t>(i)].file].path; });
}

} // namespace MirrixCore
