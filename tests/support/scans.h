#pragma once

#include "core/model/optiontable.h"
#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"
#include "tests/support/temptree.h"

#include <QDir>
#include <QJsonDocument>
#include <QList>
#include <QStringList>

#include <algorithm>
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

/// Options given in JSON, as profiles hold them.
[[nodiscard]] inline MirrixCore::ScanOptions optionsFrom(const QByteArray &json)
{
    MirrixCore::ScanOptions options;
    const QString problem = MirrixCore::scanOptionsFromJson(QJsonDocument::fromJson(json).object(), options);
    if (!problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    return options;
}

[[nodiscard]] inline MirrixCore::FileEntry fileAt(const QString &path, qint64 sizeBytes = 10)
{
    MirrixCore::FileEntry file;
    file.path = path;
    file.size = sizeBytes;
    return file;
}

[[nodiscard]] inline QStringList pathsOf(const QList<MirrixCore::FileEntry> &files)
{
    QStringList paths;
    for (const MirrixCore::FileEntry &file : files)
        paths.append(file.path);
    return paths;
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

/// Lists as a text such as "a b|c d", all in alphabetical order.
[[nodiscard]] inline QString sortedText(const QList<QStringList> &lists)
{
    QStringList texts;
    for (QStringList list : lists) {
        list.sort();
        texts.append(list.join(QLatin1Char(' ')));
    }
    texts.sort();
    return texts.join(QLatin1Char('|'));
}

/// The groups of a result in this form, whatever their order.
[[nodiscard]] inline QString groupsText(const MirrixCore::ScanResult &result, const TempTree &tree)
{
    return sortedText(groupsOf(result, tree));
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
