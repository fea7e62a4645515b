#include "ui/locations/advancedbox.h"

#include "actions/records/backupindex.h"
#include "app/text.h"
#include "ui/state/runinbackground.h"
#include "ui/texts/bytetext.h"
#include "ui/texts/locationtext.h"
#include "ui/window/prompts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace Mirrix {

namespace {

QStringList keepRuleTexts()
{
    return {Text::tr("保留最新文件"), Text::tr("保留最旧文件"), Text::tr("保留最上层目录"), Text::tr("保留最深路径")};
}

/// The sizes of the files that a backup folder lists and holds.
qint64 heldBytes(const QString &folder)
{
    qint64 sum = 0;
    for (const BackupEntry &entry : restorableEntries(folder))
        sum += std::max<qint64>(entry.sizeBytes, 0);
    return sum;
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
    , m_heldLabel(new QLabel)
    , m_history(new QPushButton)
    , m_typing(new QTimer(this))
{
    constexpr int typingMs = 400;
    setObjectName(QStringLiteral("ScanAdvancedOptionsBox"));
    m_keepRule->setObjectName(QStringLiteral("KeepRuleCombo"));
    m_skipHidden->setObjectName(QStringLiteral("SkipHiddenCheck"));
    m_skipSystemFolders->setObjectName(QStringLiteral("SkipSystemCheck"));
    m_backupBeforeDelete->setObjectName(QStringLiteral("AutoBackupCheck"));
    m_backupFolder->setObjectName(QStringLiteral("BackupFolderEdit"));
    m_chooseBackup->setObjectName(QStringLiteral("BackupFolderButton"));
    m_chooseBackup->setText(QStringLiteral("..."));
    m_heldLabel->setObjectName(QStringLiteral("HeldBackupsLabel"));
    m_history->setObjectName(QStringLiteral("OpenHistoryButton"));
    m_typing->setSingleShot(true);
    m_typing->setInterval(typingMs);
    m_keepRule->addItems(keepRuleTexts());
    setOptions({});

    auto *backup = new QHBoxLayout;
    backup->setSpacing(8);
    backup->addWidget(m_backupFolder, 1);
    backup->addWidget(m_chooseBackup);
    auto *held = new QHBoxLayout;
    held->setSpacing(8);
    held->addWidget(m_heldLabel, 1);
    held->addWidget(m_history);
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
    form->addRow(held);

    connect(m_keepRule, &QComboBox::currentIndexChanged, this, &AdvancedBox::changed);
    for (const QCheckBox *box : {m_skipHidden, m_skipSystemFolders, m_backupBeforeDelete})
        connect(box, &QCheckBox::toggled, this, &AdvancedBox::changed);
    connect(m_backupFolder, &QLineEdit::textChanged, this, &AdvancedBox::changed);
    connect(m_backupFolder, &QLineEdit::textChanged, m_typing, qOverload<>(&QTimer::start));
    connect(m_typing, &QTimer::timeout, this, &AdvancedBox::refreshHeld);
    connect(m_history, &QPushButton::clicked, this, &AdvancedBox::historyRequested);
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

void AdvancedBox::refreshHeld()
{
    runInBackground(
        this, [folder = m_backupFolder->text()] { return std::pair(folder, heldBytes(folder)); },
        [this](const std::pair<QString, qint64> &held) {
            if (held.first != m_backupFolder->text())
                return;
            m_heldBytes = held.second;
            retranslate();
        });
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
    m_heldLabel->setText(Text::tr("备份中保留：%1").arg(formatSize(m_heldBytes)));
    m_history->setText(Text::tr("清理历史"));
    m_chooseBackup->setToolTip(Text::tr("选择备份目录"));
    m_chooseBackup->setAccessibleName(m_chooseBackup->toolTip());
}

} // namespace Mirrix
