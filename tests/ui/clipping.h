#pragma once

#include <QStringList>

class QWidget;

namespace MirrixTest {

/// What of the visible texts of a window is cut off, and which widgets lie over each other; empty when nothing is. Left
/// out are texts that are shortened on purpose and show the rest in their tool tip: those of views, and widgets with
/// the property "elided".
[[nodiscard]] QStringList clippedTexts(const QWidget &window);

} // namespace MirrixTest
