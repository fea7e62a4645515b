#pragma once

#include "core/model/fileentry.h"
#include "core/model/scanoptions.h"

#include <QStringList>

namespace MirrixCore {

/// The parts of a rule key that rest on media members, for the options' search mode. Members that are not known add
/// nothing. Thread-safe.
[[nodiscard]] QStringList mediaKeyParts(const FileEntry &entry, const ScanOptions &options);

/// Whether two pictures have a different value for one of the enabled image tags. A value that is not known differs
/// from none. Thread-safe.
[[nodiscard]] bool imageTagsDiffer(const FileEntry &a, const FileEntry &b, const ScanOptions &options);

} // namespace MirrixCore
