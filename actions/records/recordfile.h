#pragma once

#include "actions/records/aesgcm.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>

namespace Mirrix {

// A file of encrypted records, one behind the other. Each: its length (32 bits, little-endian; of all that follows), a
// nonce of 12 bytes, the text under AES-256-GCM, a tag of 16 bytes. A record's number, from 0 (64 bits, little-endian),
// is authenticated with it, so none can be left out or moved. One thread at a time.

/// More than any record has. A longer one is damage.
inline constexpr qint64 mostRecordBytes = 16 * 1024 * 1024;

/// A place between two records.
struct RecordPosition
{
    qint64 bytes = 0;  ///< from the start of the file
    quint64 count = 0; ///< records before it
};

/// Reads record by record; holds no more than one in memory.
class RecordReader
{
public:
    enum class Outcome
    {
        Record,
        End,
        Cut,     ///< the file ends inside a record, or in the zeros that a power cut leaves
        Damaged, ///< the next record is too long or not authentic
        Failed   ///< the disk would not read
    };

    explicit RecordReader(const QByteArray &key)
        : m_key(key)
    {}

    [[nodiscard]] bool open(const QString &path);

    /// Reads the next record into `text`. After anything but a record, every further call gives the same.
    [[nodiscard]] Outcome next(QByteArray &text);

    /// The end of the last record read.
    [[nodiscard]] RecordPosition position() const { return m_position; }

    [[nodiscard]] qint64 fileBytes() const { return m_file.size(); }

private:
    [[nodiscard]] Outcome read(QByteArray &text);

    AesGcmKey m_key;
    QFile m_file;
    RecordPosition m_position;
    Outcome m_last = Outcome::Record;
};

/// Writes records at the end of a file.
class RecordWriter
{
public:
    explicit RecordWriter(const QByteArray &key)
        : m_key(key)
    {}

    /// Makes the file; it must not exist.
    [[nodiscard]] bool create(const QString &path);

    /// Continues a file after `position`; what follows it is cut off.
    [[nodiscard]] bool resume(const QString &path, RecordPosition position);

    /// Hands a record to the system. When it cannot be written whole, the file ends with the record before.
    [[nodiscard]] bool append(QByteArrayView text);

    /// Waits until all records are on the disk. When they do not get there, the file ends where the last flush left it.
    [[nodiscard]] bool flush();

    void close() { m_file.close(); }

    [[nodiscard]] QString errorText() const { return m_file.errorString(); }

private:
    bool cutBackTo(RecordPosition position);

    AesGcmKey m_key;
    QFile m_file;
    RecordPosition m_end;
    RecordPosition m_flushed;
};

} // namespace Mirrix
