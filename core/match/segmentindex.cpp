#include "core/match/segmentindex.h"

#include <QHash>

#include <bit>
#include <utility>

namespace MirrixCore {

namespace {
constexpr qint32 mostPieces = 12;       ///< more would find too much, one by one, unless they are long
constexpr qsizetype longPieceUnits = 6; ///< so long that they rarely agree by chance
} // namespace

SegmentIndex::SegmentIndex(const std::vector<QString> &names, qint32 limit)
    : m_limit(limit)
{
    for (const QString &name : names)
        m_lengths[name.size()];
    // For each name there are as many look-ups as pieces, shifts and lengths; a look-up costs as much as dismissing
    // several names.
    constexpr qint64 namesPerLookup = 8;
    const qint64 reach = std::min<qint64>(std::ssize(m_lengths), 2 * qint64(limit) + 1);
    const bool mayCutFinely = (qint64(limit) + 2) * (qint64(limit) + 1) * reach * namesPerLookup < std::ssize(names);
    for (auto &[length, pieces] : m_lengths)
        pieces = piecesOf(length, mayCutFinely);
    size_t entries = 0;
    for (const QString &name : names)
        entries += m_lengths[name.size()].size();
    m_mask = std::bit_ceil(entries + 1) - 1;
    std::vector<quint32> frequency(m_mask + 1);
    const auto placesOf = [&](const QString &name) {
        const std::vector<Piece> &pieces = m_lengths[name.size()];
        std::vector<size_t> places;
        for (size_t k = 0; k < pieces.size(); ++k)
            places.push_back(placeOf(name.size(), k, QStringView(name).mid(pieces[k].start, pieces[k].length)));
        return places;
    };
    for (const QString &name : names) {
        for (const size_t place : placesOf(name))
            ++frequency[place];
    }
    const auto forEachEntry = [&](const auto &act) {
        for (size_t i = 0; i < names.size(); ++i) {
            std::vector<size_t> places = placesOf(names[i]);
            if (places.size() > 1)
                places.erase(std::max_element(places.begin(), places.end(),
                                              [&](size_t a, size_t b) { return frequency[a] < frequency[b]; }));
            for (const size_t place : places)
                act(place, i);
        }
    };
    m_begin.resize(m_mask + 1);
    forEachEntry([&](size_t place, size_t) { ++m_begin[place]; });
    quint32 sum = 0;
    for (quint32 &begin : m_begin)
        begin = std::exchange(sum, sum + begin);
    m_entries.resize(sum);
    m_end = m_begin;
    forEachEntry([&](size_t place, size_t i) {
        m_entries[m_end[place]++] = {nameSignature(names[i]), static_cast<qint32>(i)};
    });
}

/// Even pieces. With many edits, or names shorter than those, one empty piece, which every name contains.
std::vector<SegmentIndex::Piece> SegmentIndex::piecesOf(qsizetype length, bool mayCutFinely) const
{
    const qsizetype count = qsizetype(m_limit) + 2;
    const bool isWorthwhile = count <= mostPieces || (mayCutFinely && length >= count * longPieceUnits);
    if (!isWorthwhile || length < count)
        return {{0, 0}};
    std::vector<Piece> pieces;
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype start = length * i / count;
        pieces.push_back({start, length * (i + 1) / count - start});
    }
    return pieces;
}

size_t SegmentIndex::placeOf(qsizetype length, size_t piece, QStringView text) const
{
    return qHashMulti(0, length, piece, text) & m_mask;
}

} // namespace MirrixCore
