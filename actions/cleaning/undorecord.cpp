#include "actions/cleaning/undorecord.h"

#include "actions/files/movefile.h"
#include "actions/records/logevents.h"

#include <QCoreApplication>
#include <QDateTime>

namespace Mirrix {

namespace {

const QString undoPrefix = QStringLiteral("undo ");

QString text(const char *source, const QString &path)
{
    return QCoreApplication::translate("Mirrix", source).arg(path);
}

QString unwrittenText(const QString &path)
{
    return text(QT_TRANSLATE_NOOP("Mirrix", "无法写入操作日志: %1"), path);
}

} // namespace

UndoRecord::UndoRecord(const UndoPlan &plan, const CleaningServices &services)
    : m_plan(plan)
    , m_services(services)
{}

QStringList UndoRecord::begin(const QList<qsizetype> &items)
{
    const QString &log = m_services.log.filePath();
    // Writing nothing proves that the log can be written, before any file is touched.
    if (!m_services.log.append(QList<LogEntry>()))
        return {text(QT_TRANSLATE_NOOP("Mirrix", "无法写入操作记录，未处理任何文件: %1"), log)};
    const RunHeader &undone = m_plan.run.summary.header;
    if (!m_undone.resume(m_services.dataDirectory, undone.id))
        return {m_undone.errorText()};
    m_items = items;
    m_sinceWritten.start();
    if (items.isEmpty())
        return {};
    RunHeader header;
    header.startedMs = QDateTime::currentMSecsSinceEpoch();
    header.command = m_services.command;
    header.method = undoMethodName(undone.method);
    header.target = undone.target;
    header.undoOf = undone.id;
    QList<RunItem> planned;
    planned.reserve(items.size());
    for (const qsizetype item : items) {
        const ItemOutcome &outcome = m_plan.run.outcomes[item];
        planned.append(m_plan.run.items[item]);
        if (!outcome.digest.isEmpty())
            planned.last().digest = outcome.digest;
        if (!outcome.now.isEmpty())
            planned.last().aside = outcome.now;
    }
    return m_own.create(m_services.dataDirectory, header, planned) ? QStringList() : QStringList(m_own.errorText());
}

void UndoRecord::reserve(const UndoSource &source)
{
    if (source.way != UndoSource::Way::Backup)
        return;
    std::unique_ptr<BackupFolder> &store = m_stores[folderOf(source.from)];
    if (!store)
        store = std::make_unique<BackupFolder>(folderOf(source.from));
}

bool UndoRecord::note(qsizetype position, const UndoSource &source, const UndoneItem &result)
{
    const QString &original = m_plan.run.items[m_items[position]].original;
    const bool isBack = result.problem.isEmpty();
    m_pending.append({position, isBack ? ItemState::Done : ItemState::Failed, {}, result.problem, {}, 0, 0});
    if (isBack) {
        const BackupEntry entry{original, source.from};
        m_folders.insert(folderOf(original));
        m_events.append(restoredEvent(entry));
        if (source.way == UndoSource::Way::Backup && !result.isLeft)
            m_stores[folderOf(source.from)]->gone.append(entry);
    }
    constexpr qint64 longestMs = 400; // of outcomes that a kill may leave unrecorded
    return m_sinceWritten.elapsed() < longestMs || writePending();
}

bool UndoRecord::noteHome(qsizetype item)
{
    return m_undone.outcome({item, ItemState::Undone, {}, {}, {}, 0, 0});
}

QStringList UndoRecord::end()
{
    QStringList problems;
    if (!writePending())
        problems.append(unwrittenText(m_services.dataDirectory));
    if (!m_items.isEmpty() && !m_own.finish())
        problems.append(m_own.errorText());
    if (!m_undone.finish())
        problems.append(m_undone.errorText());
    for (const auto &[folder, store] : m_stores) {
        if (!store->gone.isEmpty() && !store->session.remove(store->gone))
            problems.append(text(QT_TRANSLATE_NOOP("Mirrix", "备份索引无法写入: %1"), folder));
    }
    if (!m_events.isEmpty() && !m_services.log.append(m_events))
        problems.append(unwrittenText(m_services.log.filePath()));
    return problems;
}

/// Folders are flushed once for many files; the file's content is on the disk before it gets its name.
bool UndoRecord::writePending()
{
    bool isWritten = true;
    for (const QString &folder : std::as_const(m_folders))
        isWritten = flushFolder(folder) && isWritten;
    for (qsizetype i = 0; isWritten && i < m_pending.size(); ++i) {
        const ItemOutcome &outcome = m_pending[i];
        isWritten = m_own.outcome(outcome);
        if (isWritten && outcome.state == ItemState::Done)
            isWritten = noteHome(m_items[outcome.item]);
    }
    m_pending.clear();
    m_folders.clear();
    m_sinceWritten.start();
    return isWritten;
}

QString undoMethodName(const QString &method)
{
    return undoPrefix + method;
}

QString undoneMethodName(const QString &method)
{
    return method.startsWith(undoPrefix) ? method.mid(undoPrefix.size()) : QString();
}

} // namespace Mirrix
