#include "core/platform/mappedreader.h"

#include "core/platform/win32.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace MirrixCore {

namespace {

/// The view that the current thread reads, and where to continue when reading it faults.
struct ViewGuard
{
    const char *begin = nullptr;
    const char *end = nullptr;
    CONTEXT resume = {};
    volatile bool hasFaulted = false;
};

thread_local ViewGuard *currentGuard = nullptr;

/// Turns a fault inside the current view into a second return from RtlCaptureContext in copyGuarded. MinGW has no
/// __try, so this is a vectored handler; it answers only for addresses inside the view. A failing drive raises
/// EXCEPTION_IN_PAGE_ERROR; Wine raises an access violation for a file that was cut short.
LONG CALLBACK onFault(EXCEPTION_POINTERS *exception)
{
    ViewGuard *guard = currentGuard;
    const EXCEPTION_RECORD &record = *exception->ExceptionRecord;
    const bool isReadFault =
        record.ExceptionCode == EXCEPTION_IN_PAGE_ERROR || record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION;
    if (!guard || !isReadFault || record.NumberParameters < 2)
        return EXCEPTION_CONTINUE_SEARCH;
    const auto *address = reinterpret_cast<const char *>(record.ExceptionInformation[1]);
    if (address < guard->begin || address >= guard->end)
        return EXCEPTION_CONTINUE_SEARCH;
    guard->hasFaulted = true;
    *exception->ContextRecord = guard->resume;
    return EXCEPTION_CONTINUE_EXECUTION;
}

/// Copies from the view into the thread's own memory. Nothing but this loop runs while the guard is armed, so a fault
/// abandons no object and no lock. False when the view could not be read.
#if defined(__GNUC__)
__attribute__((noinline))
#else
__declspec(noinline)
#endif
bool copyGuarded(char *target, const char *source, size_t length)
{
    ViewGuard guard;
    guard.begin = source;
    guard.end = source + length;
    currentGuard = &guard;
    RtlCaptureContext(&guard.resume);
    if (!guard.hasFaulted)
        std::copy_n(source, length, target);
    currentGuard = nullptr;
    return !guard.hasFaulted;
}

void installFaultHandler()
{
    static std::once_flag once;
    std::call_once(once, [] { AddVectoredExceptionHandler(1, onFault); });
}

/// Only a fixed local volume is mapped: on others a lost connection would fault, and the mapping gains nothing.
bool isOnFixedVolume(const std::wstring &path)
{
    wchar_t root[MAX_PATH + 1] = {};
    return GetVolumePathNameW(path.c_str(), root, MAX_PATH + 1) && GetDriveTypeW(root) == DRIVE_FIXED;
}

class MappedView
{
public:
    MappedView(HANDLE mapping, qint64 offset, qint64 length)
        : m_bytes(static_cast<const char *>(MapViewOfFile(mapping, FILE_MAP_READ, static_cast<DWORD>(offset >> 32),
                                                          static_cast<DWORD>(offset), static_cast<SIZE_T>(length))))
    {}
    ~MappedView()
    {
        if (m_bytes)
            UnmapViewOfFile(m_bytes);
    }
    MappedView(const MappedView &) = delete;
    MappedView &operator=(const MappedView &) = delete;

    [[nodiscard]] const char *bytes() const { return m_bytes; }

private:
    const char *m_bytes;
};

/// Feeds one view in pieces that stay in the processor's cache between the guarded copy and the hashing.
bool feedView(const char *bytes, qint64 length, std::vector<char> &piece, const ByteSink &sink)
{
    for (qint64 done = 0; done < length;) {
        const qint64 count = std::min<qint64>(length - done, static_cast<qint64>(piece.size()));
        if (!copyGuarded(piece.data(), bytes + done, static_cast<size_t>(count)) || !sink(piece.data(), count))
            return false;
        done += count;
    }
    return true;
}

} // namespace

bool mapFileIntoSink(const QString &path, const ByteSink &sink)
{
    const std::wstring native = longPath(path);
    if (!isOnFixedVolume(native))
        return false;
    installFaultHandler();
    const UniqueHandle file(CreateFileW(native.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size = {};
    if (!file || !GetFileSizeEx(file.get(), &size))
        return false;
    if (size.QuadPart == 0)
        return true;
    const UniqueHandle mapping(CreateFileMappingW(file.get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
    if (!mapping)
        return false;
    constexpr size_t pieceBytes = 256 * 1024;
    std::vector<char> piece(pieceBytes);
    for (qint64 offset = 0; offset < size.QuadPart;) {
        const qint64 length = std::min<qint64>(mapViewBytes, size.QuadPart - offset);
        const MappedView view(mapping.get(), offset, length);
        if (!view.bytes() || !feedView(view.bytes(), length, piece, sink))
            return false;
        offset += length;
    }
    return true;
}

bool mapFileIntoHash(const QString &path, QCryptographicHash &hash)
{
    return mapFileIntoSink(path, [&hash](const char *bytes, qint64 length) {
        hash.addData(QByteArrayView(bytes, length));
        return true;
    });
}

} // namespace MirrixCore
