#include "ui/window/wizardsidebar.h"

#include "app/text.h"
#include "ui/window/wizardsteprow.h"

#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Mirrix {

namespace {

constexpr int stepCount = 3;
constexpr int iconSize = 64;

QLabel *namedLabel(const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

WizardSidebar::WizardSidebar(QWidget *parent)
    : QFrame(parent)
    , m_badge(namedLabel("BrandBadge"))
    , m_section(namedLabel("WizardSectionTitle"))
    , m_start(new QPushButton)
    , m_stop(new QPushButton)
{
    setObjectName(QStringLiteral("WizardSidebar"));
    setMinimumWidth(190); // the same in short and long languages
    m_start->setObjectName(QStringLiteral("PrimaryButton"));
    m_stop->setObjectName(QStringLiteral("StopButton"));

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(16, 20, 16, 16);
    column->setSpacing(8);
    auto *icon = namedLabel("BrandIcon");
    icon->setPixmap(QIcon(QStringLiteral(":/resources/mirrix-256.png")).pixmap(QSize(iconSize, iconSize)));
    auto *brand = namedLabel("BrandTitle");
    brand->setText(QStringLiteral("Mirrix"));
    for (QLabel *label : {icon, brand, m_badge})
        column->addWidget(label, 0, Qt::AlignHCenter);
    column->addSpacing(12);
    column->addWidget(m_section);
    for (int index = 0; index < stepCount; ++index) {
        m_steps.append(new WizardStepRow(index + 1, [this, index] { emit stepChosen(index); }));
        column->addWidget(m_steps.last());
    }
    column->addStretch();
    column->addWidget(m_start);
    column->addWidget(m_stop);

    connect(m_start, &QPushButton::clicked, this, &WizardSidebar::startRequested);
    connect(m_stop, &QPushButton::clicked, this, &WizardSidebar::stopRequested);
    retranslate();
    setScanning(false);
}

void WizardSidebar::setActiveStep(int index)
{
    for (int step = 0; step < m_steps.size(); ++step)
        m_steps[step]->setActiveStep(step == index);
    if (m_steps[index]->isEnabled())
        m_steps[index]->setFocus();
}

void WizardSidebar::setScanning(bool on)
{
    m_start->setEnabled(!on);
    m_stop->setEnabled(on);
    for (int step = 0; step + 1 < m_steps.size(); ++step)
        m_steps[step]->setEnabled(!on);
}

void WizardSidebar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

void WizardSidebar::retranslate()
{
    m_badge->setText(Text::tr("重复文件清理"));
    m_section->setText(Text::tr("步骤"));
    m_steps[0]->setTitle(Text::tr("选择位置"));
    m_steps[1]->setTitle(Text::tr("匹配规则"));
    m_steps[2]->setTitle(Text::tr("预览清理"));
    m_start->setText(Text::tr("开始扫描"));
    m_start->setToolTip(QStringLiteral("F5"));
    m_stop->setText(Text::tr("停止"));
    m_stop->setToolTip(QStringLiteral("Esc"));
}

} // namespace Mirrix
