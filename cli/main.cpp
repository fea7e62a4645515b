#include "app/identity.h"
#include "cli/commandline.h"
#include "cli/englishtexts.h"
#include "cli/terminal.h"
#include "core/platform/nativepath.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    Mirrix::setApplicationIdentity();
    const QCoreApplication application(argc, argv);
    MirrixCli::EnglishTexts texts;
    QCoreApplication::installTranslator(&texts);
    MirrixCli::prepareTerminal();
    return static_cast<int>(MirrixCli::runCommandLine(MirrixCore::commandLineArguments(argc, argv)));
}
