#include "cli/commandline.h"

#include "app/datalocations.h"
#include "cli/cleancommand.h"
#include "cli/documentation.h"
#include "cli/hashcommand.h"
#include "cli/historycommand.h"
#include "cli/infocommand.h"
#include "cli/logcommand.h"
#include "cli/optionscommand.h"
#include "cli/output.h"
#include "cli/restorecommand.h"
#include "cli/scancommand.h"
#include "cli/undocommand.h"
#include "core/platform/nativefileio.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <QCoreApplication>

#include <algorithm>
#include <exception>
#include <iterator>

namespace MirrixCli {

namespace {

const QString dataDirOption = QStringLiteral("data-dir");
const QString portableOption = QStringLiteral("portable");
const QString versionOption = QStringLiteral("version");
const QString helpOption = QStringLiteral("help");

struct Command
{
    QString name;
    QString summary;
    void (*addOptions)(QCommandLineParser &);
    ExitStatus (*run)(const QCommandLineParser &);
    bool isHidden = false; ///< not listed in the usage
};

const QList<Command> &commands()
{
    static const QList<Command> table = {
        {QStringLiteral("scan"), QStringLiteral("find duplicate files in folders"), addScanOptions, runScan},
        {QStringLiteral("clean"), QStringLiteral("remove surplus copies of identical files"), addCleanOptions,
         runClean},
        {QStringLiteral("restore"), QStringLiteral("list or restore backed-up files"), addRestoreOptions, runRestore},
        {QStringLiteral("history"), QStringLiteral("list the cleaning runs, or the files of one"), addHistoryOptions,
         runHistory},
        {QStringLiteral("undo"), QStringLiteral("undo a cleaning run"), addUndoOptions, runUndo},
        {QStringLiteral("log"), QStringLiteral("show the log of what was done"), addLogOptions, runLog},
        {QStringLiteral("hash"), QStringLiteral("print checksums of files"), addHashOptions, runHash},
        {QStringLiteral("info"), QStringLiteral("show what is known about files"), addInfoOptions, runInfo},
        {QStringLiteral("options"), QStringLiteral("describe the scan options that --set takes"), addOptionsOptions,
         runOptions},
        {QStringLiteral("completion"), QStringLiteral("print a completion script for a shell"), addCompletionOptions,
         runCompletion, true},
        {QStringLiteral("manpage"), QStringLiteral("print a manual page"), addManpageOptions, runManpage, true},
    };
    return table;
}

QList<Command> listedCommands()
{
    QList<Command> listed;
    std::copy_if(commands().begin(), commands().end(), std::back_inserter(listed),
                 [](const Command &command) { return !command.isHidden; });
    return listed;
}

QString usageText()
{
    QString text = QStringLiteral("Usage: mirrix-cli COMMAND [OPTIONS] ...\n\nCommands:\n");
    for (const Command &command : listedCommands())
        text += QStringLiteral("  %1  %2\n").arg(command.name, -8).arg(command.summary);
    return text + QStringLiteral("\nRun \"mirrix-cli COMMAND --help\" for the options of a command.\n"
                                 "Exit status: 0 done, 1 some files failed, 2 wrong usage, 3 cancelled.\n");
}

QString versionText()
{
    return QLatin1String("mirrix-cli ") + QCoreApplication::applicationVersion() + QLatin1Char('\n');
}

/// Declares all options of a command.
void prepare(QCommandLineParser &parser, const Command &command)
{
    parser.setApplicationDescription(QStringLiteral("%1: %2.").arg(command.name, command.summary));
    command.addOptions(parser);
    parser.addOption({dataDirOption,
                      QStringLiteral("Folder for settings, caches and records (default: the program's own)."),
                      QStringLiteral("DIR")});
    parser.addOption(
        {portableOption, QStringLiteral("Keep settings, caches and records in the folder Data beside the program.")});
    parser.addOption({versionOption, QStringLiteral("Show the version.")});
    parser.addOption({{QStringLiteral("h"), helpOption}, QStringLiteral("Show this help.")});
}

/// The parser's help, which begins with the program as it was called and knows no commands.
QString helpText(const QCommandLineParser &parser, const Command &command)
{
    QString text = parser.helpText();
    const qsizetype end = text.indexOf(QLatin1String("[options]"));
    return text.replace(0, end, QStringLiteral("Usage: mirrix-cli %1 ").arg(command.name));
}

ExitStatus runParsed(const Command &command, const QStringList &arguments)
{
    QCommandLineParser parser;
    prepare(parser, command);
    if (!parser.parse(arguments))
        throw UsageError{parser.errorText()};
    if (parser.isSet(helpOption) || parser.isSet(versionOption)) {
        printText(parser.isSet(helpOption) ? helpText(parser, command) : versionText());
        return ExitStatus::Done;
    }
    return command.run(parser);
}

/// The first argument names the command.
ExitStatus dispatch(QStringList arguments)
{
    const QString word = arguments.value(1);
    if (word.isEmpty())
        throw UsageError{QStringLiteral("no command given")};
    if (word == QLatin1String("--help") || word == QLatin1String("-h") || word == QLatin1String("help")) {
        printText(usageText());
        return ExitStatus::Done;
    }
    if (word == QLatin1String("--version")) {
        printText(versionText());
        return ExitStatus::Done;
    }
    const auto &table = commands();
    const auto command =
        std::find_if(table.begin(), table.end(), [&](const Command &candidate) { return candidate.name == word; });
    if (command == table.end())
        throw UsageError{QStringLiteral("unknown command \"%1\"").arg(word)};
    arguments.removeAt(1);
    // The window program's other spelling, which the data locations read by themselves; here it would be six options.
    arguments.removeAll(QStringLiteral("-portable"));
    return runParsed(*command, arguments);
}

} // namespace

ExitStatus runCommandLine(const QStringList &arguments)
{
    try {
        return dispatch(arguments);
    } catch (const UsageError &error) {
        printError(error.message);
        printError(QStringLiteral("try \"mirrix-cli --help\""));
        return ExitStatus::WrongUsage;
    } catch (const std::exception &error) {
        printError(QString::fromLocal8Bit(error.what()));
        return ExitStatus::SomeFailed;
    }
}

QList<CommandHelp> commandHelps()
{
    QList<CommandHelp> helps;
    for (const Command &command : listedCommands()) {
        QCommandLineParser parser;
        prepare(parser, command);
        helps.append(commandHelpFrom(command.name, command.summary, parser.helpText()));
    }
    return helps;
}

QString choiceProblem(const QString &option, const QStringList &choices, const QString &value)
{
    const QString known =
        choices.mid(0, choices.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" or ") + choices.constLast();
    return value.isEmpty() ? QStringLiteral("--%1 is missing; it must be %2").arg(option, known)
                           : QStringLiteral("--%1 must be %2, not \"%3\"").arg(option, known, value);
}

QString commandText()
{
    return QCoreApplication::arguments().mid(1).join(QLatin1Char(' '));
}

void requireUnicodeName(const QString &source, const QString &folder)
{
    if (!MirrixCore::isQtPath(folder))
        throw UsageError{QStringLiteral("%1 cannot be %2: its name is not UTF-8").arg(source, folder)};
}

QString dataDirectoryOf(const QCommandLineParser &parser)
{
    const QString chosen = parser.value(dataDirOption);
    return chosen.isEmpty() ? Mirrix::dataDirectory() : MirrixCore::cleanedPath(MirrixCore::absolutePath(chosen));
}

QString recordsDirectoryOf(const QCommandLineParser &parser)
{
    const QString directory = dataDirectoryOf(parser);
    requireUnicodeName(QStringLiteral("--") + dataDirOption, directory);
    return directory;
}

} // namespace MirrixCli
