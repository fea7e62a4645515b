#include "ui/state/selectionmarks.h"

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

void SelectionMarks::markOnly(qsizetype group, const QList<qsizetype> &files)
{
    const auto number = size_t(group);
    const auto start = m_marks.begin() + qsizetype(m_starts[number]);
    std::fill_n(start, sizeOf(number), quint8(0));
    for (const qsizetype file : files)
        start[file] = 1;
    m_total += files.size() - m_counts[number];
    m_counts[number] = files.size();
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
