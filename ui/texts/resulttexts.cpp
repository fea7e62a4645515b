#include "ui/texts/resulttexts.h"

#include "app/text.h"
#include "core/platform/pathtext.h"
#include "ui/texts/bytetext.h"

#include <QDateTime>
#include <QDir>

#include <algorithm>

namespace Mirrix {

using MirrixCore::FileEntry;

namespace {

QString timeText(qint64 ms, const QString &format)
{
    return ms < 1 ? QString() : QDateTime::fromMSecsSinceEpoch(ms).toString(format);
}

QString shotText(const FileEntry &file)
{
    return file.shotMs > 0 ? timeText(file.shotMs, QStringLiteral("yyyy-MM-dd HH:mm:ss")) : file.dateTaken;
}

} // namespace

QString minuteText(qint64 ms)
{
    return timeText(ms, QStringLiteral("yyyy-MM-dd HH:mm"));
}

QString shownPath(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QString placeText(MirrixCore::FilePlace place)
{
    switch (place) {
    case MirrixCore::FilePlace::Ordinary:
        return {};
    case MirrixCore::FilePlace::RecycleBin:
        return Text::tr("位于回收站中");
    case MirrixCore::FilePlace::BackupFolder:
        return Text::tr("位于备份文件夹中");
    case MirrixCore::FilePlace::Snapshot:
        return Text::tr("位于快照中");
    }
    return {};
}

UnreadNote::UnreadNote(const QList<MirrixCore::UnreadPath> &unread)
    : m_count(unread.size())
{
    constexpr qsizetype most = 10;
    for (const MirrixCore::UnreadPath &one : unread.first(std::min(most, m_count)))
        m_first.append(shownPath(one.path));
}

QString UnreadNote::text() const
{
    if (m_count == 0)
        return {};
    QString paths = m_first.join(Text::tr("、"));
    if (m_count > m_first.size())
        paths += QStringLiteral(" …");
    return QStringLiteral(" · ") + Text::tr("未能读取 %1 项：%2").arg(QString::number(m_count), paths);
}

QString previewText(const FileEntry &file)
{
    QString text =
        Text::tr("路径: %1\n大小: %2\n修改: %3\n后缀: %4")
            .arg(shownPath(file.path), formatSize(file.size),
                 timeText(file.modifiedMs, QStringLiteral("yyyy-MM-dd HH:mm:ss")), MirrixCore::suffixOf(file.path));
    if (file.width > 0 && file.height > 0)
        text += Text::tr("\n尺寸: %1 × %2").arg(file.width).arg(file.height);
    if (!file.cameraMake.isEmpty() || !file.cameraModel.isEmpty())
        text += Text::tr("\n相机: %1 %2").arg(file.cameraMake, file.cameraModel);
    if (const QString shot = shotText(file); !shot.isEmpty())
        text += Text::tr("\n拍摄: %1").arg(shot);
    if (!file.artist.isEmpty())
        text += Text::tr("\n艺术家: %1").arg(file.artist);
    if (!file.title.isEmpty())
        text += Text::tr("\n标题: %1").arg(file.title);
    return text;
}

} // namespace Mirrix
