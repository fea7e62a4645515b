#pragma once

// The only place that includes windows.h, and the few helpers that every source of the Windows side needs.

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#undef small
#undef interface

#include <QString>

#include <string>
#include <utility>

namespace MirrixCore {

/// A kernel handle that is closed with its owner.
class UniqueHandle
{
public:
    UniqueHandle() = default;
    explicit UniqueHandle(HANDLE handle)
        : m_handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle)
    {}
    UniqueHandle(UniqueHandle &&other) noexcept
        : m_handle(std::exchange(other.m_handle, nullptr))
    {}
    UniqueHandle &operator=(UniqueHandle &&other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~UniqueHandle()
    {
        if (m_handle)
            CloseHandle(m_handle);
    }

    explicit operator bool() const { return m_handle != nullptr; }
    [[nodiscard]] HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle = nullptr;
};

/// The path in the form that lifts the limit of 260 characters and keeps trailing dots and blanks: backslashes behind
/// the prefix \\?\ (or \\?\UNC\ for a share). `path` must be absolute and clean; another path is returned as it is,
/// with backslashes.
[[nodiscard]] std::wstring longPath(const QString &path);

/// The text of the system's 16-bit units, to the letter. QString::fromWCharArray takes a byte order mark for an
/// instruction, but in a name it counts.
[[nodiscard]] inline QString textFromWide(const wchar_t *text)
{
    return QString(reinterpret_cast<const QChar *>(text));
}

/// Milliseconds since the Unix epoch; 0 for a time before 1970.
[[nodiscard]] qint64 epochMsFrom(const FILETIME &time);

/// The two halves of a 64-bit number as the system hands them out.
[[nodiscard]] constexpr quint64 joined(DWORD high, DWORD low)
{
    return (static_cast<quint64>(high) << 32) | low;
}

/// systemErrorText of GetLastError().
[[nodiscard]] QString lastErrorText();

} // namespace MirrixCore
