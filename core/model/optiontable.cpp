#include "core/model/optiontable.h"

#include "core/model/jsonfields.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <type_traits>

namespace MirrixCore {

namespace {

struct OptionField
{
    ScanOptionInfo info; ///< without the default
    bool isText;
    bool isTextList;
    QJsonValue (*read)(const ScanOptions &);
    bool (*write)(const QJsonValue &, ScanOptions &);
};

template <auto Member>
OptionField field(const QString &name, const QString &description, qint64 least = 0, qint64 most = -1)
{
    using Type = std::remove_cvref_t<decltype(std::declval<ScanOptions>().*Member)>;
    return {{name, jsonTypeName(Type()), least, most, {}, description},
            std::is_same_v<Type, QString>,
            std::is_same_v<Type, QStringList>,
            [](const ScanOptions &options) { return toJson(options.*Member); },
            [](const QJsonValue &json, ScanOptions &options) { return fromJson(json, options.*Member); }};
}

#define MIRRIX_OPTION(name, description) field<&ScanOptions::name>(QStringLiteral(#name), QStringLiteral(description))
#define MIRRIX_RANGED_OPTION(name, least, most, description)                                                           \
    field<&ScanOptions::name>(QStringLiteral(#name), QStringLiteral(description), least, most)

const QList<OptionField> &table()
{
    static const QList<OptionField> fields = {
        MIRRIX_OPTION(roots, "Folders to scan, including their subfolders."),
        MIRRIX_OPTION(
            files, "Single files to scan as well, if they pass the filters; equal folders are then not searched for."),
        MIRRIX_OPTION(locations,
                      "Settings for individual roots: whether subfolders are scanned, what to look for (findKind: 0 "
                      "equal contents, 1 equal names, 2 empty files), whether to list files that are in no group."),
        MIRRIX_OPTION(showRemaining, "List the files that are in no group."),
        MIRRIX_OPTION(excludeFolders, "Folders to skip."),
        MIRRIX_OPTION(oneFileSystem, "Do not enter volumes mounted below a scanned folder."),
        MIRRIX_OPTION(includeExtensions,
                      "Only files with one of these extensions, without the dot (jpg); empty = all."),
        MIRRIX_OPTION(excludeExtensions, "Skip files with one of these extensions."),
        MIRRIX_OPTION(
            includeNames,
            "Only files whose names match one of these patterns, such as *.iso; empty = all. Letter case is ignored."),
        MIRRIX_OPTION(excludeNames,
                      "Skip files and folders whose names match one of these patterns. Letter case is ignored."),
        MIRRIX_OPTION(minSize, "Minimum file size in bytes; 0 = no limit."),
        MIRRIX_OPTION(maxSize, "Maximum file size in bytes; 0 = no limit."),
        MIRRIX_OPTION(createdFromMs,
                      "Only files created at or after this time, in milliseconds since 1970; 0 = no limit."),
        MIRRIX_OPTION(createdToMs,
                      "Only files created at or before this time, in milliseconds since 1970; 0 = no limit."),
        MIRRIX_OPTION(modifiedFromMs,
                      "Only files modified at or after this time, in milliseconds since 1970; 0 = no limit."),
        MIRRIX_OPTION(modifiedToMs,
                      "Only files modified at or before this time, in milliseconds since 1970; 0 = no limit."),
        MIRRIX_OPTION(skipHidden, "Skip hidden files and folders."),
        MIRRIX_OPTION(skipSystemFolders, "Skip the folders of the operating system (Windows)."),
        MIRRIX_OPTION(readFileIdentity, "Read each file's identity (its number on the volume) and link count."),
        MIRRIX_OPTION(collapseHardLinks,
                      "Count hard links to one file once. The commands scan and clean turn this on."),
        MIRRIX_RANGED_OPTION(searchMode, 0, 3,
                             "What is compared: 0 files, 1 pictures, 2 audio, 3 video. Set by --mode."),
        MIRRIX_RANGED_OPTION(
            contentMatch, 0, 2,
            "For searchMode 0: 0 identical contents, 1 similar contents, 2 rules only. Set by --mode."),
        MIRRIX_OPTION(threads, "Worker threads; 0 = one per processor, up to 8. Set by --threads."),
        MIRRIX_RANGED_OPTION(
            mediaCompareDepth, 0, 4,
            "Audio: 0 whole file, 1 first 2 MiB, 2 first 512 KiB, 3 identical contents, 4 rules only."),
        MIRRIX_RANGED_OPTION(mediaCompareDepthAlt, 0, 2, "Video: 0 first 1 MiB, 1 whole file, 2 rules only."),
        MIRRIX_RANGED_OPTION(similarPercent, 1, 100,
                             "Minimum percentage of sampled bytes that must be equal in similar contents."),
        MIRRIX_OPTION(sameName, "Files in a group have the same name."),
        MIRRIX_OPTION(sameExtension, "Files in a group have the same extension."),
        MIRRIX_OPTION(similarNames, "Files in a group have similar names; see nameTolerance and ignoreCopyWords."),
        MIRRIX_OPTION(ignoreCopyWords, "Names are compared without endings such as \"- Copy\" and \"(1)\"."),
        MIRRIX_OPTION(copyWordsInAllLanguages,
                      "With ignoreCopyWords, also without what other languages and file managers add to the names of "
                      "copies, such as \"- Kopie\", \"(otra copia)\" or \"Copy of\"."),
        MIRRIX_OPTION(sameSize, "Files in a group have the same size, within sizeTolerance."),
        MIRRIX_OPTION(sizeTolerance, "Maximum difference in size, in bytes."),
        MIRRIX_OPTION(sameCreated, "Files in a group were created at the same time."),
        MIRRIX_OPTION(createdDateOnly, "Compare only the dates of creation times."),
        MIRRIX_OPTION(sameModified, "Files in a group were modified at the same time."),
        MIRRIX_OPTION(modifiedDateOnly, "Compare only the dates of modification times."),
        MIRRIX_OPTION(sameDrive, "Files in a group are on the same drive."),
        MIRRIX_OPTION(sameFolderName, "Files in a group are in folders with the same name."),
        MIRRIX_OPTION(sameFolderPath, "Files in a group have the same leading folders; see folderPathDepth."),
        MIRRIX_OPTION(folderPathDepth, "How many leading folders sameFolderPath compares."),
        MIRRIX_OPTION(samePathUnderRoot, "Files in a group have the same path relative to their scanned folders."),
        MIRRIX_OPTION(ignoreSameFolderGroups, "Drop groups whose files are all in one folder."),
        MIRRIX_OPTION(caseSensitive, "Letter case matters in names and paths."),
        MIRRIX_OPTION(nameTolerance, "Maximum number of characters by which similar names may differ."),
        MIRRIX_OPTION(duplicateFoldersOnly, "List only groups that have at least two files in equal folders."),
        MIRRIX_OPTION(audioMatchDuration,
                      "Audio files in a group have the same duration, within audioDurationTolerance."),
        MIRRIX_OPTION(audioDurationTolerance, "Maximum difference in duration of audio files, in milliseconds."),
        MIRRIX_OPTION(audioTags, "Tags that must be the same in all audio files in a group."),
        MIRRIX_OPTION(videoMatchDuration, "Videos in a group have the same duration, within videoDurationTolerance."),
        MIRRIX_OPTION(videoDurationTolerance, "Maximum difference in duration of videos, as HH:mm:ss.zzz."),
        MIRRIX_OPTION(videoTags, "Tags that must be the same in all videos in a group."),
        MIRRIX_OPTION(imageSameDimensions,
                      "Pictures in a group have the same width and height, within imageDimensionTolerance."),
        MIRRIX_OPTION(imageDimensionTolerance, "Maximum difference in width and height, in pixels."),
        MIRRIX_OPTION(imageSameShotTime,
                      "Pictures in a group were taken at the same time, within imageShotTimeTolerance."),
        MIRRIX_OPTION(imageShotTimeTolerance, "Maximum difference in shot time, in seconds."),
        MIRRIX_OPTION(imageGroupByGps, "Pictures in a group were taken at the same place, within imageGpsPrecision."),
        MIRRIX_OPTION(imageGpsPrecision, "Maximum distance between pictures of the same place, in metres."),
        MIRRIX_OPTION(imageTags, "Tags that must be the same in all pictures in a group."),
        MIRRIX_RANGED_OPTION(imageMaxDistance, 0, 64,
                             "Maximum number of bits by which the hashes of similar pictures may differ."),
        MIRRIX_RANGED_OPTION(imageSimilarityLevel, 0, 4,
                             "The level chosen in the window, which stands for a distance: 0 exact to 4 loose."),
        MIRRIX_OPTION(imageFindRotated, "Find pictures that were rotated."),
        MIRRIX_OPTION(imageFindFlipped, "Find pictures that were mirrored."),
        MIRRIX_OPTION(imageMatchHistogram, "Similar pictures must also have similar distributions of brightness."),
        MIRRIX_OPTION(imageSameAspect, "Similar pictures must also have the same ratio of width to height."),
        MIRRIX_OPTION(imageUseFeatureCache, "Cache the hashes of pictures for later scans."),
        MIRRIX_OPTION(imageUseRawPreview, "Compare RAW files by their embedded previews instead of developing them."),
        MIRRIX_OPTION(keepRule, "The rule chosen in the window for the file to keep; a scan ignores it."),
        MIRRIX_OPTION(largeFileMinBytes, "Size in bytes from which the window calls a file large; a scan ignores it."),
    };
    return fields;
}

#undef MIRRIX_RANGED_OPTION
#undef MIRRIX_OPTION

const OptionField *findField(const QString &name)
{
    const auto &fields = table();
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&](const OptionField &entry) { return entry.info.name == name; });
    return found == fields.end() ? nullptr : &*found;
}

QString unknownOption(const QString &name)
{
    return QStringLiteral("unknown option \"%1\"").arg(name);
}

/// The JSON value of a command-line text; undefined when it is not JSON.
QJsonValue valueFromText(const OptionField &entry, const QString &text)
{
    if (entry.isText)
        return text;
    if (entry.isTextList && !text.startsWith(QLatin1Char('[')))
        return QJsonArray::fromStringList(text.split(QLatin1Char(','), Qt::SkipEmptyParts));
    // A document must be an array or object, so a single value is parsed as the only item of an array.
    const QJsonDocument document = QJsonDocument::fromJson('[' + text.toUtf8() + ']');
    const QJsonArray items = document.array();
    return items.size() == 1 ? items.first() : QJsonValue(QJsonValue::Undefined);
}

} // namespace

QJsonObject scanOptionsToJson(const ScanOptions &options)
{
    QJsonObject json;
    for (const OptionField &entry : table())
        json.insert(entry.info.name, entry.read(options));
    return json;
}

QString scanOptionsFromJson(const QJsonObject &json, ScanOptions &options)
{
    ScanOptions changed = options;
    for (auto it = json.begin(); it != json.end(); ++it) {
        const OptionField *entry = findField(it.key());
        if (!entry)
            return unknownOption(it.key());
        if (!entry->write(it.value(), changed))
            return QStringLiteral("option \"%1\" needs %2").arg(entry->info.name, entry->info.typeName);
    }
    options = changed;
    return {};
}

QString setScanOption(ScanOptions &options, const QString &name, const QString &text)
{
    const OptionField *entry = findField(name);
    if (!entry)
        return unknownOption(name);
    if (!entry->write(valueFromText(*entry, text), options))
        return QStringLiteral("option \"%1\" needs %2, not \"%3\"").arg(name, entry->info.typeName, text);
    return {};
}

QString scanOptionOutOfRange(const ScanOptions &options)
{
    for (const OptionField &entry : table()) {
        const qint64 value = entry.read(options).toInteger();
        if (entry.info.hasRange() && (value < entry.info.least || value > entry.info.most))
            return QStringLiteral("%1 must be from %2 to %3, not %4")
                .arg(entry.info.name)
                .arg(entry.info.least)
                .arg(entry.info.most)
                .arg(value);
    }
    return {};
}

QList<ScanOptionInfo> scanOptionInfos()
{
    QList<ScanOptionInfo> infos;
    for (const OptionField &entry : table()) {
        infos.append(entry.info);
        infos.last().defaultValue = entry.read({});
    }
    return infos;
}

QStringList scanOptionNames()
{
    QStringList names;
    for (const OptionField &entry : table())
        names.append(entry.info.name);
    return names;
}

} // namespace MirrixCore
