#include "ui/texts/tagnames.h"

#include "app/text.h"

namespace Mirrix {

QList<TagName> imageTagNames()
{
    return {{QStringLiteral("DateTimeOriginal"), Text::tr("拍摄时间")},
            {QStringLiteral("Make"), Text::tr("相机品牌")},
            {QStringLiteral("Model"), Text::tr("相机型号")},
            {QStringLiteral("Description"), Text::tr("图片描述")},
            {QStringLiteral("UserComment"), Text::tr("用户注释")},
            {QStringLiteral("LensModel"), Text::tr("镜头型号")},
            {QStringLiteral("ISO"), Text::tr("感光度")},
            {QStringLiteral("FNumber"), Text::tr("光圈值")},
            {QStringLiteral("ExposureTime"), Text::tr("曝光时间")},
            {QStringLiteral("FocalLength"), Text::tr("焦距")},
            {QStringLiteral("Software"), Text::tr("处理软件")}};
}

QList<TagName> audioTagNames()
{
    return {{QStringLiteral("Artist"), Text::tr("艺术家")},     {QStringLiteral("Title"), Text::tr("标题")},
            {QStringLiteral("Album"), Text::tr("专辑")},        {QStringLiteral("Track"), Text::tr("音轨号")},
            {QStringLiteral("Year"), Text::tr("年代")},         {QStringLiteral("Genre"), Text::tr("流派")},
            {QStringLiteral("Lyricist"), Text::tr("歌词作者")}, {QStringLiteral("Bitrate"), Text::tr("比特率")},
            {QStringLiteral("Sample rate"), Text::tr("采样率")}};
}

QList<TagName> videoTagNames()
{
    return {{QStringLiteral("Title"), Text::tr("标题")},
            {QStringLiteral("Date"), Text::tr("日期")},
            {QStringLiteral("Director"), Text::tr("导演")}};
}

} // namespace Mirrix
