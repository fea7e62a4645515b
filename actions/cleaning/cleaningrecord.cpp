#include "actions/cleaning/cleaningrecord.h"

#include "actions/cleaning/backupstore.h"
#include "actions/cleaning/cleaningrun.h"
#include "actions/files/movefile.h"
#include "actions/records/logevents.h"
#include "actions/records/operationslog.h"

#include <QCoreApplication>
#include <QDateTime>

namespace Mirrix {

namespace {

QString unrecordedText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "无法写入操作记录，未处理任何文件: %1").arg(path);
}

} // namespace

CleaningRecord::CleaningRecord(const CleaningPlan &plan, const CleaningServices &services)
    : m_plan(plan)
    , m_services(services)
{}

QStringList CleaningRecord::begin()
{
    // Writing nothing proves that the log can be written, before any file is touched.
    if (!m_services.log.append(QList<LogEntry>()))
        return {unrecordedText(m_services.log.filePath())};
    QList<PathState> states;
    states.reserve(m_plan.items.size());
    for (const CleaningItem &item : m_plan.items)
        states.append(pathState(item.file.path));
    m_planned = plannedEntries(states);
    if (!m_plan.items.isEmpty() && !beginJournal(states))
        return {m_journal.errorText()};
    if (m_planned.isEmpty())
        return {};
    m_index.emplace(m_plan.backupFolder);
    if (m_index->announce(m_planned))
        return {};
    static_cast<void>(m_journal.finish());
    QStringList problems;
    for (const CleaningItem &item : m_plan.items) {
        if (isBackingUp(m_plan.method))
            problems.append(backupFailureText(item.file.path));
    }
    return problems.isEmpty() ? QStringList(unrecordedText(m_plan.backupFolder)) : problems;
}

bool CleaningRecord::beginJournal(const QList<PathState> &states)
{
    RunHeader header;
    header.startedMs = QDateTime::currentMSecsSinceEpoch();
    header.command = m_services.command;
    header.method = methodName(m_plan.method);
    header.target = takingFolder(m_plan);
    header.rule = m_plan.rule;
    header.undoOf = m_plan.undoOf;
    return m_journal.create(m_services.dataDirectory, header, plannedItems(states));
}

QList<RunItem> CleaningRecord::plannedItems(const QList<PathState> &states) const
{
    QList<RunItem> items;
    items.reserve(m_plan.items.size());
    for (qsizetype i = 0; i < m_plan.items.size(); ++i) {
        const CleaningItem &item = m_plan.items[i];
        RunItem planned;
        planned.original = item.file.path;
        planned.kept = item.kept.path;
        planned.sizeBytes = item.file.sizeBytes;
        planned.modifiedMs = item.file.modifiedMs;
        planned.modifiedExact = states[i].modifiedExact;
        planned.mode = states[i].mode;
        planned.digest = item.digest;
        planned.aside = placeOf(i);
        planned.linkTarget = item.linkTarget;
        items.append(planned);
    }
    return items;
}

QString CleaningRecord::placeOf(qsizetype item) const
{
    return m_planned.isEmpty() ? QString() : m_planned[item].backup;
}

bool CleaningRecord::note(qsizetype item, const CleaningOutcome &outcome, const Space &space)
{
    const bool isInPlannedPlace = !m_planned.isEmpty() && outcome.now == m_planned[item].backup;
    if (isInPlannedPlace)
        m_kept.append(storedEntry(m_planned[item]));
    ItemOutcome noted;
    noted.item = item;
    noted.state = outcome.problem.isEmpty() ? ItemState::Done : ItemState::Failed;
    noted.now = outcome.now;
    noted.message = outcome.problem;
    noted.digest = outcome.digest;
    noted.freedBytes = space.freedBytes;
    noted.heldBytes = space.heldInBackupBytes + space.heldInBinBytes;
    return m_journal.outcome(noted);
}

QStringList CleaningRecord::end(qsizetype doneCount)
{
    QStringList problems;
    if (!m_plan.items.isEmpty() && !m_journal.finish())
        problems.append(m_journal.errorText());
    if (m_index && !m_index->conclude(m_kept))
        problems.append(QCoreApplication::translate("Mirrix", "无法更新备份索引: %1").arg(m_plan.backupFolder));
    if (!m_services.log.append({cleaningEvent(m_plan.method, m_plan.isBackupBeforeRemoval, doneCount)}))
        problems.append(QCoreApplication::translate("Mirrix", "无法写入操作日志: %1").arg(m_services.log.filePath()));
    return problems;
}

QList<BackupEntry> CleaningRecord::plannedEntries(const QList<PathState> &states) const
{
    if (!isBackingUp(m_plan.method) && !isDestroying(m_plan.method))
        return {};
    const BackupPlaces places(m_plan.backupFolder);
    const auto entryFor = isDestroying(m_plan.method) ? &BackupPlaces::asideEntryFor : &BackupPlaces::entryFor;
    QList<BackupEntry> entries;
    entries.reserve(states.size());
    for (qsizetype i = 0; i < states.size(); ++i) {
        const CleaningItem &item = m_plan.items[i];
        entries.append((places.*entryFor)(item.file.path, states[i].sizeBytes, item.digest));
    }
    return entries;
}

} // namespace Mirrix
