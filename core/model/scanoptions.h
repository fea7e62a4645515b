#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

namespace MirrixCore {

/// What is looked for below one scan location.
enum class FindKind : qint32
{
    ContentDuplicates = 0,
    NameDuplicates = 1,
    EmptyFiles = 2
};

/// The kind of matching a scan does.
enum class SearchMode : qint32
{
    Files = 0,
    Images = 1,
    Audio = 2,
    Video = 3
};

/// For SearchMode::Files: what makes two files duplicates.
enum class ContentMatch : qint32
{
    Exact = 0,
    Similar = 1,
    Ignore = 2
};

/// How much of a sound file's content is compared, as `mediaCompareDepth` carries it.
enum class AudioDepth : qint32
{
    Whole = 0,
    First2MiB = 1,
    First512KiB = 2,
    Exact = 3, ///< by the digests that exact scans cache
    IgnoreContent = 4
};

/// The same of a video, as `mediaCompareDepthAlt` carries it: here the default is the cheap comparison.
enum class VideoDepth : qint32
{
    First1MiB = 0,
    Whole = 1,
    IgnoreContent = 2
};

/// Settings of one scan location.
struct ScanLocation
{
    QString path;
    bool includeSubfolders = true;
    qint32 findKind = 0;        ///< a FindKind
    bool showRemaining = false; ///< list the files of this location that are in no group

    [[nodiscard]] FindKind kind() const { return static_cast<FindKind>(findKind); }

    bool operator==(const ScanLocation &) const = default;
};

/// One row of a tag table. Only rows whose `enabled` is exactly 1 take part in matching.
struct TagEntry
{
    QString name;
    qint32 enabled = 0;

    bool operator==(const TagEntry &) const = default;
};

/// Everything one scan needs. Copied by value into the worker and constant while it runs. The defaults filter nothing;
/// optiontable.cpp maps each member to its name in JSON.
struct ScanOptions
{
    // Where to look.
    QStringList roots; ///< folders or drive roots to walk
    QStringList files; ///< single files to take besides, if they pass the filters; with any, folders are not compared
    /// Settings of roots. A root without an entry is walked whole; it is examined as the entries are when these all ask
    /// for the same, else for content duplicates.
    QList<ScanLocation> locations;
    bool showRemaining = false; ///< without locations: list all files that are in no group
    QStringList excludeFolders; ///< folders never entered
    bool oneFileSystem = false; ///< not the volumes mounted below a root

    // Which files to take.
    QStringList includeExtensions;  ///< when not empty, only these; without dot, case ignored
    QStringList excludeExtensions;  ///< never these
    QStringList includeNames;       ///< when not empty, only names that match one of these patterns (namepatterns.h)
    QStringList excludeNames;       ///< neither files nor folders whose names match one of these
    qint64 minSize = 0;             ///< bytes; below 1 = no limit
    qint64 maxSize = 0;             ///< bytes; below 1 = no limit
    qint64 createdFromMs = 0;       ///< inclusive, milliseconds since the Unix epoch; below 1 = no limit
    qint64 createdToMs = 0;         ///< inclusive; below 1 = no limit
    qint64 modifiedFromMs = 0;      ///< inclusive; below 1 = no limit
    qint64 modifiedToMs = 0;        ///< inclusive; below 1 = no limit
    bool skipHidden = false;        ///< neither hidden files nor hidden folders
    bool skipSystemFolders = false; ///< not the folders of the operating system
    bool readFileIdentity = false;  ///< read volume, file number and link count of each file
    bool collapseHardLinks = false; ///< the same, and names of one file count once in a group

    // How to match.
    qint32 searchMode = 0;           ///< a SearchMode
    qint32 contentMatch = 0;         ///< a ContentMatch; for SearchMode::Files
    qint32 threads = 0;              ///< worker threads; below 1 = as many as the machine has, at most 8
    qint32 mediaCompareDepth = 0;    ///< an AudioDepth
    qint32 mediaCompareDepthAlt = 0; ///< a VideoDepth
    qint32 similarPercent = 90;      ///< 1..100, least share of equal sampled bytes for similar content

    // Rules on names, sizes, dates and paths.
    bool sameName = false;
    bool sameExtension = false;
    bool similarNames = false;
    bool ignoreCopyWords = true;
    bool copyWordsInAllLanguages = false; ///< with ignoreCopyWords
    bool sameSize = false;
    qint64 sizeTolerance = 0; ///< bytes
    bool sameCreated = false;
    bool createdDateOnly = false;
    bool sameModified = false;
    bool modifiedDateOnly = false;
    bool sameDrive = false;
    bool sameFolderName = false;
    bool sameFolderPath = false;
    qint32 folderPathDepth = 1; ///< leading path components compared
    bool samePathUnderRoot = false;
    bool ignoreSameFolderGroups = false;
    bool caseSensitive = false;
    qint32 nameTolerance = 3; ///< edits between similar names
    bool duplicateFoldersOnly = false;

    // Rules on media.
    bool audioMatchDuration = false;
    qint32 audioDurationTolerance = 5000; ///< milliseconds
    QList<TagEntry> audioTags;
    bool videoMatchDuration = false;
    QString videoDurationTolerance = QStringLiteral("00:00:00.000"); ///< HH:mm:ss.zzz
    QList<TagEntry> videoTags;
    bool imageSameDimensions = false;
    qint32 imageDimensionTolerance = 0; ///< pixels
    bool imageSameShotTime = false;
    qint32 imageShotTimeTolerance = 25; ///< seconds
    bool imageGroupByGps = false;
    qint32 imageGpsPrecision = 1; ///< metres
    QList<TagEntry> imageTags;

    // Similar pictures.
    qint32 imageMaxDistance = 10;
    qint32 imageSimilarityLevel = 1;
    bool imageFindRotated = false;
    bool imageFindFlipped = false;
    bool imageMatchHistogram = false;
    bool imageSameAspect = false;
    bool imageUseFeatureCache = true;
    bool imageUseRawPreview = true; ///< hash the JPEG embedded in a RAW file instead of developing it

    // Carried for the interface.
    qint32 keepRule = 0;
    qint64 largeFileMinBytes = 104857600;

    // The numbers above as enumerations. A number outside its enumeration gives a value that no case handles.
    [[nodiscard]] SearchMode mode() const { return static_cast<SearchMode>(searchMode); }
    [[nodiscard]] ContentMatch contentMatching() const { return static_cast<ContentMatch>(contentMatch); }
    [[nodiscard]] AudioDepth audioDepth() const { return static_cast<AudioDepth>(mediaCompareDepth); }
    [[nodiscard]] VideoDepth videoDepth() const { return static_cast<VideoDepth>(mediaCompareDepthAlt); }

    bool operator==(const ScanOptions &) const = default;
};

} // namespace MirrixCore

Q_DECLARE_METATYPE(MirrixCore::ScanOptions)
