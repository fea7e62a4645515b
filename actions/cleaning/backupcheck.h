#pragma once

#include "actions/records/backupindex.h"
#include "core/hash/contenthasher.h"
#include "core/model/scanprogress.h"

#include <QByteArray>
#include <QString>

namespace Mirrix {

/// The state of a backup, as far as it is known without restoring it.
enum class BackupState
{
    Intact,
    Missing,    ///< no file there
    Damaged,    ///< its size or content is not that of the file that was backed up
    Unreadable, ///< the system did not allow reading it
    Refused     ///< the entry names what cannot be a backup, or an old path that leads elsewhere than it says
};

/// Looks at the file of an entry as restorableEntries or locatedEntries gave it, and reads it whole where the entry has
/// a digest of a known kind; `cancelled`, asked once per piece read, makes that Unreadable. A size of 0 or less is
/// taken for unknown. Thread-safe.
[[nodiscard]] BackupState backupState(const BackupEntry &entry, const MirrixCore::CancelQuery &cancelled = {});

enum class DigestCheck
{
    Equal,
    Different,
    Unreadable, ///< also when cancelled
    UnknownKind ///< no digest, or one that another version of the program has written; the file was not read
};

/// Compares a file's whole content with a digest as BackupEntry::digest has it. Thread-safe.
[[nodiscard]] DigestCheck checkDigest(const QString &path, const QString &digest,
                                      const MirrixCore::CancelQuery &cancelled = {});

/// A digest of a whole content as BackupEntry::digest has it: "md5:" or "blake3:" and lower-case hex digits. Empty for
/// an empty one.
[[nodiscard]] QString backupDigest(const QByteArray &digest, MirrixCore::ContentHashAlgorithm algorithm);

} // namespace Mirrix
