#include "ui/exportcommand.h"

#include "actions/records/logevents.h"
#include "actions/records/operationslog.h"
#include "app/text.h"
#include "core/platform/nativepath.h"
#include "ui/dialogs/exportdialog.h"
#include "ui/dialogs/fileprogressdialog.h"
#include "ui/window/prompts.h"

#include <QDir>
#include <QFileInfo>

namespace Mirrix {

namespace {

QString progressLabel(ExportFormat format)
{
    return format == ExportFormat::Copies ? Text::tr("正在复制文件… (%1/%2)") : Text::tr("正在导出… (%1/%2)");
}

/// The results as they are now, unaffected by changes while they are written.
ExportRecords recordsOf(const ResultSet &results)
{
    return {results.groups,
            [marks = results.marks](qsizetype group, qsizetype file) { return marks.isMarked(group, file); }};
}

ExportOutcome run(QWidget *parent, const ResultSet &results, const ExportRequest &request, const QString &modeName)
{
    ExportOutcome outcome;
    const ExportRecords records = recordsOf(results);
    const QDateTime now = QDateTime::currentDateTime();
    FileProgressDialog dialog(progressLabel(request.format), parent);
    runUnderProgress(dialog, [&](const BatchProgress &progress) {
        outcome = writeExport(records, request, modeName, now, progress);
    });
    return outcome;
}

void tellOutcome(QWidget *parent, const ExportRequest &request, const ExportOutcome &outcome, Prompts &prompts,
                 OperationsLog &log)
{
    const QString path = QDir::toNativeSeparators(request.path);
    const bool isCopy = request.format == ExportFormat::Copies;
    if (!outcome.isDone) {
        if (!outcome.isCancelled)
            prompts.fail(parent, Text::tr("错误"), Text::tr("导出失败。") + QLatin1Char('\n') + outcome.message);
        return;
    }
    log.append({exportedEvent(path, isCopy)});
    if (!outcome.errors.isEmpty())
        prompts.warn(parent, Text::tr("导出警告"),
                     Text::tr("部分文件未能导出：\n%1").arg(outcome.errors.join(QLatin1Char('\n'))));
    prompts.inform(parent, Text::tr("完成"),
                   isCopy ? Text::tr("已复制文件到：%1\n%2").arg(path, outcome.message)
                          : Text::tr("已导出：%1").arg(path));
}

} // namespace

void exportResults(QWidget *parent, const ResultSet &results, const QString &modeName, Prompts &prompts,
                   OperationsLog &log)
{
    ExportDialog dialog({}, prompts, parent);
    if (!prompts.run(dialog))
        return;
    ExportRequest request = dialog.request();
    if (results.groups.isEmpty()) {
        prompts.inform(parent, Text::tr("提示"), Text::tr("没有可导出的结果。"));
        return;
    }
    if (request.path.isEmpty()) {
        prompts.inform(parent, Text::tr("提示"), Text::tr("请指定输出路径。"));
        return;
    }
    request.path = MirrixCore::absolutePath(request.path);
    const bool mayReplace = request.format == ExportFormat::Copies || dialog.isPathChosen();
    if (!mayReplace && QFileInfo::exists(request.path) &&
        !prompts.ask(parent, Text::tr("确认替换"),
                     Text::tr("文件已存在，是否替换？\n%1").arg(QDir::toNativeSeparators(request.path))))
        return;
    tellOutcome(parent, request, run(parent, results, request, modeName), prompts, log);
}

} // namespace Mirrix
