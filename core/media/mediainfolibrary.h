#pragma once

#include <QStringList>

namespace MirrixCore {

/// File names of MediaInfo's library on this system, the usual one first.
[[nodiscard]] QStringList mediaInfoLibraryNames();

} // namespace MirrixCore
