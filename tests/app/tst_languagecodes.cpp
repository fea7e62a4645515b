#include "app/languagecodes.h"

#include <QLocale>
#include <QTest>

using namespace Mirrix;
using namespace Qt::StringLiterals;

class LanguageCodesTest : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private slots:
    void table_data();
    void table();
    void codes_data();
    void codes();
    void systemLanguage();
};

/// Before the application exists: the system's languages are read only once.
void LanguageCodesTest::initMain()
{
    qputenv("LC_ALL", "xx_XX.UTF-8");
    qputenv("LANGUAGE", "xx:zh_HK:de");
}

void LanguageCodesTest::table_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("nativeName");
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QString>("locale");
    QTest::newRow("zh_TW") << 0 << u"繁體中文"_s << u"mirrix_zh_TW"_s << QString();
    QTest::newRow("zh_CN") << 1 << u"简体中文"_s << QString() << QString();
    QTest::newRow("en") << 2 << u"English"_s << u"mirrix_en"_s << u"en_US"_s;
    QTest::newRow("de") << 3 << u"Deutsch"_s << u"mirrix_de"_s << u"de_DE"_s;
    QTest::newRow("ja") << 4 << u"日本語"_s << u"mirrix_ja"_s << u"ja_JP"_s;
    QTest::newRow("fr") << 5 << u"Français"_s << u"mirrix_fr"_s << u"fr_FR"_s;
    QTest::newRow("es") << 6 << u"Español"_s << u"mirrix_es"_s << u"es_ES"_s;
    QTest::newRow("pt") << 7 << u"Português (Brasil)"_s << u"mirrix_pt"_s << u"pt_BR"_s;
    QTest::newRow("ko") << 8 << u"한국어"_s << u"mirrix_ko"_s << u"ko_KR"_s;
    QTest::newRow("it") << 9 << u"Italiano"_s << u"mirrix_it"_s << u"it_IT"_s;
    QTest::newRow("nl") << 10 << u"Nederlands"_s << u"mirrix_nl"_s << u"nl_NL"_s;
}

void LanguageCodesTest::table()
{
    QFETCH(int, place);
    QCOMPARE(languages().size(), 11);
    const Language &language = languages()[place];
    QCOMPARE(language.code, QString::fromLatin1(QTest::currentDataTag()));
    QTEST(language.nativeName, "nativeName");
    QTEST(language.catalogue, "catalogue");
    QTEST(language.locale, "locale");
    QCOMPARE(knownLanguageCode(language.code), language.code);
}

void LanguageCodesTest::codes_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("known");
    const auto row = [](const QString &code, const QString &known) {
        QTest::newRow(code.isEmpty() ? "empty" : qPrintable(code)) << code << known;
    };
    row({}, {});
    row(u"en"_s, u"en"_s);
    row(u"EN"_s, u"en"_s);
    row(u"zh-tw"_s, u"zh_TW"_s);
    row(u"zh_tw"_s, u"zh_TW"_s);
    row(u"zh-hant"_s, u"zh_TW"_s);
    row(u"zh-hk"_s, u"zh_TW"_s);
    row(u"ZH-HK"_s, u"zh_TW"_s);
    row(u"zh-mo"_s, u"zh_TW"_s);
    row(u"zh-Hant-HK"_s, u"zh_TW"_s);
    row(u"zh-cn"_s, u"zh_CN"_s);
    row(u"zh-hans"_s, u"zh_CN"_s);
    row(u"zh-Hans-SG"_s, u"zh_CN"_s);
    row(u"cn"_s, u"zh_CN"_s);
    row(u"pt-br"_s, u"pt"_s);
    row(u"de-AT"_s, u"de"_s);
    row(u"xx"_s, {});
    row(u"deu"_s, {}); // a longer word is another language
    row(u"d"_s, {});
    row(u"-de"_s, {});
    row(u" de"_s, {});
}

void LanguageCodesTest::codes()
{
    QFETCH(QString, code);
    QFETCH(QString, known);
    QCOMPARE(knownLanguageCode(code), known);
    QCOMPARE(normalizedLanguageCode(code), known.isEmpty() ? u"zh_CN"_s : known);
}

void LanguageCodesTest::systemLanguage()
{
    if (!QLocale::system().uiLanguages().contains(u"zh-HK"_s))
        QSKIP("the environment does not choose the languages here");
    QCOMPARE(systemLanguageCode(), u"zh_TW"_s); // "xx" is unknown, "de" comes later
}

QTEST_GUILESS_MAIN(LanguageCodesTest)
#include "tst_languagecodes.moc"
