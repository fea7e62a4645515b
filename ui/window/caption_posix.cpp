#include "ui/window/caption.h"

namespace Mirrix {

void colourCaption(QWidget &, bool)
{
    // Captions belong to the window manager here.
}

} // namespace Mirrix
