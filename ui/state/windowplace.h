#pragma once

#include <QList>
#include <QRect>

namespace Mirrix {

/// Where a window of the size `ideal` opens for the first time: in the middle of `screen`, no larger than it. Sizes are
/// without the window's frame, for which room is left.
[[nodiscard]] QRect firstPlace(const QSize &ideal, const QRect &screen);

/// Where a window that was at `earlier` opens again, given the usable areas of the screens there are now: on the one
/// that it covers most, pushed and cut so that all of it can be seen. Empty when it lies on none.
[[nodiscard]] QRect restoredGeometry(const QRect &earlier, const QList<QRect> &screens);

} // namespace Mirrix
