#include "core/media/mediainfolibrary.h"

#include <QCoreApplication>

namespace MirrixCore {

QStringList mediaInfoLibraryNames()
{
    // Beside the program first: a library of that name may lie anywhere on the search path.
    const QString usual = QStringLiteral("MediaInfo.dll");
    return {QCoreApplication::applicationDirPath() + QLatin1Char('/') + usual, usual,
            QStringLiteral("libmediainfo.dll")};
}

} // namespace MirrixCore
