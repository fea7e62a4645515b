#include "core/scan/libraries.h"

#include "core/media/mediainfo.h"
#include "core/media/opencvfeature.h"

#include <blake3.h>
#include <libraw/libraw.h>
#include <taglib/taglib.h>

namespace MirrixCore {

QList<LibraryInfo> librariesInUse()
{
    const QString tagLib =
        QStringLiteral("%1.%2.%3").arg(TAGLIB_MAJOR_VERSION).arg(TAGLIB_MINOR_VERSION).arg(TAGLIB_PATCH_VERSION);
    return {
        {QStringLiteral("Qt"), QString::fromLatin1(qVersion()), QStringLiteral("LGPL-3.0-only")},
        {QStringLiteral("BLAKE3"), QString::fromLatin1(blake3_version()), QStringLiteral("CC0-1.0 OR Apache-2.0")},
        {QStringLiteral("OpenCV"), openCvVersion(), QStringLiteral("Apache-2.0")},
        {QStringLiteral("TagLib"), tagLib, QStringLiteral("LGPL-2.1-only OR MPL-1.1")},
        {QStringLiteral("MediaInfo"), MediaInfoFile::libraryVersion(), QStringLiteral("BSD-2-Clause")},
        {QStringLiteral("LibRaw"), QString::fromLatin1(LibRaw::version()), QStringLiteral("LGPL-2.1-only OR CDDL-1.0")},
        {QStringLiteral("libexif"), QString(), QStringLiteral("LGPL-2.1-or-later")},
    };
}

} // namespace MirrixCore
