#include "actions/records/runjournal.h"

#include "actions/files/exclusivelock.h"
#include "actions/files/movefile.h"
#include "actions/records/runhistory.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSysInfo>

#include <algorithm>
#include <optional>
#include <utility>

namespace Mirrix {

namespace {

constexpr int flushEveryMs = 500; // of outcomes that a power cut may cost

QString unwritableText(const QString &path, const QString &reason)
{
    return QCoreApplication::translate("Mirrix", "无法写入清理记录: %1 (%2)").arg(path, reason);
}

/// The end of the last record that can be read. No value when that is the start, and on a read error: what can be read
/// later must not be cut off.
std::optional<RecordPosition> endOfJournal(const QString &path)
{
    RecordReader reader(runJournalKey());
    if (!reader.open(path))
        return std::nullopt;
    QByteArray text;
    RecordReader::Outcome read = RecordReader::Outcome::Record;
    while (read == RecordReader::Outcome::Record)
        read = reader.next(text);
    const bool isReadable = read != RecordReader::Outcome::Failed && reader.position().count > 0;
    return isReadable ? std::optional(reader.position()) : std::nullopt;
}

} // namespace

QString newRunId(qint64 startedMs)
{
    const quint32 random = QRandomGenerator::system()->generate() & 0xFFFF;
    return QDateTime::fromMSecsSinceEpoch(startedMs).toString(QStringLiteral("yyyyMMdd-HHmmss")) +
           QStringLiteral("-%1").arg(random, 4, 16, QLatin1Char('0'));
}

bool isRunId(const QString &id)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9]{8}-[0-9]{6}-[0-9a-f]{4}")));
    return form.match(id).hasMatch();
}

QString runJournalPath(const QString &dataDirectory, const QString &id)
{
    return joinedPath(dataDirectory, QStringLiteral("runs/%1.journal").arg(id));
}

QByteArray runJournalKey()
{
    return QCryptographicHash::hash(QSysInfo::machineUniqueId() + "Mirrix-RunJournal-Key-v01",
                                    QCryptographicHash::Sha256);
}

RunJournalWriter::RunJournalWriter() = default;

RunJournalWriter::~RunJournalWriter()
{
    flush();
    close();
}

bool RunJournalWriter::create(const QString &dataDirectory, RunHeader header, const QList<RunItem> &items)
{
    close();
    header.planned = items.size();
    m_id = header.id.isEmpty() ? newRunId(header.startedMs) : header.id;
    header.id = m_id;
    m_path = runJournalPath(dataDirectory, m_id);
    if (!isRunId(m_id) || dataDirectory.isEmpty()) { // else it would lie in the topmost folder
        m_error = unwritableText(m_path, m_id);
        return false;
    }
    const QString folder = folderOf(m_path);
    static_cast<void>(makeFolders(folder)); // where that fails, making the file gives the reason
    auto records = std::make_unique<RecordWriter>(runJournalKey());
    if (!records->create(m_path)) {
        m_error = unwritableText(m_path, records->errorText());
        return false;
    }
    m_records = std::move(records);
    if (lock() && writePlan(header, items) && flushFolder(folder) && flushFolder(dataDirectory)) {
        m_isNew = true;
        m_tally = RunTally(header.planned);
        return true;
    }
    m_records->close();
    QFile::remove(m_path); // without a whole plan no file is touched, so there is no run to list
    close();
    return false;
}

bool RunJournalWriter::resume(const QString &dataDirectory, const QString &id)
{
    close();
    m_id = id;
    m_path = runJournalPath(dataDirectory, id);
    m_error = unreadableRunText(m_path);
    if (!isRunId(id) || !QFile::exists(m_path) || !lock())
        return false;
    const std::optional<RecordPosition> end = endOfJournal(m_path);
    auto records = std::make_unique<RecordWriter>(runJournalKey());
    if (end && records->resume(m_path, *end)) {
        m_records = std::move(records);
        return true;
    }
    m_error = end ? unwritableText(m_path, records->errorText()) : unreadableRunText(m_path);
    close();
    return false;
}

