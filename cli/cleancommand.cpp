#include "cli/cleancommand.h"

#include "actions/cleaning/cleaningrun.h"
#include "actions/records/logevents.h"
#include "actions/records/operationslog.h"
#include "app/sizetext.h"
#include "cli/cleanplan.h"
#include "cli/colours.h"
#include "cli/counted.h"
#include "cli/emptyfolderscommand.h"
#include "cli/output.h"
#include "cli/progressline.h"
#include "cli/scancommand.h"
#include "cli/terminal.h"
#include "cli/unread.h"

#include <utility>

namespace MirrixCli {

namespace {

using namespace Mirrix;
using MirrixCore::ScanResult;

const QString applyOption = QStringLiteral("apply");

QString verbOf(CleaningMethod method)
{
    if (isLinking(method))
        return QStringLiteral("link");
    return method == CleaningMethod::Backup ? QStringLiteral("back up") : methodName(method);
}

/// "frees 3 MB", "12 MB held in the backup folder", ...
QString spaceText(const Space &space)
{
    QStringList parts = {QStringLiteral("frees %1").arg(sizeText(space.freedBytes))};
    if (space.heldInBackupBytes > 0)
        parts.append(QStringLiteral("%1 held in the backup folder").arg(sizeText(space.heldInBackupBytes)));
    if (space.heldInBinBytes > 0)
        parts.append(QStringLiteral("%1 held in the recycle bin").arg(sizeText(space.heldInBinBytes)));
    return parts.join(QStringLiteral(", "));
}

/// False when the list could not be written.
bool printPlan(const CleaningPlan &plan, const QString &colour, bool isQuiet)
{
    QString kept;
    qint64 bytes = 0;
    Output output;
    if (!output.open({}))
        return false;
    const bool isOn = isColoured(colour, output);
    for (const CleaningItem &item : plan.items) {
        if (item.kept.path != kept)
            output.write(coloured("keep", Colour::Kept, isOn) + ' ' + shownPath(item.kept.path, true) + '\n');
        kept = item.kept.path;
        output.write("  " + coloured(verbOf(plan.method).toUtf8(), Colour::GivenUp, isOn) + ' ' +
                     shownPath(item.file.path, true) + '\n');
        bytes += item.file.sizeBytes;
    }
    if (isQuiet)
        return output.finish();
    output.write(
        QStringLiteral("%1, %2 (%3). Nothing was changed; run again with --apply to do this.\n")
            .arg(counted(plan.items.size(), QStringLiteral("file")), sizeText(bytes), spaceText(estimatedSpace(plan)))
            .toUtf8());
    return output.finish();
}

ExitStatus cancelled()
{
    printError(QStringLiteral("cancelled"));
    return ExitStatus::Cancelled;
}

/// Carries the plan out. `isComplete`: whether the scan read everything.
ExitStatus apply(const CleaningPlan &plan, const CleaningServices &services, bool isComplete, bool isQuiet)
{
    CleaningResult result;
    if (!plan.items.isEmpty()) {
        ProgressLine line(!isQuiet);
        result = runCleaning(plan, services, [&](qsizetype done, qsizetype total) {
            line.show({total, done, total, plan.items[done].file.path, QStringLiteral("cleaning")});
            return !isInterrupted();
        });
    }
    for (const QString &error : std::as_const(result.errors))
        printError(error);
    const QString account = QStringLiteral("%1 of %2 files processed (%3)")
                                .arg(result.count)
                                .arg(plan.items.size())
                                .arg(methodName(plan.method));
    if (!isQuiet)
        printText(plan.items.isEmpty() ? account + QLatin1Char('\n')
                                       : QStringLiteral("%1; %2\n").arg(account, spaceText(result.space)));
    if (result.isCancelled)
        return cancelled();
    return result.errors.isEmpty() && isComplete ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace

void addCleanOptions(QCommandLineParser &parser)
{
    addPlanOptions(parser);
    addEmptyFoldersOption(parser);
    parser.addOption(
        {applyOption, QStringLiteral("Carry out the plan. Without it, nothing is changed; the plan is only printed.")});
    addOutputOptions(parser);
}

ExitStatus runClean(const QCommandLineParser &parser)
{
    const bool isApplied = parser.isSet(applyOption);
    const QString colour = colourChoiceOf(parser);
    const bool quiet = isQuiet(parser);
    if (wantsEmptyFolders(parser)) {
        refusePlanOptions(parser);
        return cleanEmptyFolders(parser, isApplied);
    }
    CleanRequest request = cleanRequestOf(parser);
    OperationsLog log(operationsLogPath(recordsDirectoryOf(parser)));
    prepareScan(parser);
    if (isApplied && !log.append({scanStartedEvent(request.options)})) {
        printError(QStringLiteral("cannot write the log %1; nothing was done").arg(log.filePath()));
        return ExitStatus::SomeFailed;
    }
    const ScanResult result = scanAndReportUnread(request.options, quiet);
    if (isInterrupted())
        return cancelled();
    CleaningPlan &plan = request.plan;
    plan.items = request.wantsEmptyFiles ? itemsWithoutKept(result.groups) : surplusByRule(result.groups, request.rule);
    const bool isComplete = !isAnyWanted(result.unread, request.options);
    if (!isApplied)
        return printPlan(plan, colour, quiet) && isComplete ? ExitStatus::Done : ExitStatus::SomeFailed;
    QList<LogEntry> events = {scanDoneEvent(result.groups.size(), result.wastedBytes, result.candidates)};
    if (!request.wantsEmptyFiles)
        events.append(markedByRuleEvent(static_cast<int>(request.rule), plan.items.size()));
    const bool isLogged = log.append(events);
    if (!isLogged)
        printError(QStringLiteral("cannot write the log %1").arg(log.filePath()));
    return apply(plan, {log, recordsDirectoryOf(parser), commandText()}, isComplete && isLogged, quiet);
}

} // namespace MirrixCli
