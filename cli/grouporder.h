#pragma once

#include "core/model/scanresult.h"

#include <QStringList>

namespace MirrixCli {

/// The names that sortGroups knows; the first one is the order of a scan's result.
[[nodiscard]] QStringList groupOrders();

/// Sorts by "waste" (largest first), "path" (of the first file), "size" (of the largest file, largest first) or
/// "modified" (the latest change, newest first), and equals by the path of the first file. Members keep their order.
void sortGroups(QList<MirrixCore::DuplicateGroup> &groups, const QString &order);

} // namespace MirrixCli
