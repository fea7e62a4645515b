#include "core/platform/win32.h"
#include "ui/window/shell.h"

#include <QDir>

#include <shlobj.h>

namespace Mirrix {

bool revealInFileManager(const QString &path)
{
    const std::wstring native = QDir::toNativeSeparators(path).toStdWString();
    PIDLIST_ABSOLUTE item = nullptr;
    if (FAILED(SHParseDisplayName(native.c_str(), nullptr, &item, 0, nullptr)))
        return openWithSystem(path.left(path.lastIndexOf(QLatin1Char('/')) + 1));
    const bool isShown = SUCCEEDED(SHOpenFolderAndSelectItems(item, 0, nullptr, 0));
    ILFree(item);
    return isShown;
}

} // namespace Mirrix
