#include "actions/nativefile.h"

#include "actions/pathstate_posix.h"
#include "core/platform/nativepath.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/vfs.h>
#include <unistd.h>

namespace Mirrix {

namespace {

using MirrixCore::pathBytes;

FileFault faultOf(int code)
{
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        return FileFault::Missing;
    case EEXIST:
        return FileFault::Occupied;
    case EXDEV:
        return FileFault::OtherVolume;
    default:
        return FileFault::Failed;
    }
}

FileFault faultUnless(int result)
{
    return result == 0 ? FileFault::None : faultOf(errno);
}

/// For file systems that cannot rename without replacing but know hard links, such as network drives. A crash in
/// between leaves the file under both names. Nothing when a link cannot be made.
std::optional<FileFault> linkAndUnlink(const QByteArray &from, const QByteArray &to)
{
    if (::link(from.constData(), to.constData()) != 0) {
        const FileFault fault = faultOf(errno);
        return fault == FileFault::Failed ? std::nullopt : std::optional(fault);
    }
    // A network drive that is asked again, since its first answer got lost, says that there is no such name.
    struct stat left = {};
    const bool isGone =
        unlink(from.constData()) == 0 || (errno == ENOENT && lstat(from.constData(), &left) != 0 && errno == ENOENT);
    if (isGone)
        return FileFault::None;
    unlink(to.constData());
    return FileFault::Failed;
}

enum class Claim
{
    Held,
    Lost, ///< another file stands there, or somebody has written into ours
    Unknown
};

Claim claimAt(const QByteArray &path, const struct stat &claim)
{
    struct stat found = {};
    if (lstat(path.constData(), &found) != 0)
        return Claim::Unknown;
    return found.st_dev == claim.st_dev && found.st_ino == claim.st_ino && found.st_size == 0 ? Claim::Held
                                                                                              : Claim::Lost;
}

/// For those that know neither: an empty file of our own claims the name and is replaced.
FileFault claimAndRename(const QByteArray &from, const QByteArray &to)
{
    const int file = open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file < 0)
        return faultOf(errno);
    struct stat claim = {};
    const bool isKnown = fstat(file, &claim) == 0;
    FileFault fault = FileFault::Failed;
    if (isKnown && claimAt(to, claim) == Claim::Held)
        fault = faultUnless(rename(from.constData(), to.constData()));
    const bool isLost = fault != FileFault::None && isKnown && claimAt(to, claim) == Claim::Lost;
    if (fault != FileFault::None && !isLost)
        unlink(to.constData());
    close(file); // not before: another file could get its number
    return isLost ? FileFault::Occupied : fault;
}

} // namespace

PathState pathState(const QString &path)
{
    PathState state;
    struct stat info = {};
    if (lstat(pathBytes(path).constData(), &info) != 0) {
        if (errno == ENOENT || errno == ENOTDIR)
            state.kind = PathState::Kind::Missing;
        return state;
    }
    return pathStateFrom(info);
}

bool mayNumberAnew(const QString &path)
{
    struct statfs info = {};
    if (statfs(pathBytes(path).constData(), &info) != 0)
        return false;
    // FAT, exFAT and what user programs serve make their numbers up while they run.
    constexpr std::array<quint32, 3> inventing = {0x4D44, 0x2011BAB0, 0x65735546};
    return std::find(inventing.begin(), inventing.end(), static_cast<quint32>(info.f_type)) != inventing.end();
}

FileFault renameExclusively(const QString &from, const QString &to)
{
    const QByteArray source = pathBytes(from);
    const QByteArray target = pathBytes(to);
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return FileFault::None;
    if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP)
        return faultOf(errno);
    const std::optional<FileFault> linked = linkAndUnlink(source, target);
    return linked ? *linked : claimAndRename(source, target);
}

FileFault removeFile(const QString &path)
{
    return faultUnless(unlink(pathBytes(path).constData()));
}

FileFault removeOwnCopy(const QString &path)
{
    return removeFile(path);
}

FileFault makeSymbolicLink(const QString &target, const QString &link)
{
    return faultUnless(symlink(pathBytes(target).constData(), pathBytes(link).constData()));
}

FileFault makeHardLink(const QString &target, const QString &link)
{
    return faultUnless(::link(pathBytes(target).constData(), pathBytes(link).constData()));
}

FileFault makeEmptyFile(const QString &path)
{
    const int file = open(pathBytes(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    return file < 0 ? faultOf(errno) : faultUnless(close(file));
}

FileFault removeEmptyFolder(const QString &path)
{
    return faultUnless(rmdir(pathBytes(path).constData()));
}

FileFault makeFolder(const QString &path)
{
    return faultUnless(mkdir(pathBytes(path).constData(), 0777));
}

bool flushFolder(const QString &folder)
{
    const int descriptor = open(pathBytes(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return true; // names may be made where they cannot be listed
    const bool isFlushed = fsync(descriptor) == 0 || (errno != EIO && errno != ENOSPC && errno != EDQUOT);
    close(descriptor);
    return isFlushed;
}

} // namespace Mirrix
