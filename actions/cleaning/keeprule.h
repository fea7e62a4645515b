#pragma once

#include "core/model/fileentry.h"

#include <QList>

namespace Mirrix {

/// Which file of a group stays; the numbers are those of the settings.
enum class KeepRule : qint32
{
    Newest = 0,
    Oldest = 1,
    Shallowest = 2, ///< fewest folders above it
    Deepest = 3
};

/// The index of the file to keep, the first of equals; -1 for an empty group. An unknown rule keeps the first file.
/// Thread-safe.
[[nodiscard]] qsizetype chooseKeeper(const QList<MirrixCore::FileEntry> &files, KeepRule rule);

} // namespace Mirrix
