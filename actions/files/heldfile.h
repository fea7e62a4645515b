#pragma once

#include "actions/files/nativefile.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace Mirrix {

/// A plain file held open while it is proved to be a copy, so that the file compared is the file acted on, whatever
/// happens to its path. Others cannot write into it unnoticed: Windows refuses them, Linux reports them (by a read
/// lease where the file system has those, else by the change time). Never opened through a link at the end of the path.
/// Movable, not thread-safe.
class HeldFile
{
public:
    enum class Purpose
    {
        Keep,  ///< the copy that stays: it will be flushed
        Remove ///< the copy that goes
    };

    HeldFile();
    ~HeldFile();
    HeldFile(HeldFile &&) noexcept;
    HeldFile &operator=(HeldFile &&) noexcept;

    /// False when it is no plain file, cannot be read, or is being written by another program; isInUse reports the
    /// last.
    [[nodiscard]] bool open(const QString &path, Purpose purpose);
    [[nodiscard]] bool isInUse() const;

    /// What the file was when it was opened.
    [[nodiscard]] const PathState &state() const;

    /// As FileReader::readAt.
    [[nodiscard]] qint64 readAt(qint64 offset, char *buffer, qint64 length);

    /// Whether size, modification time and, but for renaming, change time are what they were at the opening, and no
    /// program has tried to write into it since.
    [[nodiscard]] bool isUnchanged() const;

    /// Whether `path` itself, not through a link, is this file.
    [[nodiscard]] bool isAt(const QString &path) const;

    /// Waits until content and attributes are on the disk. False when they did not get there. A file that this user
    /// may only read can not be flushed on Windows and counts as being there.
    [[nodiscard]] bool flush();

    /// Deletes the file, which must be at `path`, and closes it. False when it was not deleted; it is closed then, too.
    [[nodiscard]] bool remove(const QString &path);

    /// Closes the file and releases it to other programs.
    void close();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// Asked now and then during long comparisons; true ends them. May be empty.
using StopQuery = std::function<bool()>;

enum class Comparison
{
    Equal,
    Different, ///< or not readable to the end
    Stopped
};

/// Compares all bytes of two open files, in pieces of 1 MiB. Where they are equal and `digest` is given, it gets their
/// BLAKE3 digest.
[[nodiscard]] Comparison compareContents(HeldFile &one, HeldFile &other, const StopQuery &isStopped = {},
                                         QByteArray *digest = nullptr);

} // namespace Mirrix
