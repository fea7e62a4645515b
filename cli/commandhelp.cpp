#include "cli/commandhelp.h"

#include <QRegularExpression>

#include <algorithm>

namespace MirrixCli {

namespace {

/// "-0, --null" or "--set <NAME=VALUE>".
OptionHelp optionFrom(QString head)
{
    OptionHelp option;
    if (const qsizetype bracket = head.indexOf(QLatin1Char('<')); bracket >= 0) {
        option.valueName = head.mid(bracket + 1).chopped(1);
        head.truncate(bracket);
    }
    option.names = head.trimmed().split(QStringLiteral(", "));
    return option;
}

} // namespace

QStringList OptionHelp::choices() const
{
    static const QRegularExpression parentheses(QStringLiteral(" ?\\([^()]*\\)"));
    static const QRegularExpression separator(QStringLiteral(", | or "));
    static const QRegularExpression word(QStringLiteral("^[a-z][a-z0-9-]*$"));
    QString plain = QString(description).remove(parentheses);
    plain.truncate(plain.indexOf(QLatin1Char('.')));
    const qsizetype colon = plain.indexOf(QStringLiteral(": "));
    if (colon < 0 || valueName.isEmpty())
        return {};
    const QStringList words = plain.mid(colon + 2).split(separator);
    const auto isWord = [](const QString &text) { return word.match(text).hasMatch(); };
    return words.size() > 1 && std::all_of(words.begin(), words.end(), isWord) ? words : QStringList();
}

CommandHelp commandHelpFrom(const QString &name, const QString &summary, const QString &helpText)
{
    static const QRegularExpression head(QStringLiteral("^  (-(?:\\S| \\S)*)(?:  +(\\S.*))?$"));
    static const QRegularExpression usage(QStringLiteral("^Usage: .*\\[options\\] ?(.*)$"));
    CommandHelp help = {name, summary, {}, {}};
    bool isAmongOptions = false;
    const QStringList lines = helpText.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (const QRegularExpressionMatch start = usage.match(line); start.hasMatch())
            help.usage = start.captured(1);
        else if (!line.startsWith(QLatin1Char(' ')))
            isAmongOptions = line == QLatin1String("Options:");
        else if (const QRegularExpressionMatch match = head.match(line); isAmongOptions && match.hasMatch()) {
            help.options.append(optionFrom(match.captured(1)));
            help.options.last().description = match.captured(2);
        } else if (isAmongOptions && !help.options.isEmpty())
            help.options.last().description += QLatin1Char(' ') + line.trimmed();
    }
    return help;
}

} // namespace MirrixCli
