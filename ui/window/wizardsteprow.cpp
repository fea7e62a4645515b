#include "ui/window/wizardsteprow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QStyle>

namespace Mirrix {

WizardStepRow::WizardStepRow(int number, std::function<void()> chosen, QWidget *parent)
    : QFrame(parent)
    , m_number(new QLabel(QString::number(number)))
    , m_title(new QLabel)
    , m_chosen(std::move(chosen))
{
    constexpr int badge = 26;
    m_number->setObjectName(QStringLiteral("WizardStepNum"));
    m_number->setFixedSize(badge, badge);
    m_number->setAlignment(Qt::AlignCenter);
    m_title->setObjectName(QStringLiteral("WizardStepTitle"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(10, 8, 10, 8);
    row->setSpacing(10);
    row->addWidget(m_number);
    row->addWidget(m_title, 1);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    for (QWidget *part :
         {static_cast<QWidget *>(this), static_cast<QWidget *>(m_number), static_cast<QWidget *>(m_title)})
        part->setProperty("activeStep", false);
}

void WizardStepRow::setTitle(const QString &title)
{
    m_title->setText(title);
    setAccessibleName(title);
}

void WizardStepRow::setActiveStep(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    m_number->setProperty("activeStep", active);
    m_title->setProperty("activeStep", active);
    for (QWidget *part :
         {static_cast<QWidget *>(this), static_cast<QWidget *>(m_number), static_cast<QWidget *>(m_title)}) {
        part->style()->unpolish(part);
        part->style()->polish(part);
        part->update();
    }
}

void WizardStepRow::mouseReleaseEvent(QMouseEvent *event)
{
    QFrame::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && isEnabled() && rect().contains(event->position().toPoint()))
        m_chosen();
}

void WizardStepRow::keyPressEvent(QKeyEvent *event)
{
    const bool chooses =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (!chooses || !isEnabled()) {
        QFrame::keyPressEvent(event);
        return;
    }
    m_chosen();
    event->accept();
}

} // namespace Mirrix
