#pragma once

#include "actions/files/binlookup.h"

namespace Mirrix {

// Where the freedesktop.org trash lies. For POSIX systems only.

/// The trash in the user's home, to which everything on its volume goes.
[[nodiscard]] BinFolder homeTrash();

/// The user's trash on the volume of `path` (absolute; the last folders of it may be missing).
[[nodiscard]] BinFolder volumeTrash(const QString &path);

} // namespace Mirrix
