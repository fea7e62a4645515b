#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QTime>

namespace Mirrix {

// What the rules page shows, as plain values. The defaults are those of a new page.

/// What a row of a tag table asks for.
enum class TagRule : qint32
{
    ShowOnly = 0,
    MustMatch = 1,
    Ignore = 2
};

/// One row of a tag table.
struct TagRow
{
    QString name;    ///< as the engine knows the tag, see tagnames.h; any other text the user typed is unchanged
    qint32 rule = 1; ///< a TagRule

    bool operator==(const TagRow &) const = default;
};

/// A tag table with the box that turns it on. A new table lists some tags without asking for any.
struct TagRules
{
    bool enabled = true;
    QList<TagRow> rows;

    bool operator==(const TagRules &) const = default;
};

/// The tab of the general mode.
struct GeneralRules
{
    qint32 contentMatch = 0; ///< a MirrixCore::ContentMatch
    qint32 similarPercent = 90;

    bool sameName = false;
    bool sameExtension = false;
    bool similarNames = false;
    bool ignoreCopyWords = true;
    bool copyWordsInAllLanguages = false;
    bool sameSize = false;
    qint32 sizeTolerance = 0;     ///< in sizeToleranceUnit
    qint32 sizeToleranceUnit = 0; ///< 0 bytes, 1 KB, 2 MB, 3 GB
    bool sameCreated = false;
    bool createdDateOnly = false;
    bool sameModified = false;
    bool modifiedDateOnly = false;
    bool sameDrive = false;
    bool sameFolderName = false;
    bool fullPath = false;
    qint32 folderPathDepth = 1;
    bool pathUnderRoot = false;
    bool ignoreSameFolderGroups = false;
    bool caseSensitive = false;
    qint32 nameTolerance = 3;

    bool operator==(const GeneralRules &) const = default;
};

/// The tab of the image mode.
struct ImageRules
{
    qint32 similarityLevel = 1; ///< 0 exact to 4 loose
    bool sameDimensions = false;
    qint32 dimensionTolerance = 0; ///< pixels
    bool sameAspect = true;
    bool findRotated = true;
    bool findFlipped = true;
    bool matchHistogram = false;
    bool groupByShotTime = false;
    qint32 shotTimeSeconds = 25;
    bool groupByGps = false;
    qint32 gpsMetres = 1;
    bool useRawPreview = true;
    bool useFeatureCache = true;
    TagRules tags = {
        true, {{QStringLiteral("DateTimeOriginal"), 0}, {QStringLiteral("Make"), 0}, {QStringLiteral("Model"), 0}}};

    bool operator==(const ImageRules &) const = default;
};

/// The tab of the audio mode.
struct AudioRules
{
    qint32 method = 1; ///< a value of ScanOptions::mediaCompareDepth
    bool matchDuration = false;
    qint32 durationToleranceMs = 5000;
    TagRules tags = {true, {{QStringLiteral("Artist"), 0}, {QStringLiteral("Title"), 0}, {QStringLiteral("Album"), 0}}};

    bool operator==(const AudioRules &) const = default;
};

/// The tab of the video mode.
struct VideoRules
{
    qint32 method = 0; ///< a value of ScanOptions::mediaCompareDepthAlt
    bool matchDuration = false;
    QTime durationTolerance = QTime(0, 0);
    TagRules tags = {true,
                     {{QStringLiteral("Title"), 0}, {QStringLiteral("Date"), 0}, {QStringLiteral("Director"), 0}}};

    bool operator==(const VideoRules &) const = default;
};

/// Which files take part, in every mode.
struct FileTypeFilters
{
    bool useModeExtensions = true; ///< the mode's own extensions instead of includeText
    QString includeText;           ///< as typed, see extensiontext.h
    QString excludeText;           ///< as typed
    bool includeRaw = true;        ///< RAW files in image mode; only with the mode's own extensions
    bool anySize = true;
    qint32 minMegabytes = 0; ///< 0 = no limit
    qint32 maxMegabytes = 0; ///< 0 = no limit
    bool anyDate = true;
    // Local days, both ends included. One that is not valid turns the date ranges off.
    QDate createdFrom = QDate(1980, 1, 1);
    QDate createdTo = QDate::currentDate();
    QDate modifiedFrom = QDate(1980, 1, 1);
    QDate modifiedTo = QDate::currentDate();

    bool operator==(const FileTypeFilters &) const = default;
};

/// The whole page.
struct RulesState
{
    qint32 mode = 0; ///< a MirrixCore::SearchMode
    GeneralRules general;
    ImageRules image;
    AudioRules audio;
    VideoRules video;
    FileTypeFilters fileTypes;
    bool ignoreHardLinks = true; ///< names of one file count once in a group

    bool operator==(const RulesState &) const = default;
};

} // namespace Mirrix
