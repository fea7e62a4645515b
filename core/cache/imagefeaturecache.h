#pragma once

#include "core/model/imagefeature.h"

namespace MirrixCore {

// Features of pictures from earlier scans, one small JSON file each below "image_feature_cache" in the cache root. An
// entry counts only while the picture's size and modification time are the ones it was made for. Failures only cost
// time: what cannot be read is not there, what cannot be written is forgotten. All functions are thread-safe; one lock
// serves all.

/// Where the entry of a picture lies; empty while the caches are off.
[[nodiscard]] QString imageFeaturePathFor(const QString &filePath);

/// Sets `feature` and returns true when there is a valid entry; else clears it.
[[nodiscard]] bool loadImageFeature(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs,
                                    ImageFeature &feature);

/// Writes or replaces the entry at once or not at all. Does nothing for a feature that is not valid.
void storeImageFeature(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, const ImageFeature &feature);

/// Deletes all entries. False when some could not be deleted.
bool clearImageFeatureCache();

} // namespace MirrixCore
