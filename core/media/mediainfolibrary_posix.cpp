#include "core/media/mediainfolibrary.h"

namespace MirrixCore {

QStringList mediaInfoLibraryNames()
{
    return {QStringLiteral("libmediainfo.so.0")};
}

} // namespace MirrixCore
