#pragma once

#include "core/scan/fileentry.h"

#include <QString>

namespace Mirrix {

/// A modification time as the lists show it, local, "yyyy-MM-dd HH:mm"; empty when unknown (below 1).
[[nodiscard]] QString minuteText(qint64 ms);

/// A path with the separators of this system.
[[nodiscard]] QString shownPath(const QString &path);

/// What the preview says of a file: path, size, time, suffix, then the media members that are known.
[[nodiscard]] QString previewText(const MirrixCore::FileEntry &file);

} // namespace Mirrix
