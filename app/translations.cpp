#include "app/translations.h"

#include "app/languagecodes.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>

namespace Mirrix {

namespace {

/// A translator that lives as long as the application.
QTranslator &lasting(QTranslator *&slot)
{
    if (!slot)
        slot = new QTranslator(QCoreApplication::instance());
    return *slot;
}

QString besideProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
}

bool loadOwn(QTranslator &translator, const Language &language)
{
    return translator.load(language.catalogue, QStringLiteral(":/translations")) ||
           translator.load(language.catalogue, besideProgram());
}

bool loadQt(QTranslator &translator, const Language &language)
{
    const QString name = QStringLiteral("qtbase_%1");
    for (const QString &folder : {QLibraryInfo::path(QLibraryInfo::TranslationsPath), besideProgram()}) {
        if (translator.load(name.arg(language.code), folder))
            return true;
        if (!language.locale.isEmpty() && translator.load(name.arg(language.locale), folder))
            return true;
    }
    return false;
}

} // namespace

QString loadLanguage(const QString &code)
{
    static QTranslator *ownSlot = nullptr;
    static QTranslator *qtSlot = nullptr;
    QTranslator &own = lasting(ownSlot);
    QTranslator &qt = lasting(qtSlot);
    QCoreApplication::removeTranslator(&own);
    QCoreApplication::removeTranslator(&qt);

    const QString known = normalizedLanguageCode(code);
    const auto &table = languages();
    const auto language =
        std::find_if(table.begin(), table.end(), [&known](const Language &entry) { return entry.code == known; });
    if (language == table.end() || language->catalogue.isEmpty())
        return known;
    if (loadOwn(own, *language))
        QCoreApplication::installTranslator(&own);
    if (loadQt(qt, *language))
        QCoreApplication::installTranslator(&qt);
    return known;
}

} // namespace Mirrix
