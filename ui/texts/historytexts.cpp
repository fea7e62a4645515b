#include "ui/texts/historytexts.h"

#include "actions/cleaning/undo.h"
#include "actions/cleaning/undorecord.h"
#include "app/text.h"
#include "ui/texts/timetext.h"

#include <QDateTime>
#include <QHash>
#include <QStringList>

namespace Mirrix {

namespace {

/// The time of the run `id`, which begins with it.
QString timeOfRun(const QString &id)
{
    constexpr qsizetype length = 15;
    const QDateTime time = QDateTime::fromString(id.left(length), QStringLiteral("yyyyMMdd-HHmmss"));
    return time.isValid() ? secondText(time.toMSecsSinceEpoch()) : id;
}

/// Of a method's name, as journals have it.
QString namesText(const QString &method)
{
    const QHash<QString, QString> texts = {
        {QStringLiteral("recycle"), Text::tr("移入回收站")}, {QStringLiteral("delete"), Text::tr("永久删除")},
        {QStringLiteral("move"), Text::tr("移动到文件夹")},  {QStringLiteral("symlink"), Text::tr("符号链接")},
        {QStringLiteral("hardlink"), Text::tr("硬链接")},    {QStringLiteral("backup"), Text::tr("移动到备份")},
        {emptyFoldersMethod, Text::tr("删除空文件夹")},
    };
    QStringList parts;
    for (const QString &part : method.split(QLatin1Char('+')))
        parts.append(texts.value(part, part));
    return parts.join(QLatin1String(" + "));
}

} // namespace

QString runMethodText(const RunHeader &run)
{
    return isUndoing(run) ? Text::tr("撤销清理") : namesText(run.method);
}

QString methodText(CleaningMethod method)
{
    return namesText(methodName(method));
}

QString undoneMethodText(const RunHeader &run)
{
    return namesText(undoneMethodName(run.method));
}

QString runStateText(const RunSummary &run)
{
    if (!run.isReadable)
        return Text::tr("无法读取");
    if (isUndoing(run.header) && run.totals.undone == 0)
        return Text::tr("撤销了 %1").arg(timeOfRun(run.header.undoOf));
    if (run.totals.undone > 0)
        return run.totals.done > 0 ? Text::tr("部分已撤销") : Text::tr("已撤销");
    return run.isComplete ? Text::tr("已完成") : Text::tr("已中断");
}

QString fileStateText(const RunHeader &run, const ItemOutcome &outcome)
{
    switch (outcome.state) {
    case ItemState::Planned:
        return Text::tr("无结果记录");
    case ItemState::Done:
    case ItemState::Undone:
        return isUndoing(run) == (outcome.state == ItemState::Done) ? Text::tr("已放回原处") : Text::tr("已移除");
    case ItemState::Failed:
        return Text::tr("失败：%1").arg(outcome.message);
    }
    return {};
}

} // namespace Mirrix
