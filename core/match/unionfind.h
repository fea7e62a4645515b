#pragma once

#include <QtGlobal>

#include <numeric>
#include <vector>

namespace MirrixCore {

/// Sets of the numbers 0..count-1, at first each alone, joined pair by pair.
class UnionFind
{
public:
    explicit UnionFind(qsizetype count)
        : m_parent(static_cast<size_t>(count))
    {
        std::iota(m_parent.begin(), m_parent.end(), 0);
    }

    /// The representative of the set of `x`. Halves the path on its way up.
    qint32 find(qint32 x)
    {
        while (m_parent[static_cast<size_t>(x)] != x) {
            qint32 &parent = m_parent[static_cast<size_t>(x)];
            parent = m_parent[static_cast<size_t>(parent)];
            x = parent;
        }
        return x;
    }

    /// Makes one set of the sets of `i` and `j`; the representative of the former represents both.
    void join(qint32 i, qint32 j) { m_parent[static_cast<size_t>(find(j))] = find(i); }

private:
    std::vector<qint32> m_parent;
};

} // namespace MirrixCore
