#include "actions/files/nativefile.h"

#include "core/platform/nativepath.h"
#include "core/platform/openpath_posix.h"

#include <QByteArrayList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Mirrix {

namespace {

using MirrixCore::openPath;
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

    /// Some file systems report a failed write only here.
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

/// Copies from the offset `begin` to `end` or the end of the file.
bool copyRange(int from, int to, off_t begin, off_t end)
{
    if (lseek(from, begin, SEEK_SET) != begin || lseek(to, begin, SEEK_SET) != begin)
        return false;
    QByteArray piece(pieceBytes, Qt::Uninitialized);
    while (begin < end) {
        const ssize_t count = read(from, piece.data(), std::min(pieceBytes, static_cast<size_t>(end - begin)));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        if (!writeWhole(to, piece.constData(), static_cast<size_t>(count)))
            return false;
        begin += count;
    }
    return true;
}

/// Copies what lies between the holes of a file, the first data being at `begin` (-1 = none).
bool copyAroundHoles(int from, int to, off_t begin, off_t size)
{
    while (begin >= 0) {
        const off_t end = lseek(from, begin, SEEK_HOLE);
        if (end < 0 || !copyRange(from, to, begin, end))
            return false;
        begin = lseek(from, end, SEEK_DATA);
    }
    if (errno != ENXIO) // which means that only a hole follows
        return false;
    // Not all file systems lengthen a file without a byte being written.
    return ftruncate(to, size) == 0 || pwrite(to, "", 1, size - 1) == 1;
}

bool copyContent(int from, int to, const struct stat &info)
{
    const bool isSparse = info.st_blocks * 512 < info.st_size; // st_blocks counts 512 bytes on every file system
    const off_t begin = isSparse ? lseek(from, 0, SEEK_DATA) : 0;
    const bool areHolesKnown = isSparse && (begin >= 0 || errno == ENXIO);
    return areHolesKnown ? copyAroundHoles(from, to, begin, info.st_size)
                         : copyRange(from, to, 0, std::numeric_limits<off_t>::max());
}

/// Whether a call on an attribute did its work, or could not since the target's file system or the user's rights do not
/// allow the attribute. FAT over FUSE answers ENOSYS.
bool isSetOrUnsupported(int result)
{
    return result == 0 || errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
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

timespec timeFrom(qint64 nanoseconds)
{
    constexpr qint64 second = 1000000000;
    const qint64 rest = (nanoseconds % second + second) % second;
    return {static_cast<time_t>((nanoseconds - rest) / second), static_cast<long>(rest)};
}

/// `marked`, with the bits that lend rights only where `present` has them, too.
mode_t harmlessMode(quint32 marked, mode_t present)
{
    return (marked & 0777) | (marked & present & 07000);
}

bool copyAttributes(int from, int to, const struct stat &info, const FileMarks *marks)
{
    copyExtendedAttributes(from, to);
    // Before the mode, since it takes away the set-user-id bits. Only root may give files to others.
    const bool isOwnerKept = fchown(to, info.st_uid, info.st_gid) == 0;
    const mode_t mode = harmlessMode(marks ? marks->mode : info.st_mode, isOwnerKept ? info.st_mode : 0);
    const std::array<timespec, 2> times = {info.st_atim, marks ? timeFrom(marks->modifiedExact) : info.st_mtim};
    return isSetOrUnsupported(fchmod(to, mode)) && isSetOrUnsupported(futimens(to, times.data()));
}

} // namespace

FileFault copyToNewFile(const QString &from, const QString &to, const FileMarks *marks)
{
    // A link that has taken the file's place is not followed, and a pipe does not block.
    const Descriptor source(openPath(pathBytes(from), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat info = {};
    if (source.get() < 0 || fstat(source.get(), &info) != 0 || !S_ISREG(info.st_mode))
        return FileFault::Failed;
    // For this user alone until the source's permissions are set.
    Descriptor target(openPath(pathBytes(to), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (target.get() < 0)
        return errno == EEXIST ? FileFault::Occupied : FileFault::Failed;
    bool isWhole = copyContent(source.get(), target.get(), info) &&
                   copyAttributes(source.get(), target.get(), info, marks) && fsync(target.get()) == 0;
    // So that a later comparison of the two reads what is on the disk, not what is in the cache.
    posix_fadvise(target.get(), 0, 0, POSIX_FADV_DONTNEED);
    isWhole = target.close() && isWhole;
    if (!isWhole)
        static_cast<void>(removeFile(to));
    return isWhole ? FileFault::None : FileFault::Failed;
}

bool setFileMarks(const QString &path, const FileMarks &marks)
{
    const Descriptor file(openPath(pathBytes(path), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat info = {};
    const bool isKnown = file.get() >= 0 && fstat(file.get(), &info) == 0;
    if (!isKnown || (!S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode)))
        return false;
    const mode_t mode = S_ISDIR(info.st_mode) ? marks.mode & 07777 : harmlessMode(marks.mode, info.st_mode);
    const std::array<timespec, 2> times = {timespec{0, UTIME_OMIT}, timeFrom(marks.modifiedExact)};
    return fchmod(file.get(), mode) == 0 && futimens(file.get(), times.data()) == 0;
}

} // namespace Mirrix
