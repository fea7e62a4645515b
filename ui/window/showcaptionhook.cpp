#include "ui/window/showcaptionhook.h"

#include "ui/window/caption.h"
#include "ui/window/theme.h"

#include <QEvent>
#include <QWidget>

namespace Mirrix {

bool ShowCaptionHook::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (widget && widget->isWindow())
            colourCaption(*widget, isDarkThemeApplied());
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Mirrix
