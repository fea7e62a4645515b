#include "cli/manpage.h"

#include "cli/examples.h"
#include "core/model/optiontable.h"

#include <QCoreApplication>

namespace MirrixCli {

namespace {

using MirrixCore::ScanOptionInfo;

/// Text that roff takes for nothing else.
QString roff(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\e")).replace(QLatin1Char('-'), QLatin1String("\\-"));
    const bool isCommandLike = text.startsWith(QLatin1Char('.')) || text.startsWith(QLatin1Char('\''));
    return isCommandLike ? QLatin1String("\\&") + text : text;
}

QString bold(const QString &text)
{
    return QStringLiteral("\\fB%1\\fR").arg(roff(text));
}

QString pageStart(const QString &title, const QString &summary)
{
    return QStringLiteral(".TH \"%1\" 1 \"\" \"Mirrix %2\"\n.SH NAME\n%3 \\- %4\n")
        .arg(title.toUpper(), QCoreApplication::applicationVersion(), roff(title), roff(summary));
}

QString term(const QString &head, const QString &text)
{
    return QStringLiteral(".TP\n%1\n%2\n").arg(head, roff(text));
}

QString term(const OptionHelp &option)
{
    QStringList names;
    for (const QString &name : option.names)
        names.append(bold(name));
    QString head = names.join(QStringLiteral(", "));
    if (!option.valueName.isEmpty())
        head += QStringLiteral(" \\fI%1\\fR").arg(roff(option.valueName));
    return term(head, option.description);
}

QString examples(const QString &command)
{
    QString text;
    for (const Example &example : examplesOf(command))
        text +=
            QStringLiteral(".PP\n%1:\n.PP\n.RS 4\n.nf\n%2\n.fi\n.RE\n").arg(roff(example.purpose), roff(example.line));
    return text.isEmpty() ? text : QStringLiteral(".SH EXAMPLES\n") + text;
}

/// The scan options, on the page of the command that describes them.
QString scanOptions()
{
    QString text = QStringLiteral(".SH SCAN OPTIONS\n");
    for (const ScanOptionInfo &info : MirrixCore::scanOptionInfos()) {
        const QString range = info.hasRange() ? QStringLiteral(", %1 to %2").arg(info.least).arg(info.most) : QString();
        text += term(bold(info.name), QStringLiteral("%1%2. %3").arg(info.typeName, range, info.description));
    }
    return text;
}

const QString status = QStringLiteral(".SH EXIT STATUS\n0 done, 1 some files failed, 2 wrong usage, 3 cancelled.\n");

} // namespace

QByteArray programPage(const QList<CommandHelp> &commands)
{
    QString text =
        pageStart(QStringLiteral("mirrix-cli"),
                  QStringLiteral("find duplicate files and remove surplus copies safely")) +
        QStringLiteral(".SH SYNOPSIS\n.B mirrix\\-cli\n\\fICOMMAND\\fR [\\fIOPTIONS\\fR] ...\n.SH COMMANDS\n");
    QStringList pages;
    for (const CommandHelp &command : commands) {
        text += term(bold(command.name), command.summary + QLatin1Char('.'));
        pages.append(bold(QStringLiteral("mirrix-cli-") + command.name) + QStringLiteral("(1)"));
    }
    return (text + status + QStringLiteral(".SH SEE ALSO\n") + pages.join(QStringLiteral(",\n")) + QLatin1Char('\n'))
        .toUtf8();
}

QByteArray commandPage(const CommandHelp &command)
{
    QString text = pageStart(QStringLiteral("mirrix-cli-") + command.name, command.summary);
    text += QStringLiteral(".SH SYNOPSIS\n.B mirrix\\-cli %1\n[\\fIOPTIONS\\fR] %2\n.SH OPTIONS\n")
                .arg(command.name, roff(command.usage));
    for (const OptionHelp &option : command.options)
        text += term(option);
    if (command.name == QLatin1String("options"))
        text += scanOptions();
    return (text + examples(command.name) + status + QStringLiteral(".SH SEE ALSO\n\\fBmirrix\\-cli\\fR(1)\n"))
        .toUtf8();
}

} // namespace MirrixCli
