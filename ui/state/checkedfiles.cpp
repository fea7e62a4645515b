#include "ui/state/checkedfiles.h"

#include "app/text.h"
#include "core/platform/nativepath.h"
#include "core/platform/pathtext.h"

#include <algorithm>

namespace Mirrix {

namespace {

using MirrixCore::DuplicateGroup;
using MirrixCore::FileEntry;

/// Index of the first unticked file of a group, one that may be kept before all others; -1 when all are ticked.
qsizetype keptFile(const SelectionMarks &marks, qsizetype group, const QList<FileEntry> &files)
{
    qsizetype first = -1;
    if (marks.markedIn(group) == files.size())
        return first;
    for (qsizetype file = 0; file < files.size(); ++file) {
        if (marks.isMarked(group, file))
            continue;
        if (MirrixCore::mayBeKept(files[file].place))
            return file;
        first = first < 0 ? file : first;
    }
    return first;
}

/// Whether a copy stays outside of bins, backups and snapshots, which may be emptied.
bool keepsCopy(const SelectionMarks &marks, qsizetype group, const QList<FileEntry> &files)
{
    const qsizetype kept = keptFile(marks, group, files);
    return kept >= 0 && MirrixCore::mayBeKept(files[kept].place);
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
    const QString key = comparable(path);
    for (qsizetype group = 0; group < groups.size(); ++group) {
        for (const FileEntry &file : groups[group].files) {
            if (MirrixCore::pathCaseKey(file.path) == key)
                return group;
        }
    }
    return -1;
}

} // namespace

CheckedFiles::CheckedFiles(const ResultSet &results)
    : m_state(std::make_shared<const Snapshot>(Snapshot{results.groups, results.marks}))
{}

qsizetype CheckedFiles::count() const
{
    return m_state->marks.markedInAll();
}

qsizetype CheckedFiles::keptIn(qsizetype group) const
{
    return keptFile(m_state->marks, group, m_state->groups[group].files);
}

template <typename Visit>
void CheckedFiles::forEachGroup(Visit visit) const
{
    for (qsizetype group = 0; group < m_state->marks.groupCount(); ++group) {
        if (m_state->marks.markedIn(group) > 0)
            visit(group);
    }
}

template <typename Visit>
void CheckedFiles::forEach(Visit visit) const
{
    forEachGroup([&](qsizetype group) {
        const qsizetype kept = keptIn(group);
        for (qsizetype file = 0; file < m_state->groups[group].files.size(); ++file) {
            if (m_state->marks.isMarked(group, file))
                visit(group, file, kept);
        }
    });
}

qint64 CheckedFiles::totalBytes() const
{
    qint64 sum = 0;
    forEachGroup([&](qsizetype group) {
        const QList<FileEntry> &files = m_state->groups[group].files;
        for (qsizetype file = 0; file < files.size(); ++file)
            sum += m_state->marks.isMarked(group, file) ? files[file].size : 0;
    });
    return sum;
}

QStringList CheckedFiles::paths() const
{
    QStringList paths;
    paths.reserve(count());
    forEach([&](qsizetype group, qsizetype file, qsizetype) { paths.append(m_state->groups[group].files[file].path); });
    return paths;
}

QList<CleaningItem> CheckedFiles::items() const
{
    QList<CleaningItem> items;
    items.reserve(count());
    forEach([&](qsizetype group, qsizetype file, qsizetype kept) {
        items.append(cleaningItem(m_state->groups[group], file, kept));
    });
    return items;
}

QList<CleaningItem> CheckedFiles::linkItems(const QString &target, QStringList &refusals) const
{
    QList<CleaningItem> items;
    const qsizetype targetGroup = groupOf(target, m_state->groups);
    forEach([&](qsizetype group, qsizetype file, qsizetype kept) {
        CleaningItem item = cleaningItem(m_state->groups[group], file, kept);
        item.linkTarget = target;
        if (targetGroup >= 0 && targetGroup != group)
            refusals.append(Text::tr("链接目标属于另一组，未处理: %1").arg(item.file.path));
        else if (target.isEmpty() && !item.hasKept())
            refusals.append(Text::tr("没有可链接的保留文件，未处理: %1").arg(item.file.path));
        else
            items.append(item);
    });
    return items;
}

qsizetype CheckedFiles::groupsWithoutKept() const
{
    qsizetype count = 0;
    forEachGroup(
        [&](qsizetype group) { count += keepsCopy(m_state->marks, group, m_state->groups[group].files) ? 0 : 1; });
    return count;
}

bool CheckedFiles::areContentsEqual() const
{
    bool areEqual = true;
    forEachGroup([&](qsizetype group) { areEqual = areEqual && m_state->groups[group].isEqualContent; });
    return areEqual;
}

QStringList checkedPaths(const ResultSet &results)
{
    return CheckedFiles(results).paths();
}

void untickOneInEach(SelectionMarks &marks, const QList<DuplicateGroup> &groups, KeepRule rule)
{
    for (qsizetype group = 0; group < groups.size(); ++group) {
        const QList<FileEntry> &files = groups[group].files;
        if (marks.markedIn(group) == 0 || keepsCopy(marks, group, files))
            continue;
        const qsizetype kept = chooseInGroup(files, rule).kept;
        marks.setMarked(group, std::max<qsizetype>(kept, 0), false); // the first where all are in bins or backups
    }
}

} // namespace Mirrix
