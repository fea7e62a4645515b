#include "ui/texts/batchtexts.h"

#include "app/text.h"
#include "ui/texts/bytetext.h"

namespace Mirrix {

QString failureText(const BatchResult &result)
{
    return result.errors.isEmpty() ? QString() : Text::tr("\n部分失败：\n") + result.errors.join(QLatin1Char('\n'));
}

QString spaceNote(const Space &space)
{
    QStringList parts;
    if (space.freedBytes > 0)
        parts.append(Text::tr("已释放 %1").arg(formatSize(space.freedBytes)));
    if (space.heldInBackupBytes > 0)
        parts.append(Text::tr("备份文件夹中保留 %1").arg(formatSize(space.heldInBackupBytes)));
    if (space.heldInBinBytes > 0)
        parts.append(Text::tr("回收站中保留 %1").arg(formatSize(space.heldInBinBytes)));
    return parts.join(QLatin1Char('\n'));
}

} // namespace Mirrix
