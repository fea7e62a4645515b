#include "actions/cleaning/undo.h"

#include "actions/cleaning/createdlink.h"
#include "actions/cleaning/redo.h"
#include "actions/cleaning/undoitem.h"
#include "actions/cleaning/undorecord.h"
#include "actions/cleaning/undosource.h"
#include "actions/cleaning/undotexts.h"
#include "actions/files/nativefile.h"
#include "actions/records/runjournal.h"

#include <algorithm>
#include <utility>

namespace Mirrix {

namespace {

/// An undo in progress.
class Undo
{
public:
    Undo(const UndoPlan &plan, const CleaningServices &services, const BatchProgress &progress)
        : m_plan(plan)
        , m_progress(progress)
        , m_method(cleaningMethod(plan.run.summary.header))
        , m_sources(plan.run, plan.backupFolder)
        , m_record(plan, services)
    {}

    [[nodiscard]] UndoResult run(const QList<qsizetype> &items)
    {
        m_result.errors = m_record.begin(items);
        if (!m_result.errors.isEmpty())
            return m_result;
        m_result.runId = m_record.runId();
        bool isNoted = noteHomes();
        for (qsizetype i = 0; isNoted && i < items.size(); ++i) {
            m_result.isCancelled = m_progress && !m_progress(i, items.size());
            if (m_result.isCancelled)
                break;
            isNoted = bringBack(i, items); // what cannot be recorded is not done; the end of the record says why
        }
        markFolders();
        m_result.errors += m_record.end();
        return m_result;
    }

private:
    [[nodiscard]] bool bringBack(qsizetype position, const QList<qsizetype> &items)
    {
        const RunItem &item = m_plan.run.items[items[position]];
        const UndoSource source = m_sources.of(items[position]);
        UndoneItem back{source.problem};
        if (source.problem.isEmpty() && source.way != UndoSource::Way::None && source.way != UndoSource::Way::Home) {
            m_record.reserve(source);
            const qsizetype total = items.size();
            back = undoItem(item, m_method, source, [&] { return m_progress && !m_progress(position, total); });
        }
        if (!back.problem.isEmpty())
            m_result.errors.append(back.problem);
        else
            ++m_result.count;
        if (back.problem.isEmpty() && m_plan.run.summary.header.method == emptyFoldersMethod)
            m_folders.append(item);
        if (!back.note.isEmpty())
            m_result.notes.append(back.note);
        return m_record.note(position, source, back);
    }

    /// Not before all of them are there: a folder made in another changes its time, and may not be made where the old
    /// permissions forbid it.
    void markFolders()
    {
        std::sort(m_folders.begin(), m_folders.end(),
                  [](const RunItem &a, const RunItem &b) { return a.original.size() > b.original.size(); });
        for (const RunItem &folder : std::as_const(m_folders)) {
            if (!setFileMarks(folder.original, {folder.modifiedExact, folder.mode}))
                m_result.notes.append(unmarkedText(folder.original));
        }
    }

    /// Files that an undo brought back before it was killed.
    [[nodiscard]] bool noteHomes()
    {
        bool isNoted = true;
        for (qsizetype i = 0; isNoted && i < m_plan.home.size(); ++i) {
            CreatedLink(m_plan.run.items[m_plan.home[i]], m_method).removeAside();
            isNoted = m_record.noteHome(m_plan.home[i]);
        }
        return isNoted;
    }

    const UndoPlan &m_plan;
    const BatchProgress &m_progress;
    CleaningMethod m_method;
    UndoSources m_sources;
    UndoRecord m_record;
    QList<RunItem> m_folders; ///< that are back
    UndoResult m_result;
};

} // namespace

bool isUndoing(const RunHeader &run)
{
    return !undoneMethodName(run.method).isEmpty();
}

CleaningMethod cleaningMethod(const RunHeader &run)
{
    return methodNamed(isUndoing(run) ? undoneMethodName(run.method) : run.method).value_or(CleaningMethod::Backup);
}

UndoPlan planUndo(const QString &dataDirectory, const QString &runId, const BatchProgress &progress,
                  const QString &backupFolder)
{
    UndoPlan plan{readRun(runJournalPath(dataDirectory, runId)), {}, {}, backupFolder};
    if (isUndoing(plan.run.summary.header)) {
        plan.steps = redoSteps(plan.run, progress);
        return plan;
    }
    UndoSources sources(plan.run, backupFolder);
    const qsizetype total = plan.run.items.size();
    for (qsizetype i = 0; i < total && (!progress || progress(i, total)); ++i) {
        const UndoSource source = sources.of(i);
        if (source.way == UndoSource::Way::Home)
            plan.home.append(i);
        else if (source.way != UndoSource::Way::None)
            plan.steps.append({i, source.problem, source.from});
    }
    return plan;
}

UndoResult undoRun(const UndoPlan &plan, const QList<UndoStep> &steps, const CleaningServices &services,
                   const BatchProgress &progress)
{
    QList<qsizetype> items;
    QStringList problems;
    for (const UndoStep &step : steps) {
        if (step.problem.isEmpty())
            items.append(step.item);
        else
            problems.append(step.problem);
    }
    UndoResult result;
    if (!items.isEmpty() && isUndoing(plan.run.summary.header))
        result = redo(plan, items, services, progress);
    else if (!items.isEmpty() || !plan.home.isEmpty())
        result = Undo(plan, services, progress).run(items);
    result.errors = problems + result.errors;
    return result;
}

} // namespace Mirrix
