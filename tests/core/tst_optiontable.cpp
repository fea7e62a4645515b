#include "core/model/optiontable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace MirrixCore;

namespace {

/// A value of the same JSON type that differs from `value`.
QJsonValue changed(const QString &name, const QJsonValue &value)
{
    if (name == QLatin1String("locations")) {
        return QJsonArray{QJsonObject{{QStringLiteral("path"), QStringLiteral("/a")},
                                      {QStringLiteral("includeSubfolders"), false},
                                      {QStringLiteral("findKind"), 2},
                                      {QStringLiteral("showRemaining"), true}}};
    }
    if (name.endsWith(QLatin1String("Tags"))) {
        return QJsonArray{
            QJsonObject{{QStringLiteral("name"), QStringLiteral("Artist")}, {QStringLiteral("enabled"), 1}}};
    }
    if (value.isBool())
        return !value.toBool();
    if (value.isDouble())
        return value.toInteger() + 7;
    return value.isArray() ? QJsonValue(QJsonArray{QStringLiteral("x")}) : QJsonValue(QStringLiteral("x"));
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
    void everyOptionTravels();
    void eachOptionHasItsOwnMember();
    void defaults_data();
    void defaults();
    void namesAreComplete();
    void wholeNumbersAreExact();
    void refused_data();
    void refused();
    void fromText_data();
    void fromText();
    void textRefused_data();
    void textRefused();
};

void OptionTableTest::everyOptionTravels()
{
    const QJsonObject original = scanOptionsToJson({});
    QCOMPARE(original.size(), scanOptionNames().size());
    QJsonObject altered;
    for (auto it = original.begin(); it != original.end(); ++it)
        altered.insert(it.key(), changed(it.key(), it.value()));
    ScanOptions options;
    QCOMPARE(scanOptionsFromJson(altered, options), QString());
    QCOMPARE(scanOptionsToJson(options), altered);
}

void OptionTableTest::eachOptionHasItsOwnMember()
{
    const QJsonObject original = scanOptionsToJson({});
    for (auto it = original.begin(); it != original.end(); ++it) {
        ScanOptions options;
        QCOMPARE(scanOptionsFromJson({{it.key(), changed(it.key(), it.value())}}, options), QString());
        QVERIFY2(!(options == ScanOptions()), qPrintable(it.key()));
        QJsonObject rest = scanOptionsToJson(options);
        rest.insert(it.key(), it.value());
        QCOMPARE(rest, original);
    }
}

void OptionTableTest::defaults_data()
{
    QTest::addColumn<QJsonValue>("expected");
    for (auto it = allDefaults().begin(); it != allDefaults().end(); ++it)
        QTest::newRow(qPrintable(it.key())) << QJsonValue(it.value());
}

void OptionTableTest::defaults()
{
    QTEST(scanOptionsToJson({}).value(QLatin1String(QTest::currentDataTag())), "expected");
}

void OptionTableTest::namesAreComplete()
{
    QStringList names = scanOptionNames();
    QCOMPARE(names.first(), QStringLiteral("roots"));
    names.sort();
    QCOMPARE(names, allDefaults().keys());
    QCOMPARE(scanOptionsToJson({}).keys(), names);
    for (const ScanOptionInfo &info : scanOptionInfos()) {
        QCOMPARE(info.defaultValue, allDefaults()[info.name]);
        QVERIFY2(info.description.endsWith(QLatin1Char('.')), qPrintable(info.name));
        const bool isInside = info.least <= info.defaultValue.toInteger() && info.defaultValue.toInteger() <= info.most;
        QVERIFY2(!info.hasRange() || isInside, qPrintable(info.name));
    }
}

void OptionTableTest::wholeNumbersAreExact()
{
    ScanOptions options;
    options.maxSize = (qint64(1) << 53) + 1; // no double
    ScanOptions read;
    QCOMPARE(scanOptionsFromJson(scanOptionsToJson(options), read), QString());
    QCOMPARE(read.maxSize, options.maxSize);
    QCOMPARE(setScanOption(read, QStringLiteral("minSize"), QStringLiteral("9007199254740993")), QString());
    QCOMPARE(read.minSize, options.maxSize);
}

void OptionTableTest::refused_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("noSuchOption") << QJsonValue(1);
    QTest::newRow("minsize") << QJsonValue(1); // case matters
    QTest::newRow("minSize") << QJsonValue(QStringLiteral("1"));
    QTest::newRow("maxSize") << QJsonValue(1.5);
    QTest::newRow("largeFileMinBytes") << QJsonValue(1e19);
    QTest::newRow("threads") << QJsonValue(qint64(1) << 31);
    QTest::newRow("skipHidden") << QJsonValue(1);
    QTest::newRow("roots") << QJsonValue(QStringLiteral("/a"));
    QTest::newRow("excludeFolders") << QJsonValue(QJsonArray{1});
    QTest::newRow("videoDurationTolerance") << QJsonValue(5);
    QTest::newRow("audioTags") << QJsonValue(QJsonArray{QStringLiteral("Artist")});
    QTest::newRow("locations") << QJsonValue(QJsonArray{QJsonObject{{QStringLiteral("folder"), QStringLiteral("/a")}}});
    QTest::newRow("sameName") << QJsonValue(QJsonValue::Null);
}

