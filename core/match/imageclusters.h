#pragma once

#include "core/media/imagehash.h"
#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"

#include <vector>

namespace MirrixCore {

/// Whether everything but the hashes allows two pictures to be similar under the options: dimensions, aspect ratio,
/// shot time, position and tags, as far as they are known of both. Thread-safe.
[[nodiscard]] bool factsAllowPair(const FileEntry &a, const FileEntry &b, const ScanOptions &options);

/// Groups pictures whose hashes are at most `imageMaxDistance` bits apart and which pass the other checks of the
/// options, each group named "img-" and the hash of its first member. `features[i]` belongs to `files[i]`; pictures
/// without a valid one join no group. Two pictures are compared only if the primary hash of one and some variant of the
/// other have the same upper 16 bits, their lowest apart: near-linear in the number of pictures, at the price of some
/// that are missed. Similarity passes on: the ends of a group may be further apart. Members and groups in list order,
/// which has no influence on the groups; no group when `cancelled` answers true.
[[nodiscard]] QList<DuplicateGroup> groupSimilarImages(const QList<FileEntry> &files,
                                                       const std::vector<ImageFeature> &features,
                                                       const ScanOptions &options, const CancelQuery &cancelled);

} // namespace MirrixCore
