#include "cli/shellcompletion.h"

#include "core/model/optiontable.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace MirrixCli {

namespace {

/// What the value of an option may be.
struct OptionWords
{
    QString command;
    QString option;
    QStringList words; ///< empty for a path, number or other text
};

QStringList assignments()
{
    QStringList words = MirrixCore::scanOptionNames();
    for (QString &word : words)
        word += QLatin1Char('=');
    return words;
}

/// Those of all options that take a value.
QList<OptionWords> optionWords(const QList<CommandHelp> &commands)
{
    QList<OptionWords> all;
    for (const CommandHelp &command : commands) {
        for (const OptionHelp &option : command.options) {
            if (option.valueName.isEmpty())
                continue;
            const bool isAssignment = option.valueName == QLatin1String("NAME=VALUE");
            all.append({command.name, option.names.constLast(), isAssignment ? assignments() : option.choices()});
        }
    }
    return all;
}

QString namesOf(const QList<CommandHelp> &commands)
{
    QStringList names;
    for (const CommandHelp &command : commands)
        names.append(command.name);
    return names.join(QLatin1Char(' '));
}

/// A line of `form` for each option that takes a value: %1 the command and the option, %2 the words to choose from.
QString valueTable(const QList<CommandHelp> &commands, const QString &form)
{
    QString table;
    for (const OptionWords &each : optionWords(commands))
        table += form.arg(each.command + QLatin1Char(' ') + each.option, each.words.join(QLatin1Char(' ')));
    return table;
}

/// A line of `form` for what may come elsewhere: %1 the command and the beginning of the word, %2 the words.
QString wordTable(const QList<CommandHelp> &commands, const QString &form)
{
    QString table;
    for (const CommandHelp &command : commands) {
        QStringList names;
        for (const OptionHelp &option : command.options)
            names += option.names;
        table += form.arg(command.name + QLatin1String(" -"), names.join(QLatin1Char(' ')));
    }
    return table + form.arg(QStringLiteral("options "), MirrixCore::scanOptionNames().join(QLatin1Char(' ')));
}

QString bash(const QList<CommandHelp> &commands)
{
    return QStringLiteral(R"(# Completion of mirrix-cli for bash.
_mirrix_cli() {
    local words= current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
    # "--mode=rules" arrives as three words.
    if [[ $current == = ]]; then
        current=
    elif [[ $before == = ]]; then
        before=${COMP_WORDS[COMP_CWORD-2]}
    fi
    if ((COMP_CWORD == 1)); then
        words='%1'
    else
        case "${COMP_WORDS[1]} $before" in
%2        *)
            case "${COMP_WORDS[1]} $current" in
%3            esac ;;
        esac
    fi
    COMPREPLY=($(compgen -W "$words" -- "$current"))
    [[ ${COMPREPLY[0]} == *= ]] && compopt -o nospace
    return 0
}
complete -o default -F _mirrix_cli mirrix-cli
)")
        .arg(namesOf(commands), valueTable(commands, QStringLiteral("        '%1') words='%2' ;;\n")),
             wordTable(commands, QStringLiteral("            '%1'*) words='%2' ;;\n")));
}

QString zsh(const QList<CommandHelp> &commands)
{
    return QStringLiteral(R"(#compdef mirrix-cli
local choices= before=${words[CURRENT-1]}
if ((CURRENT == 2)); then
    compadd -- %1
    return
fi
if [[ $PREFIX == --*=* ]] && compset -P 1 '*='; then
    before=${IPREFIX%=}
fi
case "${words[2]} $before" in
%2*)
    case "${words[2]} $PREFIX" in
%3    esac ;;
esac
if [[ -z $choices ]]; then
    _files
    return
fi
compadd -S '' -- ${${=choices}:#*[^=]}
compadd -- ${${=choices}:#*=}
)")
        .arg(namesOf(commands), valueTable(commands, QStringLiteral("'%1') choices='%2' ;;\n")),
             wordTable(commands, QStringLiteral("    '%1'*) choices='%2' ;;\n")));
}

QString fishText(QString text)
{
    return QLatin1Char('\'') +
           text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('\''), QLatin1String("\\'")) +
           QLatin1Char('\'');
}

