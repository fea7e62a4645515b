#include "app/languagecodes.h"

#include <QLocale>

namespace Mirrix {

namespace {

const QString sourceLanguage = QStringLiteral("zh_CN");

Language language(const QString &code, const QString &nativeName, const QString &locale,
                  const QStringList &aliases = {})
{
    const bool isSource = code == sourceLanguage;
    return {code, nativeName, isSource ? QString() : QLatin1String("mirrix_") + code, locale, aliases};
}

bool matches(const Language &language, const QString &tag)
{
    return QString(language.code).replace(QLatin1Char('_'), QLatin1Char('-')).toLower() == tag ||
           language.aliases.contains(tag);
}

} // namespace

const QList<Language> &languages()
{
    static const QList<Language> table = {
        language(
            QStringLiteral("zh_TW"), QStringLiteral("繁體中文"), QString(),
            {QStringLiteral("zh-tw"), QStringLiteral("zh-hant"), QStringLiteral("zh-hk"), QStringLiteral("zh-mo")}),
        language(sourceLanguage, QStringLiteral("简体中文"), QString(),
                 {QStringLiteral("zh-cn"), QStringLiteral("zh-hans"), QStringLiteral("cn")}),
        language(QStringLiteral("en"), QStringLiteral("English"), QStringLiteral("en_US")),
        language(QStringLiteral("de"), QStringLiteral("Deutsch"), QStringLiteral("de_DE")),
        language(QStringLiteral("ja"), QStringLiteral("日本語"), QStringLiteral("ja_JP")),
        language(QStringLiteral("fr"), QStringLiteral("Français"), QStringLiteral("fr_FR")),
        language(QStringLiteral("es"), QStringLiteral("Español"), QStringLiteral("es_ES")),
        language(QStringLiteral("pt"), QStringLiteral("Português (Brasil)"), QStringLiteral("pt_BR"),
                 {QStringLiteral("pt-br")}),
        language(QStringLiteral("ko"), QStringLiteral("한국어"), QStringLiteral("ko_KR")),
        language(QStringLiteral("it"), QStringLiteral("Italiano"), QStringLiteral("it_IT")),
        language(QStringLiteral("nl"), QStringLiteral("Nederlands"), QStringLiteral("nl_NL")),
    };
    return table;
}

QString knownLanguageCode(const QString &code)
{
    // "zh-Hant-HK" is tried whole, then as "zh-hant", then as "zh".
    QString tag = QString(code).replace(QLatin1Char('_'), QLatin1Char('-')).toLower();
    while (!tag.isEmpty()) {
        for (const Language &candidate : languages()) {
            if (matches(candidate, tag))
                return candidate.code;
        }
        const qsizetype cut = tag.lastIndexOf(QLatin1Char('-'));
        tag.truncate(std::max<qsizetype>(cut, 0));
    }
    return {};
}

QString normalizedLanguageCode(const QString &code)
{
    const QString known = knownLanguageCode(code);
    return known.isEmpty() ? sourceLanguage : known;
}

QString systemLanguageCode()
{
    const QStringList tags = QLocale::system().uiLanguages();
    for (const QString &tag : tags) {
        const QString known = knownLanguageCode(tag);
        if (!known.isEmpty())
            return known;
    }
    return sourceLanguage;
}

} // namespace Mirrix
