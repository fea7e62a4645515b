#pragma once

#include "core/scan/scanoptions.h"

#include <QString>
#include <QStringList>

namespace MirrixCore {

/// Clean form of a path with forward slashes; on Windows a drive without slash ("C:") becomes its root. Empty stays
/// empty. Thread-safe, as all of this header.
[[nodiscard]] QString cleanedPath(const QString &path);

/// Whether `path` is `folder` or lies below it. Case is ignored and backslashes count as slashes; a sibling whose name
/// merely begins alike is not below.
[[nodiscard]] bool isUnderFolder(const QString &path, const QString &folder);

/// Whether a scan must not enter `path`: it is or lies under one of excludeFolders; or skipSystemFolders is on and it
/// is or lies under a folder of the operating system on drive C:; or skipHidden is on and it is hidden (asks the file
/// system).
[[nodiscard]] bool isExcludedFolder(const QString &path, const ScanOptions &options);

/// The text after the last dot of a file's name, lower case; empty without a dot.
[[nodiscard]] QString lowerSuffix(const QString &name);

/// The rules above with the options' lists brought into comparable form once, for use on every folder of a walk.
class FolderRules
{
public:
    explicit FolderRules(const ScanOptions &options);

    /// isExcludedFolder for a folder of which it is already known whether it is hidden.
    [[nodiscard]] bool excludes(const QString &path, bool isHidden) const;

    /// Whether `path` itself is one of excludeFolders.
    [[nodiscard]] bool isListed(const QString &path) const;

private:
    QStringList m_excluded; ///< comparable form
    QStringList m_system;   ///< comparable form; empty unless skipSystemFolders
    bool m_skipHidden;
};

} // namespace MirrixCore
