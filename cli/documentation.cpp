#include "cli/documentation.h"

#include "cli/manpage.h"
#include "cli/output.h"
#include "cli/shellcompletion.h"

#include <algorithm>

namespace MirrixCli {

namespace {

const QString allOption = QStringLiteral("all");

bool writeFile(const QString &path, const QByteArray &text)
{
    Output output;
    if (output.open(path)) {
        output.write(text);
        if (output.finish())
            return true;
    }
    printError(QStringLiteral("cannot write %1: %2").arg(path, output.errorText()));
    return false;
}

ExitStatus writeAllPages(const QString &folder, const QList<CommandHelp> &commands)
{
    bool isWritten = writeFile(folder + QLatin1String("/mirrix-cli.1"), programPage(commands));
    for (const CommandHelp &command : commands)
        isWritten = writeFile(QStringLiteral("%1/mirrix-cli-%2.1").arg(folder, command.name), commandPage(command)) &&
                    isWritten;
    return isWritten ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace

void addCompletionOptions(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("SHELL"),
                                 completionShells().join(QStringLiteral(", ")) + QLatin1Char('.'));
}

ExitStatus runCompletion(const QCommandLineParser &parser)
{
    const QStringList words = parser.positionalArguments();
    if (words.size() != 1 || !completionShells().contains(words.constFirst()))
        throw UsageError{
            QStringLiteral("completion takes one of %1").arg(completionShells().join(QStringLiteral(", ")))};
    printText(QString::fromUtf8(completionFor(words.constFirst(), commandHelps())));
    return ExitStatus::Done;
}

void addManpageOptions(QCommandLineParser &parser)
{
    parser.addOption({allOption, QStringLiteral("Write all pages into this folder."), QStringLiteral("DIR")});
    parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("The command to describe."),
                                 QStringLiteral("[COMMAND]"));
}

ExitStatus runManpage(const QCommandLineParser &parser)
{
    const QList<CommandHelp> commands = commandHelps();
    if (parser.isSet(allOption))
        return writeAllPages(parser.value(allOption), commands);
    const QString name = parser.positionalArguments().value(0);
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&](const CommandHelp &command) { return command.name == name; });
    if (!name.isEmpty() && found == commands.end())
        throw UsageError{QStringLiteral("unknown command \"%1\"").arg(name)};
    printText(QString::fromUtf8(name.isEmpty() ? programPage(commands) : commandPage(*found)));
    return ExitStatus::Done;
}

} // namespace MirrixCli
