#include "core/hash/samples.h"

#include "core/hash/contenthash.h"
#include "core/platform/filereader.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace MirrixCore {

QList<qint64> sampleOffsets(qint64 sizeBytes)
{
    QList<qint64> offsets;
    if (sizeBytes >= 1)
        offsets.append(0);
    if (sizeBytes > 2 * sampleBlockBytes)
        offsets.append(sizeBytes / 2 - sampleBlockBytes / 2);
    if (sizeBytes > sampleBlockBytes)
        offsets.append(sizeBytes - sampleBlockBytes);
    if (sizeBytes > 4 * sampleBlockBytes) {
        offsets.append(sizeBytes / 4);
        offsets.append(sizeBytes / 4 * 3 + sizeBytes % 4 * 3 / 4); // (3 x size) / 4 without overflow
    }
    return offsets;
}

qint64 sampleBytes(qint64 sizeBytes)
{
    return sampleOffsets(sizeBytes).size() * std::min(sizeBytes, sampleBlockBytes);
}

bool readSamples(const QString &path, qint64 sizeBytes, char *buffer, HashNotes &notes)
{
    FileReader reader;
    if (!reader.open(path) || !reader.readState()) {
        notes.failure = reader.errorText();
        return false;
    }
    const qint64 blockBytes = std::min(sizeBytes, sampleBlockBytes);
    notes.hasChanged = reader.sizeBytes() != sizeBytes;
    for (const qint64 offset : sampleOffsets(sizeBytes)) {
        if (notes.hasChanged)
            return false;
        const qint64 count = reader.readAt(offset, buffer, blockBytes);
        if (count < 0) {
            notes.failure = reader.errorText();
            return false;
        }
        notes.hasChanged = count < blockBytes;
        buffer += blockBytes;
    }
    notes.hasChanged = notes.hasChanged || !reader.isUnchanged();
    return !notes.hasChanged;
}

// Counts in many lanes of one byte each, which compilers turn into vector instructions: 30 times as fast as one sum.
qint64 equalByteCount(QByteArrayView a, QByteArrayView b)
{
    constexpr qsizetype lanes = 32;
    constexpr qsizetype mostRounds = 255; // then a lane is full
    qint64 equal = 0;
    qsizetype i = 0;
    while (a.size() - i >= lanes) {
        std::array<quint8, lanes> counts{};
        const char *left = a.data() + i;
        const char *right = b.data() + i;
        const qsizetype rounds = std::min((a.size() - i) / lanes, mostRounds);
        for (qsizetype round = 0; round < rounds; ++round, left += lanes, right += lanes) {
            for (qsizetype lane = 0; lane < lanes; ++lane) {
                quint8 &count = counts[static_cast<size_t>(lane)];
                count = static_cast<quint8>(count + (left[lane] == right[lane]));
            }
        }
        equal += std::accumulate(counts.begin(), counts.end(), qint64(0));
        i += rounds * lanes;
    }
    for (; i < a.size(); ++i)
        equal += a[i] == b[i];
    return equal;
}

int similarityPercent(qint64 equalBytes, qint64 totalBytes)
{
    return totalBytes == 0 ? 0 : static_cast<int>(std::min<qint64>(equalBytes * 100 / totalBytes, 100));
}

int sampledByteSimilarity(const QString &pathA, const QString &pathB)
{
    FileReader a;
    FileReader b;
    const bool areOpen = a.open(pathA) && a.readState() && b.open(pathB) && b.readState();
    if (!areOpen || a.sizeBytes() < 1 || a.sizeBytes() != b.sizeBytes())
        return 0;
    std::array<char, sampleBlockBytes> blockA; // NOLINT: filled by the reads
    std::array<char, sampleBlockBytes> blockB; // NOLINT: filled by the reads
    qint64 equal = 0;
    qint64 total = 0;
    for (const qint64 offset : sampleOffsets(a.sizeBytes())) {
        const qint64 countA = a.readAt(offset, blockA.data(), sampleBlockBytes);
        const qint64 countB = b.readAt(offset, blockB.data(), sampleBlockBytes);
        if (countA < 1 || countA != countB)
            continue;
        equal += equalByteCount({blockA.data(), countA}, {blockB.data(), countB});
        total += countA;
    }
    return similarityPercent(equal, total);
}

} // namespace MirrixCore
