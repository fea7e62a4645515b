#include "core/scan/duplicatescanner.h"

#include "core/cache/cacheroot.h"
#include "core/cache/imagefeaturecache.h"
#include "core/match/hardlinks.h"
#include "core/match/imageclusters.h"
#include "core/match/parallel.h"
#include "core/media/mediafacts.h"
#include "core/media/pictures.h"
#include "core/scan/threadpool.h"

#include <algorithm>
#include <optional>

namespace MirrixCore {

namespace {

FeatureRequest requestOf(const ScanOptions &options)
{
    return {options.imageFindRotated, options.imageFindFlipped, options.imageMatchHistogram,
            options.imageUseRawPreview};
}

/// Brings a remembered feature into the form that `request` would give. An entry does not say with which request it was
/// made, but the number of its variants does, as long as none is missing because two were equal; of the rare others
/// nothing is returned, and they are computed again.
std::optional<ImageFeature> fitted(ImageFeature feature, const FeatureRequest &request)
{
    if (request.withHistogram && feature.histogram.isEmpty())
        return {};
    const qsizetype turns = request.allowRotation ? 4 : 1;
    const qsizetype wanted = turns * (request.allowMirror ? 2 : 1);
    QList<quint64> &variants = feature.variants;
    if (variants.size() == wanted)
        return feature;
    if (!request.allowMirror && (wanted == 1 || variants.size() == mostVariants))
        variants.resize(wanted); // those that are not mirrored come first
    else if (variants.size() == mostVariants)
        variants = {variants[0], variants[mostVariants / 2]};
    else
        return {};
    return feature;
}

/// A feature for each image on the pool, then groups on the calling thread.
class ImageScan
{
public:
    ImageScan(QList<FileEntry> &files, const ScanOptions &options, const ProgressCallback &progress,
              const CancelQuery &cancelled)
        : m_files(files)
        , m_options(options)
        , m_progress(progress)
        , m_cancelled(cancelled)
        , m_request(requestOf(options))
        , m_usesCache(options.imageUseFeatureCache && !cacheRoot().isEmpty())
        , m_needsSizes(options.imageSameDimensions || options.imageSameAspect)
        , m_features(static_cast<size_t>(files.size()))
    {}

    ScanResult run()
    {
        ScanResult result;
        result.filesScanned = m_files.size();
        for (const FileEntry &file : m_files)
            result.totalBytes += file.size;
        readFeatures();
        result.candidates = std::count_if(m_features.begin(), m_features.end(),
                                          [](const ImageFeature &feature) { return feature.isValid; });
        if (isCancelled(m_cancelled))
            return result;
        result.groups = groupSimilarImages(m_files, m_features, m_options, m_cancelled);
        if (m_options.collapseHardLinks)
            collapseHardLinks(result.groups);
        result.wastedBytes = totalWaste(result.groups);
        sortByWaste(result.groups);
        return result;
    }

private:
    void readFeatures()
    {
        sizeThreadPool(m_options);
        StageProgress stage(m_progress, Phase::ImageHash, m_files.size(), m_files.size());
        FileEntry *const files = m_files.data(); // detached once, before the threads start
        forEachParallel(m_files.size(), [&](qsizetype i) {
            if (isCancelled(m_cancelled))
                return;
            m_features[static_cast<size_t>(i)] = featureOf(files[i]);
            stage.step(files[i].path);
        });
    }

    ImageFeature featureOf(FileEntry &file) const
    {
        ImageFeature known;
        if (m_usesCache && loadImageFeature(file.path, file.size, file.modifiedMs, known)) {
            if (const std::optional<ImageFeature> fitting = fitted(known, m_request)) {
                if (m_needsSizes && file.width < 1)
                    setSize(file, pictureSizeOfFile(file.path));
                return *fitting;
            }
        }
        return computedFeature(file);
    }

    ImageFeature computedFeature(FileEntry &file) const
    {
        const PictureBytes picture = readPicture(file.path, m_request.useRawPreview, m_cancelled);
        if (m_needsSizes)
            setSize(file, pictureSize(picture.bytes));
        const ImageFeature feature = imageFeatureOf(picture.bytes, m_request, m_cancelled);
        const bool isAsListed = picture.sizeBytes == file.size && picture.modifiedMs == file.modifiedMs;
        if (m_usesCache && isAsListed)
            storeImageFeature(file.path, file.size, file.modifiedMs, feature);
        return feature;
    }

    QList<FileEntry> &m_files;
    const ScanOptions &m_options;
    const ProgressCallback &m_progress;
    const CancelQuery &m_cancelled;
    const FeatureRequest m_request;
    const bool m_usesCache;
    const bool m_needsSizes;
    std::vector<ImageFeature> m_features;
};

} // namespace

ScanResult DuplicateScanner::scanSimilarImages(QList<FileEntry> files, const ScanOptions &options,
                                               const ProgressCallback &progress, const CancelQuery &cancelled)
{
    return ImageScan(files, options, progress, cancelled).run();
}

} // namespace MirrixCore
