#include "ui/logic/selectionmarks.h"

namespace Mirrix {

void SelectionMarks::reset(const QList<MirrixCore::DuplicateGroup> &groups)
{
    clear();
    m_starts.reserve(size_t(groups.size()) + 1);
    m_starts.push_back(0);
    for (const MirrixCore::DuplicateGroup &group : groups)
        m_starts.push_back(m_starts.back() + size_t(group.files.size()));
    m_marks.assign(m_starts.back(), 0);
    m_counts.assign(size_t(groups.size()), 0);
}

void SelectionMarks::clear()
{
    m_marks.clear();
    m_starts.clear();
    m_counts.clear();
    m_total = 0;
}

void SelectionMarks::setMarked(qsizetype group, qsizetype file, bool marked)
{
    if (isMarked(group, file) == marked)
        return;
    m_marks[m_starts[size_t(group)] + size_t(file)] = marked ? 1 : 0;
    const qsizetype change = marked ? 1 : -1;
    m_counts[size_t(group)] += change;
    m_total += change;
}

void SelectionMarks::markAllBut(qsizetype group, qsizetype kept)
{
    const auto number = size_t(group);
    const qsizetype size = sizeOf(number);
    const bool keepsOne = kept >= 0 && kept < size;
    std::fill_n(m_marks.begin() + qsizetype(m_starts[number]), size, quint8(1));
    if (keepsOne)
        m_marks[m_starts[number] + size_t(kept)] = 0;
    const qsizetype marked = keepsOne ? size - 1 : size;
    m_total += marked - m_counts[number];
    m_counts[number] = marked;
}

void SelectionMarks::invert()
{
    for (quint8 &mark : m_marks)
        mark ^= 1;
    for (size_t group = 0; group < m_counts.size(); ++group)
        m_counts[group] = sizeOf(group) - m_counts[group];
    m_total = qsizetype(m_marks.size()) - m_total;
}

} // namespace Mirrix
