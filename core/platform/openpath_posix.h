#pragma once

#include <QByteArray>

namespace MirrixCore {

/// As open(2) with the usual permissions for new files, and for paths longer than the system takes in one call as well,
/// piece by piece. -1 with errno set on failure. Thread-safe.
[[nodiscard]] int openPath(const QByteArray &path, int flags);

} // namespace MirrixCore
