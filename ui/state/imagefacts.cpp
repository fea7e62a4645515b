#include "ui/state/imagefacts.h"

#include "app/text.h"
#include "core/media/metadata.h"
#include "core/platform/filestatus.h"
#include "ui/texts/resulttexts.h"
#include "ui/texts/timetext.h"

#include <QLocale>

namespace Mirrix {

using MirrixCore::FileEntry;

FileEntry imageFacts(const QString &path)
{
    const MirrixCore::FileStatus status = MirrixCore::fileStatus(path);
    FileEntry entry;
    entry.path = path;
    entry.size = status.sizeBytes;
    entry.modifiedMs = status.modifiedMs;
    if (status.kind == MirrixCore::FileStatus::Kind::File)
        MirrixCore::MediaMetadata::enrich(entry, MirrixCore::SearchMode::Images);
    return entry;
}

QString factSheet(const FileEntry &file)
{
    QString text = Text::tr("路径: %1\n大小: %2 字节\n修改: %3")
                       .arg(shownPath(file.path), QString::number(file.size), secondText(file.modifiedMs));
    if (file.width > 0)
        text += Text::tr("\n尺寸: %1 × %2").arg(file.width).arg(file.height);
    if (!file.cameraMake.isEmpty())
        text += Text::tr("\n相机: %1 %2").arg(file.cameraMake, file.cameraModel);
    if (const QString shot = file.shotMs > 0 ? secondText(file.shotMs) : file.dateTaken; !shot.isEmpty())
        text += Text::tr("\n拍摄: %1").arg(shot);
    if (file.hasGps)
        text += Text::tr("\nGPS: %1, %2")
                    .arg(QString::number(file.latitude, 'g', QLocale::FloatingPointShortest),
                         QString::number(file.longitude, 'g', QLocale::FloatingPointShortest));
    return text;
}

} // namespace Mirrix
