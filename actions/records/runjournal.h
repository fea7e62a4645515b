#pragma once

#include "actions/records/recordfile.h"
#include "actions/records/runrecord.h"

#include <QElapsedTimer>
#include <QList>
#include <QString>

#include <memory>

class QLockFile;

namespace Mirrix {

// The journals of cleaning runs: one file runs/<id>.journal a run in the data directory, encrypted with a key of this
// machine. What is planned is on the disk before the first file is touched, outcomes follow. Messages are translated
// and name the journal.

/// An id of the form yyyyMMdd-HHmmss-xxxx: the local time, and four random hexadecimal digits.
[[nodiscard]] QString newRunId(qint64 startedMs);

/// Whether `id` has that form. No other id becomes a file name.
[[nodiscard]] bool isRunId(const QString &id);

/// The journal of the run `id`, which must have the form of an id.
[[nodiscard]] QString runJournalPath(const QString &dataDirectory, const QString &id);

/// The key of the journals on this machine: 32 bytes.
[[nodiscard]] QByteArray runJournalKey();

/// Writes one journal and keeps other programs from writing to it for as long as it lives. One thread at a time.
class RunJournalWriter
{
public:
    RunJournalWriter();
    /// Writes outcomes that are still held; without finish the run stays interrupted.
    ~RunJournalWriter();

    /// Makes the journal of a run and waits until header and items are on the disk. An empty id of the header is
    /// filled, `planned` is the number of items. False, with nothing left behind, when that failed: then nothing may be
    /// done.
    [[nodiscard]] bool create(const QString &dataDirectory, RunHeader header, const QList<RunItem> &items);

    /// Continues the journal of an earlier run, whose damaged end, if any, is cut off. False when there is none that
    /// can be read, or another program writes to it.
    [[nodiscard]] bool resume(const QString &dataDirectory, const QString &id);

    /// Takes an outcome. When half a second has passed since the last time, all are written and waited for until they
    /// are on the disk. False while some could not be written; they are kept and tried again.
    bool outcome(const ItemOutcome &outcome);

    /// Writes all outcomes and waits until they are on the disk. False as above.
    bool flush();

    /// The same, and ends the journal: after create with the record that the run is complete. Call it also for a run
    /// that was cancelled. False when that could not be written.
    bool finish();

    /// The id of the journal that is written.
    [[nodiscard]] const QString &id() const { return m_id; }

    /// Why the last call failed.
    [[nodiscard]] const QString &errorText() const { return m_error; }

private:
    [[nodiscard]] bool lock();
    [[nodiscard]] bool writePlan(const RunHeader &header, const QList<RunItem> &items);
    [[nodiscard]] bool writeOutcomes();
    void close();

    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<RecordWriter> m_records;
    QString m_id;
    QString m_path;
    QString m_error;
    RunTally m_tally;
    QByteArrayList m_outcomes;  ///< rows that are not known to be on the disk
    qsizetype m_handedOver = 0; ///< how many of them the system has
    bool m_isNew = false;       ///< made here, and not resumed
    bool m_hasFailed = false;
    QElapsedTimer m_sinceFlush;
};

/// Adds outcomes with the state Undone to the journal of an earlier run, and waits until they are on the disk. False,
/// with the reason in `error`, if given, when that failed. For many files over a longer time, use resume.
[[nodiscard]] bool appendUndone(const QString &dataDirectory, const QString &id, const QList<ItemOutcome> &outcomes,
                                QString *error = nullptr);

} // namespace Mirrix
