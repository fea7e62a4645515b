#include "cli/cleanplan.h"

#include "actions/backupstore.h"
#include "app/settings.h"
#include "cli/scancommand.h"

#include <array>

namespace MirrixCli {

namespace {

using namespace Mirrix;
using MirrixCore::ContentMatch;
using MirrixCore::DuplicateGroup;
using MirrixCore::ScanOptions;
using MirrixCore::ScanResult;
using MirrixCore::SearchMode;

const QString keepOption = QStringLiteral("keep");
const QString methodOption = QStringLiteral("method");
const QString targetOption = QStringLiteral("target");

const std::array<CleanMethod, 6> &methods()
{
    static const std::array<CleanMethod, 6> table = {{
        {QStringLiteral("recycle"), CleanAct::Remove, RemovalMethod::Recycle, QStringLiteral("recycle")},
        {QStringLiteral("delete"), CleanAct::Remove, RemovalMethod::Delete, QStringLiteral("delete")},
        {QStringLiteral("move"), CleanAct::Remove, RemovalMethod::Move, QStringLiteral("move")},
        {QStringLiteral("symlink"), CleanAct::Link, RemovalMethod::SymbolicLink, QStringLiteral("link")},
        {QStringLiteral("hardlink"), CleanAct::Link, RemovalMethod::HardLink, QStringLiteral("link")},
        {QStringLiteral("backup"), CleanAct::Backup, RemovalMethod::Recycle, QStringLiteral("back up")},
    }};
    return table;
}

const QStringList ruleNames = {QStringLiteral("newest"), QStringLiteral("oldest"), QStringLiteral("shallowest"),
                               QStringLiteral("deepest")};

KeepRule ruleOf(const QString &name)
{
    const qsizetype index = ruleNames.indexOf(name);
    if (index < 0)
        throw UsageError{QStringLiteral("--keep needs %1, not \"%2\"").arg(ruleNames.join(QStringLiteral(", ")), name)};
    return static_cast<KeepRule>(index);
}

CleanMethod methodOf(const QString &name)
{
    QStringList names;
    for (const CleanMethod &method : methods()) {
        if (method.name == name)
            return method;
        names.append(method.name);
    }
    throw UsageError{QStringLiteral("--method needs %1, not \"%2\"").arg(names.join(QStringLiteral(", ")), name)};
}

QString targetOf(const QCommandLineParser &parser, const CleanMethod &method)
{
    const QString given = parser.value(targetOption);
    const bool takesTarget = method.act != CleanAct::Remove || method.number == RemovalMethod::Move;
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

} // namespace

void addPlanOptions(QCommandLineParser &parser)
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
    });
    addSelectionOptions(parser);
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

} // namespace MirrixCli
