#pragma once

#include "core/model/scanresult.h"

#include <QRect>

#include <optional>
#include <vector>

namespace Mirrix {

/// A file of a group; `file` -1 means the group's heading.
struct FilePlace
{
    qsizetype group = 0;
    qsizetype file = 0;

    bool operator==(const FilePlace &) const = default;
    auto operator<=>(const FilePlace &) const = default;
};

/// Where the thumbnails lie: under each group's heading its files in rows of equal cells. Coordinates count from the
/// top of the first heading. Arithmetic over one number a group: 300,000 groups take a millisecond to lay out.
class ThumbnailLayout
{
public:
    /// Takes the sizes of the groups over. O(groups).
    void arrange(const QList<MirrixCore::DuplicateGroup> &groups, int width, QSize cell, int headingHeight);

    [[nodiscard]] int height() const { return m_tops.empty() ? 0 : m_tops.back(); }
    [[nodiscard]] qsizetype groupCount() const { return m_tops.empty() ? 0 : qsizetype(m_tops.size()) - 1; }
    [[nodiscard]] qsizetype fileCount(qsizetype group) const { return m_counts[size_t(group)]; }

    [[nodiscard]] QRect headingRect(qsizetype group) const;
    [[nodiscard]] QRect fileRect(FilePlace place) const;

    /// The group at a height; the last one below all. There must be a group. O(log groups).
    [[nodiscard]] qsizetype groupAt(int y) const;

    /// What lies at a point, if anything.
    [[nodiscard]] std::optional<FilePlace> placeAt(QPoint point) const;

    /// The files whose cells meet the heights `top` to `bottom`, in order.
    [[nodiscard]] std::vector<FilePlace> filesBetween(int top, int bottom) const;

    /// The file `columns` cells and `rows` rows of cells away, across groups; the nearest one at the ends.
    [[nodiscard]] FilePlace moved(FilePlace from, int columns, int rows) const;

private:
    int m_width = 0;
    int m_headingHeight = 0;
    int m_columns = 1;
    QSize m_cell;
    std::vector<int> m_tops; ///< of each group, and the end of the last
    std::vector<int> m_counts;
};

} // namespace Mirrix
