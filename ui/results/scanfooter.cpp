#include "ui/results/scanfooter.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace Mirrix {

ScanFooter::ScanFooter(QWidget *parent)
    : QWidget(parent)
    , m_bar(new QProgressBar)
    , m_status(new QLabel)
{
    setObjectName(QStringLiteral("ScanProgressFooter"));
    m_bar->setObjectName(QStringLiteral("ScanProgressBar"));
    m_bar->setRange(0, 100);
    m_bar->setValue(0);
    m_status->setObjectName(QStringLiteral("StatusLabel"));
    m_status->setProperty("elided", true);
    m_status->setTextFormat(Qt::PlainText);
    m_status->setMinimumWidth(1); // a long text must not widen the window
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_bar);
    layout->addWidget(m_status);
}

void ScanFooter::setProgress(int percent)
{
    m_bar->setValue(std::clamp(percent, 0, 100));
}

void ScanFooter::setStatusText(const QString &text, int width)
{
    m_status->setToolTip(text);
    m_status->setText(m_status->fontMetrics().elidedText(text, Qt::ElideMiddle, width));
}

QString ScanFooter::statusText() const
{
    return m_status->toolTip();
}

} // namespace Mirrix
