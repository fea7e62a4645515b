#include "ui/state/scanstatus.h"

#include "app/text.h"
#include "ui/texts/bytetext.h"

#include <algorithm>

namespace Mirrix {

namespace {

constexpr qint64 textIntervalMs = 150;

} // namespace

QString phaseName(const QString &phase)
{
    namespace Phase = MirrixCore::Phase;
    if (phase == Phase::Enumerating)
        return Text::tr("枚举文件");
    if (phase == Phase::Metadata)
        return Text::tr("读取元数据");
    if (phase == Phase::QuickHash)
        return Text::tr("快速哈希");
    if (phase == Phase::FullHash)
        return Text::tr("完整哈希");
    if (phase == Phase::SimilarContent)
        return Text::tr("相似内容比对");
    if (phase == Phase::PrefixHash)
        return Text::tr("前缀采样哈希");
    if (phase == Phase::SampleHash)
        return Text::tr("采样指纹哈希");
    if (phase == Phase::ImageHash)
        return Text::tr("图片感知哈希");
    return phase;
}

QString progressText(const MirrixCore::ScanProgress &progress)
{
    // All places at once: a path may itself hold "%3".
    return Text::tr("[%1] %2  已枚举 %3  已处理 %4/%5")
        .arg(phaseName(progress.phase), progress.currentPath, QString::number(progress.filesFound),
             QString::number(progress.processed), QString::number(progress.total));
}

std::optional<int> progressPercent(const MirrixCore::ScanProgress &progress)
{
    constexpr int barelyStarted = 5;
    if (progress.total > 0)
        return static_cast<int>(std::clamp<qint64>(progress.processed * 100 / progress.total, 0, 100));
    if (progress.filesFound > 0)
        return barelyStarted;
    return std::nullopt;
}

QString resultSummary(const ResultSet &results)
{
    const double seconds = static_cast<double>(results.elapsedMs) / 1000;
    return Text::tr("文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒")
        .arg(QString::number(results.filesScanned), QString::number(results.groups.size()),
             QString::number(results.folderGroups.size()), QString::number(results.remaining.size()),
             formatSize(results.wastedBytes), QString::number(seconds, 'f', 1));
}

bool ProgressThrottle::admits(const QString &phase, qint64 nowMs)
{
    if (phase == m_phase && nowMs - m_shownMs < textIntervalMs)
        return false;
    m_phase = phase;
    m_shownMs = nowMs;
    return true;
}

} // namespace Mirrix
