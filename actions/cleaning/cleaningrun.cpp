#include "actions/cleaning/cleaningrun.h"

#include "actions/cleaning/cleaningrecord.h"
#include "actions/cleaning/folderaliases.h"
#include "actions/cleaning/itemchecks.h"
#include "actions/cleaning/recycling.h"
#include "actions/cleaning/targetfolder.h"
#include "actions/cleaning/transfer.h"
#include "actions/files/movefile.h"
#include "actions/files/nativefile.h"

#include <QCoreApplication>

namespace Mirrix {

namespace {

/// A run in progress.
class Run
{
public:
    Run(const CleaningPlan &plan, const CleaningServices &services, const BatchProgress &progress)
        : m_plan(plan)
        , m_services(services)
        , m_progress(progress)
        , m_record(plan, services)
        , m_target(takingFolder(plan))
        , m_account(plan.method, takingFolder(plan))
    {}

    CleaningResult run()
    {
        m_result.errors = m_record.begin();
        if (!m_result.errors.isEmpty())
            return m_result;
        const qsizetype step = m_plan.method == CleaningMethod::Recycle ? m_services.bin.batchSize : 1;
        m_result.runId = m_record.runId();
        for (qsizetype i = 0; i < m_plan.items.size(); i += step) {
            m_result.isCancelled = !mayGoOn(i);
            if (m_result.isCancelled || !handle(i, m_plan.items.mid(i, step)))
                break; // what cannot be recorded is not done; the end of the record says why
        }
        m_result.space = m_account.total();
        m_result.errors += m_record.end(m_result.count);
        return m_result;
    }

private:
    static constexpr qsizetype flushedAhead = 256; ///< items whose kept files are flushed together

    [[nodiscard]] bool mayGoOn(qsizetype done) const { return !m_progress || m_progress(done, m_plan.items.size()); }

    /// False when what was done could not be written down.
    [[nodiscard]] bool handle(qsizetype first, const QList<CleaningItem> &items)
    {
        const StopQuery isStopped = [this, first] { return !mayGoOn(first); };
        const QList<CleaningOutcome> outcomes = m_plan.method == CleaningMethod::Recycle
                                                    ? recycleBatch(items, isStopped)
                                                    : QList{clean(items.constFirst(), first, isStopped)};
        bool isNoted = true;
        for (qsizetype i = 0; i < items.size(); ++i)
            isNoted = note(first + i, outcomes[i]) && isNoted; // all of them, even after one failed
        return isNoted;
    }

    [[nodiscard]] QList<CleaningOutcome> recycleBatch(const QList<CleaningItem> &items, const StopQuery &isStopped)
    {
        const auto isAlias = [this](const CleaningItem &item) { return m_aliases.isSameFile(item); };
        return recycle(m_services.bin, items, {m_plan.comparesWholeContents, m_volumes, isStopped, isAlias},
                       m_result.errors);
    }

    /// A folder from which copies go changes with each; flushing it for each would wait for the disk as often.
    void flushAhead(qsizetype first, const StopQuery &isStopped)
    {
        QStringList kept;
        for (const CleaningItem &item : m_plan.items.mid(first, flushedAhead)) {
            if (item.hasKept())
                kept.append(item.kept.path);
        }
        m_durable.prepare(kept, isStopped);
    }

    [[nodiscard]] CleaningOutcome clean(const CleaningItem &item, qsizetype index, const StopQuery &isStopped)
    {
        if (m_target.holds(item.file.path))
            return {QCoreApplication::translate("Mirrix", "目标文件夹包含该文件，未处理: %1").arg(item.file.path), {}};
        if (isDestroying(m_plan.method)) {
            if (index % flushedAhead == 0)
                flushAhead(index, isStopped);
            return discard(item, m_plan.method, m_record.placeOf(index), m_durable, m_volumes, isStopped);
        }
        if (m_aliases.isSameFile(item))
            return {sameFileText(item.file.path), {}};
        if (m_plan.method != CleaningMethod::Move)
            return transfer(item, m_plan.method, m_record.placeOf(index), m_plan.comparesWholeContents, m_volumes,
                            isStopped);
        if (!makeFolders(m_plan.targetFolder))
            return {QCoreApplication::translate("Mirrix", "无法创建目标目录: %1").arg(m_plan.targetFolder), {}};
        return transfer(item, m_plan.method, joinedPath(m_plan.targetFolder, fileNameOf(item.file.path)),
                        m_plan.comparesWholeContents, m_volumes, isStopped);
    }

    [[nodiscard]] bool note(qsizetype index, const CleaningOutcome &outcome)
    {
        const Space earlier = m_account.total();
        if (outcome.problem.isEmpty()) {
            ++m_result.count;
            m_account.add(outcome.before.sizeBytes, outcome.before.allocatedBytes, outcome.before.identity);
        } else {
            m_result.errors.append(outcome.problem);
        }
        return m_record.note(index, outcome, m_account.total() - earlier);
    }

    const CleaningPlan &m_plan;
    const CleaningServices &m_services;
    const BatchProgress &m_progress;
    CleaningRecord m_record;
    TargetFolder m_target;
    FolderAliases m_aliases;
    VolumeTraits m_volumes;
    SpaceAccount m_account;
    DurableFiles m_durable;
    CleaningResult m_result;
};

} // namespace

CleaningResult runCleaning(const CleaningPlan &plan, const CleaningServices &services, const BatchProgress &progress)
{
    return Run(plan, services, progress).run();
}

} // namespace Mirrix
