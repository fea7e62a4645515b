#include "core/platform/filereader.h"

#include "core/platform/nativepath.h"
#include "core/platform/win32.h"

#include <algorithm>

namespace MirrixCore {

struct FileReader::State
{
    UniqueHandle file;
    BY_HANDLE_FILE_INFORMATION info = {};
    QString error;
    int readCount = 0;

    [[nodiscard]] qint64 size() const { return static_cast<qint64>(joined(info.nFileSizeHigh, info.nFileSizeLow)); }
};

FileReader::FileReader()
    : m_state(std::make_unique<State>())
{}
FileReader::~FileReader() = default;
FileReader::FileReader(FileReader &&) noexcept = default;
FileReader &FileReader::operator=(FileReader &&) noexcept = default;

bool FileReader::open(const QString &path)
{
    m_state->readCount = 0;
    // Without the flag for backup semantics a folder cannot be opened, as intended. Everything is shared: hashing must
    // not keep other programs from writing, renaming or deleting the file.
    m_state->file = UniqueHandle(CreateFileW(longPath(path).c_str(), GENERIC_READ,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!m_state->file) {
        m_state->error = lastErrorText();
        return false;
    }
    return true;
}

bool FileReader::readState()
{
    if (GetFileType(m_state->file.get()) != FILE_TYPE_DISK) {
        m_state->error = systemErrorText(ERROR_INVALID_FUNCTION);
        m_state->file = {};
        return false;
    }
    if (!GetFileInformationByHandle(m_state->file.get(), &m_state->info)) {
        m_state->error = lastErrorText();
        m_state->file = {};
        return false;
    }
    return true;
}

qint64 FileReader::sizeBytes() const
{
    return m_state->size();
}

qint64 FileReader::modifiedMs() const
{
    return epochMsFrom(m_state->info.ftLastWriteTime);
}

qint64 FileReader::readAt(qint64 offset, char *buffer, qint64 length)
{
    constexpr qint64 largestRead = 1 << 30; // the count is a 32-bit number
    ++m_state->readCount;
    qint64 done = 0;
    while (done < length) {
        const qint64 position = offset + done;
        OVERLAPPED at = {};
        at.Offset = static_cast<DWORD>(position);
        at.OffsetHigh = static_cast<DWORD>(position >> 32);
        DWORD count = 0;
        const auto requested = static_cast<DWORD>(std::min(length - done, largestRead));
        if (!ReadFile(m_state->file.get(), buffer + done, requested, &count, &at)) {
            if (GetLastError() == ERROR_HANDLE_EOF)
                break;
            m_state->error = lastErrorText();
            return -1;
        }
        done += count;
        if (count < requested)
            break;
    }
    return done;
}

int FileReader::readCount() const
{
    return m_state->readCount;
}

void FileReader::expectSequentialReads()
{
    // FILE_FLAG_SEQUENTIAL_SCAN, given at opening, does this.
}

bool FileReader::isUnchanged() const
{
    BY_HANDLE_FILE_INFORMATION now = {};
    const BY_HANDLE_FILE_INFORMATION &then = m_state->info;
    return GetFileInformationByHandle(m_state->file.get(), &now) && now.nFileSizeHigh == then.nFileSizeHigh &&
           now.nFileSizeLow == then.nFileSizeLow && CompareFileTime(&now.ftLastWriteTime, &then.ftLastWriteTime) == 0;
}

QString FileReader::errorText() const
{
    return m_state->error;
}

} // namespace MirrixCore
