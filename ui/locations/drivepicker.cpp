#include "ui/locations/drivepicker.h"

#include "app/text.h"
#include "ui/texts/locationtext.h"
#include "ui/window/prompts.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Mirrix {

DrivePicker::DrivePicker(Prompts &prompts, const QList<Drive> &drives, QWidget *parent)
    : QDialog(parent)
    , m_prompts(prompts)
    , m_drives(drives)
    , m_hint(new QLabel)
    , m_list(new QListWidget)
{
    setObjectName(QStringLiteral("DrivePicker"));
    m_hint->setObjectName(QStringLiteral("DrivePickerHint"));
    m_hint->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("DriveList"));
    for (qsizetype i = 0; i < drives.size(); ++i) {
        auto *item = new QListWidgetItem(m_list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    auto *buttons = new QDialogButtonBox;
    m_add = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    m_add->setObjectName(QStringLiteral("DrivePickerAddButton"));
    m_add->setDefault(true);
    m_cancel = buttons->addButton(QString(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &DrivePicker::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &DrivePicker::reject);

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(m_hint);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    m_list->setFocus();
    retranslate();
}

void DrivePicker::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void DrivePicker::retranslate()
{
    setWindowTitle(Text::tr("选择要扫描的磁盘 / 分区"));
    m_hint->setText(
        Text::tr("勾选分区后加入扫描列表（不会立即开始扫描）。\n系统目录仍会默认排除。建议慎选系统盘整盘扫描。"));
    m_list->setAccessibleName(windowTitle());
    for (int row = 0; row < m_list->count(); ++row)
        m_list->item(row)->setText(driveLine(m_drives[row]));
    m_list->setMinimumWidth(m_list->sizeHintForColumn(0) + 4 * m_list->frameWidth());
    m_add->setText(Text::tr("加入扫描列表"));
    m_cancel->setText(Text::tr("取消"));
}

QStringList DrivePicker::checkedRoots() const
{
    QStringList roots;
    for (const Drive &drive : checkedDrives())
        roots.append(drive.root);
    return roots;
}

void DrivePicker::accept()
{
    const QList<Drive> chosen = checkedDrives();
    if (chosen.isEmpty())
        m_prompts.inform(this, Text::tr("提示"), Text::tr("未勾选任何磁盘。"));
    else if (isConfirmed(chosen))
        QDialog::accept();
}

QList<Drive> DrivePicker::checkedDrives() const
{
    QList<Drive> chosen;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->checkState() == Qt::Checked)
            chosen.append(m_drives[row]);
    }
    return chosen;
}

bool DrivePicker::isConfirmed(const QList<Drive> &chosen)
{
    const bool hasSystem = std::any_of(chosen.begin(), chosen.end(), [](const Drive &drive) { return drive.isSystem; });
    if (hasSystem &&
        !m_prompts.ask(this, Text::tr("系统盘确认"),
                       Text::tr("您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。\n是否加入扫描列表？")))
        return false;
    QStringList lines;
    for (const Drive &drive : chosen)
        lines.append(driveLine(drive));
    return m_prompts.ask(this, Text::tr("确认添加"),
                         Text::tr("将 %1 个分区加入扫描列表（不会立即开始扫描）：\n%2")
                             .arg(QString::number(chosen.size()), lines.join(u'\n')));
}

QStringList pickDrives(Prompts &prompts, const QList<Drive> &drives, QWidget *parent)
{
    QList<Drive> scannable;
    std::copy_if(drives.begin(), drives.end(), std::back_inserter(scannable), isScannable);
    if (scannable.isEmpty()) {
        prompts.inform(parent, Text::tr("提示"), Text::tr("未检测到可扫描的磁盘或分区。"));
        return {};
    }
    DrivePicker picker(prompts, scannable, parent);
    return prompts.run(picker) ? picker.checkedRoots() : QStringList();
}

} // namespace Mirrix
