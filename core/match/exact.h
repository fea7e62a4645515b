#pragma once

#include "core/model/scancontext.h"
#include "core/model/scanresult.h"

namespace MirrixCore {

/// Groups files whose whole contents are equal, keyed by their digest. Caches digests where a cache is set and uses
/// those cached. Cancelled: counts without groups. Files that cannot be read are in the result's `unread`.
[[nodiscard]] ScanResult matchExact(const QList<FileEntry> &files, const ScanContext &context);

} // namespace MirrixCore
