#pragma once

#include "core/platform/filestatus.h"

#include <QString>

namespace Mirrix {

// The system calls that change users' files. They take every legal name, never replace anything, and never follow a
// link at the end of a path. Relative paths count from the current folder. Thread-safe.

/// What is at a path itself: a link is reported as a link.
struct PathState
{
    enum class Kind
    {
        Missing,
        File,
        Link,
        Folder,
        Other,  ///< devices, pipes, files whose content is not on this machine
        Unknown ///< the system returned an error
    };

    Kind kind = Kind::Unknown;
    qint64 sizeBytes = 0;
    qint64 allocatedBytes = -1; ///< on the volume; below 0 = unknown
    qint64 modifiedMs = 0;      ///< milliseconds since the Unix epoch
    qint64 modifiedExact = 0;   ///< the same time in the system's own finest unit
    qint64 changedExact = 0;    ///< last change of content or attributes, in the same unit; 0 = unknown
    bool isUndeletable = false; ///< marked read-only where that forbids deleting (Windows)
    quint32 mode = 0;           ///< permission bits, 07777 at most; on Windows the attributes that can be set
    quint32 owner = 0;          ///< user and group numbers; 0 on Windows
    quint32 group = 0;
    MirrixCore::FileIdentity identity;

    /// Whether both are plain files of one size, time and (where known) identity.
    [[nodiscard]] bool isSameFileAs(const PathState &other) const;
};

[[nodiscard]] PathState pathState(const QString &path);

/// Whether the file system there may give a file another number while nothing happens to it, so that another number is
/// no proof of another file.
[[nodiscard]] bool mayReassignFileIds(const QString &path);

enum class FileFault
{
    None,
    Missing,     ///< the file to act on does not exist
    Occupied,    ///< the new path is taken
    OtherVolume, ///< both paths must lie on one volume
    NoRight,     ///< symbolic links need a right that this user lacks (Windows)
    Failed
};

/// Renames within one volume; the new path must be free. Where the file system can neither rename without replacing nor
/// make hard links (fusefat and its like), a file put there between the last check and the rename, two system calls
/// apart, would be replaced.
[[nodiscard]] FileFault renameExclusively(const QString &from, const QString &to);

/// Deletes a file or link, not a folder. On Windows one that is marked read-only stays.
[[nodiscard]] FileFault removeFile(const QString &path);

/// Deletes a copy that this program made, even one that took the read-only mark of its source over.
[[nodiscard]] FileFault removeOwnCopy(const QString &path);

/// Makes `link` a symbolic link to `target`, absolute or as seen from the link's folder, which need not exist.
[[nodiscard]] FileFault makeSymbolicLink(const QString &target, const QString &link);

/// The text of a symbolic link with forward slashes, absolute or as seen from its folder; empty when it cannot be read.
[[nodiscard]] QString symbolicLinkText(const QString &link);

/// Makes `link` a further name of the file `target`.
[[nodiscard]] FileFault makeHardLink(const QString &target, const QString &link);

/// What a file has besides its content; the members are those of PathState.
struct FileMarks
{
    qint64 modifiedExact = 0;
    quint32 mode = 0;
};

/// Copies the plain file `from` with times and attributes to the free path `to` and waits until it is on the disk.
/// Attributes that the file system of `to` does not have are left out; holes stay holes (POSIX). `marks`, where given,
/// are set instead of those of `from`, but for the bits that lend the owner's rights: these have to be set on both.
/// Leaves nothing behind on failure.
[[nodiscard]] FileFault copyToNewFile(const QString &from, const QString &to, const FileMarks *marks = nullptr);

/// Gives a plain file or a folder these marks, not to wait until they are on the disk. Bits that lend the owner's
/// rights are never added to a file. False when it has not got them.
[[nodiscard]] bool setFileMarks(const QString &path, const FileMarks &marks);

/// Makes an empty file at the free path `path`.
[[nodiscard]] FileFault makeEmptyFile(const QString &path);

/// Makes one folder. Occupied when something, perhaps a folder, is there.
[[nodiscard]] FileFault makeFolder(const QString &path);

/// Removes a folder, and only one that holds nothing: the system refuses any other. A link to a folder is treated like
/// one (Windows); see pathState.
[[nodiscard]] FileFault removeEmptyFolder(const QString &path);

/// Waits until the names in a folder are on the disk, where the system knows how. False when they did not get there.
[[nodiscard]] bool flushFolder(const QString &folder);

} // namespace Mirrix