bool RunJournalWriter::outcome(const ItemOutcome &outcome)
{
    if (!m_records)
        return false;
    m_tally.add(outcome);
    m_outcomes.append(rowText(outcome));
    if (m_sinceFlush.elapsed() >= flushEveryMs)
        return flush();
    constexpr qsizetype enoughForARecord = 256; // rows; each record costs a nonce, a tag and a write
    if (!m_hasFailed && m_outcomes.size() - m_handedOver >= enoughForARecord)
        m_hasFailed = !writeOutcomes();
    return !m_hasFailed;
}

bool RunJournalWriter::flush()
{
    if (!m_records)
        return false;
    const bool isHandedOver = writeOutcomes();
    const bool isFlushed = m_records->flush();
    if (!isFlushed) {
        m_handedOver = 0;
        m_error = unwritableText(m_path, m_records->errorText());
    } else {
        m_outcomes.remove(0, m_handedOver);
        m_handedOver = 0;
    }
    m_sinceFlush.start();
    m_hasFailed = !isHandedOver || !isFlushed;
    return !m_hasFailed;
}

bool RunJournalWriter::finish()
{
    if (!flush())
        return false;
    if (m_isNew && (!m_records->append(endText(m_tally.totals())) || !m_records->flush())) {
        m_error = unwritableText(m_path, m_records->errorText());
        return false;
    }
    close();
    return true;
}

bool RunJournalWriter::lock()
{
    m_sinceFlush.start();
    m_lock = std::make_unique<QLockFile>(m_path + QLatin1String(".lock"));
    if (lockExclusively(*m_lock))
        return true;
    m_error = m_lock->error() == QLockFile::LockFailedError
                  ? QCoreApplication::translate("Mirrix", "清理记录正被另一程序使用: %1").arg(m_path)
                  : unwritableText(m_path, QStringLiteral("lock file"));
    m_lock.reset();
    return false;
}

bool RunJournalWriter::writePlan(const RunHeader &header, const QList<RunItem> &items)
{
    bool isWritten = m_records->append(headerText(header));
    constexpr qsizetype itemsAtATime = 256;
    for (qsizetype done = 0; isWritten && done < items.size(); done += itemsAtATime) {
        QByteArrayList rows;
        for (qsizetype i = done; i < std::min(items.size(), done + itemsAtATime); ++i)
            rows.append(rowText(items[i]));
        for (qsizetype begin = 0; isWritten && begin < rows.size();)
            isWritten = m_records->append(rowsText(plannedMember, rows, begin));
    }
    isWritten = isWritten && m_records->flush();
    if (!isWritten)
        m_error = unwritableText(m_path, m_records->errorText());
    return isWritten;
}

bool RunJournalWriter::writeOutcomes()
{
    while (m_handedOver < m_outcomes.size()) {
        qsizetype end = m_handedOver;
        if (!m_records->append(rowsText(outcomesMember, m_outcomes, end))) {
            m_error = unwritableText(m_path, m_records->errorText());
            return false;
        }
        m_handedOver = end;
    }
    return true;
}

void RunJournalWriter::close()
{
    m_records.reset();
    m_lock.reset();
    m_outcomes.clear();
    m_handedOver = 0;
    m_isNew = false;
    m_hasFailed = false;
    m_tally = RunTally();
}

bool appendUndone(const QString &dataDirectory, const QString &id, const QList<ItemOutcome> &outcomes, QString *error)
{
    RunJournalWriter writer;
    bool isWritten = writer.resume(dataDirectory, id);
    for (qsizetype i = 0; isWritten && i < outcomes.size(); ++i) {
        ItemOutcome undone = outcomes[i];
        undone.state = ItemState::Undone;
        isWritten = writer.outcome(undone);
    }
    isWritten = isWritten && writer.finish();
    if (!isWritten && error)
        *error = writer.errorText();
    return isWritten;
}

} // namespace Mirrix
