#pragma once

#include "core/model/scanresult.h"

#include <QStringView>

namespace MirrixCore {

/// Sorts the files of each group: names without copy words first, then shorter paths, then by code points; and the
/// groups by wastedBytes, largest first, then by their first paths. The order of a walk depends on the file system, and
/// the first file is the one that keep rules leave in place when they find no difference. The group of empty files
/// stays in list order.
void orderMembers(QList<DuplicateGroup> &groups);

} // namespace MirrixCore
