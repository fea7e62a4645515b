#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace Mirrix {

/// One record of the operations log.
struct LogEntry
{
    qint64 timeMs = 0; ///< milliseconds since the Unix epoch
    QString action;    ///< "scan_done", "restore", ...
    QString detail;    ///< free text, may be empty

    bool operator==(const LogEntry &) const = default;
};

/// The journal of what the program did: one file, encrypted with a key of this machine, so that it can be read only
/// where it was written. A file that does not decrypt reads as empty and is replaced by the next record. One thread at
/// a time; several programs may share the file. Cost: every call reads, and append rewrites, the whole file.
class OperationsLog
{
public:
    /// The file need not exist.
    explicit OperationsLog(const QString &filePath);

    /// Adds a record with the current time, making the file's folder as needed. False, with the file as it was, when
    /// it could not be written, or is there but cannot be read.
    bool append(const QString &action, const QString &detail);

    /// The same for several records with one write.
    bool append(const QList<LogEntry> &records);

    /// All records, oldest first. Empty when the file is missing or unreadable.
    [[nodiscard]] QList<LogEntry> readAll() const;
    [[nodiscard]] QList<LogEntry> entries() const { return readAll(); }

    [[nodiscard]] const QString &filePath() const { return m_filePath; }

private:
    QString m_filePath;
};

/// A record of something that happens now.
[[nodiscard]] LogEntry logEntryNow(const QString &action, const QString &detail);

/// The key of the log on this machine: 32 bytes. Derived again at each call.
[[nodiscard]] QByteArray operationsLogKey();

/// The log of a data directory.
[[nodiscard]] QString operationsLogPath(const QString &dataDirectory);

} // namespace Mirrix
