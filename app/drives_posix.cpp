#include "app/drives.h"

#include <QSet>
#include <QStorageInfo>

#include <algorithm>
#include <sys/statvfs.h>

namespace Mirrix {

namespace {

/// Whether a mounted volume is one of this machine's disks, and of use to its users. Images of program packages are
/// mounted from loop devices; the boot partitions hold nothing of theirs.
bool isLocalVolume(const QStorageInfo &volume)
{
    const QString root = volume.rootPath();
    if (root == u'/')
        return true;
    if (root.startsWith(QLatin1String("/boot")) || root.startsWith(QLatin1String("/snap/")))
        return false;
    const QByteArray device = volume.device();
    return volume.fileSystemType() == "zfs" || (device.startsWith("/dev/") && !device.startsWith("/dev/loop"));
}

DriveType typeOf(const QStorageInfo &volume)
{
    const QByteArray system = volume.fileSystemType();
    if (system == "iso9660" || system == "udf")
        return DriveType::Optical;
    const QString root = volume.rootPath();
    const bool isPluggedIn = root.startsWith(QLatin1String("/media/")) || root.startsWith(QLatin1String("/run/media/"));
    return isPluggedIn ? DriveType::Removable : DriveType::Fixed;
}

Drive driveOf(const QStorageInfo &volume)
{
    Drive drive;
    drive.root = volume.rootPath();
    drive.isSystem = drive.root == u'/';
    if (!drive.isSystem)
        drive.root += u'/';
    drive.type = typeOf(volume);
    drive.label = volume.name();
    drive.fileSystem = QString::fromLatin1(volume.fileSystemType());
    drive.totalBytes = std::max<qint64>(0, volume.bytesTotal());
    drive.freeBytes = std::max<qint64>(0, volume.bytesAvailable());
    return drive;
}

/// The root folder of a system that lives in a folder of another, as in a container, and is no mount point.
Drive rootFolder()
{
    Drive drive;
    drive.root = QStringLiteral("/");
    drive.type = DriveType::Fixed;
    drive.isSystem = true;
    struct statvfs space = {};
    if (statvfs("/", &space) == 0) {
        drive.totalBytes = qint64(space.f_blocks) * qint64(space.f_frsize);
        drive.freeBytes = qint64(space.f_bavail) * qint64(space.f_frsize);
    }
    return drive;
}

} // namespace

QList<Drive> listDrives()
{
    QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    // A device mounted in several places is listed where its path is shortest, so "/" comes first.
    std::stable_sort(volumes.begin(), volumes.end(), [](const QStorageInfo &a, const QStorageInfo &b) {
        return a.rootPath().size() < b.rootPath().size();
    });
    QList<Drive> drives;
    QSet<QByteArray> devices;
    for (const QStorageInfo &volume : volumes) {
        if (!isLocalVolume(volume) || devices.contains(volume.device()))
            continue;
        devices.insert(volume.device());
        drives.append(driveOf(volume));
    }
    if (drives.isEmpty() || !drives.constFirst().isSystem)
        drives.prepend(rootFolder());
    return drives;
}

} // namespace Mirrix
