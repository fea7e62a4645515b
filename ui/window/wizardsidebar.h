#pragma once

#include <QFrame>
#include <QList>

class QLabel;
class QPushButton;

namespace Mirrix {

class WizardStepRow;

/// The left side of the window: brand, the three steps, and the buttons that start and stop a scan.
class WizardSidebar : public QFrame
{
    Q_OBJECT

public:
    explicit WizardSidebar(QWidget *parent = nullptr);

    /// Marks the row of the step being shown and gives it the keyboard focus.
    void setActiveStep(int index);

    /// While scanning only the last step can be chosen, and "Stop" instead of "Start scan".
    void setScanning(bool on);

signals:
    void stepChosen(int index);
    void startRequested();
    void stopRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QLabel *m_badge;
    QLabel *m_section;
    QList<WizardStepRow *> m_steps;
    QPushButton *m_start;
    QPushButton *m_stop;
};

} // namespace Mirrix
