#include "ui/dialogs/historycommands.h"

#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/undo.h"
#include "actions/records/runjournal.h"
#include "app/settings.h"
#include "app/text.h"
#include "ui/dialogs/fileprogressdialog.h"
#include "ui/state/backgroundthreads.h"
#include "ui/texts/batchtexts.h"
#include "ui/texts/bytetext.h"
#include "ui/texts/historytexts.h"
#include "ui/window/prompts.h"

#include <QSet>

namespace Mirrix {

namespace {

/// A plan, and the part of it the user chose, as the question before shows it.
struct ChosenUndo
{
    UndoPlan plan;
    QList<UndoStep> possible;
    QStringList problems;
};

ChosenUndo chosenUndo(UndoPlan plan, const QList<qsizetype> &items)
{
    ChosenUndo result;
    const QSet<qsizetype> chosen(items.begin(), items.end());
    for (const UndoStep &step : std::as_const(plan.steps)) {
        if (!chosen.isEmpty() && !chosen.contains(step.item))
            continue;
        if (step.problem.isEmpty())
            result.possible.append(step);
        else
            result.problems.append(step.problem);
    }
    result.plan = std::move(plan);
    return result;
}

/// What the boxes say: files are put back, or after an undo removed again.
struct UndoTexts
{
    explicit UndoTexts(const RunHeader &run)
        : isRedo(isUndoing(run))
        , method(undoneMethodText(run))
    {}

    [[nodiscard]] QString title() const { return isRedo ? Text::tr("重新清理") : Text::tr("撤销清理"); }

    [[nodiscard]] QString question(qsizetype count) const
    {
        return isRedo ? Text::tr("将再次移除 %1 个文件（%2）。是否继续？").arg(QString::number(count), method)
                      : Text::tr("将把 %1 个文件放回原处。是否继续？").arg(count);
    }

    [[nodiscard]] QString nothing() const
    {
        return isRedo ? Text::tr("没有可以再次移除的文件。") : Text::tr("没有可以放回的文件。");
    }

    [[nodiscard]] QString working() const
    {
        return isRedo ? Text::tr("正在移除文件… (%1/%2)") : Text::tr("正在恢复文件… (%1/%2)");
    }

    [[nodiscard]] QString problems(const QStringList &problems) const
    {
        if (problems.isEmpty())
            return {};
        const QString heading =
            isRedo ? Text::tr("\n无法再次移除的文件（%1 个）：\n") : Text::tr("\n无法放回的文件（%1 个）：\n");
        return heading.arg(problems.size()) + problems.join(QLatin1Char('\n'));
    }

    [[nodiscard]] QString outcome(const UndoResult &result) const
    {
        QString text =
            (isRedo ? Text::tr("已再次移除 %1 个文件。") : Text::tr("已恢复 %1 个文件。")).arg(result.count) +
            failureText(result);
        if (!result.notes.isEmpty())
            text += QLatin1Char('\n') + result.notes.join(QLatin1Char('\n'));
        return text;
    }

    bool isRedo;
    QString method;
};

} // namespace

HistoryCommands::HistoryCommands(const Settings &settings, Prompts &prompts, OperationsLog &log, QWidget *window)
    : m_settings(settings)
    , m_prompts(prompts)
    , m_log(log)
    , m_window(window)
{}

CleaningServices HistoryCommands::services() const
{
    return {m_log, m_settings.directory, QStringLiteral("window")};
}

bool HistoryCommands::undo(const RunHeader &run, const QList<qsizetype> &items)
{
    const UndoTexts texts(run);
    const QString runId = run.id; // the list of runs may be read again before the end
    ChosenUndo chosen;
    QString problems;
    FileProgressDialog planning(Text::tr("正在检查文件… (%1/%2)"), m_window);
    runUnderProgress(planning, [&](const BatchProgress &progress) {
        const QString backups = backupFolderPath(m_settings.backupRoot);
        chosen = chosenUndo(planUndo(m_settings.directory, runId, progress, backups), items);
        problems = texts.problems(chosen.problems);
    });
    UndoResult result;
    QString outcome;
    const bool goesOn = !planning.isStopped() && !chosen.possible.isEmpty() &&
                        m_prompts.ask(m_window, texts.title(), texts.question(chosen.possible.size()) + problems);
    if (!planning.isStopped() && chosen.possible.isEmpty()) {
        m_prompts.inform(m_window, texts.title(), texts.nothing() + problems);
    } else if (goesOn) {
        FileProgressDialog working(texts.working(), m_window);
        runUnderProgress(working, [&](const BatchProgress &progress) {
            result = undoRun(chosen.plan, chosen.possible, services(), progress);
            outcome = texts.outcome(result);
        });
        m_prompts.inform(m_window, Text::tr("完成"), outcome);
    }
    discardInBackground(std::move(chosen));
    discardInBackground(std::move(result));
    return goesOn;
}

bool HistoryCommands::freeBackups(const RunSummary &run)
{
    const QString question = Text::tr("将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？");
    if (!m_prompts.ask(m_window, Text::tr("释放备份"), question.arg(formatSize(heldInBackup(run)))))
        return false;
    BatchResult result;
    FileProgressDialog working(Text::tr("正在删除备份… (%1/%2)"), m_window);
    runUnderProgress(working, [&](const BatchProgress &progress) {
        const StoredRun stored = readRun(runJournalPath(m_settings.directory, run.header.id));
        result = Mirrix::freeBackups(stored, services(), progress);
    });
    m_prompts.inform(m_window, Text::tr("完成"),
                     Text::tr("已删除 %1 个备份文件。").arg(result.count) + failureText(result));
    return true;
}

bool HistoryCommands::removeRecords(const QStringList &runIds)
{
    const QString title = Text::tr("删除记录");
    if (runIds.isEmpty()) {
        m_prompts.inform(m_window, title, Text::tr("没有更早的记录。"));
        return false;
    }
    const QString question = Text::tr("将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？");
    if (!m_prompts.ask(m_window, title, question.arg(runIds.size())))
        return false;
    qsizetype left = runIds.size();
    FileProgressDialog working(Text::tr("正在处理"), m_window);
    runUnderProgress(working, [&](const BatchProgress &progress) {
        for (qsizetype i = 0; i < runIds.size() && progress(i, runIds.size()); ++i)
            left -= removeRun(m_settings.directory, runIds[i]) ? 1 : 0;
    });
    if (left > 0 && !working.isStopped())
        m_prompts.warn(m_window, title, Text::tr("有 %1 条记录无法删除。").arg(left));
    return true;
}

} // namespace Mirrix
