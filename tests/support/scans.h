#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"
#include "tests/support/temptree.h"

#include <QDir>
#include <QList>
#include <QStringList>

#include <functional>

namespace MirrixTest {

/// Options that walk these folders of the tree, in this order; the whole tree by default.
[[nodiscard]] inline MirrixCore::ScanOptions optionsFor(const TempTree &tree, const QStringList &folders = {QString()})
{
    MirrixCore::ScanOptions options;
    for (const QString &folder : folders)
        options.roots.append(tree.path(folder));
    return options;
}

/// The paths of `files` below the tree, in their order.
[[nodiscard]] inline QStringList relativePaths(const QList<MirrixCore::FileEntry> &files, const TempTree &tree)
{
    QStringList paths;
    for (const MirrixCore::FileEntry &file : files)
        paths.append(QDir(tree.path()).relativeFilePath(file.path));
    return paths;
}

/// The members of each group as paths below the tree, groups and members in the order of the result.
[[nodiscard]] inline QList<QStringList> groupsOf(const MirrixCore::ScanResult &result, const TempTree &tree)
{
    QList<QStringList> groups;
    for (const MirrixCore::DuplicateGroup &group : result.groups)
        groups.append(relativePaths(group.files, tree));
    return groups;
}

/// Whether nothing of the report's phase comes after it. Holds for walks of less than 256 files.
[[nodiscard]] inline bool isLastOfPhase(const MirrixCore::ScanProgress &report)
{
    return report.phase == MirrixCore::Phase::Enumerating ? report.filesFound > 0 : report.processed == report.total;
}

/// Calls `act` at the end of `phase`, when none of its files is open any more and the next phase has not begun.
[[nodiscard]] inline MirrixCore::ProgressCallback atEndOf(const QString &phase, const std::function<void()> &act)
{
    return [phase, act](const MirrixCore::ScanProgress &report) {
        if (report.phase == phase && isLastOfPhase(report))
            act();
    };
}

} // namespace MirrixTest
