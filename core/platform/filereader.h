#pragma once

#include <QString>

#include <memory>

namespace MirrixCore {

/// An open file, read by position. Uses the system's own calls: any legal name works, and others may still rename or
/// delete the file while it is open. Folders and pipes cannot be read. Movable, not thread-safe.
class FileReader
{
public:
    FileReader();
    ~FileReader();
    FileReader(FileReader &&) noexcept;
    FileReader &operator=(FileReader &&) noexcept;

    /// Opens `path` for reading, without looking at it further. False on failure; errorText says why.
    [[nodiscard]] bool open(const QString &path);

    /// Takes down size and modification time of the open file. False, with the file closed, when that fails or when it
    /// is no plain file.
    [[nodiscard]] bool readState();

    /// Size in bytes at readState.
    [[nodiscard]] qint64 sizeBytes() const;

    /// Modification time at readState, milliseconds since the Unix epoch; 0 for earlier ones.
    [[nodiscard]] qint64 modifiedMs() const;

    /// Reads up to `length` bytes at `offset`. Returns the number read, less than `length` only at the end of the file,
    /// or -1 on an error; errorText says why.
    [[nodiscard]] qint64 readAt(qint64 offset, char *buffer, qint64 length);

    /// How many calls of readAt have gone to the file since it was opened.
    [[nodiscard]] int readCount() const;

    /// Announces to the system that the file will be read from start to end.
    void expectSequentialReads();

    /// Whether size and modification time, to the system's full resolution, still are what they were at
    /// readState.
    [[nodiscard]] bool isUnchanged() const;

    /// The system's reason for the last failure.
    [[nodiscard]] QString errorText() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace MirrixCore
