#include "actions/cleaning/undotexts.h"

#include "actions/files/movefile.h"

#include <QCoreApplication>

namespace Mirrix {

QString notBackText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "恢复失败: %1").arg(path);
}

QString occupiedText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "原路径已存在文件，已取消恢复: %1").arg(path);
}

QString notComparedText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "无法重新生成，当时未与要保留的文件比较内容: %1").arg(path);
}

QString keptCopyGoneText(const QString &path, const QString &where)
{
    return QCoreApplication::translate("Mirrix", "无法重新生成，要保留的文件不存在或已更改: %1 (%2)").arg(path, where);
}

QString notInBinText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "已不在回收站中，无法恢复: %1").arg(path);
}

QString unmarkedText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "已恢复，但无法还原修改时间或权限: %1").arg(path);
}

QString notThereText(const QString &path, const QString &where)
{
    const bool hasFolder = pathState(folderOf(where)).kind != PathState::Kind::Missing;
    return (hasFolder ? QCoreApplication::translate("Mirrix", "文件已不在此处或已更改，未恢复: %1 (%2)")
                      : QCoreApplication::translate("Mirrix", "文件夹或磁盘不存在，未恢复: %1 (%2)"))
        .arg(path, where);
}

} // namespace Mirrix
