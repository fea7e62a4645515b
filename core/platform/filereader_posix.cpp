#include "core/platform/filereader.h"

#include "core/platform/epochtime.h"
#include "core/platform/nativepath.h"
#include "core/platform/openpath_posix.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace MirrixCore {

struct FileReader::State
{
    int descriptor = -1;
    struct stat info = {};
    QString error;
    int readCount = 0;

    void closeFile()
    {
        if (descriptor >= 0)
            ::close(descriptor);
        descriptor = -1;
    }

    bool fail(int code)
    {
        error = systemErrorText(code);
        closeFile();
        return false;
    }
};

FileReader::FileReader()
    : m_state(std::make_unique<State>())
{}

FileReader::~FileReader()
{
    if (m_state)
        m_state->closeFile();
}

FileReader::FileReader(FileReader &&) noexcept = default;
FileReader &FileReader::operator=(FileReader &&) noexcept = default;

bool FileReader::open(const QString &path)
{
    m_state->closeFile();
    m_state->readCount = 0;
    m_state->info = {};
    // Without O_NONBLOCK, a pipe that took the file's place since the walk would block forever.
    m_state->descriptor = openPath(pathBytes(path), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    return m_state->descriptor >= 0 || m_state->fail(errno);
}

bool FileReader::readState()
{
    if (fstat(m_state->descriptor, &m_state->info) != 0)
        return m_state->fail(errno);
    if (S_ISDIR(m_state->info.st_mode))
        return m_state->fail(EISDIR);
    if (!S_ISREG(m_state->info.st_mode))
        return m_state->fail(EINVAL);
    return true;
}

qint64 FileReader::sizeBytes() const
{
    return m_state->info.st_size;
}

qint64 FileReader::modifiedMs() const
{
    return epochMsFrom(m_state->info.st_mtim.tv_sec, m_state->info.st_mtim.tv_nsec);
}

qint64 FileReader::readAt(qint64 offset, char *buffer, qint64 length)
{
    ++m_state->readCount;
    qint64 done = 0;
    while (done < length) {
        const ssize_t count =
            pread(m_state->descriptor, buffer + done, static_cast<size_t>(length - done), offset + done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            m_state->error = systemErrorText(errno);
            return -1;
        }
        done += count;
        // Network and user file systems may return less than asked for before the end, too.
        if (count == 0 || (done < length && offset + done >= m_state->info.st_size))
            break;
    }
    return done;
}

int FileReader::readCount() const
{
    return m_state->readCount;
}

void FileReader::expectSequentialReads()
{
    constexpr qint64 worthwhileBytes = 1 << 20; // below, the system's own read-ahead has it all
    if (m_state->info.st_size >= worthwhileBytes)
        posix_fadvise(m_state->descriptor, 0, 0, POSIX_FADV_SEQUENTIAL);
}

bool FileReader::isUnchanged() const
{
    struct stat now = {};
    const struct stat &then = m_state->info;
    return fstat(m_state->descriptor, &now) == 0 && now.st_size == then.st_size &&
           now.st_mtim.tv_sec == then.st_mtim.tv_sec && now.st_mtim.tv_nsec == then.st_mtim.tv_nsec;
}

QString FileReader::errorText() const
{
    return m_state->error;
}

} // namespace MirrixCore
