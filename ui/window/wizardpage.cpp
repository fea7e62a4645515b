#include "ui/window/wizardpage.h"

#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace Mirrix {

namespace {

/// Fills itself with its content, which is scrolled only where there is less room than it needs at the least. (A
/// resizable scroll area would give a content with wrapped texts all the height that it would like to have.)
class PageScroll : public QScrollArea
{
public:
    explicit PageScroll(QWidget *content)
    {
        setObjectName(QStringLiteral("WizardPageScroll"));
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus); // its controls take the focus
        setWidget(content);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            fit();
        return QScrollArea::eventFilter(watched, event);
    }

    void resizeEvent(QResizeEvent *event) override
    {
        QScrollArea::resizeEvent(event);
        fit();
    }

private:
    void fit()
    {
        const QSize least = widget()->minimumSizeHint();
        QSize room = maximumViewportSize();
        if (least.height() > room.height())
            room.rwidth() -= verticalScrollBar()->sizeHint().width();
        if (least.width() > room.width())
            room.rheight() -= horizontalScrollBar()->sizeHint().height();
        widget()->resize(room.expandedTo(least));
    }
};

} // namespace

WizardPage::WizardPage(QWidget *content, QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel)
    , m_hint(new QLabel)
{
    m_title->setObjectName(QStringLiteral("WizardPageTitle"));
    m_title->setWordWrap(true);
    m_hint->setObjectName(QStringLiteral("WizardPageHint"));
    m_hint->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_title);
    column->addWidget(m_hint);
    column->addSpacing(4);
    column->addWidget(new PageScroll(content), 1);
}

void WizardPage::setTexts(const QString &title, const QString &hint)
{
    m_title->setText(title);
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
}

} // namespace Mirrix
