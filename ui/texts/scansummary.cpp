#include "ui/texts/scansummary.h"

#include "app/text.h"
#include "ui/texts/bytetext.h"
#include "ui/texts/rulenames.h"

#include <QStringList>

#include <algorithm>

namespace Mirrix {

using MirrixCore::ScanOptions;

namespace {

QString enumeration(const QStringList &items)
{
    return items.join(Text::tr("、"));
}

QStringList imageLines(const ScanOptions &options)
{
    QStringList lines = {Text::tr("• 图像相似度：%1").arg(similarityLevelName(options.imageSimilarityLevel))};
    QStringList variants;
    if (options.imageFindRotated)
        variants.append(Text::tr("旋转"));
    if (options.imageFindFlipped)
        variants.append(Text::tr("翻转"));
    if (!variants.isEmpty())
        lines.append(Text::tr("• 变体：%1").arg(enumeration(variants)));
    return lines;
}

QString contentLine(const ScanOptions &options)
{
    switch (options.contentMatching()) {
    case MirrixCore::ContentMatch::Exact:
        return Text::tr("• 匹配：相同内容（字节级）");
    case MirrixCore::ContentMatch::Similar:
        return Text::tr("• 匹配：相似内容（采样一致 ≥ %1%）").arg(options.similarPercent);
    case MirrixCore::ContentMatch::Ignore:
        break;
    }
    return Text::tr("• 匹配：忽略内容（名称/大小/日期规则）");
}

QStringList modeLines(const ScanOptions &options)
{
    switch (options.mode()) {
    case MirrixCore::SearchMode::Files:
        return {contentLine(options)};
    case MirrixCore::SearchMode::Images:
        return imageLines(options);
    case MirrixCore::SearchMode::Audio:
        return {Text::tr("• 音频比对：%1").arg(audioMethodName(options.mediaCompareDepth))};
    case MirrixCore::SearchMode::Video:
        return {Text::tr("• 视频比对：%1").arg(videoMethodName(options.mediaCompareDepthAlt))};
    }
    return {};
}

QStringList locationLines(const ScanOptions &options)
{
    constexpr qsizetype shown = 3;
    QStringList lines = {Text::tr("• 扫描位置：%1").arg(options.roots.size())};
    for (const QString &root : options.roots.first(std::min(shown, options.roots.size())))
        lines.append(QStringLiteral("    ") + root);
    if (options.roots.size() > shown)
        lines.append(Text::tr("    … 另有 %1 个").arg(options.roots.size() - shown));
    if (!options.excludeFolders.isEmpty())
        lines.append(Text::tr("• 排除目录：%1").arg(options.excludeFolders.size()));
    return lines;
}

QString limitText(qint64 bytes)
{
    return bytes < 1 ? noLimitName() : formatSize(bytes);
}

QString extensionsText(const QStringList &extensions)
{
    constexpr qsizetype longest = 48;
    const QString text = extensions.join(u',');
    return text.size() > longest ? text.left(longest - 3) + QStringLiteral("...") : text;
}

QStringList filterLines(const ScanOptions &options)
{
    QStringList lines;
    if (options.minSize >= 1 || options.maxSize >= 1)
        lines.append(Text::tr("• 大小限制：%1 ~ %2").arg(limitText(options.minSize), limitText(options.maxSize)));
    if (!options.includeExtensions.isEmpty())
        lines.append(Text::tr("• 包含扩展名：%1").arg(extensionsText(options.includeExtensions)));
    if (!options.excludeExtensions.isEmpty())
        lines.append(Text::tr("• 排除扩展名：%1").arg(extensionsText(options.excludeExtensions)));
    QStringList skipped;
    if (options.skipHidden)
        skipped.append(Text::tr("隐藏文件"));
    if (options.skipSystemFolders)
        skipped.append(Text::tr("系统目录"));
    if (!skipped.isEmpty())
        lines.append(Text::tr("• 跳过：%1").arg(enumeration(skipped)));
    return lines;
}

} // namespace

QString scanSummary(const ScanOptions &options)
{
    QStringList lines = {Text::tr("请确认以下扫描设置："), QString()};
    lines.append(Text::tr("• 模式：%1").arg(modeName(options.searchMode)));
    lines += modeLines(options) + locationLines(options) + filterLines(options);
    lines.append(QString());
    lines.append(Text::tr("扫描在本地执行，文件不会上传到网络。"));
    return lines.join(u'\n');
}

} // namespace Mirrix
