#include "app/datalocations.h"
#include "app/identity.h"
#include "app/settings.h"
#include "app/translations.h"
#include "core/cache/cacheroot.h"
#include "core/platform/nativepath.h"
#include "ui/mirrix.h"
#include "ui/texts/locationtext.h"
#include "ui/window/prompts.h"
#include "ui/window/showcaptionhook.h"
#include "ui/window/theme.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char *argv[])
{
    Mirrix::setApplicationIdentity();
    QApplication application(argc, argv);
    const QStringList arguments = MirrixCore::commandLineArguments(argc, argv);
    Mirrix::ensureFusionStyle();
    application.installEventFilter(new Mirrix::ShowCaptionHook(&application));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/resources/mirrix-256.png")));
    if (Mirrix::hasPortableSwitch(arguments))
        Mirrix::decidePortable(true);

    Mirrix::Settings &settings = Mirrix::settings();
    settings.uiLanguage = Mirrix::loadLanguage(settings.uiLanguage);
    Mirrix::applyContentHashAlgorithm(settings);
    Mirrix::applyTheme(settings.appTheme);
    MirrixCore::setCacheRoot(settings.directory);
    MirrixCore::setOwnFiles(Mirrix::ownFilesIn(settings.directory));

    Mirrix::DialogPrompts prompts;
    MirrixUi::Mirrix window(settings, prompts);
    // Folders named on the command line, or dropped on the program's icon.
    for (const QString &folder : Mirrix::foldersAmong(arguments.mid(1)))
        window.addLocation(folder);
    window.show();
    return QApplication::exec();
}
