#include "actions/nativefile.h"

#include "core/platform/nativepath.h"
#include "core/platform/win32.h"

namespace Mirrix {

using MirrixCore::UniqueHandle;

FileFault copyToNewFile(const QString &from, const QString &to)
{
    const std::wstring source = MirrixCore::longPath(MirrixCore::absolutePath(from));
    const std::wstring target = MirrixCore::longPath(MirrixCore::absolutePath(to));
    // The system's own copy takes alternate streams along. It fails on a full disk and deletes what it has begun.
    if (!CopyFileExW(source.c_str(), target.c_str(), nullptr, nullptr, nullptr, COPY_FILE_FAIL_IF_EXISTS))
        return GetLastError() == ERROR_FILE_EXISTS ? FileFault::Occupied : FileFault::Failed;
    const DWORD attributes = GetFileAttributesW(source.c_str());
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
        isWhole = original && copy && GetFileTime(original.get(), &created, &accessed, &modified) &&
                  SetFileTime(copy.get(), &created, &accessed, &modified) && FlushFileBuffers(copy.get());
    }
    if (isWhole && attributes != INVALID_FILE_ATTRIBUTES && SetFileAttributesW(target.c_str(), attributes))
        return FileFault::None;
    SetFileAttributesW(target.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(target.c_str());
    return FileFault::Failed;
}

} // namespace Mirrix
