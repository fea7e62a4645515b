#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

namespace MirrixCore {

struct HashNotes;

/// Where the sample blocks of a file of `sizeBytes` begin, in the order in which they are hashed and compared: the
/// head; the middle from 8193 bytes on; the tail from 4097; first and third quarter above 16384. Empty for an empty
/// file.
[[nodiscard]] QList<qint64> sampleOffsets(qint64 sizeBytes);

/// Bytes in all sample blocks of a file of `sizeBytes`; where blocks overlap, bytes count in each. At most 20 KiB.
[[nodiscard]] qint64 sampleBytes(qint64 sizeBytes);

/// Reads the sample blocks of a file that is known to be of `sizeBytes` into `buffer`, one behind the other:
/// sampleBytes(sizeBytes) bytes. False, and `notes` say why, when it cannot be read or is or becomes another file than
/// that. Thread-safe.
[[nodiscard]] bool readSamples(const QString &path, qint64 sizeBytes, char *buffer, HashNotes &notes);

/// How many positions two blocks of equal length have in common.
[[nodiscard]] qint64 equalByteCount(QByteArrayView a, QByteArrayView b);

/// The whole percentage that `equalBytes` is of `totalBytes`, rounded down; 0 of 0 is 0.
[[nodiscard]] int similarityPercent(qint64 equalBytes, qint64 totalBytes);

/// How much the sample blocks of two files agree, 0..100 percent: 0 when one cannot be read, when they are empty or of
/// different sizes. Thread-safe.
[[nodiscard]] int sampledByteSimilarity(const QString &pathA, const QString &pathB);

} // namespace MirrixCore
