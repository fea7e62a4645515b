#include "ui/state/batchstate.h"

#include "app/text.h"

namespace Mirrix {

QString batchNote(const BatchState &state)
{
    if (state.isScanning)
        return Text::tr("扫描进行中，批量操作已暂停。");
    if (state.tab == ResultsTab::Folders)
        return Text::tr("「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。");
    if (state.tab == ResultsTab::Remaining)
        return Text::tr("「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。");
    if (!state.hasGroups)
        return Text::tr("扫描完成后，在左侧勾选重复项再执行批量操作。");
    return Text::tr("已勾选 %1 个文件").arg(state.marked);
}

} // namespace Mirrix
