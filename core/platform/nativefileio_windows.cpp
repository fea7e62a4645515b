#include "core/platform/nativefileio.h"

#include <QFile>

namespace MirrixCore {

bool isQtPath(const QString &)
{
    return true; // names are 16-bit units on both sides
}

bool openNatively(QFile &file, const QString &path, QIODevice::OpenMode mode, QString *reason)
{
    file.setFileName(path);
    const bool isOpen = file.open(mode);
    if (!isOpen && reason)
        *reason = file.errorString();
    return isOpen;
}

} // namespace MirrixCore
