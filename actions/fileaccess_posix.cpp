#include "actions/fileaccess.h"

#include "core/platform/nativepath.h"

#include <QByteArray>

#include <sys/stat.h>
#include <sys/xattr.h>

namespace Mirrix {

namespace {

/// The access list beyond the permission bits; empty where there is none.
QByteArray accessListOf(const QByteArray &path)
{
    constexpr const char *name = "system.posix_acl_access";
    QByteArray value(4096, '\0');
    const ssize_t length = getxattr(path.constData(), name, value.data(), static_cast<size_t>(value.size()));
    return length > 0 ? value.left(length) : QByteArray();
}

} // namespace

bool haveSameAccess(const QString &one, const QString &other)
{
    const QByteArray first = MirrixCore::pathBytes(one);
    const QByteArray second = MirrixCore::pathBytes(other);
    struct stat a = {};
    struct stat b = {};
    return stat(first.constData(), &a) == 0 && stat(second.constData(), &b) == 0 && a.st_mode == b.st_mode &&
           a.st_uid == b.st_uid && a.st_gid == b.st_gid && accessListOf(first) == accessListOf(second);
}

} // namespace Mirrix
