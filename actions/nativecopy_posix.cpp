#include "actions/nativefile.h"

#include "core/platform/nativepath.h"

#include <QByteArrayList>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Mirrix {

namespace {

using MirrixCore::pathBytes;

constexpr size_t pieceBytes = 1 << 20;

class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {}
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    [[nodiscard]] int get() const { return m_number; }

    /// Some file systems tell of a failed write only here.
    [[nodiscard]] bool close() { return ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

bool writeWhole(int file, const char *bytes, size_t length)
{
    while (length > 0) {
        const ssize_t count = write(file, bytes, length);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes += count;
        length -= static_cast<size_t>(count);
    }
    return true;
}

bool copyContent(int from, int to)
{
    QByteArray piece(pieceBytes, Qt::Uninitialized);
    for (;;) {
        const ssize_t count = read(from, piece.data(), pieceBytes);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        if (!writeWhole(to, piece.constData(), static_cast<size_t>(count)))
            return false;
    }
}

/// What the target's file system or the user's rights do not allow is left out.
void copyExtendedAttributes(int from, int to)
{
    const ssize_t listed = flistxattr(from, nullptr, 0);
    if (listed <= 0)
        return;
    QByteArray names(listed, '\0');
    names.truncate(std::max<ssize_t>(flistxattr(from, names.data(), static_cast<size_t>(listed)), 0));
    const QByteArrayList list = names.split('\0');
    for (const QByteArray &name : list) {
        const ssize_t size = name.isEmpty() ? -1 : fgetxattr(from, name.constData(), nullptr, 0);
        QByteArray value(std::max<ssize_t>(size, 0), '\0');
        if (size >= 0 && fgetxattr(from, name.constData(), value.data(), static_cast<size_t>(size)) == size)
            fsetxattr(to, name.constData(), value.constData(), static_cast<size_t>(size), 0);
    }
}

bool copyAttributes(int from, int to, const struct stat &info)
{
    copyExtendedAttributes(from, to);
    // Before the mode, since it takes away the set-user-id bits. Only root may give files to others.
    const bool isOwnerKept = fchown(to, info.st_uid, info.st_gid) == 0;
    const mode_t mode = info.st_mode & (isOwnerKept ? 07777 : 0777);
    const bool hasMode = fchmod(to, mode) == 0 || errno == EPERM || errno == EOPNOTSUPP; // not all volumes have modes
    const std::array<timespec, 2> times = {info.st_atim, info.st_mtim};
    return hasMode && futimens(to, times.data()) == 0;
}

} // namespace

FileFault copyToNewFile(const QString &from, const QString &to)
{
    const Descriptor source(open(pathBytes(from).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat info = {};
    if (source.get() < 0 || fstat(source.get(), &info) != 0 || !S_ISREG(info.st_mode))
        return FileFault::Failed;
    const QByteArray path = pathBytes(to);
    Descriptor target(open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (target.get() < 0)
        return errno == EEXIST ? FileFault::Occupied : FileFault::Failed;
    bool isWhole = copyContent(source.get(), target.get()) && copyAttributes(source.get(), target.get(), info) &&
                   fsync(target.get()) == 0;
    // So that whoever compares the two reads what the disk has got.
    posix_fadvise(target.get(), 0, 0, POSIX_FADV_DONTNEED);
    isWhole = target.close() && isWhole;
    if (!isWhole)
        unlink(path.constData());
    return isWhole ? FileFault::None : FileFault::Failed;
}

} // namespace Mirrix
