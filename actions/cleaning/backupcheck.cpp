#include "actions/cleaning/backupcheck.h"

#include "actions/files/movefile.h"
#include "core/hash/contenthash.h"
#include "core/platform/pathtext.h"

#include <QDir>

#include <optional>

namespace Mirrix {

namespace {

using MirrixCore::ContentHashAlgorithm;

const QString md5Prefix = QStringLiteral("md5:");
const QString blake3Prefix = QStringLiteral("blake3:");

/// Whether the old path is absolute and clean and the backup is none of the store's own files.
bool isTrustworthy(const BackupEntry &entry)
{
    const QString original = MirrixCore::cleanedPath(entry.original);
    // The system's calls would end a path at a zero.
    if (original.contains(QChar::Null) || entry.backup.contains(QChar::Null) || original != entry.original ||
        !QDir::isAbsolutePath(original) || fileNameOf(original).isEmpty())
        return false;
    const QString name = fileNameOf(entry.backup);
    const bool isTemporary = name.startsWith(QLatin1String(".mirrix-"), Qt::CaseInsensitive) && !isAsideName(name);
    return !name.isEmpty() && !isTemporary && !name.startsWith(QLatin1String("backup_index."), Qt::CaseInsensitive);
}

/// No value for a digest that another version of the program has written.
std::optional<ContentHashAlgorithm> algorithmOf(const QString &digest)
{
    if (digest.startsWith(md5Prefix))
        return ContentHashAlgorithm::Md5;
    return digest.startsWith(blake3Prefix) ? std::optional(ContentHashAlgorithm::Blake3) : std::nullopt;
}

} // namespace

BackupState backupState(const BackupEntry &entry, const MirrixCore::CancelQuery &cancelled)
{
    if (!isTrustworthy(entry))
        return BackupState::Refused;
    const PathState file = pathState(entry.backup);
    if (file.kind == PathState::Kind::Missing)
        return BackupState::Missing;
    if (file.kind == PathState::Kind::Unknown)
        return BackupState::Unreadable;
    if (file.kind != PathState::Kind::File)
        return BackupState::Refused;
    if (entry.sizeBytes > 0 && file.sizeBytes != entry.sizeBytes)
        return BackupState::Damaged;
    switch (checkDigest(entry.backup, entry.digest, cancelled)) {
    case DigestCheck::Different:
        return BackupState::Damaged;
    case DigestCheck::Unreadable:
        return BackupState::Unreadable;
    case DigestCheck::Equal:
    case DigestCheck::UnknownKind:
        break;
    }
    return BackupState::Intact;
}

DigestCheck checkDigest(const QString &path, const QString &digest, const MirrixCore::CancelQuery &cancelled)
{
    const std::optional<ContentHashAlgorithm> algorithm = algorithmOf(digest);
    if (!algorithm)
        return DigestCheck::UnknownKind;
    const QByteArray found = *algorithm == ContentHashAlgorithm::Md5
                                 ? MirrixCore::hashFileWith(path, QCryptographicHash::Md5, cancelled)
                                 : MirrixCore::fullContentHashBlake3(path, cancelled);
    if (found.isEmpty())
        return DigestCheck::Unreadable;
    const bool isSame = backupDigest(found, *algorithm).compare(digest, Qt::CaseInsensitive) == 0;
    return isSame ? DigestCheck::Equal : DigestCheck::Different;
}

QString backupDigest(const QByteArray &digest, ContentHashAlgorithm algorithm)
{
    if (digest.isEmpty())
        return {};
    const bool isMd5 = algorithm == ContentHashAlgorithm::Md5;
    return (isMd5 ? md5Prefix : blake3Prefix) + QString::fromLatin1(digest.toHex());
}

} // namespace Mirrix
