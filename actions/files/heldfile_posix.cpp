#include "actions/files/heldfile.h"

#include "actions/files/pathstate_posix.h"
#include "core/platform/nativepath.h"
#include "core/platform/openpath_posix.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace Mirrix {

using MirrixCore::pathBytes;

struct HeldFile::State
{
    int descriptor = -1;
    PathState opened;
    bool isInUse = false;
    bool hasLease = false;

    /// A read lease is refused while any process has the file open for writing, and makes one that opens it for writing
    /// wait until it is given back. It catches writes that fall into one tick of the clock behind the change time.
    [[nodiscard]] bool takeLease()
    {
        // The system asks for the lease by a signal. SIGURG is ignored by default; the usual one, SIGIO, would end the
        // program.
        if (fcntl(descriptor, F_SETSIG, SIGURG) != 0)
            return true;
        hasLease = fcntl(descriptor, F_SETLEASE, F_RDLCK) == 0;
        return hasLease || errno != EAGAIN; // network and user file systems have none; nor have files of others
    }

    [[nodiscard]] bool isLeaseBroken() const { return hasLease && fcntl(descriptor, F_GETLEASE) != F_RDLCK; }

    void close()
    {
        if (descriptor >= 0)
            ::close(descriptor);
        descriptor = -1;
        hasLease = false;
    }
};

HeldFile::HeldFile()
    : m_state(std::make_unique<State>())
{}

HeldFile::~HeldFile()
{
    close();
}

HeldFile::HeldFile(HeldFile &&) noexcept = default;
HeldFile &HeldFile::operator=(HeldFile &&) noexcept = default;

bool HeldFile::open(const QString &path, Purpose)
{
    close();
    State &state = *m_state;
    state.descriptor = MirrixCore::openPath(pathBytes(path), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK | O_NOFOLLOW);
    if (state.descriptor < 0)
        return false;
    state.isInUse = !state.takeLease();
    struct stat info = {};
    if (!state.isInUse && fstat(state.descriptor, &info) == 0 && S_ISREG(info.st_mode)) {
        state.opened = pathStateFrom(info);
        constexpr qint64 worthwhileBytes = 1 << 20;
        if (info.st_size >= worthwhileBytes)
            posix_fadvise(state.descriptor, 0, 0, POSIX_FADV_SEQUENTIAL);
        return true;
    }
    close();
    return false;
}

bool HeldFile::isInUse() const
{
    return m_state->isInUse;
}

const PathState &HeldFile::state() const
{
    return m_state->opened;
}

qint64 HeldFile::readAt(qint64 offset, char *buffer, qint64 length)
{
    qint64 done = 0;
    while (done < length) {
        const ssize_t count =
            pread(m_state->descriptor, buffer + done, static_cast<size_t>(length - done), offset + done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        done += count;
    }
    return done;
}

bool HeldFile::isUnchanged() const
{
    struct stat info = {};
    if (m_state->isLeaseBroken() || fstat(m_state->descriptor, &info) != 0)
        return false;
    const PathState now = pathStateFrom(info);
    const PathState &then = m_state->opened;
    return now.sizeBytes == then.sizeBytes && now.modifiedExact == then.modifiedExact &&
           now.changedExact == then.changedExact;
}

bool HeldFile::isAt(const QString &path) const
{
    struct stat info = {};
    if (m_state->descriptor < 0 || fstat(m_state->descriptor, &info) != 0)
        return false;
    const PathState there = pathState(path);
    return there.isSameFileAs(pathStateFrom(info));
}

bool HeldFile::flush()
{
    return fsync(m_state->descriptor) == 0;
}

bool HeldFile::remove(const QString &path)
{
    const bool isRemoved = isAt(path) && isUnchanged() && removeFile(path) == FileFault::None;
    close();
    return isRemoved;
}

void HeldFile::close()
{
    if (m_state)
        m_state->close();
}

} // namespace Mirrix
