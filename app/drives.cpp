#include "app/drives.h"

#include <QtGlobal>

namespace Mirrix {

const char *driveTypeName(DriveType type)
{
    switch (type) {
    case DriveType::Removable:
        return QT_TRANSLATE_NOOP("Mirrix", "可移动磁盘");
    case DriveType::Fixed:
        return QT_TRANSLATE_NOOP("Mirrix", "本地磁盘");
    case DriveType::Remote:
        return QT_TRANSLATE_NOOP("Mirrix", "网络驱动器");
    case DriveType::Optical:
        return QT_TRANSLATE_NOOP("Mirrix", "光驱");
    case DriveType::RamDisk:
        return QT_TRANSLATE_NOOP("Mirrix", "内存盘");
    case DriveType::Unknown:
        break;
    }
    return "未知"; // the one name that stays as it is in every language
}

bool isScannable(const Drive &drive)
{
    const bool mayBeEmpty = drive.type == DriveType::Optical || drive.type == DriveType::Removable;
    return !mayBeEmpty || drive.totalBytes > 0 || !drive.fileSystem.isEmpty();
}

} // namespace Mirrix
