#include "ui/locations/advancedbox.h"

#include "app/text.h"
#include "ui/logic/locationtext.h"
#include "ui/prompts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolButton>

namespace Mirrix {

namespace {

QStringList keepRuleTexts()
{
    return {Text::tr("保留最新文件"), Text::tr("保留最旧文件"), Text::tr("保留最上层目录"), Text::tr("保留最深路径")};
}

} // namespace

AdvancedBox::AdvancedBox(Prompts &prompts, QWidget *parent)
    : QGroupBox(parent)
    , m_prompts(prompts)
    , m_keepRuleLabel(new QLabel)
    , m_keepRule(new QComboBox)
    , m_skipHidden(new QCheckBox)
    , m_skipSystemFolders(new QCheckBox)
    , m_backupBeforeDelete(new QCheckBox)
    , m_backupLabel(new QLabel)
    , m_backupFolder(new QLineEdit)
    , m_chooseBackup(new QToolButton)
{
    setObjectName(QStringLiteral("ScanAdvancedOptionsBox"));
    m_keepRule->setObjectName(QStringLiteral("KeepRuleCombo"));
    m_skipHidden->setObjectName(QStringLiteral("SkipHiddenCheck"));
    m_skipSystemFolders->setObjectName(QStringLiteral("SkipSystemCheck"));
    m_backupBeforeDelete->setObjectName(QStringLiteral("AutoBackupCheck"));
    m_backupFolder->setObjectName(QStringLiteral("BackupFolderEdit"));
    m_chooseBackup->setObjectName(QStringLiteral("BackupFolderButton"));
    m_chooseBackup->setText(QStringLiteral("..."));
    m_keepRule->addItems(keepRuleTexts());
    setOptions({});

    auto *backup = new QHBoxLayout;
    backup->setSpacing(8);
    backup->addWidget(m_backupFolder, 1);
    backup->addWidget(m_chooseBackup);
    m_backupLabel->setBuddy(m_backupFolder);
    auto *form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setVerticalSpacing(8);
    form->addRow(m_keepRuleLabel, m_keepRule);
    form->addRow(m_skipHidden);
    form->addRow(m_skipSystemFolders);
    form->addRow(m_backupBeforeDelete);
    form->addRow(m_backupLabel, backup);

    connect(m_keepRule, &QComboBox::currentIndexChanged, this, &AdvancedBox::changed);
    for (const QCheckBox *box : {m_skipHidden, m_skipSystemFolders, m_backupBeforeDelete})
        connect(box, &QCheckBox::toggled, this, &AdvancedBox::changed);
    connect(m_backupFolder, &QLineEdit::textChanged, this, &AdvancedBox::changed);
    connect(m_chooseBackup, &QToolButton::clicked, this, &AdvancedBox::chooseBackupFolder);
    retranslate();
}

AdvancedOptions AdvancedBox::options() const
{
    AdvancedOptions options;
    options.keepRule = m_keepRule->currentIndex();
    options.skipHidden = m_skipHidden->isChecked();
    options.skipSystemFolders = m_skipSystemFolders->isChecked();
    options.backupBeforeDelete = m_backupBeforeDelete->isChecked();
    options.backupFolder = m_backupFolder->text();
    return options;
}

void AdvancedBox::setOptions(const AdvancedOptions &options)
{
    const QSignalBlocker blocker(this);
    const bool isKnown = options.keepRule >= 0 && options.keepRule < m_keepRule->count();
    m_keepRule->setCurrentIndex(isKnown ? options.keepRule : 0);
    m_skipHidden->setChecked(options.skipHidden);
    m_skipSystemFolders->setChecked(options.skipSystemFolders);
    m_backupBeforeDelete->setChecked(options.backupBeforeDelete);
    m_backupFolder->setText(options.backupFolder);
    m_backupFolder->setCursorPosition(0);
}

void AdvancedBox::chooseBackupFolder()
{
    const QString folder = m_prompts.chooseFolder(this, Text::tr("选择备份目录"), m_backupFolder->text());
    if (!folder.isEmpty())
        m_backupFolder->setText(locationPath(folder));
}

void AdvancedBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QGroupBox::changeEvent(event);
}

void AdvancedBox::retranslate()
{
    setTitle(Text::tr("高级选项（保留规则、备份等）"));
    m_keepRuleLabel->setText(Text::tr("保留规则"));
    const QStringList rules = keepRuleTexts();
    for (int rule = 0; rule < rules.size(); ++rule)
        m_keepRule->setItemText(rule, rules[rule]);
    m_skipHidden->setText(Text::tr("跳过隐藏文件"));
    m_skipSystemFolders->setText(Text::tr("排除系统目录"));
    m_backupBeforeDelete->setText(Text::tr("删除前自动备份"));
    m_backupLabel->setText(Text::tr("备份目录"));
    m_chooseBackup->setToolTip(Text::tr("选择备份目录"));
    m_chooseBackup->setAccessibleName(m_chooseBackup->toolTip());
}

} // namespace Mirrix
