#pragma once

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace Mirrix {

/// Scrolls up and down only: never narrower than its content.
class VerticalScrollArea : public QScrollArea
{
public:
    explicit VerticalScrollArea(QWidget *content)
    {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus); // its controls take the focus
        setWidget(content);
    }

    QSize minimumSizeHint() const override
    {
        const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
        return {width, QScrollArea::minimumSizeHint().height()};
    }

    QSize sizeHint() const override { return QScrollArea::sizeHint().expandedTo(minimumSizeHint()); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }
};

} // namespace Mirrix
