#include "ui/rules/videorulestab.h"

#include "app/text.h"
#include "ui/rules/mediamatchbox.h"
#include "ui/rules/rulecontrols.h"
#include "ui/rules/tagtable.h"
#include "ui/texts/rulenames.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace Mirrix {

VideoRulesTab::VideoRulesTab(QWidget *parent)
    : QWidget(parent)
    , m_box(new MediaMatchBox(QStringLiteral("Video"), this))
    , m_tolerance(new QTimeEdit(m_box))
    , m_tags(new TagTable(videoTagNames, this))
    , m_binding([this] { emit changed(); })
{
    m_tolerance->setObjectName(QStringLiteral("VideoDurationToleranceEdit"));
    m_tolerance->setDisplayFormat(QStringLiteral("HH:mm:ss.zzz"));
    guardWheel(m_tolerance);
    m_box->addTolerance(m_tolerance);
    m_tags->setObjectName(QStringLiteral("VideoTagsBox"));
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(m_box);
    layout->addWidget(m_tags);
    layout->addStretch();

    m_binding.add(m_box->method(), &VideoRules::method);
    m_binding.add(m_box->matchDuration(), &VideoRules::matchDuration);
    m_binding.add(m_tolerance, &VideoRules::durationTolerance);
    m_binding.addPart(m_tags, &VideoRules::tags);
    retranslate();
    setState({});
}

VideoRules VideoRulesTab::state() const
{
    return m_binding.read();
}

void VideoRulesTab::setState(const VideoRules &rules)
{
    {
        const QSignalBlocker quiet(this);
        m_binding.show(rules);
    }
    emit changed();
}

void VideoRulesTab::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void VideoRulesTab::retranslate()
{
    m_box->setTitle(Text::tr("视频匹配配置"));
    m_box->note()->setText(Text::tr("字节采样近似比对，并非逐帧视频指纹。"));
    nameItems(m_box->method(), 3, videoMethodName);
    m_tolerance->setToolTip(Text::tr("时:分:秒.毫秒"));
    m_tags->setTitle(Text::tr("视频文件标签"));
}

} // namespace Mirrix
