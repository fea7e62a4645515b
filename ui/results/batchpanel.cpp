#include "ui/results/batchpanel.h"

#include "app/text.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace Mirrix {

namespace {

QPushButton *button(const char16_t *name)
{
    auto *made = new QPushButton;
    made->setObjectName(QString::fromUtf16(name));
    return made;
}

} // namespace

BatchPanel::BatchPanel(QWidget *parent)
    : QGroupBox(parent)
    , m_autoSelect(button(u"AutoSelectButton"))
    , m_selectAll(button(u"SelectAllButton"))
    , m_invert(button(u"InvertButton"))
    , m_moveToBackup(button(u"MoveToBackupButton"))
    , m_remove(button(u"DeleteSelectedButton"))
    , m_export(button(u"ExportButton"))
    , m_clear(button(u"ClearResultsButton"))
    , m_backupFirst(new QCheckBox)
    , m_note(new QLabel)
{
    setObjectName(QStringLiteral("BatchPanel"));
    m_backupFirst->setObjectName(QStringLiteral("AutoBackupCheck"));
    m_note->setObjectName(QStringLiteral("BatchNoteLabel"));
    m_note->setWordWrap(true);
    auto *layout = new QGridLayout(this);
    layout->setSpacing(8);
    layout->addWidget(m_note, 0, 0, 1, 2);
    layout->addWidget(m_autoSelect, 1, 0, 1, 2);
    layout->addWidget(m_selectAll, 2, 0);
    layout->addWidget(m_invert, 2, 1);
    layout->addWidget(m_backupFirst, 3, 0, 1, 2);
    layout->addWidget(m_moveToBackup, 4, 0);
    layout->addWidget(m_remove, 4, 1);
    layout->addWidget(m_export, 5, 0);
    layout->addWidget(m_clear, 5, 1);
    connect(m_autoSelect, &QPushButton::clicked, this, &BatchPanel::autoSelectRequested);
    connect(m_selectAll, &QPushButton::clicked, this, &BatchPanel::selectAllRequested);
    connect(m_invert, &QPushButton::clicked, this, &BatchPanel::invertRequested);
    connect(m_moveToBackup, &QPushButton::clicked, this, &BatchPanel::backupRequested);
    connect(m_remove, &QPushButton::clicked, this, &BatchPanel::removeRequested);
    connect(m_export, &QPushButton::clicked, this, &BatchPanel::exportRequested);
    connect(m_clear, &QPushButton::clicked, this, &BatchPanel::clearRequested);
    connect(m_backupFirst, &QCheckBox::toggled, this, &BatchPanel::backupBeforeDeleteChanged);
    setState({}, false);
    retranslate();
}

void BatchPanel::setState(const BatchState &state, bool hasResults)
{
    m_state = state;
    for (QPushButton *action : {m_autoSelect, m_selectAll, m_invert, m_moveToBackup, m_remove, m_export})
        action->setEnabled(state.isActive());
    m_backupFirst->setEnabled(!state.isScanning);
    m_clear->setEnabled(hasResults && !state.isScanning);
    m_note->setText(batchNote(m_state));
}

bool BatchPanel::backupBeforeDelete() const
{
    return m_backupFirst->isChecked();
}

void BatchPanel::setBackupBeforeDelete(bool on)
{
    m_backupFirst->setChecked(on);
}

void BatchPanel::retranslate()
{
    setTitle(Text::tr("批量操作"));
    m_autoSelect->setText(Text::tr("按规则自动勾选"));
    m_selectAll->setText(Text::tr("全选重复项"));
    m_invert->setText(Text::tr("反选"));
    m_clear->setText(Text::tr("清空结果"));
    m_moveToBackup->setText(Text::tr("移动到备份文件夹"));
    m_remove->setText(Text::tr("删除所选"));
    m_export->setText(Text::tr("导出…"));
    m_backupFirst->setText(Text::tr("删除前自动备份"));
    m_backupFirst->setToolTip(
        Text::tr("决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除"));
    m_note->setText(batchNote(m_state));
}

void BatchPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QGroupBox::changeEvent(event);
}

} // namespace Mirrix
