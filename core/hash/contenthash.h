#pragma once

#include "core/hash/contenthasher.h"
#include "core/model/scanprogress.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>

namespace MirrixCore {

// Digests of files. Every function takes a path with forward slashes and returns the raw digest, or an empty one when
// the file cannot be opened or read to its end, or when `cancelled` answers true (asked once per piece read). "Current"
// means the algorithm of contentHashAlgorithm() at the time of the call. All are re-entrant.

inline constexpr qint64 quickWindowBytes = 4096;    ///< head and tail of the quick hash
inline constexpr qint64 sampleBlockBytes = 4096;    ///< one block of the sample hash
inline constexpr qint64 streamChunkBytes = 4194304; ///< most memory that streaming a file takes
inline constexpr qint64 prefixChunkBytes = 1048576; ///< the same for a prefix

/// What a caller may want to know about the file behind a digest.
struct HashNotes
{
    QString failure;         ///< the system's reason for an empty digest; empty otherwise, and when cancelled
    qint64 sizeBytes = -1;   ///< size when the file was opened
    qint64 modifiedMs = 0;   ///< modification time when the file was opened
    bool hasChanged = false; ///< size or time were others after the last read: the digest may fit no state of the file
};

/// Current digest of the decimal size, the first 4096 bytes and, of a file longer than that, its last 4096 bytes (the
/// two may overlap). Empty for an empty file. Reads at most 8 KiB.
[[nodiscard]] QByteArray quickHash(const QString &path, HashNotes *notes = nullptr);

/// Largest file that the windows of the quick hash cover whole. Two files of equal size up to this have equal quick
/// hashes exactly when they have equal contents.
inline constexpr qint64 quickCoversBytes = 2 * quickWindowBytes;

/// Both digests of a file that one read takes whole.
struct SmallFileDigests
{
    QByteArray quick; ///< as of quickHash; only for the cache
    QByteArray full;  ///< as of fullContentHash
};

/// Reads a file, known to be of `sizeBytes` (1 to quickCoversBytes), once for both digests. `forCache` adds the quick
/// one and the state of the file in `notes`, without which the call saves a question to the system. Empty, and noted as
/// changed, when the file has another size by now.
[[nodiscard]] SmallFileDigests smallFileDigests(const QString &path, qint64 sizeBytes, bool forCache,
                                                HashNotes *notes = nullptr);

/// Current digest of the whole content; of an empty file, the digest of no bytes.
[[nodiscard]] QByteArray fullContentHash(const QString &path, const CancelQuery &cancelled = {},
                                         HashNotes *notes = nullptr);

/// BLAKE3 digest (32 bytes) of the whole content.
[[nodiscard]] QByteArray fullContentHashBlake3(const QString &path, const CancelQuery &cancelled = {},
                                               HashNotes *notes = nullptr);

/// Current digest of the decimal size and the first `limitBytes` bytes. A limit below 1 gives fullContentHash.
[[nodiscard]] QByteArray prefixHash(const QString &path, qint64 limitBytes, const CancelQuery &cancelled = {},
                                    HashNotes *notes = nullptr);

/// MD5, whatever the current algorithm, of the decimal size and up to five blocks of 4096 bytes: head, middle, tail,
/// first and third quarter, as sampleOffsets lists them. Reads at most 20 KiB.
[[nodiscard]] QByteArray sampleHash(const QString &path, HashNotes *notes = nullptr);

/// Digest of the whole content with any algorithm of QCryptographicHash.
[[nodiscard]] QByteArray hashFileWith(const QString &path, QCryptographicHash::Algorithm algorithm,
                                      const CancelQuery &cancelled = {}, HashNotes *notes = nullptr);

} // namespace MirrixCore
