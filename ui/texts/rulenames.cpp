#include "ui/texts/rulenames.h"

#include "app/text.h"

namespace Mirrix {

QString modeName(qint32 searchMode)
{
    switch (searchMode) {
    case 0:
        return Text::tr("常规模式");
    case 1:
        return Text::tr("图片模式");
    case 2:
        return Text::tr("音频模式");
    case 3:
        return Text::tr("视频模式");
    }
    return {};
}

QString similarityLevelName(qint32 level)
{
    switch (level) {
    case 0:
        return Text::tr("完全相同匹配");
    case 1:
        return Text::tr("非常近似匹配");
    case 2:
        return Text::tr("近似匹配");
    case 3:
        return Text::tr("相似匹配");
    case 4:
        return Text::tr("宽松相似");
    }
    return {};
}

QString audioMethodName(qint32 mediaCompareDepth)
{
    switch (mediaCompareDepth) {
    case 0:
        return Text::tr("采样指纹（多点哈希）");
    case 1:
        return Text::tr("近似匹配（开头约 2 分钟采样）");
    case 2:
        return Text::tr("近似匹配（开头约 30 秒采样）");
    case 3:
        return Text::tr("全文件精确哈希");
    case 4:
        return Text::tr("仅按标签匹配");
    }
    return {};
}

QString videoMethodName(qint32 mediaCompareDepthAlt)
{
    switch (mediaCompareDepthAlt) {
    case 0:
        return Text::tr("开头采样哈希");
    case 1:
        return Text::tr("全文件多点哈希（较慢）");
    case 2:
        return Text::tr("仅按标签匹配");
    }
    return {};
}

QString tagRuleName(qint32 rule)
{
    switch (rule) {
    case 0:
        return Text::tr("仅显示");
    case 1:
        return Text::tr("必须匹配");
    case 2:
        return Text::tr("忽略");
    }
    return {};
}

QString noLimitName()
{
    return Text::tr("不限");
}

} // namespace Mirrix
