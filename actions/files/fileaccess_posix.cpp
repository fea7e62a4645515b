#include "actions/files/fileaccess.h"

#include "core/platform/nativepath.h"
#include "core/platform/openpath_posix.h"

#include <QByteArray>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Mirrix {

namespace {

/// Who may access a file. It is not opened for reading, which its permissions may forbid.
class Access
{
public:
    explicit Access(const QString &path)
    {
        const QByteArray bytes = MirrixCore::pathBytes(path);
        const int file = MirrixCore::openPath(bytes, O_PATH | O_CLOEXEC);
        if (file < 0)
            return;
        const bool isLong = bytes.size() >= PATH_MAX;
        m_isKnown = fstat(file, &m_info) == 0 && readList(isLong ? "/proc/self/fd/" + QByteArray::number(file) : bytes);
        close(file);
    }

    [[nodiscard]] bool isSameAs(const Access &other) const
    {
        return m_isKnown && other.m_isKnown && m_info.st_mode == other.m_info.st_mode &&
               m_info.st_uid == other.m_info.st_uid && m_info.st_gid == other.m_info.st_gid && m_list == other.m_list;
    }

private:
    /// The access list beyond the permission bits; stays empty where there is none.
    [[nodiscard]] bool readList(const QByteArray &path)
    {
        QByteArray value(4096, '\0');
        const ssize_t length =
            getxattr(path.constData(), "system.posix_acl_access", value.data(), static_cast<size_t>(value.size()));
        m_list = value.left(std::max<ssize_t>(length, 0));
        return length >= 0 || errno == ENODATA || errno == EOPNOTSUPP || errno == ENOSYS;
    }

    bool m_isKnown = false;
    struct stat m_info = {};
    QByteArray m_list;
};

} // namespace

bool haveSameAccess(const QString &one, const QString &other)
{
    return Access(one).isSameAs(Access(other));
}

} // namespace Mirrix
