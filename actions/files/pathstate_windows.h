#pragma once

#include "actions/files/nativefile.h"
#include "core/platform/win32.h"

namespace Mirrix {

/// Attributes that SetFileAttributes can give a file and take away again.
inline constexpr DWORD settableAttributes = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                            FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

/// What an open file or folder is, a link at the end of its path being reported as a link where it was opened as one.
/// Unknown where the system does not say.
[[nodiscard]] PathState pathStateOf(HANDLE file);

} // namespace Mirrix
