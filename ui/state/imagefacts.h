#pragma once

#include "core/model/fileentry.h"

#include <QString>

namespace Mirrix {

/// What is known of the picture file at `path`: path, size and time from the file system, the rest from its metadata.
/// A file that cannot be read gives what there is. Reads the file: not for the interface thread. Thread-safe.
[[nodiscard]] MirrixCore::FileEntry imageFacts(const QString &path);

/// The facts in words, those that are unknown left out.
[[nodiscard]] QString factSheet(const MirrixCore::FileEntry &file);

} // namespace Mirrix
