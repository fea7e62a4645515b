#include "ui/batchcommands.h"

#include "actions/cleaning/backupstore.h"
#include "actions/files/fileoperations.h"
#include "actions/records/logevents.h"
#include "actions/records/operationslog.h"
#include "app/settings.h"
#include "app/text.h"
#include "ui/dialogs/fileprogressdialog.h"
#include "ui/dialogs/fileremovaldialog.h"
#include "ui/dialogs/restoredialog.h"
#include "ui/state/backgroundthreads.h"
#include "ui/texts/batchtexts.h"
#include "ui/window/prompts.h"

#include <QDir>

#include <utility>

namespace Mirrix {

namespace {

using MirrixCore::DuplicateGroup;

/// Shown where files are removed for copies that are not known to be equal.
QString comparisonNote(const CheckedFiles &files)
{
    return files.areContentsEqual() ? QString() : Text::tr("部分组不是按内容匹配的，处理前不会比较这些文件的内容。");
}

CleaningMethod cleaningMethod(const RemovalChoice &choice)
{
    switch (choice.method) {
    case RemovalMethod::SymbolicLink:
        return CleaningMethod::BackupAndSymbolicLink;
    case RemovalMethod::HardLink:
        return CleaningMethod::BackupAndHardLink;
    case RemovalMethod::Recycle:
        return choice.backsUpFirst ? CleaningMethod::Backup : CleaningMethod::Recycle;
    case RemovalMethod::Delete:
        return choice.backsUpFirst ? CleaningMethod::Backup : CleaningMethod::Delete;
    case RemovalMethod::Move:
        return choice.backsUpFirst ? CleaningMethod::Backup : CleaningMethod::Move;
    }
    return CleaningMethod::Backup;
}

} // namespace

BatchCommands::BatchCommands(ResultSet &results, const Settings &settings, Prompts &prompts, OperationsLog &log,
                             QWidget *window)
    : QObject(window)
    , m_results(results)
    , m_settings(settings)
    , m_prompts(prompts)
    , m_log(log)
    , m_window(window)
{}

void BatchCommands::applyKeepRule(KeepRule rule)
{
    const auto mark = [rule](SelectionMarks &marks, const QList<DuplicateGroup> &groups) {
        for (qsizetype group = 0; group < groups.size(); ++group)
            marks.markOnly(group, chooseInGroup(groups[group].files, rule).surplus);
    };
    perform([&] {
        if (!changeMarks(QT_TRANSLATE_NOOP("Mirrix", "已按规则自动勾选待处理文件"), mark))
            return;
        m_log.append({markedByRuleEvent(static_cast<int>(rule), m_results.marks.markedInAll())});
    });
}

void BatchCommands::selectAllDuplicates()
{
    const auto mark = [](SelectionMarks &marks, const QList<DuplicateGroup> &groups) {
        for (qsizetype group = 0; group < groups.size(); ++group)
            marks.markOnly(group, chooseFirstInGroup(groups[group].files).surplus);
    };
    perform([&] { changeMarks(QT_TRANSLATE_NOOP("Mirrix", "已勾选各组重复项（默认保留每组第一个）"), mark); });
}

void BatchCommands::invertSelection()
{
    const auto mark = [](SelectionMarks &marks, const QList<DuplicateGroup> &) { marks.invert(); };
    perform([&] { changeMarks(QT_TRANSLATE_NOOP("Mirrix", "已反选"), mark); });
}

void BatchCommands::moveCheckedToBackup()
{
    perform([this] { backUpChecked(); });
}

void BatchCommands::removeChecked()
{
    perform([this] { removeByChoice(); });
}

void BatchCommands::restoreBackup()
{
    perform([this] { restoreByChoice(); });
}

void BatchCommands::perform(const std::function<void()> &command)
{
    if (m_isBusy)
        return;
    m_isBusy = true;
    command();
    m_isBusy = false; // before the signal: quitting waits for it and asks again
    emit finished();
    if (!m_runToShow.isEmpty())
        emit historyRequested(std::exchange(m_runToShow, {}));
}

bool BatchCommands::changeMarks(const char *status, const MarkChange &change)
{
    if (m_results.groups.isEmpty())
        return false;
    // Looking at the paths of a million files takes longer than a window may be blocked.
    SelectionMarks marks = m_results.marks;
    const QList<DuplicateGroup> groups = m_results.groups;
    FileProgressDialog dialog(Text::tr("正在更新勾选…"), m_window);
    runUnderProgress(dialog, [&](const BatchProgress &) { change(marks, groups); });
    if (dialog.isStopped())
        return false;
    std::swap(m_results.marks, marks);
    emit marksReplaced();
    emit statusText(QString::fromUtf8(status));
    return true;
}

BatchResult BatchCommands::run(const QString &label, const Batch &batch)
{
    BatchResult result;
    FileProgressDialog dialog(label, m_window);
    connect(this, &BatchCommands::stopRequested, &dialog, &FileProgressDialog::stop);
    runUnderProgress(dialog, [&](const BatchProgress &progress) { result = batch({progress, {}}); });
    if (result.isCancelled)
        emit statusText(QString::fromUtf8(QT_TRANSLATE_NOOP("Mirrix", "已停止，其余文件未处理")));
    return result;
}

CleaningPlan BatchCommands::planFor(CleaningMethod method) const
{
    CleaningPlan plan;
    plan.method = method;
    plan.backupFolder = backupFolderPath(m_backupFolder);
    plan.comparesWholeContents = m_settings.compareWholeContents;
    return plan;
}

CleaningResult BatchCommands::clean(const QString &label, CleaningPlan plan, const ItemMaker &makeItems)
{
    CleaningResult result;
    static_cast<void>(run(label, [&](const BatchControl &control) {
        QStringList refusals;
        plan.items = makeItems(refusals);
        result = runCleaning(plan, {m_log, m_settings.directory, QStringLiteral("window")}, control.progress);
        result.errors = refusals + result.errors;
        return static_cast<const BatchResult &>(result);
    }));
    return result;
}

void BatchCommands::showDone(const QString &text, const CleaningResult &result)
{
    const QString title = Text::tr("完成");
    const QString note = spaceNote(result.space);
    if (result.runId.isEmpty())
        m_prompts.inform(m_window, title, text, note);
    else if (m_prompts.informWithAction(m_window, title, text, note, Text::tr("在历史中显示")))
        m_runToShow = result.runId;
}

std::optional<CheckedFiles> BatchCommands::filesToClean(const QString &noneText)
{
    CheckedFiles files(m_results);
    const qsizetype emptied = files.groupsWithoutKept();
    if (emptied > 0) {
        enum : qsizetype
        {
            Untick,
            GoOn
        };
        const qsizetype answer =
            m_prompts.choose(m_window, {Text::tr("没有保留的副本"),
                                        Text::tr("有 %1 组将不会留下任何副本。").arg(emptied),
                                        {Text::tr("每组取消勾选一个"), Text::tr("全部处理"), Text::tr("取消")},
                                        Untick});
        if (answer != Untick && answer != GoOn)
            return {};
        if (answer == Untick) {
            untickOneInEach(m_results.marks, m_results.groups, static_cast<KeepRule>(m_settings.keepRule));
            emit marksReplaced();
            files = CheckedFiles(m_results);
        }
    }
    if (files.count() > 0)
        return files;
    m_prompts.inform(m_window, Text::tr("提示"), noneText);
    return {};
}

void BatchCommands::backUpChecked()
{
    const std::optional<CheckedFiles> files = filesToClean(Text::tr("请先勾选要处理的文件。"));
    if (!files)
        return;
    const QString question = Text::tr("将把 %1 个文件移动到备份目录：\n%2\n是否继续？")
                                 .arg(QString::number(files->count()), QDir::toNativeSeparators(m_backupFolder));
    if (!m_prompts.ask(m_window, Text::tr("确认备份移动"), question, comparisonNote(*files)))
        return;
    const CleaningResult result = clean(Text::tr("正在备份移动文件… (%1/%2)"), planFor(CleaningMethod::Backup),
                                        [&](QStringList &) { return files->items(); });
    showDone(Text::tr("已备份移动 %1 个文件。%2\n请重新扫描以刷新结果。")
                 .arg(QString::number(result.count), failureText(result)),
             result);
}

void BatchCommands::removeByChoice()
{
    const std::optional<CheckedFiles> files = filesToClean(Text::tr("请先勾选要删除的文件。"));
    if (!files)
        return;
    FileRemovalDialog dialog(files->count(), initialRemovalChoice(m_settings), m_prompts, m_window);
    dialog.setNote(comparisonNote(*files));
    dialog.setFiles(files->totalBytes(), files->areContentsEqual());
    if (!m_prompts.run(dialog))
        return;
    const RemovalChoice choice = dialog.choice();
    if (choice.backsUpFirst)
        backUpAndRemove(*files, choice);
    else
        removeDirectly(*files, choice);
}

void BatchCommands::backUpAndRemove(const CheckedFiles &files, const RemovalChoice &choice)
{
    CleaningPlan plan = planFor(cleaningMethod(choice));
    plan.isBackupBeforeRemoval = true;
    const CleaningResult result = clean(Text::tr("正在备份并移除文件… (%1/%2)"), plan, [&](QStringList &refusals) {
        return isLinking(plan.method) ? files.linkItems(choice.linkTarget, refusals) : files.items();
    });
    if (!result.errors.isEmpty())
        m_prompts.warn(m_window, Text::tr("备份警告"),
                       Text::tr("部分文件备份失败：\n%1").arg(result.errors.join(QLatin1Char('\n'))));
    showDone(Text::tr("已备份并移除 %1 个文件。请重新扫描以刷新结果。").arg(result.count), result);
}

void BatchCommands::removeDirectly(const CheckedFiles &files, const RemovalChoice &choice)
{
    if (choice.method == RemovalMethod::Delete &&
        !m_prompts.ask(m_window, Text::tr("永久删除确认"),
                       Text::tr("即将永久删除 %1 个文件，此操作不可撤销。是否继续？").arg(files.count()),
                       comparisonNote(files)))
        return;
    const QString label = Text::tr("正在移除文件… (%1/%2)");
    CleaningResult result;
    if (choice.method == RemovalMethod::SymbolicLink || choice.method == RemovalMethod::HardLink) {
        static_cast<BatchResult &>(result) = linkAtFreePaths(files, choice);
    } else {
        CleaningPlan plan = planFor(cleaningMethod(choice));
        plan.targetFolder = backupFolderPath(choice.targetFolder);
        result = clean(label, plan, [&](QStringList &) { return files.items(); });
    }
    QString rest = failureText(result);
    if (!rest.isEmpty())
        rest += QLatin1Char('\n');
    rest += Text::tr("请重新扫描以刷新结果。");
    showDone(Text::tr("已处理 %1 个文件。%2").arg(QString::number(result.count), rest), result);
}

BatchResult BatchCommands::linkAtFreePaths(const CheckedFiles &files, const RemovalChoice &choice)
{
    const BatchResult result = run(Text::tr("正在移除文件… (%1/%2)"), [&](const BatchControl &control) {
        return removeFiles(choice.method, files.paths(), choice.targetFolder, choice.linkTarget, control);
    });
    m_log.append({removalEvent(static_cast<int>(choice.method), result.count)});
    return result;
}

void BatchCommands::restoreByChoice()
{
    const QString folder = m_settings.backupRoot;
    RestoreList list;
    const BatchResult reading = run(Text::tr("正在读取备份索引…"), [&](const BatchControl &control) {
        list.entries = restorableEntries(folder);
        for (const BackupEntry &entry : std::as_const(list.entries))
            list.lines.append(backupLine(entry));
        return BatchResult{0, {}, !control.mayGoOn(0, 0)};
    });
    if (!reading.isCancelled && list.entries.isEmpty())
        m_prompts.inform(m_window, Text::tr("提示"), Text::tr("备份索引为空。"));
    else if (!reading.isCancelled && chooseBackups(list) &&
             m_prompts.ask(m_window, Text::tr("确认恢复"), list.question))
        restore(folder, list.chosen);
    discardInBackground(std::move(list));
}

bool BatchCommands::chooseBackups(RestoreList &list)
{
    QList<qsizetype> rows;
    {
        RestoreDialog dialog(list.lines, m_window);
        if (!m_prompts.run(dialog))
            return false;
        rows = dialog.chosen();
    }
    static_cast<void>(run(Text::tr("正在处理"), [&](const BatchControl &) {
        QStringList lines;
        for (const qsizetype row : std::as_const(rows)) {
            list.chosen.append(list.entries[row]);
            lines.append(list.lines[row]);
        }
        list.question = Text::tr("将恢复：\n%1").arg(lines.join(QLatin1Char('\n')));
        return BatchResult();
    }));
    return !list.chosen.isEmpty();
}

void BatchCommands::restore(const QString &folder, const QList<BackupEntry> &chosen)
{
    RestoreResult result;
    QString text;
    static_cast<void>(run(Text::tr("正在恢复文件… (%1/%2)"), [&](const BatchControl &control) {
        result = restoreBackups(folder, chosen, control);
        // Off the interface thread, too, since records for very many files take a second.
        QList<LogEntry> records;
        for (const BackupEntry &entry : std::as_const(result.restored))
            records.append(restoredEvent(entry));
        if (!records.isEmpty())
            m_log.append(records);
        text = Text::tr("已恢复 %1 个文件。").arg(result.count) + failureText(result);
        return static_cast<const BatchResult &>(result);
    }));
    if (chosen.size() == 1)
        text = result.errors.isEmpty() ? Text::tr("文件已恢复。") : result.errors.first();
    if (!result.notes.isEmpty() && (chosen.size() > 1 || result.errors.isEmpty()))
        text += QLatin1Char('\n') + result.notes.join(QLatin1Char('\n'));
    if (result.errors.isEmpty())
        m_prompts.inform(m_window, Text::tr("完成"), text);
    else
        m_prompts.warn(m_window, Text::tr("失败"), text);
    discardInBackground(std::move(result));
}

} // namespace Mirrix
