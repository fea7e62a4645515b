#pragma once

#include "actions/batch.h"

namespace Mirrix {

class OperationsLog;

/// Removes folders that are empty at that moment, in the order given: a folder after those in it. The log names them
/// before the first one goes; when it cannot be written, none is removed. Each is removed by the one call of the system
/// that fails for a folder with anything in it, so nothing is lost but the folder itself. What is a link by now, or is
/// no longer empty, stays and is named with its reason. Blocks; cancels between folders.
[[nodiscard]] BatchResult removeEmptyFolders(const QStringList &folders, OperationsLog &log,
                                             const BatchProgress &progress = {});

} // namespace Mirrix
