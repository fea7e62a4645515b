#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanresult.h"

namespace MirrixCli {

/// Names what could not be read on standard error.
void printUnread(const QList<MirrixCore::UnreadPath> &unread);

/// Whether any of it lies among what the user asked for. What the system keeps below a scanned folder, such as /proc
/// below /, is not asked for unless it is named itself.
[[nodiscard]] bool isAnyWanted(const QList<MirrixCore::UnreadPath> &unread, const MirrixCore::ScanOptions &options);

} // namespace MirrixCli
