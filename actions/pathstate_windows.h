#pragma once

#include "actions/nativefile.h"
#include "core/platform/win32.h"

namespace Mirrix {

/// What an open file or folder is, a link at the end of its path being told as such where it was opened so. Unknown
/// where the system does not say.
[[nodiscard]] PathState pathStateOf(HANDLE file);

} // namespace Mirrix
