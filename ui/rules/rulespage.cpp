#include "ui/rules/rulespage.h"

#include "app/text.h"
#include "ui/rules/audiorulestab.h"
#include "ui/rules/filetypesbox.h"
#include "ui/rules/generalrulestab.h"
#include "ui/rules/imagerulestab.h"
#include "ui/rules/rulecontrols.h"
#include "ui/rules/videorulestab.h"
#include "ui/texts/rulenames.h"
#include "ui/window/verticalscrollarea.h"

#include <QCheckBox>
#include <QEvent>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace Mirrix {

RulesPage::RulesPage(QWidget *parent)
    : QWidget(parent)
    , m_tabs(new QTabWidget(this))
    , m_general(new GeneralRulesTab)
    , m_image(new ImageRulesTab)
    , m_audio(new AudioRulesTab)
    , m_video(new VideoRulesTab)
    , m_fileTypes(new FileTypesBox)
    , m_ignoreHardLinks(makeCheck(this, QStringLiteral("IgnoreHardLinksCheck")))
{
    // A tab's index is its search mode.
    m_tabs->setObjectName(QStringLiteral("RulesTabs"));
    addTab(m_general, QStringLiteral("GeneralRulesTab"));
    addTab(m_image, QStringLiteral("ImageRulesTab"));
    addTab(m_audio, QStringLiteral("AudioRulesTab"));
    addTab(m_video, QStringLiteral("VideoRulesTab"));

    auto *splitter = new QSplitter(this);
    splitter->setObjectName(QStringLiteral("RulesSplitter"));
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(12);
    splitter->addWidget(m_tabs);
    splitter->addWidget(makeCommonSide());
    splitter->setStretchFactor(0, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);

    connect(m_tabs, &QTabWidget::currentChanged, this, &RulesPage::changed);
    connect(m_general, &GeneralRulesTab::changed, this, &RulesPage::changed);
    connect(m_image, &ImageRulesTab::changed, this, &RulesPage::changed);
    connect(m_audio, &AudioRulesTab::changed, this, &RulesPage::changed);
    connect(m_video, &VideoRulesTab::changed, this, &RulesPage::changed);
    connect(m_fileTypes, &FileTypesBox::changed, this, &RulesPage::changed);
    connect(m_ignoreHardLinks, &QCheckBox::toggled, this, &RulesPage::changed);
    retranslate();
    setState({});
}

RulesState RulesPage::state() const
{
    RulesState rules;
    rules.mode = m_tabs->currentIndex();
    rules.general = m_general->state();
    rules.image = m_image->state();
    rules.audio = m_audio->state();
    rules.video = m_video->state();
    rules.fileTypes = m_fileTypes->state();
    rules.ignoreHardLinks = m_ignoreHardLinks->isChecked();
    return rules;
}

void RulesPage::setState(const RulesState &rules)
{
    {
        const QSignalBlocker quiet(this);
        m_tabs->setCurrentIndex(rules.mode);
        m_general->setState(rules.general);
        m_image->setState(rules.image);
        m_audio->setState(rules.audio);
        m_video->setState(rules.video);
        m_fileTypes->setState(rules.fileTypes);
        m_ignoreHardLinks->setChecked(rules.ignoreHardLinks);
    }
    emit changed();
}

void RulesPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void RulesPage::addTab(QWidget *tab, const QString &name)
{
    tab->setObjectName(name);
    auto *scroll = new VerticalScrollArea(tab);
    scroll->setObjectName(name + QStringLiteral("Scroll"));
    m_tabs->addTab(scroll, QString());
}

QWidget *RulesPage::makeCommonSide()
{
    m_fileTypes->setObjectName(QStringLiteral("FileTypesBox"));
    auto *side = new QWidget;
    side->setObjectName(QStringLiteral("CommonRulesSide"));
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->setSpacing(12);
    layout->addWidget(m_fileTypes);
    layout->addWidget(m_ignoreHardLinks);
    layout->addStretch();
    auto *scroll = new VerticalScrollArea(side);
    scroll->setObjectName(QStringLiteral("CommonRulesScroll"));
    return scroll;
}

void RulesPage::retranslate()
{
    for (int mode = 0; mode < m_tabs->count(); ++mode)
        m_tabs->setTabText(mode, modeName(mode));
    m_ignoreHardLinks->setText(Text::tr("忽略指向同一文件的硬链接"));
    m_ignoreHardLinks->setToolTip(Text::tr("硬链接只是同一份数据的另一个名称，移除它不会释放空间。"));
}

} // namespace Mirrix
