#include "core/media/metadata.h"

#include <algorithm>

namespace MirrixCore::MediaMetadata {

namespace {

bool hasEnabledTag(const QList<TagEntry> &tags)
{
    return std::any_of(tags.begin(), tags.end(), [](const TagEntry &tag) { return tag.enabled == 1; });
}

} // namespace

bool isNeeded(const ScanOptions &options)
{
    switch (static_cast<SearchMode>(options.searchMode)) {
    case SearchMode::Images:
        return options.imageSameDimensions || options.imageSameShotTime || options.imageGroupByGps ||
               hasEnabledTag(options.imageTags);
    case SearchMode::Audio:
        return options.mediaCompareDepth == 4 || options.audioMatchDuration || hasEnabledTag(options.audioTags);
    case SearchMode::Video:
        return options.mediaCompareDepthAlt == 2 || options.videoMatchDuration || hasEnabledTag(options.videoTags);
    case SearchMode::Files:
        break;
    }
    return false;
}

void enrich(QList<FileEntry> &, const ScanOptions &, const ProgressCallback &, const CancelQuery &) {}

} // namespace MirrixCore::MediaMetadata
