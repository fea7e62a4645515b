#include "cli/shellcompletion.h"

#include "core/model/optiontable.h"

#include <iterator>

namespace MirrixCli {

namespace {

/// What may follow an option of a command.
struct OptionWords
{
    QString command;
    QString option;
    QStringList words;
};

QStringList assignments()
{
    QStringList words = MirrixCore::scanOptionNames();
    for (QString &word : words)
        word += QLatin1Char('=');
    return words;
}

QList<OptionWords> optionWords(const QList<CommandHelp> &commands)
{
    QList<OptionWords> all;
    for (const CommandHelp &command : commands) {
        for (const OptionHelp &option : command.options) {
            const bool isAssignment = option.valueName == QLatin1String("NAME=VALUE");
            const QStringList words = isAssignment ? assignments() : option.choices();
            if (!words.isEmpty())
                all.append({command.name, option.names.constLast(), words});
        }
    }
    return all;
}

/// The words that may stand anywhere behind a command.
QStringList wordsOf(const CommandHelp &command)
{
    QStringList words;
    for (const OptionHelp &option : command.options)
        words += option.names;
    return command.name == QLatin1String("options") ? words + MirrixCore::scanOptionNames() : words;
}

QString namesOf(const QList<CommandHelp> &commands)
{
    QStringList names;
    for (const CommandHelp &command : commands)
        names.append(command.name);
    return names.join(QLatin1Char(' '));
}

/// A line of `form` for each word before the cursor: %1 the command, %2 the option, %3 the words that may follow. Those
/// of the command alone, whose option is empty, come last.
QString tableOf(const QList<CommandHelp> &commands, const QString &form)
{
    QString table;
    for (const OptionWords &each : optionWords(commands))
        table += form.arg(each.command, each.option, each.words.join(QLatin1Char(' ')));
    for (const CommandHelp &command : commands)
        table += form.arg(command.name, QString(), wordsOf(command).join(QLatin1Char(' ')));
    return table;
}

QString bash(const QList<CommandHelp> &commands)
{
    return QStringLiteral(R"(# Completion of mirrix-cli for bash.
_mirrix_cli() {
    local word words= current=${COMP_WORDS[COMP_CWORD]} place="${COMP_WORDS[1]} ${COMP_WORDS[COMP_CWORD-1]}"
    if ((COMP_CWORD == 1)); then
        place= words='%1'
    fi
    case $place in
%2    esac
    COMPREPLY=($(compgen -W "$words" -- "$current"))
    [[ ${COMPREPLY[0]} == *= ]] && compopt -o nospace
    return 0
}
complete -o default -F _mirrix_cli mirrix-cli
)")
        .arg(namesOf(commands), tableOf(commands, QStringLiteral("        '%1 %2'*) words='%3' ;;\n")));
}

QString zsh(const QList<CommandHelp> &commands)
{
    return QStringLiteral(R"(#compdef mirrix-cli
local choices= place="${words[2]} ${words[CURRENT-1]}"
if ((CURRENT == 2)); then
    compadd -- %1
    return
fi
case $place in
%2esac
compadd -S '' -- ${${=choices}:#*[^=]}
compadd -- ${${=choices}:#*=}
_files
)")
        .arg(namesOf(commands), tableOf(commands, QStringLiteral("    '%1 %2'*) choices='%3' ;;\n")));
}

QString fishText(QString text)
{
    return QLatin1Char('\'') +
           text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('\''), QLatin1String("\\'")) +
           QLatin1Char('\'');
}

QString fish(const QList<CommandHelp> &commands)
{
    QString text = QStringLiteral("# Completion of mirrix-cli for fish.\n");
    for (const CommandHelp &command : commands)
        text += QStringLiteral("complete -c mirrix-cli -n __fish_use_subcommand -f -a %1 -d %2\n")
                    .arg(command.name, fishText(command.summary));
    const QList<OptionWords> all = optionWords(commands);
    for (const CommandHelp &command : commands) {
        const QString start =
            QStringLiteral("complete -c mirrix-cli -n '__fish_seen_subcommand_from %1'").arg(command.name);
        for (const OptionHelp &option : command.options) {
            text += start;
            for (const QString &name : option.names)
                text += name.startsWith(QLatin1String("--")) ? QLatin1String(" -l ") + name.mid(2)
                                                             : QLatin1String(" -s ") + name.mid(1);
            for (const OptionWords &each : all) {
                if (each.command == command.name && each.option == option.names.constLast())
                    text += QLatin1String(" -x -a ") + fishText(each.words.join(QLatin1Char(' ')));
            }
            text += (option.valueName.isEmpty() ? QString() : QStringLiteral(" -r")) + QLatin1String(" -d ") +
                    fishText(option.description) + QLatin1Char('\n');
        }
        if (command.name == QLatin1String("options"))
            text += start + QLatin1String(" -a ") + fishText(MirrixCore::scanOptionNames().join(QLatin1Char(' '))) +
                    QLatin1Char('\n');
    }
    return text;
}

QString powerShell(const QList<CommandHelp> &commands)
{
    return QStringLiteral(R"ps(# Completion of mirrix-cli for PowerShell.
Register-ArgumentCompleter -Native -CommandName mirrix-cli -ScriptBlock {
    param($word, $line, $position)
    $known = @{
%2    }
    $before = @($line.CommandElements | Where-Object { $_.Extent.EndOffset -lt $position } | ForEach-Object { "$_" })
    $choices = if ($before.Count -lt 2) { '%1' } else { $known["$($before[1]) $($before[-1])"] }
    if (-not $choices) { $choices = $known["$($before[1]) "] }
    -split $choices | Where-Object { $_ -like "$word*" } | ForEach-Object {
        [System.Management.Automation.CompletionResult]::new($_, $_, 'ParameterValue', $_)
    }
}
)ps")
        .arg(namesOf(commands), tableOf(commands, QStringLiteral("        '%1 %2' = '%3'\n")));
}

} // namespace

QStringList completionShells()
{
    return {QStringLiteral("bash"), QStringLiteral("zsh"), QStringLiteral("fish"), QStringLiteral("powershell")};
}

QByteArray completionFor(const QString &shell, const QList<CommandHelp> &commands)
{
    const auto writers = {bash, zsh, fish, powerShell}; // in the order of the shells
    const auto *writer = std::next(writers.begin(), completionShells().indexOf(shell));
    return (*writer)(commands).toUtf8();
}

} // namespace MirrixCli
