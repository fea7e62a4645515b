#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "ui/state/resultset.h"

#include <QList>
#include <QStringList>

#include <memory>

namespace Mirrix {

/// The ticked files of a result as they are now, whatever is ticked later. Copying is cheap; everything may be asked
/// from any thread.
class CheckedFiles
{
public:
    explicit CheckedFiles(const ResultSet &results);

    [[nodiscard]] qsizetype count() const;

    /// Their sizes, as the scan saw them, together.
    [[nodiscard]] qint64 totalBytes() const;

    /// Their paths in the order of groups and files.
    [[nodiscard]] QStringList paths() const;

    /// The same with what a run needs to know. For each, the first unticked file of its group is the copy that stays,
    /// one that may be kept before those in bins and backups.
    [[nodiscard]] QList<CleaningItem> items() const;

    /// The same where links are to take the place of the files: links to `target` or, when that is empty, to the copy
    /// that stays. A file without one, or whose `target` belongs to another group, gets no link but a message in
    /// `refusals`.
    [[nodiscard]] QList<CleaningItem> linkItems(const QString &target, QStringList &refusals) const;

    /// How many groups have ticked files and no copy that would stay outside bins and backups.
    [[nodiscard]] qsizetype groupsWithoutKept() const;

    /// Whether each group with ticked files is one of equal contents.
    [[nodiscard]] bool areContentsEqual() const;

private:
    struct Snapshot
    {
        QList<MirrixCore::DuplicateGroup> groups;
        SelectionMarks marks;
    };

    /// Calls `visit(group)` for each group with ticked files.
    template <typename Visit>
    void forEachGroup(Visit visit) const;

    /// Calls `visit(group, file, kept)` with the indices of each ticked file.
    template <typename Visit>
    void forEach(Visit visit) const;

    [[nodiscard]] qsizetype keptIn(qsizetype group) const;

    std::shared_ptr<const Snapshot> m_state;
};

/// The paths of the ticked files in the order of groups and files: what batches and exports work on.
[[nodiscard]] QStringList checkedPaths(const ResultSet &results);

/// Unticks one file, the one that `rule` keeps, of each group of which no copy would stay.
void untickOneInEach(SelectionMarks &marks, const QList<MirrixCore::DuplicateGroup> &groups, KeepRule rule);

} // namespace Mirrix
