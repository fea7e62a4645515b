#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "core/model/scanoptions.h"

#include <QCommandLineParser>

namespace MirrixCli {

/// What the command line of "clean" asks for.
struct CleanRequest
{
    bool wantsEmptyFiles = false; ///< instead of surplus copies: then no rule counts
    Mirrix::KeepRule rule = Mirrix::KeepRule::Newest;
    Mirrix::CleaningPlan plan; ///< without its items, which only the scan finds
    MirrixCore::ScanOptions options;
};

/// Declares the options that make up the request.
void addPlanOptions(QCommandLineParser &parser);

/// Throws UsageError when one of them is given, which cleaning of empty folders does not take.
void refusePlanOptions(const QCommandLineParser &parser);

/// Throws UsageError.
[[nodiscard]] CleanRequest cleanRequestOf(const QCommandLineParser &parser);

} // namespace MirrixCli
