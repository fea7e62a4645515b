#include "app/identity.h"
#include "app/translations.h"
#include "cli/commandline.h"
#include "cli/terminal.h"
#include "core/platform/nativepath.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    Mirrix::setApplicationIdentity();
    const QCoreApplication application(argc, argv);
    // The console speaks English, whatever the window does.
    Mirrix::loadLanguage(QStringLiteral("en"));
    MirrixCli::prepareTerminal();
    return static_cast<int>(MirrixCli::runCommandLine(MirrixCore::commandLineArguments(argc, argv)));
}
