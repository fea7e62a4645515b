#pragma once

#include "core/model/scancontext.h"
#include "core/model/scanresult.h"

namespace MirrixCore {

/// Groups files of equal size whose samples and first `prefixLimitBytes` bytes are equal; below 1, their whole
/// contents. Cancelled: counts without groups. Files that cannot be read are in the result's `unread`.
[[nodiscard]] ScanResult matchSampled(const QList<FileEntry> &files, const ScanContext &context,
                                      qint64 prefixLimitBytes);

} // namespace MirrixCore
