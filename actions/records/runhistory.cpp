#include "actions/records/runhistory.h"

#include "actions/files/exclusivelock.h"
#include "actions/records/runjournal.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <tuple>
#include <utility>

namespace Mirrix {

namespace {

/// Takes the records of one journal in their order, the files only where they are asked for.
class JournalReplay
{
public:
    explicit JournalReplay(bool areItemsWanted)
        : m_areItemsWanted(areItemsWanted)
    {}

    [[nodiscard]] StoredRun run(const QString &path)
    {
        RunSummary &summary = m_run.summary;
        RecordReader reader(runJournalKey());
        QByteArray text;
        RecordReader::Outcome read = reader.open(path) ? reader.next(text) : RecordReader::Outcome::Failed;
        if (read == RecordReader::Outcome::Record)
            summary.isReadable = readHeader(QJsonDocument::fromJson(text).object(), summary.header);
        else // a run that was interrupted before it began
            summary.isReadable = read == RecordReader::Outcome::End || read == RecordReader::Outcome::Cut;
        nameAfter(path);
        // No more files can be recorded than have room; the number itself proves nothing.
        constexpr qint64 leastBytesOfItem = 16;
        m_tally = RunTally(std::min(summary.header.planned, reader.fileBytes() / leastBytesOfItem));
        while (summary.isReadable && (read = reader.next(text)) == RecordReader::Outcome::Record)
            take(text);
        summary.totals = m_tally.totals();
        summary.isDamaged = read != RecordReader::Outcome::End;
        if (!summary.isReadable)
            summary.message = unreadableRunText(path);
        else if (summary.isDamaged)
            summary.message = QCoreApplication::translate("Mirrix", "清理记录已损坏，只读到完好部分: %1").arg(path);
        return std::move(m_run);
    }

private:
    /// A copied or renamed journal is known by its file's name, by which it will be opened.
    void nameAfter(const QString &path)
    {
        RunHeader &header = m_run.summary.header;
        const QString name = QFileInfo(path).completeBaseName();
        if (!isRunId(name))
            return;
        header.id = name;
        if (header.startedMs == 0)
            header.startedMs =
                QDateTime::fromString(name.left(15), QStringLiteral("yyyyMMdd-HHmmss")).toMSecsSinceEpoch();
    }

    void take(const QByteArray &text)
    {
        const bool isPlan = text.startsWith(QByteArray("{\"") + plannedMember);
        if (isPlan && !m_areItemsWanted)
            return;
        const QJsonObject record = QJsonDocument::fromJson(text).object();
        const QJsonArray rows = record[QLatin1String(isPlan ? plannedMember : outcomesMember)].toArray();
        for (const QJsonValue &row : rows) {
            if (isPlan)
                take(itemOf(row.toArray()));
            else
                take(outcomeOf(row.toArray()));
        }
        if (record.contains(QLatin1String(endMember)))
            m_run.summary.isComplete = true;
    }

    void take(const RunItem &item)
    {
        m_run.outcomes.append({m_run.items.size(), ItemState::Planned, {}, {}, {}, 0, 0});
        m_run.items.append(item);
    }

    void take(const ItemOutcome &outcome)
    {
        m_tally.add(outcome);
        if (outcome.item >= 0 && outcome.item < m_run.outcomes.size())
            m_run.outcomes[outcome.item] = outcome;
    }

    bool m_areItemsWanted;
    StoredRun m_run;
    RunTally m_tally;
};

bool isLater(const RunSummary &one, const RunSummary &other)
{
    return std::tie(one.header.startedMs, one.header.id) > std::tie(other.header.startedMs, other.header.id);
}

} // namespace

StoredRun readRun(const QString &path)
{
    return JournalReplay(true).run(path);
}

QList<RunSummary> listRuns(const QString &dataDirectory)
{
    QList<RunSummary> runs;
    const QString folder = QFileInfo(runJournalPath(dataDirectory, {})).path();
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.journal")}, QDir::Files);
    for (const QString &name : names) {
        const QString id = name.chopped(qsizetype(sizeof ".journal") - 1);
        if (isRunId(id))
            runs.append(JournalReplay(false).run(runJournalPath(dataDirectory, id)).summary);
    }
    std::sort(runs.begin(), runs.end(), isLater);
    return runs;
}

bool removeRun(const QString &dataDirectory, const QString &id)
{
    const QString path = runJournalPath(dataDirectory, id);
    if (!isRunId(id) || !QFile::exists(path))
        return false;
    QLockFile lock(path + QLatin1String(".lock"));
    return lockExclusively(lock) && QFile::remove(path);
}

QString unreadableRunText(const QString &path)
{
    return QCoreApplication::translate("Mirrix", "无法读取清理记录（已损坏或来自另一台计算机）: %1").arg(path);
}

} // namespace Mirrix
