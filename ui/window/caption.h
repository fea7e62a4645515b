#pragma once

class QWidget;

namespace Mirrix {

/// Gives the caption of a top-level window the colours of a theme where the system lets a program choose them;
/// elsewhere does nothing. Failures are ignored.
void colourCaption(QWidget &window, bool dark);

} // namespace Mirrix
