#pragma once

#include <QList>
#include <QString>

namespace Mirrix {

enum class DriveType
{
    Unknown,
    Removable,
    Fixed,
    Remote,
    Optical,
    RamDisk,
};

/// One drive (Windows) or mounted local volume (elsewhere).
struct Drive
{
    QString root; ///< forward slashes, always ending in one
    DriveType type = DriveType::Unknown;
    QString label;         ///< the volume's label; may be empty
    QString fileSystem;    ///< its name as the system gives it; empty when unknown
    qint64 totalBytes = 0; ///< 0 when the volume cannot be read
    qint64 freeBytes = 0;  ///< available to this user
    bool isSystem = false; ///< whether the operating system lives there

    bool operator==(const Drive &) const = default;
};

/// The machine's drives in the system's order; on systems without drives the mounted volumes of local devices, "/"
/// first, each device once. A drive whose volume cannot be read is listed without label and sizes.
/// Blocks for many seconds when a network drive is dead: not for the interface thread. Thread-safe.
[[nodiscard]] QList<Drive> listDrives();

/// The source text of the type's name; translated where it is shown.
[[nodiscard]] const char *driveTypeName(DriveType type);

/// Whether there is something to scan: an optical or removable drive without a medium has nothing.
[[nodiscard]] bool isScannable(const Drive &drive);

} // namespace Mirrix
