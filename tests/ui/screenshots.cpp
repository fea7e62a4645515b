// Takes pictures of all windows: screenshots FOLDER [THEME [LANGUAGE [NAME...]]]. Runs a real scan on sample files of
// its own and grabs each page and dialog, or those named. scripts/screenshots.sh calls it.

#include "app/translations.h"
#include "tests/ui/gallery.h"
#include "ui/mirrix.h"
#include "ui/theme.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QTest>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(u":/resources/mirrix-256.png"_qs));
    QApplication::setApplicationVersion(u"1.0.0"_qs);
    const QStringList arguments = QApplication::arguments();
    const QString theme = arguments.value(2, u"light"_qs);
    const QString language = arguments.value(3, u"en"_qs);
    const QString prefix = QDir(arguments.value(1, u"."_qs)).filePath(u"%1-%2-"_qs.arg(theme, language));
    Mirrix::loadLanguage(language);
    Mirrix::applyTheme(theme);

    MirrixTest::Gallery gallery([&](Mirrix::Settings &settings) {
        settings.appTheme = theme;
        settings.uiLanguage = language;
    });
    gallery.window().resize(1280, 800);
    if (!gallery.scan())
        return 1;
    const QStringList wanted = arguments.mid(4);
    gallery.visitAll([&](const QString &name, QWidget &window) {
        if (!wanted.isEmpty() && !wanted.contains(name))
            return;
        constexpr int arrivalMs = 300; // of pictures, layouts and what is read aside
        QTest::qWait(arrivalMs);
        window.grab().save(prefix + name + u".png"_qs);
    });
    return 0;
}
