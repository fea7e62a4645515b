#include "core/platform/nativefileio.h"

#include "core/platform/nativepath.h"
#include "core/platform/openpath_posix.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace MirrixCore {

namespace {

int creationFlags(QIODevice::OpenMode mode)
{
    if (!(mode & QIODevice::WriteOnly))
        return O_RDONLY;
    return O_WRONLY | O_CREAT | (mode & QIODevice::NewOnly ? O_EXCL : O_TRUNC);
}

} // namespace

bool isQtPath(const QString &path)
{
    return QFile::encodeName(path) == pathBytes(path);
}

bool openNatively(QFile &file, const QString &path, QIODevice::OpenMode mode, QString *reason)
{
    const int descriptor = openPath(pathBytes(path), creationFlags(mode) | O_CLOEXEC);
    const int failure = errno;
    file.setFileName(path);
    if (descriptor >= 0 && file.open(descriptor, mode & ~QIODevice::NewOnly, QFileDevice::AutoCloseHandle))
        return true;
    if (reason)
        *reason = descriptor < 0 ? systemErrorText(failure) : file.errorString();
    if (descriptor >= 0)
        close(descriptor);
    return false;
}

} // namespace MirrixCore
