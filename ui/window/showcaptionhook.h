#pragma once

#include <QObject>

namespace Mirrix {

/// Event filter for the application: every top-level window gets the caption colours of the current theme as it is
/// shown, so that dialogs need no code of their own for it.
class ShowCaptionHook : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace Mirrix
