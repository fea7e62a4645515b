#include "cli/cleancommand.h"

#include "actions/backupstore.h"
#include "actions/changeguard.h"
#include "actions/linkreplacement.h"
#include "actions/operationslog.h"
#include "app/sizetext.h"
#include "cli/cleanplan.h"
#include "cli/output.h"
#include "cli/progressline.h"
#include "cli/scancommand.h"
#include "cli/terminal.h"

#include <QHash>

namespace MirrixCli {

namespace {

using namespace Mirrix;
using MirrixCore::ScanResult;

const QString applyOption = QStringLiteral("apply");

void printPlan(const QList<Surplus> &surplus, const CleanPlan &plan)
{
    const bool isTerminal = isOutputTerminal();
    qint64 bytes = 0;
    QString keeper;
    Output output;
    if (!output.open({}))
        return;
    for (const Surplus &one : surplus) {
        if (one.keeper.path != keeper)
            output.write("keep " + shownPath(one.keeper.path, isTerminal) + '\n');
        keeper = one.keeper.path;
        output.write("  " + plan.method.verb.toUtf8() + ' ' + shownPath(one.file.path, isTerminal) + '\n');
        bytes += one.file.size;
    }
    output.write(QStringLiteral("%1 files, %2; nothing was done (--apply does it)\n")
                     .arg(surplus.size())
                     .arg(sizeText(bytes))
                     .toUtf8());
    static_cast<void>(output.finish());
}

/// Whether what is taken away is gone for good.
bool isFinal(const CleanPlan &plan)
{
    return plan.method.act == CleanAct::Link ||
           (plan.method.act == CleanAct::Remove && plan.method.number == RemovalMethod::Delete);
}

/// The looks at the disk just before each act, and the progress line.
BatchControl controlFor(const QList<Surplus> &surplus, const CleanPlan &plan, ProgressLine &line)
{
    QHash<QString, qsizetype> places;
    places.reserve(surplus.size());
    for (qsizetype i = 0; i < surplus.size(); ++i)
        places.insert(surplus[i].file.path, i);
    BatchControl control;
    control.guard = [places, &surplus,
                     problem = isFinal(plan) ? finalSurplusProblem : surplusProblem](const QString &path) {
        const Surplus &one = surplus[places.value(path)];
        return problem(one.file, one.keeper);
    };
    control.progress = [&line, &surplus](qsizetype done, qsizetype total) {
        line.show({total, done, total, surplus[done].file.path, QStringLiteral("cleaning")});
        return !isInterrupted();
    };
    return control;
}

BatchResult act(const QList<Surplus> &surplus, const CleanPlan &plan)
{
    ProgressLine line;
    const BatchControl control = controlFor(surplus, plan, line);
    QStringList paths;
    QList<LinkReplacement> links;
    for (const Surplus &one : surplus) {
        paths.append(one.file.path);
        links.append({one.file.path, one.keeper.path});
    }
    switch (plan.method.act) {
    case CleanAct::Backup:
        return backupFiles(plan.target, paths, control);
    case CleanAct::Link:
        return replaceByLinks(plan.target, links,
                              plan.method.number == RemovalMethod::HardLink ? LinkKind::Hard : LinkKind::Symbolic,
                              Originals::Discard, control);
    case CleanAct::Remove:
        break;
    }
    return removeFiles(plan.method.number, paths, plan.target, {}, control);
}

void logScan(OperationsLog &log, const CleanPlan &plan, const ScanResult &result, qsizetype marked)
{
    log.append({logEntryNow(QStringLiteral("scan_done"), QStringLiteral("groups=%1 wasted=%2 candidates=%3")
                                                             .arg(result.groups.size())
                                                             .arg(result.wastedBytes)
                                                             .arg(result.candidates)),
                logEntryNow(QStringLiteral("auto_keep"),
                            QStringLiteral("rule=%1 count=%2").arg(static_cast<int>(plan.rule)).arg(marked))});
}

void logActs(OperationsLog &log, const CleanPlan &plan, qsizetype count)
{
    if (plan.method.act == CleanAct::Backup)
        log.append(QStringLiteral("backup_batch"), QStringLiteral("count=%1").arg(count));
    else
        log.append(QStringLiteral("remove_batch"),
                   QStringLiteral("method=%1 count=%2").arg(static_cast<int>(plan.method.number)).arg(count));
}

ExitStatus cancelled()
{
    printError(QStringLiteral("cancelled"));
    return ExitStatus::Cancelled;
}

/// Acts, tells and logs. `isComplete`: whether the scan read everything.
ExitStatus apply(const QList<Surplus> &surplus, const CleanPlan &plan, OperationsLog &log, bool isComplete)
{
    const BatchResult result = surplus.isEmpty() ? BatchResult() : act(surplus, plan);
    if (!surplus.isEmpty())
        logActs(log, plan, result.count);
    for (const QString &error : result.errors)
        printError(error);
    printText(QStringLiteral("%1 of %2 files done (%3)\n").arg(result.count).arg(surplus.size()).arg(plan.method.name));
    if (result.isCancelled)
        return cancelled();
    return result.errors.isEmpty() && isComplete ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace

void addCleanOptions(QCommandLineParser &parser)
{
    addPlanOptions(parser);
    parser.addOption({applyOption, QStringLiteral("Do it. Without this, what would be done is printed.")});
}

ExitStatus runClean(const QCommandLineParser &parser)
{
    const CleanPlan plan = planOf(parser);
    const bool isApplied = parser.isSet(applyOption);
    OperationsLog log(operationsLogPath(dataDirectoryOf(parser)));
    prepareScan(parser);
    if (isApplied)
        log.append(QStringLiteral("scan_start"),
                   QStringLiteral("mode=content roots=%1").arg(plan.options.roots.join(QStringLiteral("; "))));
    const ScanResult result = scanAndReportUnread(plan.options);
    if (isInterrupted())
        return cancelled();
    const QList<Surplus> surplus = surplusOf(result, plan.rule);
    if (!isApplied) {
        printPlan(surplus, plan);
        return result.unread.isEmpty() ? ExitStatus::Done : ExitStatus::SomeFailed;
    }
    logScan(log, plan, result, surplus.size());
    return apply(surplus, plan, log, result.unread.isEmpty());
}

} // namespace MirrixCli
