#include "actions/files/nativefile.h"

#include "actions/files/pathstate_windows.h"
#include "core/platform/nativepath.h"
#include "core/platform/win32.h"

namespace Mirrix {

using MirrixCore::UniqueHandle;

namespace {

FILETIME timeFrom(qint64 exact)
{
    const auto units = static_cast<quint64>(exact);
    return {static_cast<DWORD>(units), static_cast<DWORD>(units >> 32)};
}

/// The attributes of a file, those that can be set as marked.
DWORD markedAttributes(DWORD present, const FileMarks &marks)
{
    const DWORD attributes = (present & ~settableAttributes) | (marks.mode & settableAttributes);
    return attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes;
}

} // namespace

FileFault copyToNewFile(const QString &from, const QString &to, const FileMarks *marks)
{
    const std::wstring source = MirrixCore::longPath(MirrixCore::absolutePath(from));
    const std::wstring target = MirrixCore::longPath(MirrixCore::absolutePath(to));
    // The system's own copy takes alternate streams along. It fails on a full disk and deletes what it has begun.
    if (!CopyFileExW(source.c_str(), target.c_str(), nullptr, nullptr, nullptr, COPY_FILE_FAIL_IF_EXISTS))
        return GetLastError() == ERROR_FILE_EXISTS ? FileFault::Occupied : FileFault::Failed;
    DWORD attributes = GetFileAttributesW(source.c_str());
    if (marks && attributes != INVALID_FILE_ATTRIBUTES)
        attributes = markedAttributes(attributes, *marks);
    SetFileAttributesW(target.c_str(), FILE_ATTRIBUTE_NORMAL); // a read-only file could not be opened for flushing
    FILETIME created = {};
    FILETIME accessed = {};
    FILETIME modified = {};
    bool isWhole = false;
    {
        const UniqueHandle original(CreateFileW(source.c_str(), FILE_READ_ATTRIBUTES,
                                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                                OPEN_EXISTING, 0, nullptr));
        const UniqueHandle copy(
            CreateFileW(target.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        isWhole = original && copy && GetFileTime(original.get(), &created, &accessed, &modified);
        if (marks)
            modified = timeFrom(marks->modifiedExact);
        isWhole = isWhole && SetFileTime(copy.get(), &created, &accessed, &modified) && FlushFileBuffers(copy.get());
    }
    if (isWhole && attributes != INVALID_FILE_ATTRIBUTES && SetFileAttributesW(target.c_str(), attributes))
        return FileFault::None;
    SetFileAttributesW(target.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(target.c_str());
    return FileFault::Failed;
}

bool setFileMarks(const QString &path, const FileMarks &marks)
{
    const std::wstring native = MirrixCore::longPath(MirrixCore::absolutePath(path));
    const DWORD present = GetFileAttributesW(native.c_str());
    const UniqueHandle file(CreateFileW(native.c_str(), FILE_WRITE_ATTRIBUTES,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    const FILETIME modified = timeFrom(marks.modifiedExact);
    return present != INVALID_FILE_ATTRIBUTES && file && SetFileTime(file.get(), nullptr, nullptr, &modified) &&
           SetFileAttributesW(native.c_str(), markedAttributes(present, marks));
}

} // namespace Mirrix
