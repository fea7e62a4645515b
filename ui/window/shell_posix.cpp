#include "ui/window/shell.h"

namespace Mirrix {

bool revealInFileManager(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return openWithSystem(slash > 0 ? path.left(slash) : QStringLiteral("/"));
}

} // namespace Mirrix
