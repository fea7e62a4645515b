#include "cli/undocommand.h"

#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/undo.h"
#include "actions/records/operationslog.h"
#include "actions/records/runjournal.h"
#include "app/settings.h"
#include "cli/output.h"
#include "cli/progressline.h"
#include "cli/terminal.h"

#include <QFile>

#include <algorithm>

namespace MirrixCli {

namespace {

using namespace Mirrix;

const QString applyOption = QStringLiteral("apply");
const QString lastWord = QStringLiteral("last");

/// The run that the command line means; empty, with a message printed, when there is none. "last" is the latest run
/// that is no undo itself.
QString runMeant(const QCommandLineParser &parser)
{
    const QStringList words = parser.positionalArguments();
    if (words.size() != 1 || (words.constFirst() != lastWord && !isRunId(words.constFirst())))
        throw UsageError{QStringLiteral("undo takes one run, named as in \"history\", or \"last\"")};
    const QString dataDirectory = recordsDirectoryOf(parser);
    if (words.constFirst() == lastWord) {
        const QList<RunSummary> runs = listRuns(dataDirectory);
        const auto found = std::find_if(runs.begin(), runs.end(), [](const RunSummary &run) {
            const QString &method = run.header.method;
            return methodNamed(method).has_value() ||
                   method == emptyFoldersMethod; // nor one that was killed before it began
        });
        if (found == runs.end())
            printError(QStringLiteral("there is no run to undo"));
        return found == runs.end() ? QString() : found->header.id;
    }
    if (QFile::exists(runJournalPath(dataDirectory, words.constFirst())))
        return words.constFirst();
    printError(QStringLiteral("no such run: %1").arg(words.constFirst()));
    return {};
}

/// A batch's progress as a line; `paths` gives the path of the file at an index.
template <typename PathAt>
BatchProgress shownOn(ProgressLine &line, const QString &phase, PathAt pathAt)
{
    return [&line, phase, pathAt](qsizetype done, qsizetype total) {
        line.show({total, done, total, pathAt(done), phase});
        return !isInterrupted();
    };
}

ExitStatus cancelled()
{
    printError(QStringLiteral("cancelled"));
    return ExitStatus::Cancelled;
}

ExitStatus printPlan(const UndoPlan &plan)
{
    Output output;
    if (!output.open({}))
        return ExitStatus::SomeFailed;
    qsizetype possible = 0;
    for (const UndoStep &step : plan.steps) {
        if (!step.problem.isEmpty()) {
            printError(step.problem);
            continue;
        }
        ++possible;
        const QString &original = plan.run.items[step.item].original;
        const QString line = step.from.isEmpty() ? original : backupLine({original, step.from});
        output.write(shownPath(line, output.isTerminal()) + '\n');
    }
    output.write(QStringLiteral("%1 of %2 files of run %3 (%4) can be brought back. Nothing was changed; run again "
                                "with --apply to do this.\n")
                     .arg(possible)
                     .arg(plan.steps.size())
                     .arg(plan.run.summary.header.id, plan.run.summary.header.method)
                     .toUtf8());
    return output.finish() && possible == plan.steps.size() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

ExitStatus apply(const UndoPlan &plan, const CleaningServices &services)
{
    UndoResult result;
    {
        ProgressLine line;
        QList<qsizetype> items;
        for (const UndoStep &step : plan.steps) {
            if (step.problem.isEmpty())
                items.append(step.item);
        }
        result = undoRun(plan, plan.steps, services, shownOn(line, QStringLiteral("undoing"), [&](qsizetype done) {
                             return done < items.size() ? plan.run.items[items[done]].original : QString();
                         }));
    }
    for (const QString &message : result.errors + result.notes)
        printError(message);
    printText(QStringLiteral("%1 of %2 files undone%3\n")
                  .arg(result.count)
                  .arg(plan.steps.size())
                  .arg(result.runId.isEmpty() ? QString() : QStringLiteral(" (run %1)").arg(result.runId)));
    if (result.isCancelled)
        return cancelled();
    return result.errors.isEmpty() ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace

void addUndoOptions(QCommandLineParser &parser)
{
    parser.addOption(
        {applyOption,
         QStringLiteral("Bring the files back. Without it, nothing is changed; the files are only listed.")});
    parser.addPositionalArgument(QStringLiteral("RUN"),
                                 QStringLiteral("The run to undo, named as in \"history\", or \"last\"."));
}

ExitStatus runUndo(const QCommandLineParser &parser)
{
    const QString id = runMeant(parser);
    if (id.isEmpty())
        return ExitStatus::SomeFailed;
    catchInterrupts();
    const QString dataDirectory = recordsDirectoryOf(parser);
    UndoPlan plan;
    {
        ProgressLine line;
        const BatchProgress progress = shownOn(line, QStringLiteral("looking"), [](qsizetype) { return QString(); });
        plan = planUndo(dataDirectory, id, progress, backupFolderPath(readSettings(dataDirectory).backupRoot));
    }
    if (isInterrupted())
        return cancelled();
    const RunSummary &run = plan.run.summary;
    if (!run.message.isEmpty())
        printError(run.message);
    if (!run.isReadable)
        return ExitStatus::SomeFailed;
    if (!parser.isSet(applyOption))
        return printPlan(plan);
    OperationsLog log(operationsLogPath(dataDirectory));
    return apply(plan, {log, dataDirectory, commandText()});
}

} // namespace MirrixCli
