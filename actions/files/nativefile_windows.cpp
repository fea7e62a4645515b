#include "actions/files/nativefile.h"

#include "actions/files/pathstate_windows.h"
#include "core/platform/nativepath.h"
#include "core/walk/windowsattributes.h"

#include <QDir>

#include <filesystem>
#include <system_error>

namespace Mirrix {

namespace {

using MirrixCore::epochMsFrom;
using MirrixCore::joined;
using MirrixCore::UniqueHandle;

constexpr DWORD allowUnprivileged = 0x2; // a name that older SDK headers lack

std::wstring wide(const QString &path)
{
    return MirrixCore::longPath(MirrixCore::absolutePath(path));
}

FileFault faultOf(DWORD code)
{
    switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return FileFault::Missing;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return FileFault::Occupied;
    case ERROR_NOT_SAME_DEVICE:
        return FileFault::OtherVolume;
    case ERROR_PRIVILEGE_NOT_HELD:
        return FileFault::NoRight;
    default:
        return FileFault::Failed;
    }
}

/// Calls until it succeeds, for up to a second: a virus scanner that reads a new file makes it fail for a while.
template <typename Call>
FileFault retryWhileBusy(Call call)
{
    for (DWORD pauseMs = 50;; pauseMs *= 2) {
        if (call())
            return FileFault::None;
        const DWORD code = GetLastError();
        const bool mayPass =
            code == ERROR_ACCESS_DENIED || code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION;
        if (!mayPass || pauseMs > 400)
            return faultOf(code);
        Sleep(pauseMs);
    }
}

PathState::Kind kindOf(HANDLE file, DWORD attributes)
{
    FILE_ATTRIBUTE_TAG_INFO tag = {};
    if (attributes & FILE_ATTRIBUTE_REPARSE_POINT &&
        GetFileInformationByHandleEx(file, FileAttributeTagInfo, &tag, sizeof tag) &&
        (tag.ReparseTag == IO_REPARSE_TAG_SYMLINK || tag.ReparseTag == IO_REPARSE_TAG_MOUNT_POINT))
        return PathState::Kind::Link;
    if (attributes & FILE_ATTRIBUTE_DIRECTORY)
        return PathState::Kind::Folder;
    return MirrixCore::isPlaceholder(attributes) ? PathState::Kind::Other : PathState::Kind::File;
}

} // namespace

PathState pathStateOf(HANDLE file)
{
    PathState state;
    BY_HANDLE_FILE_INFORMATION info = {};
    if (!GetFileInformationByHandle(file, &info))
        return state;
    state.kind = kindOf(file, info.dwFileAttributes);
    state.sizeBytes = static_cast<qint64>(joined(info.nFileSizeHigh, info.nFileSizeLow));
    state.modifiedMs = epochMsFrom(info.ftLastWriteTime);
    state.modifiedExact =
        static_cast<qint64>(joined(info.ftLastWriteTime.dwHighDateTime, info.ftLastWriteTime.dwLowDateTime));
    state.mode = info.dwFileAttributes & settableAttributes;
    FILE_BASIC_INFO basic = {};
    if (GetFileInformationByHandleEx(file, FileBasicInfo, &basic, sizeof basic))
        state.changedExact = basic.ChangeTime.QuadPart;
    state.isUndeletable = info.dwFileAttributes & FILE_ATTRIBUTE_READONLY;
    state.identity = {info.dwVolumeSerialNumber, joined(info.nFileIndexHigh, info.nFileIndexLow), info.nNumberOfLinks,
                      true};
    return state;
}

PathState pathState(const QString &path)
{
    // Attributes alone can be read whatever sharing other programs allow.
    const UniqueHandle file(CreateFileW(wide(path).c_str(), FILE_READ_ATTRIBUTES,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    if (file)
        return pathStateOf(file.get());
    PathState state;
    if (faultOf(GetLastError()) == FileFault::Missing)
        state.kind = PathState::Kind::Missing;
    return state;
}

bool mayReassignFileIds(const QString &)
{
    return false;
}

FileFault renameExclusively(const QString &from, const QString &to)
{
    // Without the flags to replace and to copy: the new path must be free and on the same volume.
    return retryWhileBusy(
        [source = wide(from), target = wide(to)] { return MoveFileExW(source.c_str(), target.c_str(), 0); });
}

FileFault removeFile(const QString &path)
{
    const std::wstring native = wide(path);
    const DWORD attributes = GetFileAttributesW(native.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && attributes & FILE_ATTRIBUTE_READONLY)
        return FileFault::Failed; // waiting would not help
    return retryWhileBusy([&native] { return DeleteFileW(native.c_str()); });
}

FileFault removeOwnCopy(const QString &path)
{
    const std::wstring native = wide(path);
    SetFileAttributesW(native.c_str(), FILE_ATTRIBUTE_NORMAL);
    return retryWhileBusy([&native] { return DeleteFileW(native.c_str()); });
}

FileFault makeSymbolicLink(const QString &target, const QString &link)
{
    // Other programs show the target as it is written, so the long form only where it is needed.
    const bool isRelative = QDir::isRelativePath(target);
    const QString plain = QDir::toNativeSeparators(isRelative ? target : MirrixCore::absolutePath(target));
    const std::wstring native = isRelative || plain.size() < MAX_PATH ? plain.toStdWString() : wide(target);
    const std::wstring path = wide(link);
    if (CreateSymbolicLinkW(path.c_str(), native.c_str(), allowUnprivileged))
        return FileFault::None;
    // Systems before Windows 10 do not know the flag.
    if (GetLastError() == ERROR_INVALID_PARAMETER && CreateSymbolicLinkW(path.c_str(), native.c_str(), 0))
        return FileFault::None;
    return faultOf(GetLastError());
}

QString symbolicLinkText(const QString &link)
{
    std::error_code failure;
    const std::filesystem::path text = std::filesystem::read_symlink(MirrixCore::filesystemPath(link), failure);
    return failure ? QString() : QDir::fromNativeSeparators(MirrixCore::textFromWide(text.c_str()));
}

FileFault makeHardLink(const QString &target, const QString &link)
{
    return CreateHardLinkW(wide(link).c_str(), wide(target).c_str(), nullptr) ? FileFault::None
                                                                              : faultOf(GetLastError());
}

FileFault makeEmptyFile(const QString &path)
{
    const UniqueHandle file(
        CreateFileW(wide(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    return file ? FileFault::None : faultOf(GetLastError());
}

FileFault removeEmptyFolder(const QString &path)
{
    const std::wstring native = wide(path);
    return retryWhileBusy([&native] { return RemoveDirectoryW(native.c_str()); });
}

FileFault makeFolder(const QString &path)
{
    return CreateDirectoryW(wide(path).c_str(), nullptr) ? FileFault::None : faultOf(GetLastError());
}

bool flushFolder(const QString &)
{
    return true; // the file system journals its names by itself
}

} // namespace Mirrix
