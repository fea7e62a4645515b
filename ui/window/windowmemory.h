#pragma once

#include <QJsonObject>

class QWidget;

namespace Mirrix {

/// What a window keeps from run to run: place, size, whether it is maximised, and the positions of those splitters and
/// the widths of those columns in it that have an object name.
///
/// Returns `earlier` updated to the present state; parts of the window that have not been shown keep what they had.
[[nodiscard]] QJsonObject windowMemory(const QWidget &window, const QJsonObject &earlier);

/// Brings a window that is not shown yet to where it was. Without a memory, or when its screen is gone, it opens in the
/// middle of the screen with the size `ideal` or as much of it as there is room.
void restoreWindow(QWidget &window, const QJsonObject &memory, const QSize &ideal);

} // namespace Mirrix
