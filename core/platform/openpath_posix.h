#pragma once

#include <QByteArray>

namespace MirrixCore {

/// A path as the system's calls with a folder take it: the path itself, or for one longer than they take, the last of
/// the folders opened on the way and what is left of the path. `path` must outlive this. Not thread-safe.
class PathInReach
{
public:
    explicit PathInReach(const QByteArray &path);
    ~PathInReach();
    PathInReach(const PathInReach &) = delete;
    PathInReach &operator=(const PathInReach &) = delete;

    /// False, with errno set, when a folder on the way could not be opened.
    [[nodiscard]] bool isReached() const { return m_rest != nullptr; }

    [[nodiscard]] int folder() const { return m_folder; } ///< may be AT_FDCWD
    [[nodiscard]] const char *rest() const { return m_rest; }

private:
    void enter(int folder);

    int m_folder;
    const char *m_rest = nullptr;
};

/// What `call` answers for the folder and the rest of `path`, or -1 with errno set when it cannot be reached: so every
/// call of the system that takes a folder takes a path of any length. Keeps the call's errno. Thread-safe.
template <typename Call>
[[nodiscard]] int atPath(const QByteArray &path, const Call &call)
{
    const PathInReach place(path);
    return place.isReached() ? call(place.folder(), place.rest()) : -1;
}

/// As open(2), for paths of any length. -1 with errno set on failure. Thread-safe.
[[nodiscard]] int openPath(const QByteArray &path, int flags, unsigned permissions = 0666);

/// As realpath(3), for absolute paths of any length; empty on failure. Thread-safe.
[[nodiscard]] QByteArray realPath(const QByteArray &path);

} // namespace MirrixCore
