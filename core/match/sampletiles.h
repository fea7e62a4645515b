#pragma once

#include "core/match/digest.h"
#include "core/match/unionfind.h"

#include <QByteArray>

#include <vector>

namespace MirrixCore {

/// Files of one size, and which of them are similar. Files are referred to by their position in it.
struct SizeClass
{
    SizeClass(qint64 fileBytes, std::vector<quint32> members, int leastPercent);

    /// Joins two files that agree to `percent`.
    void join(qint32 a, qint32 b, int percent);

    qint64 sizeBytes;            ///< of each file
    qint64 sampledBytes;         ///< bytes in the samples of each
    qint64 fewestEqual;          ///< fewest bytes that the samples of two similar files have in common
    std::vector<quint32> files;  ///< indices into the matcher's input, ascending
    UnionFind sets;              ///< by position
    std::vector<quint8> percent; ///< the lowest that joined a set, at the set's number; 100 before
};

/// Some files of a class with their samples in memory.
struct Tile
{
    struct Member
    {
        qint32 position = 0; ///< in the class
        qint32 slot = 0;     ///< in `samples`
        Digest digest;       ///< of the samples; empty when they could not be read
    };

    SizeClass *sizeClass = nullptr;
    std::vector<Member> members;
    QByteArray samples;

    [[nodiscard]] char *samplesIn(qint32 slot) { return samples.data() + slot * sizeClass->sampledBytes; }
    [[nodiscard]] const char *samplesOf(const Member &member) const
    {
        return samples.constData() + member.slot * sizeClass->sampledBytes;
    }
};

/// A square of pairs: the files `fromA` onwards of one tile with those `fromB` onwards of the same or another.
struct PairBlock
{
    static constexpr size_t side = 64; ///< two rows of samples fit the processor's cache

    const Tile *a = nullptr;
    const Tile *b = nullptr;
    size_t fromA = 0;
    size_t fromB = 0;
};

/// Two similar files, by their positions.
struct SimilarPair
{
    qint32 a = 0;
    qint32 b = 0;
    int percent = 0;
};

/// Calls `visit` with the squares that hold each pair of a tile, or of two different tiles, once; stops when
/// it returns false.
template <typename Visit>
void forEachPairBlock(const Tile &a, const Tile &b, Visit visit)
{
    for (size_t fromA = 0; fromA < a.members.size(); fromA += PairBlock::side) {
        for (size_t fromB = &a == &b ? fromA : 0; fromB < b.members.size(); fromB += PairBlock::side) {
            if (!visit(PairBlock{&a, &b, fromA, fromB}))
                return;
        }
    }
}

/// How many those are for tiles of so many files.
[[nodiscard]] qint64 pairBlockCount(qint64 filesA, qint64 filesB, bool isSameTile);

/// The pairs of a square that agree to the least percentage of their class. Takes up to 20 KiB x 4096 of comparison.
[[nodiscard]] std::vector<SimilarPair> similarPairs(const PairBlock &block);

} // namespace MirrixCore
