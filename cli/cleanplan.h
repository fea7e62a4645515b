#pragma once

#include "actions/fileoperations.h"
#include "actions/keeprule.h"
#include "core/scan/scanoptions.h"
#include "core/scan/scanresult.h"

#include <QCommandLineParser>
#include <QList>
#include <QString>

namespace MirrixCli {

/// What "clean" calls to do away with a file.
enum class CleanAct
{
    Remove,
    Link,
    Backup
};

struct CleanMethod
{
    QString name; ///< as --method has it
    CleanAct act;
    Mirrix::RemovalMethod number; ///< for Remove and Link, and for the log
    QString verb;                 ///< as the list of what would be done has it
};

/// What the command line of "clean" asks for.
struct CleanPlan
{
    Mirrix::KeepRule rule = Mirrix::KeepRule::Newest;
    CleanMethod method;
    QString target; ///< absolute: where files are moved, or the backup folder
    MirrixCore::ScanOptions options;
};

/// One file to act on and the one of its group that stays.
struct Surplus
{
    MirrixCore::FileEntry file;
    MirrixCore::FileEntry keeper;
};

/// Declares the options that make up the plan.
void addPlanOptions(QCommandLineParser &parser);

/// Throws UsageError.
[[nodiscard]] CleanPlan planOf(const QCommandLineParser &parser);

/// All files of each group but its keeper, group by group.
[[nodiscard]] QList<Surplus> surplusOf(const MirrixCore::ScanResult &result, Mirrix::KeepRule rule);

} // namespace MirrixCli
