#pragma once

#include <QString>

namespace Mirrix {

// What the system's shell does with files for us. Interface thread only; each call returns at once, and false when
// nothing could be started.

/// Shows the folder a file or folder lies in; where the system allows it, with that file selected.
bool revealInFileManager(const QString &path);

/// Opens a file with its program, or a folder in the file manager.
bool openWithSystem(const QString &path);

} // namespace Mirrix
