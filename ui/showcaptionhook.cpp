#include "ui/showcaptionhook.h"

#include "ui/caption.h"
#include "ui/theme.h"

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
