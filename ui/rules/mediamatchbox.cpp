#include "ui/rules/mediamatchbox.h"

#include "app/text.h"
#include "ui/rules/rulecontrols.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace Mirrix {

MediaMatchBox::MediaMatchBox(const QString &kind, QWidget *parent)
    : QGroupBox(parent)
    , m_method(makeCombo(this, kind + QStringLiteral("MethodCombo")))
    , m_methodLabel(makeLabelFor(m_method))
    , m_note(makeHint(this))
    , m_matchDuration(makeCheck(this, kind + QStringLiteral("MatchDurationCheck")))
    , m_toleranceLabel(new QLabel(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    addRow(layout, {m_methodLabel, m_method});
    layout->addWidget(m_note);

    m_durationTitle = addSection(layout, this);
    retranslate();
}

void MediaMatchBox::addTolerance(QWidget *tolerance)
{
    m_toleranceLabel->setBuddy(tolerance);
    addRow(static_cast<QVBoxLayout *>(layout()), {m_matchDuration, m_toleranceLabel, tolerance});
    enableWhile(m_matchDuration, {m_toleranceLabel, tolerance});
}

void MediaMatchBox::changeEvent(QEvent *event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void MediaMatchBox::retranslate()
{
    m_methodLabel->setText(Text::tr("匹配方式"));
    m_method->setToolTip(Text::tr("仅按标签匹配时，请至少将一个标签设为「必须匹配」"));
    m_durationTitle->setText(Text::tr("时长"));
    m_matchDuration->setText(Text::tr("匹配时长"));
    m_toleranceLabel->setText(Text::tr("容差"));
}

} // namespace Mirrix
