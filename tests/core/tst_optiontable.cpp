#include "core/scan/optiontable.h"

#include <QJsonArray>
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

} // namespace

class OptionTableTest : public QObject
{
    Q_OBJECT

private slots:
    void everyOptionTravels();
    void eachOptionHasItsOwnMember();
    void defaults_data();
    void defaults();
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
    const auto row = [](const char *name, const QJsonValue &value) { QTest::newRow(name) << value; };
    row("roots", QJsonArray());
    row("locations", QJsonArray());
    row("minSize", 0);
    row("skipHidden", false);
    row("readFileIdentity", false);
    row("collapseHardLinks", false);
    row("similarPercent", 90);
    row("ignoreCopyWords", true);
    row("folderPathDepth", 1);
    row("nameTolerance", 3);
    row("audioDurationTolerance", 5000);
    row("videoDurationTolerance", QStringLiteral("00:00:00.000"));
    row("imageShotTimeTolerance", 25);
    row("imageGpsPrecision", 1);
    row("imageMaxDistance", 10);
    row("imageSimilarityLevel", 1);
    row("imageFindRotated", false);
    row("imageUseFeatureCache", true);
    row("imageUseRawPreview", true);
    row("keepRule", 0);
    row("largeFileMinBytes", 104857600);
    row("duplicateFoldersOnly", false);
}

void OptionTableTest::defaults()
{
    const QJsonValue value = scanOptionsToJson({})[QLatin1String(QTest::currentDataTag())];
    QTEST(value, "expected");
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
