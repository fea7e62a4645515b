#include "ui/batchcommands.h"

#include "actions/backupstore.h"
#include "actions/fileoperations.h"
#include "actions/linkreplacement.h"
#include "actions/operationslog.h"
#include "app/settings.h"
#include "app/text.h"
#include "ui/dialogs/fileprogressdialog.h"
#include "ui/dialogs/fileremovaldialog.h"
#include "ui/dialogs/restoredialog.h"
#include "ui/logic/checkedfiles.h"
#include "ui/prompts.h"

#include <QDir>

#include <utility>

namespace Mirrix {

namespace {

using MirrixCore::DuplicateGroup;

/// The failures of a batch as the closing boxes list them; empty when there are none.
QString failureText(const BatchResult &result)
{
    return result.errors.isEmpty() ? QString() : Text::tr("\n部分失败：\n") + result.errors.join(QLatin1Char('\n'));
}

BatchResult backUpOrLink(const CheckedFiles &files, const QString &folder, const RemovalChoice &choice,
                         const BatchControl &control)
{
    if (choice.method != RemovalMethod::SymbolicLink && choice.method != RemovalMethod::HardLink)
        return backupFiles(folder, files.paths(), control);
    QStringList refusals;
    const QList<LinkReplacement> links = files.links(choice.linkTarget, refusals);
    const LinkKind kind = choice.method == RemovalMethod::HardLink ? LinkKind::Hard : LinkKind::Symbolic;
    BatchResult result = replaceByLinks(folder, links, kind, Originals::KeepInBackup, control);
    result.errors = refusals + result.errors;
    return result;
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
            marks.markAllBut(group, chooseKeeper(groups[group].files, rule));
    };
    perform([&] {
        if (!changeMarks(QT_TRANSLATE_NOOP("Mirrix", "已按规则自动勾选待处理文件"), mark))
            return;
        const qsizetype count = m_results.marks.markedInAll();
        m_log.append(QStringLiteral("auto_keep"),
                     QStringLiteral("rule=%1 count=%2").arg(static_cast<int>(rule)).arg(count));
    });
}

void BatchCommands::selectAllDuplicates()
{
    const auto mark = [](SelectionMarks &marks, const QList<DuplicateGroup> &groups) {
        for (qsizetype group = 0; group < groups.size(); ++group)
            marks.markAllBut(group, 0);
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
    m_isBusy = false;
    emit finished();
}

bool BatchCommands::changeMarks(const char *status, const MarkChange &change)
{
    if (m_results.groups.isEmpty())
        return false;
    // Looking at the paths of a million files takes longer than a window may stand still.
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

BatchResult BatchCommands::runOn(const CheckedFiles &files, const QString &label, const Batch &batch, bool isFinal)
{
    return run(label, [&](const BatchControl &control) { return batch({control.progress, files.guard(isFinal)}); });
}

void BatchCommands::backUpChecked()
{
    const CheckedFiles files(m_results);
    const QString folder = m_backupFolder;
    if (files.count() == 0) {
        m_prompts.inform(m_window, Text::tr("提示"), Text::tr("请先勾选要处理的文件。"));
        return;
    }
    const QString question = Text::tr("将把 %1 个文件移动到备份目录：\n%2\n是否继续？")
                                 .arg(QString::number(files.count()), QDir::toNativeSeparators(folder));
    if (!m_prompts.ask(m_window, Text::tr("确认备份移动"), question))
        return;
    const BatchResult result = runOn(files, Text::tr("正在备份移动文件… (%1/%2)"), [&](const BatchControl &control) {
        return backupFiles(folder, files.paths(), control);
    });
    m_log.append(QStringLiteral("backup_batch"), QStringLiteral("count=%1").arg(result.count));
    m_prompts.inform(m_window, Text::tr("完成"),
                     Text::tr("已备份移动 %1 个文件。%2\n请重新扫描以刷新结果。")
                         .arg(QString::number(result.count), failureText(result)));
}

void BatchCommands::removeByChoice()
{
    const CheckedFiles files(m_results);
    if (files.count() == 0) {
        m_prompts.inform(m_window, Text::tr("提示"), Text::tr("请先勾选要删除的文件。"));
        return;
    }
    FileRemovalDialog dialog(files.count(), initialRemovalChoice(m_settings), m_prompts, m_window);
    if (!m_prompts.run(dialog))
        return;
    const RemovalChoice choice = dialog.choice();
    if (choice.backsUpFirst)
        backUpAndRemove(files, choice);
    else
        removeDirectly(files, choice);
}

void BatchCommands::backUpAndRemove(const CheckedFiles &files, const RemovalChoice &choice)
{
    const QString folder = m_backupFolder;
    const BatchResult result = runOn(files, Text::tr("正在备份并移除文件… (%1/%2)"), [&](const BatchControl &control) {
        return backUpOrLink(files, folder, choice, control);
    });
    m_log.append(QStringLiteral("auto_backup_delete_batch"), QStringLiteral("count=%1").arg(result.count));
    if (!result.errors.isEmpty())
        m_prompts.warn(m_window, Text::tr("备份警告"),
                       Text::tr("部分文件备份失败：\n%1").arg(result.errors.join(QLatin1Char('\n'))));
    m_prompts.inform(m_window, Text::tr("完成"),
                     Text::tr("已备份并移除 %1 个文件。请重新扫描以刷新结果。").arg(result.count));
}

void BatchCommands::removeDirectly(const CheckedFiles &files, const RemovalChoice &choice)
{
    if (choice.method == RemovalMethod::Delete &&
        !m_prompts.ask(m_window, Text::tr("永久删除确认"),
                       Text::tr("即将永久删除 %1 个文件，此操作不可撤销。是否继续？").arg(files.count())))
        return;
    const auto remove = [&](const BatchControl &control) {
        return removeFiles(choice.method, files.paths(), choice.targetFolder, choice.linkTarget, control);
    };
    const BatchResult result =
        runOn(files, Text::tr("正在移除文件… (%1/%2)"), remove, choice.method == RemovalMethod::Delete);
    m_log.append(QStringLiteral("remove_batch"),
                 QStringLiteral("method=%1 count=%2").arg(static_cast<int>(choice.method)).arg(result.count));
    QString rest = failureText(result);
    if (!rest.isEmpty())
        rest += QLatin1Char('\n');
    rest += Text::tr("请重新扫描以刷新结果。");
    m_prompts.inform(m_window, Text::tr("完成"),
                     Text::tr("已处理 %1 个文件。%2").arg(QString::number(result.count), rest));
}

void BatchCommands::restoreByChoice()
{
    const QString folder = m_settings.backupRoot;
    QList<BackupEntry> entries;
    QStringList lines;
    const BatchResult reading = run(Text::tr("正在读取备份索引…"), [&](const BatchControl &control) {
        entries = restorableEntries(folder);
        for (const BackupEntry &entry : std::as_const(entries))
            lines.append(backupLine(entry));
        return BatchResult{0, {}, !control.mayGoOn(0, 0)};
    });
    if (reading.isCancelled)
        return;
    if (entries.isEmpty()) {
        m_prompts.inform(m_window, Text::tr("提示"), Text::tr("备份索引为空。"));
        return;
    }
    RestoreDialog dialog(lines, m_window);
    if (!m_prompts.run(dialog))
        return;
    QList<BackupEntry> chosen;
    QStringList chosenLines;
    for (const qsizetype row : dialog.chosen()) {
        chosen.append(entries[row]);
        chosenLines.append(lines[row]);
    }
    if (!chosen.isEmpty() && m_prompts.ask(m_window, Text::tr("确认恢复"),
                                           Text::tr("将恢复：\n%1").arg(chosenLines.join(QLatin1Char('\n')))))
        restore(folder, chosen);
}

void BatchCommands::restore(const QString &folder, const QList<BackupEntry> &chosen)
{
    RestoreResult result;
    static_cast<void>(run(Text::tr("正在恢复文件… (%1/%2)"), [&](const BatchControl &control) {
        result = restoreBackups(folder, chosen, control);
        // Here, too, since a record for each of very many files takes a second.
        QList<LogEntry> records;
        for (const BackupEntry &entry : std::as_const(result.restored))
            records.append(logEntryNow(QStringLiteral("restore"), backupLine(entry)));
        if (!records.isEmpty())
            m_log.append(records);
        return static_cast<const BatchResult &>(result);
    }));
    const QString count = Text::tr("已恢复 %1 个文件。").arg(result.count);
    const QString notes = result.notes.isEmpty() ? QString() : QLatin1Char('\n') + result.notes.join(QLatin1Char('\n'));
    if (!result.errors.isEmpty())
        m_prompts.warn(m_window, Text::tr("失败"),
                       chosen.size() == 1 ? result.errors.first() : count + failureText(result) + notes);
    else
        m_prompts.inform(m_window, Text::tr("完成"), (chosen.size() == 1 ? Text::tr("文件已恢复。") : count) + notes);
}

} // namespace Mirrix
