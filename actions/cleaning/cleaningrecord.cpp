#include "actions/cleaning/cleaningrecord.h"

#include "actions/backupstore.h"
#include "actions/movefile.h"
#include "actions/operationslog.h"
#include "actions/records/logevents.h"

#include <QCoreApplication>

namespace Mirrix {

namespace {

QString unrecordedText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "无法写入操作记录，未处理任何文件: %1").arg(path);
}

} // namespace

CleaningRecord::CleaningRecord(const CleaningPlan &plan, OperationsLog &log)
    : m_plan(plan)
    , m_log(log)
{}

QStringList CleaningRecord::begin()
{
    if (!m_log.append(QList<LogEntry>()))
        return {unrecordedText(m_log.filePath())};
    m_planned = plannedEntries();
    if (m_planned.isEmpty())
        return {};
    m_index.emplace(m_plan.backupFolder);
    if (m_index->announce(m_planned))
        return {};
    QStringList problems;
    for (const CleaningItem &item : m_plan.items) {
        if (isBackingUp(m_plan.method))
            problems.append(backupFailureText(item.file.path));
    }
    return problems.isEmpty() ? QStringList(unrecordedText(m_plan.backupFolder)) : problems;
}

QString CleaningRecord::placeOf(qsizetype item) const
{
    return m_planned.isEmpty() ? QString() : m_planned[item].backup;
}

void CleaningRecord::note(qsizetype item, const CleaningOutcome &outcome)
{
    if (!m_planned.isEmpty() && outcome.now == m_planned[item].backup)
        m_kept.append(storedEntry(m_planned[item]));
}

QStringList CleaningRecord::end(qsizetype doneCount)
{
    QStringList problems;
    if (m_index && !m_index->conclude(m_kept))
        problems.append(QCoreApplication::translate("Mirrix", "无法更新备份索引: %1").arg(m_plan.backupFolder));
    if (!m_log.append({cleaningEvent(m_plan, doneCount)}))
        problems.append(QCoreApplication::translate("Mirrix", "无法写入操作日志: %1").arg(m_log.filePath()));
    return problems;
}

QList<BackupEntry> CleaningRecord::plannedEntries() const
{
    if (!isBackingUp(m_plan.method) && !isDestroying(m_plan.method))
        return {};
    QStringList paths;
    QStringList digests;
    for (const CleaningItem &item : m_plan.items) {
        paths.append(item.file.path);
        digests.append(item.digest);
    }
    QList<BackupEntry> entries = plannedBackups(m_plan.backupFolder, paths, digests);
    if (isDestroying(m_plan.method)) {
        for (BackupEntry &entry : entries)
            entry.backup = passingName(entry.original, QStringLiteral(".aside"));
    }
    return entries;
}

} // namespace Mirrix
