#include "core/model/optiontable.h"
#include "tests/support/coretest.h"

#include <QJsonArray>

namespace {

const QString tagsText = uR"([{"name":"Artist","enabled":1}])"_s;
const QString locationsText = uR"([{"path":"/a","includeSubfolders":false,"findKind":2,"showRemaining":true}])"_s;

QJsonValue arrayFrom(const QString &json)
{
    return QJsonDocument::fromJson(json.toUtf8()).array();
}

/// A value of the same JSON type that differs from `value`.
QJsonValue changed(const QString &name, const QJsonValue &value)
{
    if (name == u"locations"_s)
        return arrayFrom(locationsText);
    if (name.endsWith(u"Tags"_s))
        return arrayFrom(tagsText);
    if (value.isBool())
        return !value.toBool();
    if (value.isDouble())
        return value.toInteger() + 7;
    return value.isArray() ? QJsonValue(QJsonArray{u"x"_s}) : QJsonValue(u"x"_s);
}

/// Every option with its default, written by hand.
const QJsonObject &allDefaults()
{
    static const QJsonObject defaults = QJsonDocument::fromJson(R"({
        "roots": [], "files": [], "locations": [], "showRemaining": false, "excludeFolders": [], "oneFileSystem": false,
        "includeExtensions": [], "excludeExtensions": [], "includeNames": [], "excludeNames": [],
        "minSize": 0, "maxSize": 0, "createdFromMs": 0, "createdToMs": 0, "modifiedFromMs": 0, "modifiedToMs": 0,
        "skipHidden": false, "skipSystemFolders": false, "readFileIdentity": false, "collapseHardLinks": false,
        "searchMode": 0, "contentMatch": 0, "threads": 0, "mediaCompareDepth": 0, "mediaCompareDepthAlt": 0,
        "similarPercent": 90, "sameName": false, "sameExtension": false, "similarNames": false,
        "ignoreCopyWords": true, "copyWordsInAllLanguages": false, "sameSize": false, "sizeTolerance": 0, "sameCreated": false,
        "createdDateOnly": false, "sameModified": false, "modifiedDateOnly": false, "sameDrive": false,
        "sameFolderName": false, "sameFolderPath": false, "folderPathDepth": 1, "samePathUnderRoot": false,
        "ignoreSameFolderGroups": false, "caseSensitive": false, "nameTolerance": 3, "duplicateFoldersOnly": false,
        "audioMatchDuration": false, "audioDurationTolerance": 5000, "audioTags": [],
        "videoMatchDuration": false, "videoDurationTolerance": "00:00:00.000", "videoTags": [],
        "imageSameDimensions": false, "imageDimensionTolerance": 0, "imageSameShotTime": false,
        "imageShotTimeTolerance": 25, "imageGroupByGps": false, "imageGpsPrecision": 1, "imageTags": [],
        "imageMaxDistance": 10, "imageSimilarityLevel": 1, "imageFindRotated": false, "imageFindFlipped": false,
        "imageMatchHistogram": false, "imageSameAspect": false, "imageUseFeatureCache": true,
        "imageUseRawPreview": true, "keepRule": 0, "largeFileMinBytes": 104857600})")
                                            .object();
    return defaults;
}

} // namespace

class OptionTableTest : public QObject
{
    Q_OBJECT

private slots:
    /// All at once, and each by itself, so that no two share a member.
    void everyOptionTravels()
    {
        const QJsonObject original = scanOptionsToJson({});
        QJsonObject altered;
        for (auto it = original.begin(); it != original.end(); ++it) {
            altered.insert(it.key(), changed(it.key(), it.value()));
            ScanOptions options;
            QCOMPARE(scanOptionsFromJson({{it.key(), altered[it.key()]}}, options), QString());
            QJsonObject expected = original;
            expected.insert(it.key(), altered[it.key()]);
            QCOMPARE(scanOptionsToJson(options), expected);
            QVERIFY2(!(options == ScanOptions()), qPrintable(it.key()));
        }
        ScanOptions options;
        QCOMPARE(scanOptionsFromJson(altered, options), QString());
        QCOMPARE(scanOptionsToJson(options), altered);
    }

    void defaults()
    {
        const QJsonObject written = scanOptionsToJson({});
        for (auto it = allDefaults().begin(); it != allDefaults().end(); ++it)
            QVERIFY2(written[it.key()] == it.value(), qPrintable(it.key()));
        QStringList names = scanOptionNames();
        QCOMPARE(names.first(), u"roots"_s);
        names.sort();
        QCOMPARE(names, allDefaults().keys());
        QCOMPARE(written.keys(), names);
        for (const ScanOptionInfo &info : scanOptionInfos()) {
            const qint64 number = info.defaultValue.toInteger();
            QCOMPARE(info.defaultValue, allDefaults()[info.name]);
            QVERIFY2(info.description.endsWith(u'.'), qPrintable(info.name));
            QVERIFY2(!info.hasRange() || (info.least <= number && number <= info.most), qPrintable(info.name));
        }
    }

