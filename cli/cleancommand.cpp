#include "cli/cleancommand.h"

#include "actions/backupstore.h"
#include "actions/changeguard.h"
#include "actions/fileoperations.h"
#include "actions/keeprule.h"
#include "actions/linkreplacement.h"
#include "actions/operationslog.h"
#include "app/settings.h"
#include "app/sizetext.h"
#include "cli/output.h"
#include "cli/progressline.h"
#include "cli/scancommand.h"
#include "cli/terminal.h"

#include <QHash>

#include <algorithm>
#include <array>

namespace MirrixCli {

namespace {

using namespace Mirrix;
using MirrixCore::ContentMatch;
using MirrixCore::DuplicateGroup;
using MirrixCore::FileEntry;
using MirrixCore::ScanOptions;
using MirrixCore::ScanResult;
using MirrixCore::SearchMode;

const QString keepOption = QStringLiteral("keep");
const QString methodOption = QStringLiteral("method");
const QString targetOption = QStringLiteral("target");
const QString applyOption = QStringLiteral("apply");

enum class Act
{
    Remove,
    Link,
    Backup
};

struct Method
{
    QString name;
    Act act;
    RemovalMethod number; ///< for Remove, and for the log
    QString verb;         ///< as the list of what would be done has it
};

const std::array<Method, 6> &methods()
{
    static const std::array<Method, 6> table = {{
        {QStringLiteral("recycle"), Act::Remove, RemovalMethod::Recycle, QStringLiteral("recycle")},
        {QStringLiteral("delete"), Act::Remove, RemovalMethod::Delete, QStringLiteral("delete")},
        {QStringLiteral("move"), Act::Remove, RemovalMethod::Move, QStringLiteral("move")},
        {QStringLiteral("symlink"), Act::Link, RemovalMethod::SymbolicLink, QStringLiteral("link")},
        {QStringLiteral("hardlink"), Act::Link, RemovalMethod::HardLink, QStringLiteral("link")},
        {QStringLiteral("backup"), Act::Backup, RemovalMethod::Recycle, QStringLiteral("back up")},
    }};
    return table;
}

const QStringList ruleNames = {QStringLiteral("newest"), QStringLiteral("oldest"), QStringLiteral("shallowest"),
                               QStringLiteral("deepest")};

/// One file to act on and the one of its group that stays.
struct Surplus
{
    FileEntry file;
    FileEntry keeper;
};

struct CleanPlan
{
    KeepRule rule = KeepRule::Newest;
    Method method;
    QString target; ///< absolute: where files are moved, or the backup folder
    ScanOptions options;
};

KeepRule ruleOf(const QString &name)
{
    const qsizetype index = ruleNames.indexOf(name);
    if (index < 0)
        throw UsageError{QStringLiteral("--keep needs %1, not \"%2\"").arg(ruleNames.join(QStringLiteral(", ")), name)};
    return static_cast<KeepRule>(index);
}

Method methodOf(const QString &name)
{
    QStringList names;
    for (const Method &method : methods()) {
        if (method.name == name)
            return method;
        names.append(method.name);
    }
    throw UsageError{QStringLiteral("--method needs %1, not \"%2\"").arg(names.join(QStringLiteral(", ")), name)};
}

QString targetOf(const QCommandLineParser &parser, const Method &method)
{
    const QString given = parser.value(targetOption);
    const bool takesTarget = method.act != Act::Remove || method.number == RemovalMethod::Move;
    if (!takesTarget && parser.isSet(targetOption))
        throw UsageError{QStringLiteral("--target does not go with --method %1").arg(method.name)};
    if (method.number == RemovalMethod::Move && given.isEmpty())
        throw UsageError{QStringLiteral("--method move needs --target DIR")};
    return backupFolderPath(given.isEmpty() ? readSettings(dataDirectoryOf(parser)).backupRoot : given);
}

/// Only equal contents are proof enough to act without a person looking.
void refuseLooseMatching(const ScanOptions &options)
{
    const bool isExact = options.searchMode == static_cast<qint32>(SearchMode::Files) &&
                         options.contentMatch == static_cast<qint32>(ContentMatch::Exact) &&
                         options.locations.isEmpty();
    if (!isExact)
        throw UsageError{QStringLiteral("clean acts on files of identical content only")};
}

CleanPlan planOf(const QCommandLineParser &parser)
{
    CleanPlan plan;
    plan.rule = ruleOf(parser.value(keepOption));
    plan.method = methodOf(parser.value(methodOption));
    plan.target = targetOf(parser, plan.method);
    plan.options.collapseHardLinks = true;
    readSelection(parser, plan.options);
    refuseLooseMatching(plan.options);
    // What was put away is neither surplus nor a reason to put away the last copy in use.
    plan.options.excludeFolders.append(plan.target);
    return plan;
}

QList<Surplus> surplusOf(const ScanResult &result, KeepRule rule)
{
    QList<Surplus> surplus;
    for (const DuplicateGroup &group : result.groups) {
        const qsizetype keeper = chooseKeeper(group.files, rule);
        for (qsizetype i = 0; i < group.files.size(); ++i) {
            if (i != keeper)
                surplus.append({group.files[i], group.files[keeper]});
        }
    }
    return surplus;
}

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

/// The looks at the disk just before each act, and the progress line.
BatchControl controlFor(const QList<Surplus> &surplus, ProgressLine &line)
{
    QHash<QString, qsizetype> places;
    places.reserve(surplus.size());
    for (qsizetype i = 0; i < surplus.size(); ++i)
        places.insert(surplus[i].file.path, i);
    BatchControl control;
    control.guard = [places, &surplus](const QString &path) {
        const Surplus &one = surplus[places.value(path)];
        return surplusProblem(one.file, one.keeper);
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
    const BatchControl control = controlFor(surplus, line);
    QStringList paths;
    QList<LinkReplacement> links;
    for (const Surplus &one : surplus) {
        paths.append(one.file.path);
        links.append({one.file.path, one.keeper.path});
    }
    switch (plan.method.act) {
    case Act::Backup:
        return backupFiles(plan.target, paths, control);
    case Act::Link:
        return replaceByLinks(plan.target, links,
                              plan.method.number == RemovalMethod::HardLink ? LinkKind::Hard : LinkKind::Symbolic,
                              Originals::Discard, control);
    case Act::Remove:
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
    if (plan.method.act == Act::Backup)
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
    parser.addOptions({
        {keepOption,
         QStringLiteral("Which file of each group stays: newest, oldest, shallowest or deepest; the first of equals."),
         QStringLiteral("RULE")},
        {methodOption,
         QStringLiteral("What happens to the others: recycle, delete, move, backup, or symlink or hardlink, which put "
                        "a link to the kept file in their place."),
         QStringLiteral("METHOD")},
        {targetOption,
         QStringLiteral("Where move puts the files; else the backup folder (default: as in the settings)."),
         QStringLiteral("DIR")},
        {applyOption, QStringLiteral("Do it. Without this, what would be done is printed.")},
    });
    addSelectionOptions(parser);
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
