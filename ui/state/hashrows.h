#pragma once

#include "core/model/fileentry.h"
#include "core/model/scanprogress.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Mirrix {

// What the hash tool computes, without its window.

/// The digests that the hash tool offers, in the order of its combo.
enum class HashChoice : int
{
    Md5 = 0,
    Sha1 = 1,
    Sha256 = 2,
    Blake3 = 3
};

/// Their names, in that order; not translated.
[[nodiscard]] const QStringList &hashChoiceNames();

/// Digest of a whole file in lower-case hexadecimal; empty when it cannot be read or when `cancelled` answers true.
/// Thread-safe.
[[nodiscard]] QString hexHash(const QString &path, HashChoice choice, const MirrixCore::CancelQuery &cancelled);

/// The files among `paths` and those inside its folders, with `isDeep` also those further down; absolute, in the order
/// of `paths`, each once. What is neither or cannot be read is left out. Reads no content. Thread-safe.
[[nodiscard]] QList<MirrixCore::FileEntry> filesAt(const QStringList &paths, bool isDeep,
                                                   const MirrixCore::CancelQuery &cancelled);

/// "N files", translated; and the same with the time that hashing took.
[[nodiscard]] QString hashSummary(qsizetype count);
[[nodiscard]] QString hashSummary(qsizetype count, qint64 elapsedMs);

} // namespace Mirrix
