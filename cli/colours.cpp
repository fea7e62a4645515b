#include "cli/colours.h"

#include "cli/commandline.h"
#include "cli/output.h"

namespace MirrixCli {

namespace {

const QString colourOption = QStringLiteral("color");

const char *sequenceOf(Colour colour)
{
    switch (colour) {
    case Colour::Heading:
        return "\x1b[1m";
    case Colour::Kept:
        return "\x1b[32m";
    case Colour::GivenUp:
        return "\x1b[33m";
    }
    return "";
}

} // namespace

void addColourOption(QCommandLineParser &parser)
{
    parser.addOption({colourOption,
                      QStringLiteral("Colour text: auto (default: on a terminal, unless the environment variable "
                                     "NO_COLOR is set), always or never."),
                      QStringLiteral("WHEN"), QStringLiteral("auto")});
}

QString colourChoiceOf(const QCommandLineParser &parser)
{
    const QStringList choices = {QStringLiteral("auto"), QStringLiteral("always"), QStringLiteral("never")};
    const QString choice = parser.value(colourOption);
    if (!choices.contains(choice))
        throw UsageError{choiceProblem(colourOption, choices, choice)};
    return choice;
}

bool isColoured(const QString &choice, const Output &output)
{
    const bool isRefused = !qEnvironmentVariableIsEmpty("NO_COLOR") || qgetenv("TERM") == "dumb";
    return choice == QLatin1String("always") || (choice == QLatin1String("auto") && output.isTerminal() && !isRefused);
}

QByteArray coloured(const QByteArray &text, Colour colour, bool isOn)
{
    return isOn ? sequenceOf(colour) + text + "\x1b[0m" : text;
}

} // namespace MirrixCli
