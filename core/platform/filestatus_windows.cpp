#include "core/platform/filestatus.h"

#include "core/platform/nativepath.h"
#include "core/platform/win32.h"

namespace MirrixCore {

FileStatus fileStatus(const QString &path)
{
    FileStatus status;
    const UniqueHandle file(CreateFileW(longPath(path).c_str(), FILE_READ_ATTRIBUTES,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION info = {};
    if (!file || !GetFileInformationByHandle(file.get(), &info)) {
        const DWORD error = GetLastError();
        if (error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND)
            status.reason = systemErrorText(static_cast<int>(error));
        return status;
    }
    const bool isFolder = info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    status.kind = isFolder ? FileStatus::Kind::Folder : FileStatus::Kind::File;
    status.isHidden = info.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN;
    status.sizeBytes = static_cast<qint64>(joined(info.nFileSizeHigh, info.nFileSizeLow));
    status.modifiedMs = epochMsFrom(info.ftLastWriteTime);
    status.identity = {info.dwVolumeSerialNumber, joined(info.nFileIndexHigh, info.nFileIndexLow), info.nNumberOfLinks,
                       true};
    return status;
}

} // namespace MirrixCore
