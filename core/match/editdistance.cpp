#include "core/match/editdistance.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace MirrixCore {

namespace {
constexpr qsizetype wordBits = 64;
constexpr size_t asciiUnits = 128;
constexpr qint32 mostDiagonals = 31; ///< on each side of the middle one that one word has room for
/// The word of bits that begins at `start`, which may be negative; zeros before the first and behind the last.
quint64 bitsFrom(const std::array<quint64, 4> &bits, qsizetype start)
{
    if (start < 0)
        return bits[0] << -start;
    const auto word = static_cast<size_t>(start / wordBits);
    const qsizetype shift = start % wordBits;
    const quint64 low = word < bits.size() ? bits[word] >> shift : 0;
    const bool hasHigh = shift > 0 && word + 1 < bits.size();
    return hasHigh ? low | bits[word + 1] << (wordBits - shift) : low;
}

} // namespace

qint32 boundedEditDistance(QStringView a, QStringView b, qint32 limit)
{
    if (std::abs(a.size() - b.size()) > limit)
        return limit + 1;
    if (a.isEmpty() || b.isEmpty())
        return static_cast<qint32>(std::max(a.size(), b.size()));
    std::vector<qint32> above(static_cast<size_t>(b.size()) + 1);
    std::vector<qint32> row(above.size());
    std::iota(above.begin(), above.end(), 0);
    for (qsizetype i = 0; i < a.size(); ++i) {
        row[0] = static_cast<qint32>(i) + 1;
        qint32 least = row[0];
        for (size_t j = 1; j < row.size(); ++j) {
            const qint32 substitution = above[j - 1] + (a[i] == b[static_cast<qsizetype>(j) - 1] ? 0 : 1);
            row[j] = std::min({row[j - 1] + 1, above[j] + 1, substitution});
            least = std::min(least, row[j]);
        }
        if (least > limit)
            return limit + 1;
        above.swap(row);
    }
    return above.back();
}

EditMatcher::EditMatcher(const QString &name)
    : m_name(name)
    , m_words((name.size() + wordBits - 1) / wordBits)
    , m_ascii(asciiUnits)
{
    if (m_words > mostWords)
        m_words = 0;
    for (qsizetype i = 0; i < m_words * wordBits && i < name.size(); ++i) {
        const char16_t unit = name[i].unicode();
        Bits &bits = unit < asciiUnits ? m_ascii[unit] : m_others[unit];
        bits[static_cast<size_t>(i / wordBits)] |= quint64(1) << (i % wordBits);
    }
}

const EditMatcher::Bits &EditMatcher::positionsOf(char16_t unit) const
{
    static constexpr Bits nowhere{};
    if (unit < asciiUnits)
        return m_ascii[unit];
    const auto found = m_others.find(unit);
    return found == m_others.end() ? nowhere : found->second;
}

bool EditMatcher::isWithin(QStringView other, qint32 limit) const
{
    if (std::abs(m_name.size() - other.size()) > limit)
        return false;
    if (m_words > 0 && limit <= mostDiagonals)
        return isWithinByDiagonals(other, limit);
    switch (m_words) {
    case 1:
        return isWithinByBits<1>(other, limit);
    case 2:
        return isWithinByBits<2>(other, limit);
    case 3:
        return isWithinByBits<3>(other, limit);
    case 4:
        return isWithinByBits<4>(other, limit);
    default:
        return boundedEditDistance(m_name, other, limit) <= limit;
    }
}

bool EditMatcher::isWithinByDiagonals(QStringView other, qint32 limit) const
{
    // The word follows the diagonals: for the other name's unit j its last bit is this name's unit j + limit, so a
    // cell's left neighbour has the bit above. What lies before the first unit has no bits set and so differs as the
    // table's border does.
    const auto last = static_cast<int>(wordBits - 1);
    quint64 up = ~quint64(0) << (last - limit);
    quint64 down = 0;
    // Values never fall along a diagonal, and the distance is the last one on this.
    const qsizetype diagonal = m_name.size() - other.size();
    const quint64 watched = quint64(1) << (last - limit + diagonal);
    qsizetype distance = std::abs(diagonal);
    for (qsizetype column = 0; column < other.size(); ++column) {
        const Bits &positions = positionsOf(other[column].unicode());
        const quint64 equal = bitsFrom(positions, column + limit - last);
        const quint64 same = (((equal & up) + up) ^ up) | equal | down;
        const quint64 right = down | ~(same | up);
        const quint64 left = up & same;
        distance += column + diagonal >= 0 && !(same & watched) ? 1 : 0;
        if (distance > limit)
            return false;
        up = left | ~((same >> 1) | right);
        down = (same >> 1) & right;
    }
    return true;
}

template <qsizetype words>
bool EditMatcher::isWithinByBits(QStringView other, qint32 limit) const
{
    // Vertical differences of the table's current column: bit i of `up` says +1, of `down` -1.
    std::array<quint64, words> up;
    std::array<quint64, words> down{};
    up.fill(~quint64(0));
    const quint64 last = quint64(1) << ((m_name.size() - 1) % wordBits);
    qsizetype distance = m_name.size();
    qsizetype rest = other.size();
    for (const QChar character : other) {
        const Bits &positions = positionsOf(character.unicode());
        // The horizontal difference that enters the word from above; the table's first row grows by one each column.
        quint64 rightIn = 1;
        quint64 leftIn = 0;
        for (size_t word = 0; word < words; ++word) {
            const quint64 equal = positions[word] | leftIn;
            const quint64 diagonal = (((equal & up[word]) + up[word]) ^ up[word]) | equal | down[word];
            const quint64 vertical = positions[word] | down[word];
            const quint64 right = down[word] | ~(diagonal | up[word]);
            const quint64 left = up[word] & diagonal;
            if (word + 1 == words) {
                distance += (right & last) ? 1 : 0;
                distance -= (left & last) ? 1 : 0;
            }
            const quint64 shiftedRight = (right << 1) | rightIn;
            const quint64 shiftedLeft = (left << 1) | leftIn;
            rightIn = right >> (wordBits - 1);
            leftIn = left >> (wordBits - 1);
            up[word] = shiftedLeft | ~(vertical | shiftedRight);
            down[word] = shiftedRight & vertical;
        }
        if (distance - --rest > limit) // each further unit lowers it by one at most
            return false;
    }
    return distance <= limit;
}

NameSignature nameSignature(QStringView name)
{
    NameSignature signature;
    for (const QChar character : name) {
        const quint64 bit = quint64(1) << (character.unicode() % wordBits);
        signature.twice |= signature.once & bit;
        signature.once |= bit;
    }
    return signature;
}

UnitCounts unitCounts(QStringView name)
{
    UnitCounts counts{};
    for (const QChar character : name) {
        quint8 &count = counts[character.unicode() % counts.size()];
        count += count < 255 ? 1 : 0;
    }
    return counts;
}

} // namespace MirrixCore
