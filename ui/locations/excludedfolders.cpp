#include "ui/locations/excludedfolders.h"

#include "app/text.h"
#include "ui/texts/locationtext.h"
#include "ui/window/prompts.h"

#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>

namespace Mirrix {

ExcludedFolders::ExcludedFolders(Prompts &prompts, QWidget *parent)
    : QWidget(parent)
    , m_prompts(prompts)
    , m_title(new QLabel)
    , m_list(new QListWidget)
    , m_add(new QPushButton)
    , m_remove(new QPushButton)
{
    m_title->setObjectName(QStringLiteral("ExcludedFoldersTitle"));
    m_title->setBuddy(m_list);
    m_list->setObjectName(QStringLiteral("ExcludedFoldersList"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_add->setObjectName(QStringLiteral("ExcludeAddButton"));
    m_remove->setObjectName(QStringLiteral("ExcludeRemoveButton"));
    m_remove->setEnabled(false);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_title);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);

    connect(m_add, &QPushButton::clicked, this, &ExcludedFolders::chooseFolder);
    connect(m_remove, &QPushButton::clicked, this, &ExcludedFolders::removeSelected);
    connect(m_list, &QListWidget::itemSelectionChanged, this,
            [this] { m_remove->setEnabled(!m_list->selectedItems().isEmpty()); });
    retranslate();
}

QStringList ExcludedFolders::folders() const
{
    QStringList folders;
    for (int row = 0; row < m_list->count(); ++row)
        folders.append(m_list->item(row)->text());
    return folders;
}

void ExcludedFolders::setFolders(const QStringList &folders)
{
    m_list->clear();
    for (const QString &folder : folders)
        append(folder);
}

void ExcludedFolders::chooseFolder()
{
    if (append(m_prompts.chooseFolder(this, Text::tr("选择要排除的文件夹"), QDir::homePath())))
        emit changed();
}

void ExcludedFolders::removeSelected()
{
    qDeleteAll(m_list->selectedItems());
    emit changed();
}

bool ExcludedFolders::append(const QString &folder)
{
    const QString path = locationPath(folder);
    const QStringList present = folders();
    const bool isPresent =
        std::any_of(present.begin(), present.end(), [&](const QString &other) { return isSameLocation(other, path); });
    if (path.isEmpty() || isPresent)
        return false;
    auto *item = new QListWidgetItem(path, m_list);
    item->setToolTip(QDir::toNativeSeparators(path));
    return true;
}

void ExcludedFolders::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void ExcludedFolders::retranslate()
{
    m_title->setText(Text::tr("排除目录"));
    m_list->setAccessibleName(m_title->text());
    m_add->setText(Text::tr("+ 排除"));
    m_remove->setText(Text::tr("移除"));
    m_add->setToolTip(Text::tr("选择一个扫描时不进入的文件夹"));
    m_remove->setToolTip(Text::tr("从排除目录中移除选中的文件夹"));
}

} // namespace Mirrix
