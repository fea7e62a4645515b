#pragma once

#include <QByteArray>
#include <QString>

namespace MirrixCore {

// Quick and full digests of files hashed before, one small JSON file each below "fingerprint_cache" in cacheRoot().
// An entry counts for a file while size, modification time and algorithm are the same; an entry that names no algorithm
// counts for each. Every failure is silent: what cannot be read is a miss, what cannot be written is not kept. One
// process-wide mutex guards the files; all functions may be called from many threads.

/// The digests known of a file; an empty one is not known.
struct Fingerprint
{
    QByteArray quick;
    QByteArray full;
};

/// Where the entry of a file lies: by the SHA-256 of its path, so each spelling has an entry of its own. Empty when the
/// cache is off.
[[nodiscard]] QString cachePathFor(const QString &filePath);

/// Both digests with one reading of the entry.
[[nodiscard]] Fingerprint lookupFingerprint(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs);

/// Sets `digest` and returns true when a valid entry has it; else clears it.
[[nodiscard]] bool lookupQuick(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, QByteArray &digest);
[[nodiscard]] bool lookupFull(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, QByteArray &digest);

/// Writes the digest under the current algorithm's name. Does nothing for an empty digest or a size below 1.
void storeQuick(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, const QByteArray &quick);

/// The same for both digests. Does nothing when either is empty.
void storeQuickAndFull(const QString &filePath, qint64 sizeBytes, qint64 modifiedMs, const QByteArray &quick,
                       const QByteArray &full);

} // namespace MirrixCore
