#include "core/platform/openpath_posix.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <unistd.h>

namespace MirrixCore {

namespace {

/// A descriptor that is only a place to start from.
class Folder
{
public:
    Folder() = default;
    ~Folder() { change(AT_FDCWD); }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    [[nodiscard]] int get() const { return m_descriptor; }

    void change(int descriptor)
    {
        const int failure = errno; // which closing may set
        if (m_descriptor >= 0)
            close(m_descriptor);
        m_descriptor = descriptor;
        errno = failure;
    }

private:
    int m_descriptor = AT_FDCWD;
};

} // namespace

int openPath(const QByteArray &path, int flags)
{
    constexpr qsizetype mostBytes = PATH_MAX - 1; // the last one is for the zero
    Folder folder;
    qsizetype start = 0;
    while (path.size() - start > mostBytes) {
        const qsizetype end = path.lastIndexOf('/', start + mostBytes);
        if (end <= start) {
            errno = ENAMETOOLONG;
            return -1;
        }
        const QByteArray piece = path.mid(start, end - start);
        const int next = openat(folder.get(), piece.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
        if (next < 0)
            return -1;
        folder.change(next);
        start = end + 1;
    }
    return openat(folder.get(), path.constData() + start, flags, 0666);
}

} // namespace MirrixCore
