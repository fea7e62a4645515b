#include "ui/rules/audiorulestab.h"

#include "app/text.h"
#include "ui/rules/mediamatchbox.h"
#include "ui/rules/rulecontrols.h"
#include "ui/rules/tagtable.h"
#include "ui/texts/rulenames.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace Mirrix {

AudioRulesTab::AudioRulesTab(QWidget *parent)
    : QWidget(parent)
    , m_box(new MediaMatchBox(QStringLiteral("Audio"), this))
    , m_tolerance(makeSpin(m_box, QStringLiteral("AudioDurationToleranceSpin"), 0, 3600000))
    , m_tags(new TagTable(audioTagNames, this))
    , m_binding([this] { emit changed(); })
{
    m_box->addTolerance(m_tolerance);
    m_tags->setObjectName(QStringLiteral("AudioTagsBox"));
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(m_box);
    layout->addWidget(m_tags);
    layout->addStretch();

    m_binding.add(m_box->method(), &AudioRules::method);
    m_binding.add(m_box->matchDuration(), &AudioRules::matchDuration);
    m_binding.add(m_tolerance, &AudioRules::durationToleranceMs);
    m_binding.addPart(m_tags, &AudioRules::tags);
    retranslate();
    setState({});
}

AudioRules AudioRulesTab::state() const
{
    return m_binding.read();
}

void AudioRulesTab::setState(const AudioRules &rules)
{
    {
        const QSignalBlocker quiet(this);
        m_binding.show(rules);
    }
    emit changed();
}

void AudioRulesTab::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void AudioRulesTab::retranslate()
{
    m_box->setTitle(Text::tr("音频文件匹配配置"));
    m_box->note()->setText(Text::tr("音频指纹基于采样，并非 Chromaprint 级别。"));
    nameItems(m_box->method(), 5, audioMethodName);
    m_tolerance->setSuffix(Text::tr(" 毫秒"));
    m_tags->setTitle(Text::tr("音频文件标签"));
}

} // namespace Mirrix
