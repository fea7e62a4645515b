#pragma once

#include "actions/batch.h"
#include "actions/linkreplacement.h"
#include "ui/logic/resultset.h"

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

    /// Their paths in the order of groups and files.
    [[nodiscard]] QStringList paths() const;

    /// Refuses what has changed since the scan: the file itself, or the first unticked one of its group, or when both
    /// may be one file. Costs two looks at the disk a file, or when the files are to be gone for good and groups are to
    /// hold the same bytes, the reading of both.
    [[nodiscard]] PathGuard guard(bool isFinal = false) const;

    /// How links are to take the place of the files: links to `target` or, when that is empty, to the first unticked
    /// file of the group. A file without such a one, or whose `target` belongs to another group, gets no link but a
    /// message in `refusals`.
    [[nodiscard]] QList<LinkReplacement> links(const QString &target, QStringList &refusals) const;

private:
    struct Snapshot
    {
        QList<MirrixCore::DuplicateGroup> groups;
        SelectionMarks marks;
        bool isEqualContent;
    };

    /// Calls `visit(group, file)` for the indices of each ticked file.
    template <typename Visit>
    void forEach(Visit visit) const;

    std::shared_ptr<const Snapshot> m_state;
};

/// The paths of the ticked files in the order of groups and files: what batches and exports work on.
[[nodiscard]] QStringList checkedPaths(const ResultSet &results);

} // namespace Mirrix
