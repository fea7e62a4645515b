#include "core/platform/openpath_posix.h"

#include <QByteArrayList>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace MirrixCore {

namespace {

constexpr int placeFlags = O_PATH | O_DIRECTORY | O_CLOEXEC; ///< of a descriptor that is only a place to start from

/// Follows a path name by name, as the system does it, where the text is too long for the system's own calls.
class Resolving
{
public:
    explicit Resolving(const QByteArray &path)
        : m_folder(open("/", placeFlags))
    {
        push(path);
    }
    ~Resolving() { enter(-1); }
    Resolving(const Resolving &) = delete;
    Resolving &operator=(const Resolving &) = delete;

    [[nodiscard]] QByteArray run()
    {
        while (!m_ahead.isEmpty()) {
            const QByteArray name = m_ahead.takeLast();
            if (!name.isEmpty() && name != "." && !take(name))
                return {};
        }
        return '/' + m_names.join('/');
    }

private:
    void push(const QByteArray &path)
    {
        const QByteArrayList names = path.split('/');
        std::copy(names.crbegin(), names.crend(), std::back_inserter(m_ahead));
    }

    void enter(int folder)
    {
        if (m_folder >= 0)
            close(m_folder);
        m_folder = folder;
    }

    [[nodiscard]] bool take(const QByteArray &name)
    {
        const int next = openat(m_folder, name.constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
        struct stat info = {};
        if (next < 0)
            return false;
        if (fstat(next, &info) == 0 && S_ISLNK(info.st_mode)) {
            const bool isFollowed = follow(next);
            close(next);
            return isFollowed;
        }
        enter(next);
        if (name != "..")
            m_names.append(name);
        else if (!m_names.isEmpty())
            m_names.removeLast();
        return true;
    }

    [[nodiscard]] bool follow(int link)
    {
        constexpr int mostLinks = 40; // as the system, which knows loops by that
        QByteArray text(PATH_MAX, '\0');
        const ssize_t length = readlinkat(link, "", text.data(), static_cast<size_t>(text.size()));
        if (length <= 0 || ++m_links > mostLinks)
            return false;
        text.truncate(length);
        push(text);
        if (!text.startsWith('/'))
            return true;
        enter(open("/", placeFlags));
        m_names.clear();
        return true;
    }

    int m_folder;
    int m_links = 0;
    QByteArrayList m_ahead; ///< the next name last
    QByteArrayList m_names;
};

} // namespace

PathInReach::PathInReach(const QByteArray &path)
    : m_folder(AT_FDCWD)
{
    constexpr qsizetype mostBytes = PATH_MAX - 1; // the last one is for the zero
    qsizetype start = 0;
    while (path.size() - start > mostBytes) {
        const qsizetype end = path.lastIndexOf('/', start + mostBytes);
        if (end <= start) {
            errno = ENAMETOOLONG;
            return;
        }
        const int next = openat(m_folder, path.mid(start, end - start).constData(), placeFlags);
        if (next < 0)
            return;
        enter(next);
        start = end + 1;
    }
    m_rest = path.constData() + start;
}

PathInReach::~PathInReach()
{
    enter(AT_FDCWD);
}

void PathInReach::enter(int folder)
{
    const int failure = errno; // which closing may set
    if (m_folder >= 0)
        close(m_folder);
    m_folder = folder;
    errno = failure;
}

int openPath(const QByteArray &path, int flags, unsigned permissions)
{
    return atPath(path, [&](int folder, const char *rest) { return openat(folder, rest, flags, permissions); });
}

QByteArray realPath(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.constData(), nullptr), &std::free);
    if (resolved)
        return resolved.get();
    return errno == ENAMETOOLONG ? Resolving(path).run() : QByteArray();
}

} // namespace MirrixCore