    void wholeNumbersAreExact()
    {
        ScanOptions options;
        options.maxSize = (qint64(1) << 53) + 1; // no double
        ScanOptions read;
        QCOMPARE(scanOptionsFromJson(scanOptionsToJson(options), read), QString());
        QCOMPARE(read.maxSize, options.maxSize);
        QCOMPARE(setScanOption(read, u"minSize"_s, u"9007199254740993"_s), QString());
        QCOMPARE(read.minSize, options.maxSize);
    }

    void refused_data()
    {
        const auto row = columns<QJsonValue>({"value"}); // the names are the options'
        row("noSuchOption", 1);
        row("minsize", 1); // case matters
        row("minSize", u"1"_s);
        row("maxSize", 1.5);
        row("largeFileMinBytes", 1e19);
        row("threads", qint64(1) << 31);
        row("skipHidden", 1);
        row("roots", u"/a"_s);
        row("excludeFolders", QJsonArray{1});
        row("videoDurationTolerance", 5);
        row("audioTags", QJsonArray{u"Artist"_s});
        row("locations", QJsonArray{QJsonObject{{u"folder"_s, u"/a"_s}}});
        row("sameName", QJsonValue::Null);
    }

    void refused()
    {
        QFETCH(QJsonValue, value);
        const QString name = QLatin1String(QTest::currentDataTag());
        ScanOptions options;
        // A good option beside the bad one must not be taken either.
        const QString problem = scanOptionsFromJson({{u"caseSensitive"_s, true}, {name, value}}, options);
        QVERIFY2(problem.contains(u'"' + name + u'"'), qPrintable(problem));
        QVERIFY(options == ScanOptions());
    }

    void fromText_data()
    {
        const auto row = columns<QString, QString, QJsonValue>({"name", "text", "expected"});
        row("flag", u"sameName"_s, u"true"_s, true);
        row("number", u"minSize"_s, u"-1024"_s, -1024);
        row("number as JSON writes it", u"minSize"_s, u"1e3"_s, 1000);
        row("list", u"roots"_s, u"/a,,/b"_s, QJsonArray{u"/a"_s, u"/b"_s});
        row("list with a comma", u"includeExtensions"_s, uR"(["a,b"])"_s, QJsonArray{u"a,b"_s});
        row("empty list", u"includeExtensions"_s, u""_s, QJsonArray());
        row("text", u"videoDurationTolerance"_s, u"00:00:01.000"_s, u"00:00:01.000"_s);
        row("quotes", u"videoDurationTolerance"_s, u"\"quoted\""_s, u"\"quoted\""_s);
        row("locations", u"locations"_s, locationsText, arrayFrom(locationsText));
        row("location, completed", u"locations"_s, uR"([{"path":"/a"}])"_s,
            arrayFrom(uR"([{"path":"/a","includeSubfolders":true,"findKind":0,"showRemaining":false}])"_s));
        row("tags", u"imageTags"_s, tagsText, arrayFrom(tagsText));
    }

    void fromText()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        ScanOptions options;
        QCOMPARE(setScanOption(options, name, text), QString());
        QTEST(QJsonValue(scanOptionsToJson(options)[name]), "expected");
    }

    void textRefused_data()
    {
        const auto row = columns<QString>({"text"}); // the names are the options'
        row("minSize", u"1k"_s);
        row("maxSize", u"1,2"_s);
        row("threads", {});
        row("keepRule", u"2147483648"_s);
        row("largeFileMinBytes", u"9223372036854775808"_s);
        row("nameTolerance", u"0.5"_s);
        row("roots", u"[\"/a\"],[\"/b\"]"_s);
        row("excludeFolders", u"[\"/a\", 1]"_s);
        row("imageTags", u"{\"name\":\"Make\"}"_s);
        row("sameName", u"yes"_s);
        row("locations", u"/a"_s);
        row("none", u"1"_s);
    }

    void textRefused()
    {
        QFETCH(QString, text);
        const QString name = QLatin1String(QTest::currentDataTag());
        ScanOptions options;
        const QString problem = setScanOption(options, name, text);
        QVERIFY2(problem.contains(u'"' + name + u'"'), qPrintable(problem));
        QVERIFY(options == ScanOptions());
    }
};

QTEST_GUILESS_MAIN(OptionTableTest)
#include "tst_optiontable.moc"
