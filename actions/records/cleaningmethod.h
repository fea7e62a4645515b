#pragma once

#include <QString>

#include <optional>

namespace Mirrix {

/// The ways in which a surplus copy is removed.
enum class CleaningMethod
{
    Recycle,
    Delete,
    Move,
    SymbolicLink, ///< a link to the kept copy takes its place
    HardLink,
    Backup,                ///< moved into the backup folder
    BackupAndSymbolicLink, ///< the same, then a link takes its place
    BackupAndHardLink
};

/// The name of a method in journals and on the command line: "recycle", "backup+symlink", ...
[[nodiscard]] QString methodName(CleaningMethod method);

/// The method of that name; nothing for any other text.
[[nodiscard]] std::optional<CleaningMethod> methodNamed(const QString &name);

/// Whether the surplus copy is gone for good afterwards, so that equal content has to be proved first.
[[nodiscard]] bool isDestroying(CleaningMethod method);

/// Whether a link takes the place of the surplus copy.
[[nodiscard]] bool isLinking(CleaningMethod method);

/// Whether the surplus copy goes into the backup folder.
[[nodiscard]] bool isBackingUp(CleaningMethod method);

} // namespace Mirrix
