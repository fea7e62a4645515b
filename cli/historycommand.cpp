#include "cli/historycommand.h"

#include "actions/records/jsontext.h"
#include "actions/records/runhistory.h"
#include "actions/records/runjournal.h"
#include "app/sizetext.h"
#include "cli/output.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>

namespace MirrixCli {

namespace {

using namespace Mirrix;

const QString formatOption = QStringLiteral("format");

/// A line of text from anywhere: names of files must not forge further lines.
QByteArray safeLine(QString line, const Output &output)
{
    for (QChar &unit : line) {
        const QChar::Category category = unit.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            unit = QLatin1Char('?');
    }
    return shownPath(line, output.isTerminal()) + '\n';
}

QString endingOf(const RunSummary &run)
{
    return !run.isReadable  ? QStringLiteral("unreadable")
           : run.isComplete ? QStringLiteral("complete")
                            : QStringLiteral("interrupted");
}

void writeText(const QList<RunSummary> &runs, Output &output)
{
    qsizetype widest = 0;
    for (const RunSummary &run : runs)
        widest = std::max(widest, run.header.method.size());
    for (const RunSummary &run : runs) {
        const RunTally::Totals &totals = run.totals;
        const QString time =
            QDateTime::fromMSecsSinceEpoch(run.header.startedMs).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        const QString files = QStringLiteral("%1/%2").arg(totals.done).arg(run.header.planned);
        QString line = QStringLiteral("%1  %2  %3  %4 files  freed %5  held %6  %7")
                           .arg(run.header.id, time, run.header.method.leftJustified(widest), files.rightJustified(13),
                                sizeText(totals.freedBytes).rightJustified(9),
                                sizeText(totals.heldBytes).rightJustified(9), endingOf(run));
        if (totals.failed > 0)
            line += QStringLiteral(", %1 failed").arg(totals.failed);
        if (totals.undone > 0)
            line += QStringLiteral(", %1 undone").arg(totals.undone);
        if (!run.header.undoOf.isEmpty())
            line += QLatin1String(", undoes ") + run.header.undoOf;
        output.write(safeLine(line, output));
    }
}

void writeText(const StoredRun &run, Output &output)
{
    writeText(QList<RunSummary>{run.summary}, output);
    for (qsizetype i = 0; i < run.items.size(); ++i) {
        const ItemOutcome &outcome = run.outcomes[i];
        QString line = QStringLiteral("  ") + stateName(outcome.state).leftJustified(9) + run.items[i].original;
        if (!outcome.now.isEmpty())
            line += QLatin1String("  ->  ") + outcome.now;
        if (!run.items[i].kept.isEmpty())
            line += QStringLiteral("  (kept: %1)").arg(run.items[i].kept);
        if (!outcome.message.isEmpty())
            line += QLatin1String("  ") + outcome.message;
        output.write(safeLine(line, output));
    }
}

QByteArray jsonText(const QString &text)
{
    QByteArray json;
    appendJsonText(json, text);
    return json;
}

/// An object without the brace at its end.
QByteArray jsonOf(const RunSummary &run)
{
    const auto number = [](qint64 value) { return QByteArray::number(value); };
    return "{\"run\": " + jsonText(run.header.id) + ", \"startedMs\": " + number(run.header.startedMs) +
           ", \"command\": " + jsonText(run.header.command) + ", \"method\": " + jsonText(run.header.method) +
           ", \"planned\": " + number(run.header.planned) + ", \"done\": " + number(run.totals.done) +
           ", \"failed\": " + number(run.totals.failed) + ", \"undone\": " + number(run.totals.undone) +
           ", \"freedBytes\": " + number(run.totals.freedBytes) + ", \"heldBytes\": " + number(run.totals.heldBytes) +
           ", \"complete\": " + (run.isComplete ? "true" : "false");
}

QByteArray jsonOf(const RunItem &item, const ItemOutcome &outcome)
{
    return "{\"original\": " + jsonText(item.original) +
           ", \"now\": " + (outcome.now.isEmpty() ? QByteArray("null") : jsonText(outcome.now)) +
           ", \"keeper\": " + jsonText(item.kept) + ", \"size\": " + QByteArray::number(item.sizeBytes) +
           ", \"state\": " + jsonText(stateName(outcome.state)) + ", \"reason\": " + jsonText(item.reason) +
           ", \"message\": " + jsonText(outcome.message) + '}';
}

void writeJson(const QList<RunSummary> &runs, Output &output)
{
    QByteArray separator = "[";
    for (const RunSummary &run : runs) {
        output.write(separator + jsonOf(run) + '}');
        separator = ",\n";
    }
    output.write(runs.isEmpty() ? "[]\n" : "]\n");
}

void writeJson(const StoredRun &run, Output &output)
{
    output.write(jsonOf(run.summary) + ", \"files\": [");
    for (qsizetype i = 0; i < run.items.size(); ++i)
        output.write((i > 0 ? ",\n" : "\n") + jsonOf(run.items[i], run.outcomes[i]));
    output.write("]}\n");
}

/// Names what cannot be read. False when that is all of a journal.
bool reportProblem(const RunSummary &run)
{
    if (!run.message.isEmpty())
        printError(run.message);
    return run.isReadable;
}

template <typename Runs>
bool writeRuns(const Runs &runs, bool isJson)
{
    Output output;
    if (!output.open({}))
        return false;
    isJson ? writeJson(runs, output) : writeText(runs, output);
    return output.finish();
}

} // namespace

void addHistoryOptions(QCommandLineParser &parser)
{
    parser.addOption({formatOption, QStringLiteral("Output format: text (default) or json."), QStringLiteral("FORMAT"),
                      QStringLiteral("text")});
    parser.addPositionalArgument(QStringLiteral("RUN"),
                                 QStringLiteral("Show this run with its files, named as in the list."),
                                 QStringLiteral("[RUN]"));
}

ExitStatus runHistory(const QCommandLineParser &parser)
{
    const QString format = parser.value(formatOption);
    if (format != QLatin1String("text") && format != QLatin1String("json"))
        throw UsageError{choiceProblem(formatOption, {QStringLiteral("text"), QStringLiteral("json")}, format)};
    const QStringList words = parser.positionalArguments();
    if (words.size() > 1 || (!words.isEmpty() && !isRunId(words.constFirst())))
        throw UsageError{QStringLiteral("history takes at most one run, named as in the list")};
    const bool isJson = format == QLatin1String("json");
    const QString dataDirectory = recordsDirectoryOf(parser);
    bool isDone = true;
    if (words.isEmpty()) {
        const QList<RunSummary> runs = listRuns(dataDirectory);
        for (const RunSummary &run : runs)
            isDone = reportProblem(run) && isDone;
        isDone = writeRuns(runs, isJson) && isDone;
    } else if (const QString path = runJournalPath(dataDirectory, words.constFirst()); QFile::exists(path)) {
        const StoredRun run = readRun(path);
        isDone = reportProblem(run.summary);
        isDone = writeRuns(run, isJson) && isDone;
    } else {
        printError(QStringLiteral("no such run: %1").arg(words.constFirst()));
        isDone = false;
    }
    return isDone ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace MirrixCli
