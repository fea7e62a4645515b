#include "app/languagecodes.h"

#include <QLocale>
#include <QTest>

using namespace Mirrix;
using namespace Qt::StringLiterals;

class LanguageCodesTest : public QObject
{
    Q_OBJECT

public:
    /// Before the application exists: the system's languages are read only once.
    static void initMain()
    {
        qputenv("LC_ALL", "xx_XX.UTF-8");
        qputenv("LANGUAGE", "xx:zh_HK:de");
    }

private slots:
    void table()
    {
        QStringList lines;
        for (const Language &language : languages()) {
            lines.append(language.code + u' ' + language.nativeName + u' ' + language.locale);
            QCOMPARE(language.catalogue, language.code == u"zh_CN"_s ? QString() : u"mirrix_"_s + language.code);
            QCOMPARE(knownLanguageCode(language.code), language.code);
        }
        QCOMPARE(lines.join(u'|'), u"zh_TW 繁體中文 |zh_CN 简体中文 |en English en_US|de Deutsch de_DE|ja 日本語 ja_JP|"
                                   "fr Français fr_FR|es Español es_ES|pt Português (Brasil) pt_BR|ko 한국어 ko_KR|"
                                   "it Italiano it_IT|nl Nederlands nl_NL"_s);
    }

    void codes()
    {
        const QList<std::pair<QString, QString>> known = {{u"zh_TW"_s, u"zh_tw|zh-hant|ZH-HK|zh-mo|zh-Hant-HK"_s},
                                                          {u"zh_CN"_s, u"zh-cn|zh-hans|zh-Hans-SG|cn"_s},
                                                          {u"en"_s, u"EN"_s},
                                                          {u"pt"_s, u"pt-br"_s},
                                                          {u"de"_s, u"de-AT"_s},
                                                          {QString(), u"|xx|deu|d|-de| de"_s}}; // "deu" is another one
        for (const auto &[expected, codes] : known) {
            for (const QString &code : codes.split(u'|')) {
                QCOMPARE(knownLanguageCode(code), expected);
                QCOMPARE(normalizedLanguageCode(code), expected.isEmpty() ? u"zh_CN"_s : expected);
            }
        }
    }

    void systemLanguage()
    {
        if (!QLocale::system().uiLanguages().contains(u"zh-HK"_s))
            QSKIP("the environment does not choose the languages here");
        QCOMPARE(systemLanguageCode(), u"zh_TW"_s); // "xx" is unknown, "de" comes later
    }
};

QTEST_GUILESS_MAIN(LanguageCodesTest)
#include "tst_languagecodes.moc"
