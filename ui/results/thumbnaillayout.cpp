#include "ui/results/thumbnaillayout.h"

namespace Mirrix {

void ThumbnailLayout::arrange(const QList<MirrixCore::DuplicateGroup> &groups, int width, QSize cell, int headingHeight)
{
    m_width = width;
    m_cell = cell;
    m_headingHeight = headingHeight;
    m_columns = std::max(1, width / cell.width());
    m_tops.assign(1, 0);
    m_tops.reserve(size_t(groups.size()) + 1);
    m_counts.clear();
    m_counts.reserve(size_t(groups.size()));
    for (const MirrixCore::DuplicateGroup &group : groups) {
        const int files = int(group.files.size());
        m_counts.push_back(files);
        m_tops.push_back(m_tops.back() + headingHeight + (files + m_columns - 1) / m_columns * cell.height());
    }
}

QRect ThumbnailLayout::headingRect(qsizetype group) const
{
    return {0, m_tops[size_t(group)], m_width, m_headingHeight};
}

QRect ThumbnailLayout::fileRect(FilePlace place) const
{
    const int column = int(place.file % m_columns);
    const int row = int(place.file / m_columns);
    const int top = m_tops[size_t(place.group)] + m_headingHeight;
    return {QPoint(column * m_cell.width(), top + row * m_cell.height()), m_cell};
}

qsizetype ThumbnailLayout::groupAt(int y) const
{
    const auto after = std::upper_bound(m_tops.begin(), m_tops.end(), y);
    return std::clamp<qsizetype>(after - m_tops.begin() - 1, 0, groupCount() - 1);
}

std::optional<FilePlace> ThumbnailLayout::placeAt(QPoint point) const
{
    if (point.y() < 0 || point.y() >= height())
        return {};
    const qsizetype group = groupAt(point.y());
    const int below = point.y() - m_tops[size_t(group)] - m_headingHeight;
    if (below < 0)
        return FilePlace{group, -1};
    const int column = point.x() / m_cell.width();
    const qsizetype file = qsizetype(below / m_cell.height()) * m_columns + column;
    return column < m_columns && file < fileCount(group) ? std::optional(FilePlace{group, file}) : std::nullopt;
}

std::vector<FilePlace> ThumbnailLayout::filesBetween(int top, int bottom) const
{
    std::vector<FilePlace> places;
    if (groupCount() == 0)
        return places;
    for (qsizetype group = groupAt(top); group < groupCount() && m_tops[size_t(group)] <= bottom; ++group) {
        const int start = m_tops[size_t(group)] + m_headingHeight;
        const qsizetype first = qsizetype(std::max(0, top - start) / m_cell.height()) * m_columns;
        const qsizetype rows = (bottom - start) / m_cell.height() + 1;
        const qsizetype end = std::min(fileCount(group), bottom < start ? 0 : rows * m_columns);
        for (qsizetype file = first; file < end; ++file)
            places.push_back({group, file});
    }
    return places;
}

FilePlace ThumbnailLayout::moved(FilePlace from, int columns, int rows) const
{
    FilePlace to{from.group, from.file + columns + qsizetype(rows) * m_columns};
    const qsizetype column = from.file % m_columns;
    if (to.file < 0 && to.group > 0) {
        --to.group;
        const qsizetype last = fileCount(to.group) - 1;
        to.file = rows != 0 ? std::min(last, last / m_columns * m_columns + column) : last;
    } else if (to.file >= fileCount(from.group)) {
        const bool isLastRow = from.file / m_columns == (fileCount(from.group) - 1) / m_columns;
        if (rows > 0 && !isLastRow)
            to.file = fileCount(from.group) - 1;
        else if (to.group + 1 < groupCount())
            to = {to.group + 1, rows != 0 ? std::min(column, fileCount(to.group + 1) - 1) : 0};
    }
    to.file = std::clamp<qsizetype>(to.file, 0, fileCount(to.group) - 1);
    return to;
}

} // namespace Mirrix
