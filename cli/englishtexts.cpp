#include "cli/englishtexts.h"

#include <QHash>

namespace MirrixCli {

QString EnglishTexts::translate(const char *, const char *source, const char *, int) const
{
    static const QHash<QByteArray, QString> texts = {
        {"文件不存在: %1", QStringLiteral("File not found: %1")},
        {"批量移入回收站失败 (code %1, %2 个文件)",
         QStringLiteral("Failed to send files to Recycle Bin (code %1, %2 files)")},
        {"无法放入回收站，已保留: %1", QStringLiteral("No Recycle Bin can take this file, kept: %1")},
        {"未移入回收站，仍在原处: %1", QStringLiteral("Not recycled, still in its place: %1")},
        {"无法创建目标目录: %1", QStringLiteral("Could not create destination folder: %1")},
        {"目标已存在: %1", QStringLiteral("Destination already exists: %1")},
        {"无法移动: %1", QStringLiteral("Could not move: %1")},
        {"无法复制: %1", QStringLiteral("Could not copy: %1")},
        {"无法删除: %1", QStringLiteral("Could not delete: %1")},
        {"链接路径已存在: %1", QStringLiteral("Link path already exists: %1")},
        {"无法创建硬链接: %1", QStringLiteral("Could not create hard link: %1")},
        {"无法创建符号链接: %1", QStringLiteral("Could not create symbolic link: %1")},
        {"没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1",
         QStringLiteral("No right to create symbolic links (turn on developer mode or run as administrator): %1")},
        {"链接目标不是可用的文件: %1", QStringLiteral("The link target is not a usable file: %1")},
        {"原文件未能放回，可从备份中恢复: %1",
         QStringLiteral("The file could not be put back; it can be restored from the backup: %1")},
        {"无法移动到备份目录: %1", QStringLiteral("Could not move to backup folder: %1")},
        {"原路径已存在文件，已取消恢复: %1",
         QStringLiteral("A file already exists at the original path; restore cancelled: %1")},
        {"恢复失败: %1", QStringLiteral("Restore failed: %1")},
        {"文件在扫描后已更改，已保留: %1", QStringLiteral("Changed since the scan, kept: %1")},
        {"要保留的文件已更改，未处理: %1", QStringLiteral("The file to keep has changed, not touched: %1")},
        {"与要保留的文件可能是同一个文件，未处理: %1",
         QStringLiteral("Perhaps the same file as the one to keep, not touched: %1")},
    };
    return texts.value(source);
}

} // namespace MirrixCli
