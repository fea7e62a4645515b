#include "core/match/contentgroups.h"

#include "core/match/groups.h"
#include "core/match/rulekeys.h"

namespace MirrixCore {

namespace {

void addGroup(const Run &run, const QList<FileEntry> &files, bool isEqualContent, ScanResult &result)
{
    DuplicateGroup group;
    group.key = QString::fromLatin1(run.front().full.bytes().toHex());
    group.files.reserve(std::ssize(run));
    for (const Candidate &candidate : run)
        group.files.append(files[candidate.file]);
    group.wastedBytes = wasteOf(group.files);
    group.isEqualContent = isEqualContent;
    result.groups.append(group);
}

} // namespace

void collectGroups(Candidates &candidates, const QList<FileEntry> &files, Shared shared, bool isEqualContent,
                   ScanResult &result)
{
    for (const Run &run : runsOf(candidates, &Candidate::full)) {
        if (shared == Shared::Full) {
            addGroup(run, files, isEqualContent, result);
            continue;
        }
        Candidates members(run.begin(), run.end());
        for (const Run &part : runsOf(members, &Candidate::quick))
            addGroup(part, files, isEqualContent, result);
    }
}

void finishContentGroups(ScanResult &result, const ScanContext &context)
{
    result.groups = refineGroupsByRuleKeys(result.groups, context.options, context.cancelled);
    finishResult(result, context.options);
}

} // namespace MirrixCore
