#pragma once

#include "core/model/scanresult.h"

#include <QList>

#include <vector>

namespace Mirrix {

/// Which files of which group are ticked: one byte a file, 1 = ticked, index-aligned with the groups. Knows the number
/// of ticked files per group and in all without counting. A plain value.
class SelectionMarks
{
public:
    /// As many marks as the groups have files, none of them set.
    void reset(const QList<MirrixCore::DuplicateGroup> &groups);

    /// No groups at all.
    void clear();

    [[nodiscard]] bool isMarked(qsizetype group, qsizetype file) const
    {
        return m_marks[m_starts[size_t(group)] + size_t(file)] != 0;
    }
    void setMarked(qsizetype group, qsizetype file, bool marked);

    /// Marks these files of a group and no other.
    void markOnly(qsizetype group, const QList<qsizetype> &files);

    /// Turns every mark over.
    void invert();

    [[nodiscard]] qsizetype groupCount() const { return qsizetype(m_counts.size()); }
    [[nodiscard]] qsizetype markedIn(qsizetype group) const { return m_counts[size_t(group)]; }
    [[nodiscard]] qsizetype markedInAll() const { return m_total; }

private:
    [[nodiscard]] qsizetype sizeOf(size_t group) const { return qsizetype(m_starts[group + 1] - m_starts[group]); }

    std::vector<quint8> m_marks;  ///< of all groups, one behind the other
    std::vector<size_t> m_starts; ///< of each group in m_marks, and the end of the last
    std::vector<qsizetype> m_counts;
    qsizetype m_total = 0;
};

} // namespace Mirrix
