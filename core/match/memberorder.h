#pragma once

#include "core/scan/scanresult.h"

#include <QStringView>

namespace MirrixCore {

/// Orders paths by their code points, the same on every system. Negative, 0 or positive as `a` comes before, with or
/// after `b`.
[[nodiscard]] int compareCodePoints(QStringView a, QStringView b);

/// Sorts the files of each group: names without copy words first, then shorter paths, then by code points; and the
/// groups by wastedBytes, largest first, then by their first paths. The order of a walk is the file system's whim, and
/// the first file is the one that keep rules leave in place when they find no difference. The group of empty files
/// stays in list order.
void orderMembers(QList<DuplicateGroup> &groups);

} // namespace MirrixCore
