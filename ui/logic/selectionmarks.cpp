#include "ui/logic/selectionmarks.h"

namespace Mirrix {

void SelectionMarks::reset(const QList<MirrixCore::DuplicateGroup> &groups)
{
    clear();
    m_marks.reserve(groups.size());
    for (const MirrixCore::DuplicateGroup &group : groups)
        m_marks.append(QByteArray(group.files.size(), 0));
    m_counts.fill(0, groups.size());
}

void SelectionMarks::clear()
{
    m_marks.clear();
    m_counts.clear();
    m_total = 0;
}

void SelectionMarks::setMarked(qsizetype group, qsizetype file, bool marked)
{
    if (isMarked(group, file) == marked)
        return;
    m_marks[group][file] = marked ? 1 : 0;
    const qsizetype change = marked ? 1 : -1;
    m_counts[group] += change;
    m_total += change;
}

void SelectionMarks::markAllBut(qsizetype group, qsizetype kept)
{
    QByteArray &marks = m_marks[group];
    marks.fill(1);
    if (kept >= 0 && kept < marks.size())
        marks[kept] = 0;
    const qsizetype marked = marks.count(1);
    m_total += marked - m_counts[group];
    m_counts[group] = marked;
}

void SelectionMarks::invert()
{
    m_total = 0;
    for (qsizetype group = 0; group < m_marks.size(); ++group) {
        for (char &mark : m_marks[group])
            mark = mark ? 0 : 1;
        m_counts[group] = m_marks[group].size() - m_counts[group];
        m_total += m_counts[group];
    }
}

} // namespace Mirrix
