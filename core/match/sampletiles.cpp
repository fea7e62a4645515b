#include "core/match/sampletiles.h"

#include "core/hash/samples.h"

#include <algorithm>

namespace MirrixCore {

namespace {

/// How many of `length` bytes are equal; fewer than `fewest` as soon as it is certain that there are.
qint64 equalBytes(const char *a, const char *b, qint64 length, qint64 fewest)
{
    constexpr qint64 pieceBytes = 512;
    qint64 equal = 0;
    for (qint64 offset = 0; offset < length; offset += pieceBytes) {
        const qint64 count = std::min(pieceBytes, length - offset);
        equal += equalByteCount({a + offset, count}, {b + offset, count});
        if (equal + (length - offset - count) < fewest)
            break;
    }
    return equal;
}

qint64 blocksOf(qint64 files)
{
    constexpr auto side = static_cast<qint64>(PairBlock::side);
    return (files + side - 1) / side;
}

} // namespace

SizeClass::SizeClass(qint64 fileBytes, std::vector<quint32> members, int leastPercent)
    : sizeBytes(fileBytes)
    , sampledBytes(sampleBytes(fileBytes))
    , fewestEqual((sampledBytes * leastPercent + 99) / 100) // the percentage is rounded down
    , files(std::move(members))
    , sets(std::ssize(files))
    , percent(files.size(), 100)
{}

void SizeClass::join(qint32 a, qint32 b, int pairPercent)
{
    const auto rootA = static_cast<size_t>(sets.find(a));
    const auto rootB = static_cast<size_t>(sets.find(b));
    percent[rootA] = std::min({percent[rootA], percent[rootB], static_cast<quint8>(pairPercent)});
    sets.join(a, b);
}

qint64 pairBlockCount(qint64 filesA, qint64 filesB, bool isSameTile)
{
    const qint64 a = blocksOf(filesA);
    const qint64 b = blocksOf(filesB);
    return isSameTile ? a * (a + 1) / 2 : a * b;
}

std::vector<SimilarPair> similarPairs(const PairBlock &block)
{
    const SizeClass &files = *block.a->sizeClass;
    const size_t endA = std::min(block.fromA + PairBlock::side, block.a->members.size());
    const size_t endB = std::min(block.fromB + PairBlock::side, block.b->members.size());
    const bool isDiagonal = block.a == block.b && block.fromA == block.fromB;
    std::vector<SimilarPair> pairs;
    for (size_t i = block.fromA; i < endA; ++i) {
        const Tile::Member &a = block.a->members[i];
        for (size_t j = isDiagonal ? i + 1 : block.fromB; j < endB; ++j) {
            const Tile::Member &b = block.b->members[j];
            const qint64 equal =
                equalBytes(block.a->samplesOf(a), block.b->samplesOf(b), files.sampledBytes, files.fewestEqual);
            if (equal >= files.fewestEqual)
                pairs.push_back({a.position, b.position, similarityPercent(equal, files.sampledBytes)});
        }
    }
    return pairs;
}

} // namespace MirrixCore