void OptionTableTest::refused()
{
    QFETCH(QJsonValue, value);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    ScanOptions options;
    // A good option beside the bad one must not be taken either.
    const QString problem = scanOptionsFromJson({{QStringLiteral("caseSensitive"), true}, {name, value}}, options);
    QVERIFY2(problem.contains(QLatin1Char('"') + name + QLatin1Char('"')), qPrintable(problem));
    QVERIFY(options == ScanOptions());
}

void OptionTableTest::fromText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QJsonValue>("expected");
    const auto row = [](const char *name, const char *text, const QJsonValue &expected) {
        QTest::addRow("%s=%s", name, text) << QString::fromLatin1(name) << QString::fromUtf8(text) << expected;
    };
    row("sameName", "true", true);
    row("minSize", "1024", 1024);
    row("minSize", "-1", -1);
    row("includeExtensions", "jpg,png", QJsonArray{QStringLiteral("jpg"), QStringLiteral("png")});
    row("includeExtensions", R"(["a,b"])", QJsonArray{QStringLiteral("a,b")});
    row("includeExtensions", "", QJsonArray());
    row("videoDurationTolerance", "00:00:01.000", QStringLiteral("00:00:01.000"));
    row("videoDurationTolerance", "\"quoted\"", QStringLiteral("\"quoted\""));
    row("minSize", "1e3", 1000); // any whole number of JSON
    row("roots", "/a,,/b", QJsonArray{QStringLiteral("/a"), QStringLiteral("/b")});
    row("locations", R"([{"path":"/a","showRemaining":true}])",
        QJsonArray{QJsonObject{{QStringLiteral("path"), QStringLiteral("/a")},
                               {QStringLiteral("includeSubfolders"), true},
                               {QStringLiteral("findKind"), 0},
                               {QStringLiteral("showRemaining"), true}}});
    row("imageTags", R"([{"name":"Make","enabled":1}])",
        QJsonArray{QJsonObject{{QStringLiteral("name"), QStringLiteral("Make")}, {QStringLiteral("enabled"), 1}}});
}

void OptionTableTest::fromText()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    ScanOptions options;
    QCOMPARE(setScanOption(options, name, text), QString());
    const QJsonValue value = scanOptionsToJson(options)[name];
    QTEST(value, "expected");
}

void OptionTableTest::textRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("minSize") << QStringLiteral("1k");
    QTest::newRow("maxSize") << QStringLiteral("1,2");
    QTest::newRow("threads") << QString();
    QTest::newRow("keepRule") << QStringLiteral("2147483648");
    QTest::newRow("largeFileMinBytes") << QStringLiteral("9223372036854775808");
    QTest::newRow("nameTolerance") << QStringLiteral("0.5");
    QTest::newRow("roots") << QStringLiteral("[\"/a\"],[\"/b\"]");
    QTest::newRow("excludeFolders") << QStringLiteral("[\"/a\", 1]");
    QTest::newRow("imageTags") << QStringLiteral("{\"name\":\"Make\"}");
    QTest::newRow("sameName") << QStringLiteral("yes");
    QTest::newRow("locations") << QStringLiteral("/a");
    QTest::newRow("none") << QStringLiteral("1");
}

void OptionTableTest::textRefused()
{
    QFETCH(QString, text);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    ScanOptions options;
    const QString problem = setScanOption(options, name, text);
    QVERIFY2(problem.contains(QLatin1Char('"') + name + QLatin1Char('"')), qPrintable(problem));
    QVERIFY(options == ScanOptions());
}

QTEST_GUILESS_MAIN(OptionTableTest)
#include "tst_optiontable.moc"
