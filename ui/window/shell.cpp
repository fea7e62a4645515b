#include "ui/window/shell.h"

#include <QDesktopServices>
#include <QUrl>

namespace Mirrix {

bool openWithSystem(const QString &path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace Mirrix
