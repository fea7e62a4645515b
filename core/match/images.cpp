#include "core/match/images.h"

#include "core/cache/cacheroot.h"
#include "core/cache/imagefeaturecache.h"
#include "core/match/groups.h"
#include "core/match/imageclusters.h"
#include "core/media/mediafacts.h"
#include "core/media/pictures.h"
#include "core/threads/stage.h"

#include <algorithm>
#include <optional>

namespace MirrixCore {

namespace {

FeatureRequest requestOf(const ScanOptions &options)
{
    return {options.imageFindRotated, options.imageFindFlipped, options.imageMatchHistogram,
            options.imageUseRawPreview};
}

/// Brings a cached feature into the form that `request` would give. An entry does not say with which request it was
/// made, but the number of its variants does, as long as none is missing because two were equal; of the rare others
/// nothing is returned, and they are computed again.
std::optional<ImageFeature> fitted(ImageFeature feature, const FeatureRequest &request)
{
    if (request.withHistogram && feature.histogram.isEmpty())
        return {};
    const qsizetype turns = request.allowRotation ? 4 : 1;
    const qsizetype requested = turns * (request.allowMirror ? 2 : 1);
    QList<quint64> &variants = feature.variants;
    if (variants.size() == requested)
        return feature;
    if (!request.allowMirror && (requested == 1 || variants.size() == mostVariants))
        variants.resize(requested); // those that are not mirrored come first
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
    ImageScan(QList<FileEntry> &files, const ScanContext &context)
        : m_files(files)
        , m_context(context)
        , m_request(requestOf(context.options))
        , m_usesCache(context.options.imageUseFeatureCache && !cacheRoot().isEmpty())
        , m_needsSizes(context.options.imageSameDimensions || context.options.imageSameAspect)
        , m_features(static_cast<size_t>(files.size()))
    {}

    ScanResult run()
    {
        ScanResult result = resultOn(m_files);
        readFeatures();
        result.candidates = std::count_if(m_features.begin(), m_features.end(),
                                          [](const ImageFeature &feature) { return feature.isValid; });
        if (m_context.isCancelled())
            return result;
        result.groups = groupSimilarImages(m_files, m_features, m_context.options, m_context.cancelled);
        finishResult(result, m_context.options);
        return result;
    }

private:
    void readFeatures()
    {
        FileEntry *const files = m_files.data(); // detached once, before the threads start
        runStage(
            m_context, Phase::ImageHash, m_files.size(), m_files.size(),
            [&](qsizetype i) { m_features[static_cast<size_t>(i)] = featureOf(files[i]); },
            [&](qsizetype i) -> const QString & { return files[i].path; });
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
        const PictureBytes picture = readPicture(file.path, m_request.useRawPreview, m_context.cancelled);
        if (m_needsSizes)
            setSize(file, pictureSize(picture.bytes));
        const ImageFeature feature = imageFeatureOf(picture.bytes, m_request, m_context.cancelled);
        // The feature of a file that has changed since the walk would be cached under the old size and time.
        const bool isAsListed = picture.sizeBytes == file.size && picture.modifiedMs == file.modifiedMs;
        if (m_usesCache && isAsListed)
            storeImageFeature(file.path, file.size, file.modifiedMs, feature);
        return feature;
    }

    QList<FileEntry> &m_files;
    const ScanContext &m_context;
    const FeatureRequest m_request;
    const bool m_usesCache;
    const bool m_needsSizes;
    std::vector<ImageFeature> m_features;
};

} // namespace

ScanResult matchImages(QList<FileEntry> files, const ScanContext &context)
{
    return ImageScan(files, context).run();
}

} // namespace MirrixCore
