#pragma once

#include <QString>

#include <memory>

namespace MirrixCore {

/// An open file, read by position. Uses the system's own calls: any legal name works, others may still rename or delete
/// the file while it is open, and folders, pipes and devices are refused rather than opened. Movable, not thread-safe.
class FileReader
{
public:
    FileReader();
    ~FileReader();
    FileReader(FileReader &&) noexcept;
    FileReader &operator=(FileReader &&) noexcept;

    /// Opens `path` for reading. False on failure; errorText tells why.
    [[nodiscard]] bool open(const QString &path);

    /// Size in bytes when the file was opened.
    [[nodiscard]] qint64 sizeBytes() const;

    /// Modification time when the file was opened, milliseconds since the Unix epoch.
    [[nodiscard]] qint64 modifiedMs() const;

    /// Reads up to `length` bytes at `offset`. Returns the number read, less than `length` only at the end of the file,
    /// or -1 on an error; errorText tells why.
    [[nodiscard]] qint64 readAt(qint64 offset, char *buffer, qint64 length);

    /// How many calls of readAt have gone to the file since it was opened.
    [[nodiscard]] int readCount() const;

    /// Tells the system that the file will be read from start to end.
    void expectSequentialReads();

    /// Whether size and modification time, to the system's full resolution, still are what they were at the opening.
    [[nodiscard]] bool isUnchanged() const;

    /// The system's reason for the last failure.
    [[nodiscard]] QString errorText() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace MirrixCore
