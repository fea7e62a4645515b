#pragma once

#include "core/match/editdistance.h"

#include <QString>

#include <algorithm>
#include <map>
#include <vector>

namespace MirrixCore {

/// Finds which of many names can be within a number of edits of another, without looking at all of them. Every name is
/// cut into two pieces more than edits are allowed, so at least two pieces of a name near enough are unchanged in the
/// other, shifted by no more than the edits around them can do (Li, Deng, Wang, Feng: "Pass-Join", 2011). The commonest
/// piece of each name ("IMG_", this year) is left out; one of the two is always among the others. Names go by their
/// number. Takes about 35 bytes a piece.
class SegmentIndex
{
public:
    SegmentIndex() = default;
    SegmentIndex(const std::vector<QString> &names, qint32 limit);

    /// Calls `visit` with the number of each name that is still in the index and, by its pieces and its signature, may
    /// be within the limit of `name`; some of them several times. Those for which it returns true are dropped from
    /// where they were found.
    template <typename Visit>
    void visitNear(const QString &name, Visit visit)
    {
        const NameSignature signature = nameSignature(name);
        const auto end = m_lengths.upper_bound(name.size() + m_limit);
        for (auto it = m_lengths.lower_bound(name.size() - m_limit); it != end; ++it) {
            const qsizetype longer = name.size() - it->first;
            const std::vector<Piece> &pieces = it->second;
            for (size_t i = 0; i < pieces.size(); ++i) {
                const qsizetype first = std::max<qsizetype>(pieces[i].start - (m_limit - longer) / 2, 0);
                const qsizetype last =
                    std::min(pieces[i].start + (m_limit + longer) / 2, name.size() - pieces[i].length);
                for (qsizetype from = first; from <= last; ++from)
                    visitPlace(placeOf(it->first, i, QStringView(name).mid(from, pieces[i].length)), signature, visit);
            }
        }
    }

private:
    struct Piece
    {
        qsizetype start;
        qsizetype length;
    };

    struct Entry
    {
        NameSignature signature; ///< here, so that looking through a place is one run through memory
        qint32 name;
    };

    template <typename Visit>
    void visitPlace(size_t place, const NameSignature &signature, Visit visit)
    {
        for (quint32 i = m_begin[place]; i < m_end[place];) {
            if (mayBeWithin(signature, m_entries[i].signature, m_limit) && visit(m_entries[i].name))
                m_entries[i] = m_entries[--m_end[place]];
            else
                ++i;
        }
    }

    [[nodiscard]] std::vector<Piece> piecesOf(qsizetype length, bool mayCutFinely) const;
    [[nodiscard]] size_t placeOf(qsizetype length, size_t piece, QStringView text) const;

    qint32 m_limit = 0;
    size_t m_mask = 0;
    std::map<qsizetype, std::vector<Piece>> m_lengths; ///< the lengths that occur, and how names of each are cut
    std::vector<quint32> m_begin;                      ///< by place: where its entries begin
    std::vector<quint32> m_end;                        ///< and end
    std::vector<Entry> m_entries;
};

} // namespace MirrixCore
