// Takes pictures of all windows: screenshots FOLDER [THEME [LANGUAGE [NAME...]]]. Runs a real scan on sample files of
// its own and grabs each page and dialog, or those named. scripts/screenshots.sh calls it.

#include "app/translations.h"
#include "tests/ui/gallery.h"
#include "tests/ui/uitest.h"
#include "ui/mirrix.h"
#include "ui/window/theme.h"

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(u":/resources/mirrix-256.png"_s));
    QApplication::setApplicationVersion(u"1.0.0"_s);
    const QStringList arguments = QApplication::arguments();
    const QString theme = arguments.value(2, u"light"_s);
    const QString language = arguments.value(3, u"en"_s);
    const QString prefix = QDir(arguments.value(1, u"."_s)).filePath(u"%1-%2-"_s.arg(theme, language));
    loadLanguage(language);
    applyTheme(theme);

    Gallery gallery([&](Settings &settings) {
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
        constexpr int arrivalMs = 300; // of pictures, layouts and what is read in the background
        QTest::qWait(arrivalMs);
        window.grab().save(prefix + name + u".png"_s);
    });
    return 0;
}
