#include "actions/files/heldfile.h"

#include "actions/files/pathstate_windows.h"
#include "core/platform/nativepath.h"

#include <algorithm>

namespace Mirrix {

using MirrixCore::UniqueHandle;

struct HeldFile::State
{
    UniqueHandle file;
    PathState opened;
    bool isInUse = false;
    bool mayWrite = false;

    [[nodiscard]] bool openWith(const std::wstring &path, DWORD access)
    {
        // Only readers may share it, so that no other program writes, renames or deletes it while it is held.
        file = UniqueHandle(CreateFileW(path.c_str(), access, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
        isInUse = !file && GetLastError() == ERROR_SHARING_VIOLATION;
        return bool(file);
    }
};

HeldFile::HeldFile()
    : m_state(std::make_unique<State>())
{}

HeldFile::~HeldFile() = default;
HeldFile::HeldFile(HeldFile &&) noexcept = default;
HeldFile &HeldFile::operator=(HeldFile &&) noexcept = default;

bool HeldFile::open(const QString &path, Purpose purpose)
{
    close();
    State &state = *m_state;
    const std::wstring native = MirrixCore::longPath(MirrixCore::absolutePath(path));
    // The right to write is only for flushing; a viewer that has the file open refuses it.
    state.mayWrite = purpose == Purpose::Keep && state.openWith(native, GENERIC_READ | GENERIC_WRITE);
    const DWORD access = purpose == Purpose::Remove ? GENERIC_READ | DELETE : GENERIC_READ;
    if (!state.mayWrite && !state.openWith(native, access))
        return false;
    state.opened = pathStateOf(state.file.get());
    if (state.opened.kind == PathState::Kind::File)
        return true;
    close();
    return false;
}

bool HeldFile::isInUse() const
{
    return m_state->isInUse;
}

const PathState &HeldFile::state() const
{
    return m_state->opened;
}

qint64 HeldFile::readAt(qint64 offset, char *buffer, qint64 length)
{
    qint64 done = 0;
    while (done < length) {
        OVERLAPPED place = {};
        const auto position = static_cast<quint64>(offset + done);
        place.Offset = static_cast<DWORD>(position);
        place.OffsetHigh = static_cast<DWORD>(position >> 32);
        DWORD count = 0;
        const auto requested = static_cast<DWORD>(std::min<qint64>(length - done, 1 << 30));
        if (!ReadFile(m_state->file.get(), buffer + done, requested, &count, &place))
            return GetLastError() == ERROR_HANDLE_EOF ? done : -1;
        if (count == 0)
            break;
        done += count;
    }
    return done;
}

bool HeldFile::isUnchanged() const
{
    const PathState now = pathStateOf(m_state->file.get());
    const PathState &then = m_state->opened;
    return now.sizeBytes == then.sizeBytes && now.modifiedExact == then.modifiedExact &&
           now.changedExact == then.changedExact;
}

bool HeldFile::isAt(const QString &path) const
{
    return m_state->file && pathState(path).isSameFileAs(m_state->opened);
}

bool HeldFile::flush()
{
    return !m_state->mayWrite || FlushFileBuffers(m_state->file.get());
}

bool HeldFile::remove(const QString &path)
{
    // By its handle, so that no other file is hit that has taken the path. Deleted once the handle is closed.
    FILE_DISPOSITION_INFO disposition = {};
    disposition.DeleteFile = TRUE;
    const bool isMarked =
        isAt(path) && isUnchanged() &&
        SetFileInformationByHandle(m_state->file.get(), FileDispositionInfo, &disposition, sizeof disposition);
    close();
    return isMarked && pathState(path).kind == PathState::Kind::Missing;
}

void HeldFile::close()
{
    m_state->file = UniqueHandle();
}

} // namespace Mirrix
