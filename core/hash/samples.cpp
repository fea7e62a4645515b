#include "core/hash/samples.h"

#include "core/hash/contenthash.h"
#include "core/hash/filereader.h"

#include <algorithm>

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

qint64 equalByteCount(QByteArrayView a, QByteArrayView b)
{
    qint64 equal = 0;
    for (qsizetype i = 0; i < a.size(); ++i)
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
