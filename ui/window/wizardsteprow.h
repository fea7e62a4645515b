#pragma once

#include <QFrame>

#include <functional>

class QLabel;

namespace Mirrix {

/// One step of the wizard in the sidebar. Its property "activeStep" marks the step being shown, for the style sheet.
class WizardStepRow : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(bool activeStep READ isActiveStep WRITE setActiveStep)

public:
    /// `chosen` is called when the user picks the row with the mouse or the keyboard.
    WizardStepRow(int number, std::function<void()> chosen, QWidget *parent = nullptr);

    void setTitle(const QString &title);

    [[nodiscard]] bool isActiveStep() const { return m_active; }
    void setActiveStep(bool active);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *m_number;
    QLabel *m_title;
    std::function<void()> m_chosen;
    bool m_active = false;
};

} // namespace Mirrix
