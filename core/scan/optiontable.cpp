#include "core/scan/optiontable.h"

#include "core/scan/jsonfields.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <type_traits>

namespace MirrixCore {

namespace {

struct OptionField
{
    QString name;
    QString typeName;
    bool isText;
    bool isTextList;
    QJsonValue (*read)(const ScanOptions &);
    bool (*write)(const QJsonValue &, ScanOptions &);
};

template <auto Member>
OptionField field(const QString &name)
{
    using Type = std::remove_cvref_t<decltype(std::declval<ScanOptions>().*Member)>;
    return {name,
            jsonTypeName(Type()),
            std::is_same_v<Type, QString>,
            std::is_same_v<Type, QStringList>,
            [](const ScanOptions &options) { return toJson(options.*Member); },
            [](const QJsonValue &json, ScanOptions &options) { return fromJson(json, options.*Member); }};
}

#define MIRRIX_OPTION(name) field<&ScanOptions::name>(QStringLiteral(#name))

const QList<OptionField> &table()
{
    static const QList<OptionField> fields = {
        MIRRIX_OPTION(roots),
        MIRRIX_OPTION(locations),
        MIRRIX_OPTION(showRemaining),
        MIRRIX_OPTION(excludeFolders),
        MIRRIX_OPTION(includeExtensions),
        MIRRIX_OPTION(excludeExtensions),
        MIRRIX_OPTION(minSize),
        MIRRIX_OPTION(maxSize),
        MIRRIX_OPTION(createdFromMs),
        MIRRIX_OPTION(createdToMs),
        MIRRIX_OPTION(modifiedFromMs),
        MIRRIX_OPTION(modifiedToMs),
        MIRRIX_OPTION(skipHidden),
        MIRRIX_OPTION(skipSystemFolders),
        MIRRIX_OPTION(readFileIdentity),
        MIRRIX_OPTION(collapseHardLinks),
        MIRRIX_OPTION(searchMode),
        MIRRIX_OPTION(contentMatch),
        MIRRIX_OPTION(threads),
        MIRRIX_OPTION(mediaCompareDepth),
        MIRRIX_OPTION(mediaCompareDepthAlt),
        MIRRIX_OPTION(similarPercent),
        MIRRIX_OPTION(sameName),
        MIRRIX_OPTION(sameExtension),
        MIRRIX_OPTION(similarNames),
        MIRRIX_OPTION(ignoreCopyWords),
        MIRRIX_OPTION(sameSize),
        MIRRIX_OPTION(sizeTolerance),
        MIRRIX_OPTION(sameCreated),
        MIRRIX_OPTION(createdDateOnly),
        MIRRIX_OPTION(sameModified),
        MIRRIX_OPTION(modifiedDateOnly),
        MIRRIX_OPTION(sameDrive),
        MIRRIX_OPTION(sameFolderName),
        MIRRIX_OPTION(sameFolderPath),
        MIRRIX_OPTION(folderPathDepth),
        MIRRIX_OPTION(samePathUnderRoot),
        MIRRIX_OPTION(ignoreSameFolderGroups),
        MIRRIX_OPTION(caseSensitive),
        MIRRIX_OPTION(nameTolerance),
        MIRRIX_OPTION(duplicateFoldersOnly),
        MIRRIX_OPTION(audioMatchDuration),
        MIRRIX_OPTION(audioDurationTolerance),
        MIRRIX_OPTION(audioTags),
        MIRRIX_OPTION(videoMatchDuration),
        MIRRIX_OPTION(videoDurationTolerance),
        MIRRIX_OPTION(videoTags),
        MIRRIX_OPTION(imageSameDimensions),
        MIRRIX_OPTION(imageDimensionTolerance),
        MIRRIX_OPTION(imageSameShotTime),
        MIRRIX_OPTION(imageShotTimeTolerance),
        MIRRIX_OPTION(imageGroupByGps),
        MIRRIX_OPTION(imageGpsPrecision),
        MIRRIX_OPTION(imageTags),
        MIRRIX_OPTION(imageMaxDistance),
        MIRRIX_OPTION(imageSimilarityLevel),
        MIRRIX_OPTION(imageFindRotated),
        MIRRIX_OPTION(imageFindFlipped),
        MIRRIX_OPTION(imageMatchHistogram),
        MIRRIX_OPTION(imageSameAspect),
        MIRRIX_OPTION(imageUseFeatureCache),
        MIRRIX_OPTION(imageUseRawPreview),
        MIRRIX_OPTION(keepRule),
        MIRRIX_OPTION(largeFileMinBytes),
    };
    return fields;
}

#undef MIRRIX_OPTION

const OptionField *findField(const QString &name)
{
    const auto &fields = table();
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&](const OptionField &entry) { return entry.name == name; });
    return found == fields.end() ? nullptr : &*found;
}

QString unknownOption(const QString &name)
{
    return QStringLiteral("unknown option \"%1\"").arg(name);
}

/// The JSON value that a command-line text stands for; undefined when it is not JSON.
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
        json.insert(entry.name, entry.read(options));
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
            return QStringLiteral("option \"%1\" needs %2").arg(entry->name, entry->typeName);
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
        return QStringLiteral("option \"%1\" needs %2, not \"%3\"").arg(name, entry->typeName, text);
    return {};
}

QStringList scanOptionNames()
{
    QStringList names;
    for (const OptionField &entry : table())
        names.append(entry.name);
    return names;
}

} // namespace MirrixCore
