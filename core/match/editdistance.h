#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <array>
#include <cstdlib>
#include <unordered_map>
#include <vector>

namespace MirrixCore {

/// Levenshtein distance of two texts by UTF-16 units, exact and case-sensitive, as long as it matters: `limit` + 1 when
/// the lengths alone or a whole row of the table exceed `limit`. A result above `limit` says no more than that. Takes
/// length x length steps. Thread-safe.
[[nodiscard]] qint32 boundedEditDistance(QStringView a, QStringView b, qint32 limit);

/// Answers for one name, again and again, whether another is within a number of edits: the same as
/// boundedEditDistance(...) <= limit, much faster. Up to 256 units it goes by Myers' bit-parallel algorithm ("A fast
/// bit-vector algorithm for approximate string matching", 1999), one step per unit of the other name and 64 of this
/// one; up to 31 edits one step per unit of the other name, most names being dismissed long before their end, by
/// Hyyrö's variant for the diagonals near the middle one ("A bit-vector algorithm for computing Levenshtein and Damerau
/// edit distances", 2003). Not thread-safe.
class EditMatcher
{
public:
    explicit EditMatcher(const QString &name);

    [[nodiscard]] bool isWithin(QStringView other, qint32 limit) const;

private:
    static constexpr qsizetype mostWords = 4;
    using Bits = std::array<quint64, mostWords>;

    [[nodiscard]] const Bits &positionsOf(char16_t unit) const;
    [[nodiscard]] bool isWithinByDiagonals(QStringView other, qint32 limit) const;
    template <qsizetype words>
    [[nodiscard]] bool isWithinByBits(QStringView other, qint32 limit) const;

    QString m_name;
    qsizetype m_words = 0;                       ///< 64 bits each; 0: too long, or empty
    std::vector<Bits> m_ascii;                   ///< bit i set: the name's unit i is this one
    std::unordered_map<char16_t, Bits> m_others; ///< the same for units from 128 on
};

/// Which units a name holds, hashed to 64 places, once and at least twice. One edit changes at most two bits of the
/// four words of two names, so names whose signatures differ in more than 2 x limit bits need no closer look.
struct NameSignature
{
    quint64 once = 0;
    quint64 twice = 0;
};

[[nodiscard]] NameSignature nameSignature(QStringView name);

/// How often each unit occurs in a name, hashed to 32 places, up to 255. One edit changes at most two of them by one.
/// Distinguishes long names, in which nearly all units occur twice.
using UnitCounts = std::array<quint8, 32>;

[[nodiscard]] UnitCounts unitCounts(QStringView name);

/// False only when the names behind the counts cannot be within `limit` edits.
[[nodiscard]] inline bool mayBeWithin(const UnitCounts &a, const UnitCounts &b, qint32 limit)
{
    int difference = 0;
    for (size_t i = 0; i < a.size(); ++i)
        difference += std::abs(a[i] - b[i]);
    return difference <= 2 * static_cast<qint64>(limit);
}

/// In how many bits two signatures differ. By hand, since processors without an instruction for it are served too and
/// the library's function costs three times as much.
[[nodiscard]] inline int differingBits(const NameSignature &a, const NameSignature &b)
{
    const auto inNibbles = [](quint64 bits) {
        bits -= (bits >> 1) & 0x5555555555555555;
        return (bits & 0x3333333333333333) + ((bits >> 2) & 0x3333333333333333);
    };
    const quint64 nibbles = inNibbles(a.once ^ b.once) + inNibbles(a.twice ^ b.twice);
    const quint64 bytes = (nibbles & 0x0f0f0f0f0f0f0f0f) + ((nibbles >> 4) & 0x0f0f0f0f0f0f0f0f);
    return static_cast<int>((bytes * 0x0101010101010101) >> 56);
}

/// False only when the names behind the signatures cannot be within `limit` edits.
[[nodiscard]] inline bool mayBeWithin(const NameSignature &a, const NameSignature &b, qint32 limit)
{
    return differingBits(a, b) <= 2 * static_cast<qint64>(limit);
}

} // namespace MirrixCore
