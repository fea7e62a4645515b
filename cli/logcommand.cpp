#include "cli/logcommand.h"

#include "actions/records/operationslog.h"
#include "cli/logtexts.h"
#include "cli/output.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace MirrixCli {

namespace {

using namespace Mirrix;

const QString formatOption = QStringLiteral("format");

void writeText(const QList<LogEntry> &entries, Output &output)
{
    for (const LogEntry &entry : entries) {
        const QString time =
            QDateTime::fromMSecsSinceEpoch(entry.timeMs).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        QString line = time + QLatin1String("  ") + logText(entry);
        line.replace(QLatin1Char('\n'), QLatin1Char('?')); // a file name could forge a record
        output.write(shownPath(line, output.isTerminal()) + '\n');
    }
}

void writeJson(const QList<LogEntry> &entries, Output &output)
{
    QJsonArray items;
    for (const LogEntry &entry : entries)
        items.append(QJsonObject{{QStringLiteral("timeMs"), entry.timeMs},
                                 {QStringLiteral("action"), entry.action},
                                 {QStringLiteral("detail"), entry.detail}});
    output.write(QJsonDocument(items).toJson(QJsonDocument::Indented));
}

} // namespace

void addLogOptions(QCommandLineParser &parser)
{
    parser.addOption({formatOption, QStringLiteral("Output format: text (default) or json."), QStringLiteral("FORMAT"),
                      QStringLiteral("text")});
}

ExitStatus runLog(const QCommandLineParser &parser)
{
    const QString format = parser.value(formatOption);
    if (format != QLatin1String("text") && format != QLatin1String("json"))
        throw UsageError{choiceProblem(formatOption, {QStringLiteral("text"), QStringLiteral("json")}, format)};
    if (!parser.positionalArguments().isEmpty())
        throw UsageError{QStringLiteral("log takes no files")};
    const QList<LogEntry> entries = OperationsLog(operationsLogPath(recordsDirectoryOf(parser))).readAll();
    Output output;
    if (!output.open({}))
        return ExitStatus::SomeFailed;
    if (format == QLatin1String("json"))
        writeJson(entries, output);
    else
        writeText(entries, output);
    return output.finish() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace MirrixCli
