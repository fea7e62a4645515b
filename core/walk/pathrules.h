#pragma once

#include "core/model/scanoptions.h"
#include "core/platform/filestatus.h"

#include <QString>
#include <QStringList>

namespace MirrixCore {

/// Whether a scan must not enter `path`: it is or lies under one of excludeFolders; or skipSystemFolders is on and it
/// is or lies under a folder of the operating system on drive C:; or skipHidden is on and it is hidden (asks the file
/// system).
[[nodiscard]] bool isExcludedFolder(const QString &path, const ScanOptions &options);

/// isExcludedFolder for every folder of a walk: the options' lists are brought into comparable form once, and excluded
/// folders that exist are known by what their paths lead to and by identity as well. Unlike there, a backslash is a
/// separator only where the system takes it for one.
class FolderRules
{
public:
    /// Asks the file system for each of excludeFolders.
    explicit FolderRules(const ScanOptions &options);

    /// Whether `path` is excluded by its text, or because it is hidden.
    [[nodiscard]] bool excludes(const QString &path, bool isHidden) const;

    /// Whether `path` itself is one of excludeFolders, by its text.
    [[nodiscard]] bool isListed(const QString &path) const;

    /// Whether a folder of this identity is one of excludeFolders.
    [[nodiscard]] bool isListed(const FileIdentity &identity) const;

    /// Whether any excluded folder exists, so that folders are worth asking for their identities and real paths.
    [[nodiscard]] bool needsIdentities() const { return !m_identities.isEmpty(); }

private:
    QStringList m_excluded; ///< comparable form, as given and without links
    QList<FileIdentity> m_identities;
    QStringList m_system; ///< comparable form; empty unless skipSystemFolders
    bool m_skipHidden;
};

} // namespace MirrixCore
