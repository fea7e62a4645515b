#include "app/drives.h"

#include "core/platform/win32.h"

#include <vector>

namespace Mirrix {

namespace {

DriveType typeOf(const wchar_t *root)
{
    switch (GetDriveTypeW(root)) {
    case DRIVE_REMOVABLE:
        return DriveType::Removable;
    case DRIVE_FIXED:
        return DriveType::Fixed;
    case DRIVE_REMOTE:
        return DriveType::Remote;
    case DRIVE_CDROM:
        return DriveType::Optical;
    case DRIVE_RAMDISK:
        return DriveType::RamDisk;
    default:
        return DriveType::Unknown;
    }
}

Drive driveAt(const wchar_t *root)
{
    Drive drive;
    drive.root = MirrixCore::textFromWide(root).replace(u'\\', u'/');
    if (!drive.root.endsWith(u'/'))
        drive.root += u'/';
    drive.type = typeOf(root);
    wchar_t label[260] = {};
    wchar_t fileSystem[260] = {};
    if (GetVolumeInformationW(root, label, DWORD(std::size(label)), nullptr, nullptr, nullptr, fileSystem,
                              DWORD(std::size(fileSystem)))) {
        drive.label = MirrixCore::textFromWide(label);
        drive.fileSystem = MirrixCore::textFromWide(fileSystem);
    }
    ULARGE_INTEGER available = {};
    ULARGE_INTEGER total = {};
    if (GetDiskFreeSpaceExW(root, &available, &total, nullptr)) {
        drive.totalBytes = qint64(total.QuadPart);
        drive.freeBytes = qint64(available.QuadPart);
    }
    drive.isSystem = drive.root.startsWith(QLatin1String("C:/"));
    return drive;
}

} // namespace

QList<Drive> listDrives()
{
    const DWORD length = GetLogicalDriveStringsW(0, nullptr);
    if (length == 0)
        return {};
    std::vector<wchar_t> roots(size_t(length) + 1);
    // The answer may have grown since it was measured; then nothing is written and the list stays empty.
    if (GetLogicalDriveStringsW(length, roots.data()) > length)
        return {};
    // An empty card reader must not open the system's "insert a disk" box.
    DWORD oldMode = 0;
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, &oldMode);
    QList<Drive> drives;
    for (const wchar_t *root = roots.data(); *root; root += wcslen(root) + 1)
        drives.append(driveAt(root));
    SetThreadErrorMode(oldMode, nullptr);
    return drives;
}

} // namespace Mirrix
