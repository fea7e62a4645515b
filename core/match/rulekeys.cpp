#include "core/match/rulekeys.h"

namespace MirrixCore {

ScanResult groupByRuleKeys(const QList<FileEntry> &, const ScanOptions &, bool)
{
    return {};
}

bool hasRefiningRule(const ScanOptions &options)
{
    return options.sameName || options.sameExtension || options.similarNames || options.sameSize ||
           options.sameCreated || options.sameModified || options.sameDrive || options.sameFolderName ||
           options.sameFolderPath || options.samePathUnderRoot || options.ignoreSameFolderGroups;
}

QList<DuplicateGroup> refineGroupsByRuleKeys(const QList<DuplicateGroup> &groups, const ScanOptions &options)
{
    return hasRefiningRule(options) ? QList<DuplicateGroup>() : groups;
}

} // namespace MirrixCore
