#pragma once

#include "core/scan/scanresult.h"

#include <QByteArray>
#include <QList>

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

    [[nodiscard]] bool isMarked(qsizetype group, qsizetype file) const { return m_marks[group][file] != 0; }
    void setMarked(qsizetype group, qsizetype file, bool marked);

    /// Marks all files of a group but one; with `kept` -1, all.
    void markAllBut(qsizetype group, qsizetype kept);

    /// Turns every mark over.
    void invert();

    [[nodiscard]] qsizetype groupCount() const { return m_marks.size(); }
    [[nodiscard]] qsizetype markedIn(qsizetype group) const { return m_counts[group]; }
    [[nodiscard]] qsizetype markedInAll() const { return m_total; }

private:
    QList<QByteArray> m_marks;
    QList<qsizetype> m_counts;
    qsizetype m_total = 0;
};

} // namespace Mirrix
