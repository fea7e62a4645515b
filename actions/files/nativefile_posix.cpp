#include "actions/files/nativefile.h"

#include "actions/files/pathstate_posix.h"
#include "core/platform/nativepath.h"
#include "core/platform/openpath_posix.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/vfs.h>
#include <unistd.h>

namespace Mirrix {

namespace {

using MirrixCore::atPath;
using MirrixCore::openPath;
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

int readStatus(const QByteArray &path, struct stat &info)
{
    return atPath(path,
                  [&](int folder, const char *rest) { return fstatat(folder, rest, &info, AT_SYMLINK_NOFOLLOW); });
}

int removeName(const QByteArray &path, int flags = 0)
{
    return atPath(path, [=](int folder, const char *rest) { return unlinkat(folder, rest, flags); });
}

/// `call` takes both paths as the system's calls do.
template <typename Call>
int atBothPaths(const QByteArray &from, const QByteArray &to, const Call &call)
{
    return atPath(from, [&](int fromFolder, const char *fromRest) {
        return atPath(to,
                      [&](int toFolder, const char *toRest) { return call(fromFolder, fromRest, toFolder, toRest); });
    });
}

int addName(const QByteArray &from, const QByteArray &to)
{
    return atBothPaths(from, to, [](int fromFolder, const char *fromRest, int toFolder, const char *toRest) {
        return linkat(fromFolder, fromRest, toFolder, toRest, 0);
    });
}

/// For file systems that cannot rename without replacing but know hard links, such as network drives. A crash in
/// between leaves the file under both names. No value when a link cannot be made.
std::optional<FileFault> linkAndUnlink(const QByteArray &from, const QByteArray &to)
{
    if (addName(from, to) != 0) {
        const FileFault fault = faultOf(errno);
        return fault == FileFault::Failed ? std::nullopt : std::optional(fault);
    }
    // A network drive that is asked again, since its first answer got lost, says that there is no such name.
    struct stat left = {};
    const bool isGone = removeName(from) == 0 || (errno == ENOENT && readStatus(from, left) != 0 && errno == ENOENT);
    if (isGone)
        return FileFault::None;
    static_cast<void>(removeName(to));
    return FileFault::Failed;
}

enum class Claim
{
    Held,
    Lost, ///< another file is there, or another program has written into ours
    Unknown
};

Claim claimAt(const QByteArray &path, const struct stat &claim)
{
    struct stat found = {};
    if (readStatus(path, found) != 0)
        return Claim::Unknown;
    return found.st_dev == claim.st_dev && found.st_ino == claim.st_ino && found.st_size == 0 ? Claim::Held
                                                                                              : Claim::Lost;
}

/// For file systems that know neither: an empty file of our own claims the name and is replaced.
FileFault claimAndRename(const QByteArray &from, const QByteArray &to)
{
    const int file = openPath(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file < 0)
        return faultOf(errno);
    struct stat claim = {};
    const bool isKnown = fstat(file, &claim) == 0;
    FileFault fault = FileFault::Failed;
    if (isKnown && claimAt(to, claim) == Claim::Held)
        fault = faultUnless(atBothPaths(from, to, renameat));
    const bool isLost = fault != FileFault::None && isKnown && claimAt(to, claim) == Claim::Lost;
    if (fault != FileFault::None && !isLost)
        static_cast<void>(removeName(to));
    close(file); // not before: another file could get its number
    return isLost ? FileFault::Occupied : fault;
}

} // namespace

PathState pathState(const QString &path)
{
    PathState state;
    struct stat info = {};
    if (readStatus(pathBytes(path), info) != 0) {
        if (errno == ENOENT || errno == ENOTDIR)
            state.kind = PathState::Kind::Missing;
        return state;
    }
    return pathStateFrom(info);
}

bool mayReassignFileIds(const QString &path)
{
    const int file = openPath(pathBytes(path), O_PATH | O_CLOEXEC);
    struct statfs info = {};
    const bool isKnown = file >= 0 && fstatfs(file, &info) == 0;
    if (file >= 0)
        close(file);
    if (!isKnown)
        return false;
    // FAT, exFAT and what user programs serve make their numbers up while they run.
    constexpr std::array<quint32, 3> inventing = {0x4D44, 0x2011BAB0, 0x65735546};
    return std::find(inventing.begin(), inventing.end(), static_cast<quint32>(info.f_type)) != inventing.end();
}

FileFault renameExclusively(const QString &from, const QString &to)
{
    const QByteArray source = pathBytes(from);
    const QByteArray target = pathBytes(to);
    const int renamed =
        atBothPaths(source, target, [](int fromFolder, const char *fromRest, int toFolder, const char *toRest) {
            return renameat2(fromFolder, fromRest, toFolder, toRest, RENAME_NOREPLACE);
        });
    if (renamed == 0)
        return FileFault::None;
    // Only these mean that the file system does not know the flag.
    if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP)
        return faultOf(errno);
    const std::optional<FileFault> linked = linkAndUnlink(source, target);
    return linked ? *linked : claimAndRename(source, target);
}

FileFault removeFile(const QString &path)
{
    return faultUnless(removeName(pathBytes(path)));
}

FileFault removeOwnCopy(const QString &path)
{
    return removeFile(path);
}

FileFault makeSymbolicLink(const QString &target, const QString &link)
{
    const QByteArray text = pathBytes(target);
    return faultUnless(atPath(
        pathBytes(link), [&text](int folder, const char *rest) { return symlinkat(text.constData(), folder, rest); }));
}

QString symbolicLinkText(const QString &link)
{
    QByteArray text(PATH_MAX, '\0');
    const int length = atPath(pathBytes(link), [&text](int folder, const char *rest) {
        return static_cast<int>(readlinkat(folder, rest, text.data(), static_cast<size_t>(text.size())));
    });
    return MirrixCore::pathFromBytes(text.left(std::max(length, 0)));
}

FileFault makeHardLink(const QString &target, const QString &link)
{
    return faultUnless(addName(pathBytes(target), pathBytes(link)));
}

FileFault makeEmptyFile(const QString &path)
{
    const int file = openPath(pathBytes(path), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    return file < 0 ? faultOf(errno) : faultUnless(close(file));
}

FileFault removeEmptyFolder(const QString &path)
{
    return faultUnless(removeName(pathBytes(path), AT_REMOVEDIR));
}

FileFault makeFolder(const QString &path)
{
    return faultUnless(
        atPath(pathBytes(path), [](int folder, const char *rest) { return mkdirat(folder, rest, 0777); }));
}

bool flushFolder(const QString &folder)
{
    const int descriptor = openPath(pathBytes(folder), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return true; // names may be made where they cannot be listed
    // Other errors mean that the file system cannot flush folders.
    const bool isFlushed = fsync(descriptor) == 0 || (errno != EIO && errno != ENOSPC && errno != EDQUOT);
    close(descriptor);
    return isFlushed;
}

} // namespace Mirrix
