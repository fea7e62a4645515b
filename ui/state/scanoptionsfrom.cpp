#include "ui/state/scanoptionsfrom.h"

#include "core/media/mediakinds.h"
#include "core/platform/pathtext.h"
#include "ui/texts/extensiontext.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace Mirrix {

using MirrixCore::ScanOptions;

namespace {

constexpr qint64 bytesPerMegabyte = 1 << 20;
constexpr qint64 largeFileBytes = 104857600;

/// The folders of which nothing is scanned, whatever row covers them.
QStringList protectedFolders(const LocationsState &locations)
{
    QStringList folders;
    for (const LocationRow &row : locations.rows) {
        if (row.isProtected && !row.path.isEmpty())
            folders.append(row.path);
    }
    return folders;
}

void addLocations(const LocationsState &locations, ScanOptions &options)
{
    const QStringList untouched = protectedFolders(locations);
    for (const LocationRow &row : locations.rows) {
        // Excluding a folder does not keep a walk from beginning below it.
        const auto covers = [&row](const QString &folder) { return MirrixCore::isUnderFolder(row.path, folder); };
        if (!row.enabled || row.path.isEmpty() || std::any_of(untouched.begin(), untouched.end(), covers))
            continue;
        options.roots.append(row.path);
        options.locations.append({row.path, row.includeSubfolders, row.findKind, row.showRemaining});
    }
    options.excludeFolders = locations.excludeFolders + untouched;
}

void addFilters(const AdvancedOptions &advanced, const FileTypeFilters &filters, ScanOptions &options)
{
    options.keepRule = advanced.keepRule;
    options.skipHidden = advanced.skipHidden;
    options.skipSystemFolders = advanced.skipSystemFolders;
    options.excludeExtensions = extensionsFromText(filters.excludeText);
    if (!filters.anySize) {
        options.minSize = filters.minMegabytes * bytesPerMegabyte;
        options.maxSize = filters.maxMegabytes * bytesPerMegabyte;
    }
}

qint64 sizeToleranceBytes(const GeneralRules &rules)
{
    const int tenBits = 10 * std::clamp(rules.sizeToleranceUnit, 0, 3);
    return qint64(rules.sizeTolerance) << tenBits;
}

void addGeneralRules(const GeneralRules &rules, ScanOptions &options)
{
    options.sameName = rules.sameName;
    options.sameExtension = rules.sameExtension;
    options.similarNames = rules.similarNames;
    options.ignoreCopyWords = rules.ignoreCopyWords;
    options.copyWordsInAllLanguages = rules.copyWordsInAllLanguages;
    options.sameSize = rules.sameSize;
    options.sizeTolerance = sizeToleranceBytes(rules);
    options.sameCreated = rules.sameCreated;
    options.createdDateOnly = rules.createdDateOnly;
    options.sameModified = rules.sameModified;
    options.modifiedDateOnly = rules.modifiedDateOnly;
    options.sameDrive = rules.sameDrive;
    options.sameFolderName = rules.sameFolderName;
    options.sameFolderPath = rules.fullPath;
    options.folderPathDepth = rules.folderPathDepth;
    options.samePathUnderRoot = rules.pathUnderRoot;
    options.ignoreSameFolderGroups = rules.ignoreSameFolderGroups;
    options.caseSensitive = rules.caseSensitive;
    options.nameTolerance = rules.nameTolerance;
}

void addDateRanges(const FileTypeFilters &filters, ScanOptions &options)
{
    const bool complete = filters.createdFrom.isValid() && filters.createdTo.isValid() &&
                          filters.modifiedFrom.isValid() && filters.modifiedTo.isValid();
    if (filters.anyDate || !complete)
        return;
    options.createdFromMs = filters.createdFrom.startOfDay().toMSecsSinceEpoch();
    options.createdToMs = filters.createdTo.endOfDay().toMSecsSinceEpoch();
    options.modifiedFromMs = filters.modifiedFrom.startOfDay().toMSecsSinceEpoch();
    options.modifiedToMs = filters.modifiedTo.endOfDay().toMSecsSinceEpoch();
}

QList<MirrixCore::TagEntry> tagEntriesFrom(const TagRules &tags)
{
    QList<MirrixCore::TagEntry> entries;
    if (!tags.enabled)
        return entries;
    for (const TagRow &row : tags.rows) {
        const QString name = row.name.trimmed();
        if (!name.isEmpty() && row.rule != qint32(TagRule::Ignore))
            entries.append({name, row.rule});
    }
    return entries;
}

void addContentMatch(const GeneralRules &rules, ScanOptions &options)
{
    options.contentMatch = rules.contentMatch;
    options.similarPercent = rules.similarPercent;
}

void addImageRules(const ImageRules &rules, ScanOptions &options)
{
    options.imageSimilarityLevel = rules.similarityLevel;
    options.imageMaxDistance = imageDistanceOf(rules.similarityLevel);
    options.imageSameDimensions = rules.sameDimensions;
    options.imageDimensionTolerance = rules.dimensionTolerance;
    options.imageSameAspect = rules.sameAspect;
    options.imageFindRotated = rules.findRotated;
    options.imageFindFlipped = rules.findFlipped;
    options.imageMatchHistogram = rules.matchHistogram;
    options.imageSameShotTime = rules.groupByShotTime;
    options.imageShotTimeTolerance = rules.shotTimeSeconds;
    options.imageGroupByGps = rules.groupByGps;
    options.imageGpsPrecision = rules.gpsMetres;
    options.imageUseRawPreview = rules.useRawPreview;
    options.imageUseFeatureCache = rules.useFeatureCache;
    options.imageTags = tagEntriesFrom(rules.tags);
}

void addAudioRules(const AudioRules &rules, ScanOptions &options)
{
    options.mediaCompareDepth = rules.method;
    options.audioMatchDuration = rules.matchDuration;
    options.audioDurationTolerance = rules.durationToleranceMs;
    options.audioTags = tagEntriesFrom(rules.tags);
}

void addVideoRules(const VideoRules &rules, ScanOptions &options)
{
    options.mediaCompareDepthAlt = rules.method;
    options.videoMatchDuration = rules.matchDuration;
    options.videoDurationTolerance = rules.durationTolerance.toString(QStringLiteral("HH:mm:ss.zzz"));
    options.videoTags = tagEntriesFrom(rules.tags);
}

void addModeRules(const RulesState &rules, ScanOptions &options)
{
    options.searchMode = rules.mode;
    switch (static_cast<MirrixCore::SearchMode>(rules.mode)) {
    case MirrixCore::SearchMode::Files:
        return addContentMatch(rules.general, options);
    case MirrixCore::SearchMode::Images:
        return addImageRules(rules.image, options);
    case MirrixCore::SearchMode::Audio:
        return addAudioRules(rules.audio, options);
    case MirrixCore::SearchMode::Video:
        return addVideoRules(rules.video, options);
    }
}

/// What an empty list of extensions means in a mode.
QStringList extensionsOfMode(qint32 mode, bool withRaw)
{
    const auto searchMode = static_cast<MirrixCore::SearchMode>(mode);
    QStringList extensions = MirrixCore::extensionsOf(searchMode);
    if (searchMode != MirrixCore::SearchMode::Images || withRaw)
        return extensions;
    // These three are pictures like any other; the choice is about the many further kinds.
    static const QStringList always = {QStringLiteral("raw"), QStringLiteral("cr2"), QStringLiteral("nef")};
    extensions.removeIf([](const QString &extension) {
        return MirrixCore::rawExtensions().contains(extension) && !always.contains(extension);
    });
    return extensions;
}

} // namespace

qint32 imageDistanceOf(qint32 similarityLevel)
{
    // The last step is wider on purpose: the loosest level is to find edited pictures too.
    constexpr std::array<qint32, 5> distances = {0, 5, 10, 15, 22};
    return distances[std::clamp<qint32>(similarityLevel, 0, qint32(distances.size()) - 1)];
}

ScanOptions scanOptionsFrom(const LocationsState &locations, const RulesState &rules)
{
    ScanOptions options;
    addLocations(locations, options);
    addFilters(locations.advanced, rules.fileTypes, options);
    addGeneralRules(rules.general, options);
    addDateRanges(rules.fileTypes, options);
    options.readFileIdentity = true; // for the check of a file just before it is removed
    options.collapseHardLinks = rules.ignoreHardLinks;
    options.largeFileMinBytes = largeFileBytes;
    if (!rules.fileTypes.useModeExtensions)
        options.includeExtensions = extensionsFromText(rules.fileTypes.includeText);
    addModeRules(rules, options);
    if (options.includeExtensions.isEmpty())
        options.includeExtensions = extensionsOfMode(rules.mode, rules.fileTypes.includeRaw);
    return options;
}

} // namespace Mirrix
