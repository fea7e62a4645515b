#include "ui/logic/checkedfiles.h"

#include "actions/changeguard.h"
#include "actions/nativefile.h"
#include "app/text.h"
#include "core/platform/nativepath.h"
#include "core/walk/pathrules.h"

#include <QHash>

namespace Mirrix {

namespace {

using MirrixCore::DuplicateGroup;
using MirrixCore::FileEntry;

/// Index of the first unticked file of a group; -1 when all are ticked.
qsizetype keptIn(const SelectionMarks &marks, qsizetype group, qsizetype fileCount)
{
    if (marks.markedIn(group) == fileCount)
        return -1;
    qsizetype file = 0;
    while (marks.isMarked(group, file))
        ++file;
    return file;
}

QString comparable(const QString &path)
{
    return MirrixCore::pathCaseKey(MirrixCore::cleanedPath(MirrixCore::absolutePath(path)));
}

/// The group that a path belongs to; -1 when the scan did not group it.
qsizetype groupOf(const QString &path, const QList<DuplicateGroup> &groups)
{
    if (path.isEmpty())
        return -1;
    const QString wanted = comparable(path);
    for (qsizetype group = 0; group < groups.size(); ++group) {
        for (const FileEntry &file : groups[group].files) {
            if (MirrixCore::pathCaseKey(file.path) == wanted)
                return group;
        }
    }
    return -1;
}

} // namespace

CheckedFiles::CheckedFiles(const ResultSet &results)
    : m_state(std::make_shared<const Snapshot>(Snapshot{results.groups, results.marks, results.isEqualContent}))
{}

qsizetype CheckedFiles::count() const
{
    return m_state->marks.markedInAll();
}

template <typename Visit>
void CheckedFiles::forEach(Visit visit) const
{
    const SelectionMarks &marks = m_state->marks;
    for (qsizetype group = 0; group < marks.groupCount(); ++group) {
        if (marks.markedIn(group) == 0)
            continue;
        for (qsizetype file = 0; file < m_state->groups[group].files.size(); ++file) {
            if (marks.isMarked(group, file))
                visit(group, file);
        }
    }
}

QStringList CheckedFiles::paths() const
{
    QStringList paths;
    paths.reserve(count());
    forEach([&](qsizetype group, qsizetype file) { paths.append(m_state->groups[group].files[file].path); });
    return paths;
}

PathGuard CheckedFiles::guard(bool isFinal) const
{
    QHash<QString, std::pair<qsizetype, qsizetype>> places;
    places.reserve(count());
    forEach([&](qsizetype group, qsizetype file) {
        places.insert(m_state->groups[group].files[file].path, {group, file});
    });
    const auto problemOf = isFinal && m_state->isEqualContent ? finalSurplusProblem : surplusProblem;
    return [state = m_state, problemOf, places = std::move(places)](const QString &path) {
        const auto place = places.constFind(path);
        if (place == places.cend())
            return Text::tr("未勾选的文件，未处理: %1").arg(path);
        const QList<FileEntry> &files = state->groups[place->first].files;
        const FileEntry &file = files[place->second];
        const qsizetype kept = keptIn(state->marks, place->first, files.size());
        const QString problem = kept < 0 ? changeProblem(file) : problemOf(file, files[kept]);
        if (!problem.isEmpty() && pathState(path).kind == PathState::Kind::Missing)
            return Text::tr("文件不存在: %1").arg(path);
        return problem;
    };
}

QList<LinkReplacement> CheckedFiles::links(const QString &target, QStringList &refusals) const
{
    QList<LinkReplacement> links;
    const qsizetype targetGroup = groupOf(target, m_state->groups);
    forEach([&](qsizetype group, qsizetype file) {
        const QList<FileEntry> &files = m_state->groups[group].files;
        const qsizetype kept = keptIn(m_state->marks, group, files.size());
        if (targetGroup >= 0 && targetGroup != group)
            refusals.append(Text::tr("链接目标属于另一组，未处理: %1").arg(files[file].path));
        else if (!target.isEmpty())
            links.append({files[file].path, target});
        else if (kept >= 0)
            links.append({files[file].path, files[kept].path});
        else
            refusals.append(Text::tr("没有可链接的保留文件，未处理: %1").arg(files[file].path));
    });
    return links;
}

QStringList checkedPaths(const ResultSet &results)
{
    return CheckedFiles(results).paths();
}

} // namespace Mirrix
