#pragma once

#include "core/walk/ownfiles.h"

#include <QString>
#include <QStringList>

namespace Mirrix {

// Where the program keeps its own files. Needs the application's identity and object. Interface thread only.

/// Fixes the answer of isPortable for the rest of the run; for the entry point, after reading the command line.
void decidePortable(bool portable);

/// Forgets what decidePortable fixed.
void undecidePortable();

/// Whether "--portable" or "-portable" is one of the arguments, whole and in this case.
[[nodiscard]] bool hasPortableSwitch(const QStringList &arguments);

/// Whether data lies beside the executable: as decided, else by the switch in the command line, else by a marker file
/// "Mirrix.portable" or "portable.txt" beside the executable. Not cached.
[[nodiscard]] bool isPortable();

/// The folder of everything the program writes for itself. Not created here.
[[nodiscard]] QString dataDirectory();

/// The settings file inside `directory`, by default the data directory.
[[nodiscard]] QString settingsFilePath();
[[nodiscard]] QString settingsFilePath(const QString &directory);

/// What scans leave out in `directory`: caches, journals, log and settings. Backed-up files are the user's.
[[nodiscard]] MirrixCore::OwnFiles ownFilesIn(const QString &directory);

/// The backup folder inside `directory` that holds until the user chooses another.
[[nodiscard]] QString defaultBackupRoot(const QString &directory);

} // namespace Mirrix
