#include "cli/cleanplan.h"

#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/targetfolder.h"
#include "app/settings.h"
#include "cli/scancommand.h"
#include "cli/selection.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"
#include "core/walk/namepatterns.h"

#include <array>

namespace MirrixCli {

namespace {

using namespace Mirrix;
using MirrixCore::ContentMatch;
using MirrixCore::ScanOptions;
using MirrixCore::SearchMode;

const QString keepOption = QStringLiteral("keep");
const QString methodOption = QStringLiteral("method");
const QString targetOption = QStringLiteral("target");
const QString emptyFilesOption = QStringLiteral("empty-files");
const QString compareOption = QStringLiteral("compare-contents");

constexpr std::array methods = {CleaningMethod::Recycle,      CleaningMethod::Delete,   CleaningMethod::Move,
                                CleaningMethod::SymbolicLink, CleaningMethod::HardLink, CleaningMethod::Backup};

constexpr std::array rules = {KeepRule::Newest, KeepRule::Oldest, KeepRule::Shallowest, KeepRule::Deepest};

/// The value of `values` that has the name; throws UsageError where none has.
template <typename Values, typename NameOf>
auto named(const QString &option, const QString &name, const Values &values, NameOf nameOf)
{
    QStringList names;
    for (const auto value : values) {
        if (nameOf(value) == name)
            return value;
        names.append(nameOf(value));
    }
    throw UsageError{choiceProblem(option, names, name)};
}

void readFolders(const QCommandLineParser &parser, CleaningPlan &plan)
{
    const QString given = parser.value(targetOption);
    const bool takesTarget = plan.method != CleaningMethod::Recycle && plan.method != CleaningMethod::Delete;
    if (parser.isSet(targetOption) && !takesTarget)
        throw UsageError{QStringLiteral("--target cannot be used with --method %1").arg(methodName(plan.method))};
    if (plan.method == CleaningMethod::Move && given.isEmpty())
        throw UsageError{QStringLiteral("--method move needs --target DIR")};
    const bool isMoveTarget = plan.method == CleaningMethod::Move;
    if (isMoveTarget)
        plan.targetFolder = backupFolderPath(given);
    plan.backupFolder =
        backupFolderPath(given.isEmpty() || isMoveTarget ? readSettings(recordsDirectoryOf(parser)).backupRoot : given);
    requireUnicodeName(given.isEmpty() || isMoveTarget ? QStringLiteral("the backup folder of the settings")
                                                       : QStringLiteral("--target"),
                       plan.backupFolder);
}

/// A root inside the folder that takes the files would be left out of the scan, and nothing would be done without a
/// word.
void refuseRootsInside(const QString &folder, const ScanOptions &options)
{
    TargetFolder target(folder);
    for (const QString &root : options.roots + options.files) {
        if (target.isAtOrAbove(MirrixCore::cleanedPath(MirrixCore::absolutePath(root))))
            throw UsageError{QStringLiteral("the target folder %1 must not be the scanned folder %2 or contain it")
                                 .arg(folder, root)};
    }
}

/// Nothing stays for an empty file, to which a link could lead.
void refuseForEmptyFiles(const QCommandLineParser &parser, CleaningMethod method)
{
    const QString other = parser.isSet(keepOption) ? keepOption
                          : isLinking(method)      ? methodOption + QLatin1Char(' ') + methodName(method)
                                                   : QString();
    if (!other.isEmpty())
        throw UsageError{QStringLiteral("--%1 cannot be used with --%2").arg(other, emptyFilesOption)};
}

/// Only equal contents are proof enough to act without a user's check.
void refuseLooseMatching(const ScanOptions &options)
{
    const bool isExact = options.mode() == SearchMode::Files &&
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
         QStringLiteral(
             "Which file of each group to keep: newest, oldest, shallowest or deepest. On a tie, the first one "
             "listed. Required unless --empty-files or --empty-folders is given."),
         QStringLiteral("RULE")},
        {methodOption,
         QStringLiteral(
             "What to do with the other files: recycle, delete (permanently), move, backup, symlink or "
             "hardlink (replace each with a link to the kept file). Required unless --empty-folders is given."),
         QStringLiteral("METHOD")},
        {targetOption,
         QStringLiteral("Destination folder for move (required), or the backup folder for backup (default: from the "
                        "settings)."),
         QStringLiteral("DIR")},
        {compareOption,
         QStringLiteral("Compare whole contents before every removal, not only before those that destroy a file.")},
        {emptyFilesOption,
         QStringLiteral("Remove files that hold nothing, instead of copies. Takes no --keep and makes no links. Bins, "
                        "backup folders, snapshots and what version control keeps are left alone.")},
    });
    addSelectionOptions(parser);
    addPreparationOptions(parser);
}

void refusePlanOptions(const QCommandLineParser &parser)
{
    for (const QString &option : {keepOption, methodOption, targetOption, compareOption, emptyFilesOption}) {
        if (parser.isSet(option))
            throw UsageError{QStringLiteral("--%1 cannot be used with --empty-folders").arg(option)};
    }
}

CleanRequest cleanRequestOf(const QCommandLineParser &parser)
{
    CleanRequest request;
    request.wantsEmptyFiles = parser.isSet(emptyFilesOption);
    if (!request.wantsEmptyFiles)
        request.rule = named(keepOption, parser.value(keepOption), rules, ruleName);
    request.plan.rule = request.wantsEmptyFiles ? emptyFilesOption : ruleName(request.rule);
    request.plan.method = named(methodOption, parser.value(methodOption), methods, methodName);
    if (request.wantsEmptyFiles)
        refuseForEmptyFiles(parser, request.plan.method);
    readFolders(parser, request.plan);
    request.plan.comparesWholeContents =
        parser.isSet(compareOption) || readSettings(recordsDirectoryOf(parser)).compareWholeContents;
    request.options.collapseHardLinks = true;
    readSelection(parser, request.options);
    refuseLooseMatching(request.options);
    if (request.wantsEmptyFiles) {
        request.options.excludeNames += MirrixCore::versionControlNames();
        seekEmptyFiles(request.options);
    }
    // A copy in a bin or backup is neither surplus nor a reason to remove the last copy in use.
    for (const QString &folder : {request.plan.backupFolder, request.plan.targetFolder}) {
        if (folder.isEmpty())
            continue;
        refuseRootsInside(folder, request.options);
        request.options.excludeFolders.append(folder);
    }
    return request;
}

} // namespace MirrixCli