/// The first sentence of a description, up to its list of choices: fish shows it beside each word.
QString shortened(const QString &description)
{
    static const QRegularExpression sentenceEnd(QStringLiteral("(?:\\.(?= |$)|: ).*$"));
    return QString(description).remove(sentenceEnd);
}

QString fishOption(const OptionHelp &option, const QStringList &words)
{
    QString text;
    for (const QString &name : option.names)
        text += name.startsWith(QLatin1String("--")) ? QLatin1String(" -l ") + name.mid(2)
                                                     : QLatin1String(" -s ") + name.mid(1);
    const bool isPath = option.valueName == QLatin1String("FILE") || option.valueName == QLatin1String("DIR");
    if (!option.valueName.isEmpty())
        text += isPath ? QLatin1String(" -r -F") : QLatin1String(" -x");
    if (!words.isEmpty())
        text += QLatin1String(" -a ") + fishText(words.join(QLatin1Char(' ')));
    return text + QLatin1String(" -d ") + fishText(shortened(option.description)) + QLatin1Char('\n');
}

QString fish(const QList<CommandHelp> &commands)
{
    // The command is the second word: a scanned folder may have the name of another one.
    QString text = QStringLiteral(R"(# Completion of mirrix-cli for fish.
function __mirrix_cli_runs
    set -l words (commandline -opc)
    test "$words[2]" = "$argv[1]"
end
)");
    for (const CommandHelp &command : commands)
        text += QStringLiteral("complete -c mirrix-cli -n '__mirrix_cli_runs \"\"' -f -a %1 -d %2\n")
                    .arg(command.name, fishText(command.summary));
    const QList<OptionWords> all = optionWords(commands);
    for (const CommandHelp &command : commands) {
        const QString start = QStringLiteral("complete -c mirrix-cli -n '__mirrix_cli_runs %1'").arg(command.name);
        for (const OptionHelp &option : command.options) {
            const auto words = std::find_if(all.begin(), all.end(), [&](const OptionWords &each) {
                return each.command == command.name && each.option == option.names.constLast();
            });
            text += start + fishOption(option, words == all.end() ? QStringList() : words->words);
        }
        if (command.name == QLatin1String("options"))
            text += start + QLatin1String(" -f -a ") + fishText(MirrixCore::scanOptionNames().join(QLatin1Char(' '))) +
                    QLatin1Char('\n');
    }
    return text;
}

QString powerShell(const QList<CommandHelp> &commands)
{
    const QString form = QStringLiteral("        '%1' = '%2'\n");
    return QStringLiteral(R"ps(# Completion of mirrix-cli for PowerShell.
Register-ArgumentCompleter -Native -CommandName mirrix-cli -ScriptBlock {
    param($word, $line, $position)
    $known = @{
%2    }
    $before = @($line.CommandElements | Where-Object { $_.Extent.EndOffset -lt $position } | ForEach-Object { "$_" })
    $place = "$($before[1]) $($before[-1])"
    if ($before.Count -lt 2) {
        $choices = '%1'
    } elseif ($known.ContainsKey($place)) {
        $choices = $known[$place]
    } elseif ($word -like '-*') {
        $choices = $known["$($before[1]) -"]
    } else {
        $choices = $known["$($before[1]) "]
    }
    if ($choices) {
        -split $choices | Where-Object { $_ -like "$word*" } | ForEach-Object {
            [System.Management.Automation.CompletionResult]::new($_, $_, 'ParameterValue', $_)
        }
    }
}
)ps")
        .arg(namesOf(commands), valueTable(commands, form) + wordTable(commands, form));
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
