#include "ui/wizardpage.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace Mirrix {

WizardPage::WizardPage(QWidget *content, QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel)
    , m_hint(new QLabel)
{
    m_title->setObjectName(QStringLiteral("WizardPageTitle"));
    m_title->setWordWrap(true);
    m_hint->setObjectName(QStringLiteral("WizardPageHint"));
    m_hint->setWordWrap(true);
    auto *scroll = new QScrollArea; // for windows that are smaller than the page
    scroll->setObjectName(QStringLiteral("WizardPageScroll"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_title);
    column->addWidget(m_hint);
    column->addSpacing(4);
    column->addWidget(scroll, 1);
}

void WizardPage::setTexts(const QString &title, const QString &hint)
{
    m_title->setText(title);
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
}

} // namespace Mirrix
