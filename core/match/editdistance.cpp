#include "core/match/editdistance.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace MirrixCore {

namespace {
constexpr qsizetype wordBits = 64;
}

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
{
    if (name.size() > wordBits)
        return;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const char16_t unit = name[i].unicode();
        const quint64 bit = quint64(1) << i;
        if (unit < m_ascii.size())
            m_ascii[unit] |= bit;
        else
            m_others[unit] |= bit;
    }
}

quint64 EditMatcher::positionsOf(char16_t unit) const
{
    if (unit < m_ascii.size())
        return m_ascii[unit];
    const auto found = m_others.find(unit);
    return found == m_others.end() ? 0 : found->second;
}

bool EditMatcher::isWithin(QStringView other, qint32 limit) const
{
    const qsizetype length = m_name.size();
    if (std::abs(length - other.size()) > limit)
        return false;
    if (length == 0 || length > wordBits)
        return boundedEditDistance(m_name, other, limit) <= limit;
    // Vertical differences of the table's current column: bit i of `up` says +1, of `down` -1.
    quint64 up = ~quint64(0);
    quint64 down = 0;
    const quint64 last = quint64(1) << (length - 1);
    qsizetype distance = length;
    qsizetype rest = other.size();
    for (const QChar character : other) {
        const quint64 equal = positionsOf(character.unicode());
        const quint64 diagonal = (((equal & up) + up) ^ up) | equal | down;
        quint64 right = down | ~(diagonal | up);
        quint64 left = up & diagonal;
        distance += (right & last) ? 1 : 0;
        distance -= (left & last) ? 1 : 0;
        right = (right << 1) | 1;
        left <<= 1;
        up = left | ~(diagonal | right);
        down = right & diagonal;
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

} // namespace MirrixCore
