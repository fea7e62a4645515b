#include "ui/locations/folderbrowser.h"

#include "app/text.h"

#include <QAbstractFileIconProvider>
#include <QDir>
#include <QEvent>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QToolButton>
#include <QTreeView>

namespace Mirrix {

/// Gives out icons that were made in the interface thread. The model asks from a thread of its own, in which the style
/// and the shell must not be asked for icons while the interface uses them.
class FolderBrowser::Icons : public QAbstractFileIconProvider
{
public:
    [[nodiscard]] QIcon icon(IconType type) const override { return type == Drive ? m_drive : m_folder; }
    [[nodiscard]] QIcon icon(const QFileInfo &info) const override { return info.isRoot() ? m_drive : m_folder; }
    [[nodiscard]] QString type(const QFileInfo &) const override { return {}; } // in a column that is hidden

private:
    QIcon m_folder = QFileIconProvider().icon(Folder);
    QIcon m_drive = QFileIconProvider().icon(Drive);
};

FolderBrowser::FolderBrowser(QWidget *parent)
    : QWidget(parent)
    , m_icons(std::make_unique<Icons>())
    , m_model(new QFileSystemModel(this))
    , m_tree(new QTreeView)
    , m_title(new QLabel)
    , m_hint(new QLabel)
    , m_arrow(new QToolButton)
{
    buildTree();
    m_title->setObjectName(QStringLiteral("FolderBrowserTitle"));
    m_title->setBuddy(m_tree);
    m_hint->setObjectName(QStringLiteral("FolderBrowserHint"));
    m_hint->setWordWrap(true);
    m_arrow->setObjectName(QStringLiteral("LocationTreeAddButton"));
    m_arrow->setText(QStringLiteral("→"));
    connect(m_arrow, &QToolButton::clicked, this, [this] { emit foldersChosen(selectedFolders()); });

    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(m_title);
    column->addWidget(m_tree, 1);
    column->addWidget(m_hint);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addLayout(column, 1);
    layout->addWidget(m_arrow);
    updateArrow();
    retranslate();
}

FolderBrowser::~FolderBrowser()
{
    delete m_model; // before the icons that its thread uses
}

void FolderBrowser::buildTree()
{
    m_model->setIconProvider(m_icons.get());
    m_model->setFilter(QDir::Drives | QDir::AllDirs | QDir::NoDotAndDotDot);
    // A watched folder could not be ejected or removed, and a folder's own icon is read from inside it.
    m_model->setOption(QFileSystemModel::DontWatchForChanges);
    m_model->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    m_model->setRootPath(QString());
    m_tree->setObjectName(QStringLiteral("FolderTree"));
    m_tree->setModel(m_model);
    m_tree->setHeaderHidden(true);
    for (int column = 1; column < m_model->columnCount(); ++column)
        m_tree->hideColumn(column);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setDragDropMode(QAbstractItemView::DragOnly);
    m_tree->setUniformRowHeights(true);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_tree->header()->setStretchLastSection(false);
    connect(m_tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { updateArrow(); });
}

QStringList FolderBrowser::selectedFolders() const
{
    QStringList folders;
    for (const QModelIndex &index : m_tree->selectionModel()->selectedRows())
        folders.append(m_model->filePath(index));
    return folders;
}

void FolderBrowser::setLocked(bool isLocked)
{
    m_isLocked = isLocked;
    updateArrow();
}

void FolderBrowser::updateArrow()
{
    m_arrow->setEnabled(!m_isLocked && m_tree->selectionModel()->hasSelection());
}

void FolderBrowser::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_wasShown)
        return;
    m_wasShown = true;
    const QModelIndex home = m_model->index(QDir::homePath());
    m_tree->expand(home);
    for (QModelIndex index = home; index.isValid(); index = index.parent())
        m_tree->expand(index);
    m_tree->scrollTo(home);
}

void FolderBrowser::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void FolderBrowser::retranslate()
{
    m_title->setText(Text::tr("可操作文件夹"));
    m_tree->setAccessibleName(m_title->text());
    m_hint->setText(Text::tr("浏览文件夹，用右侧的 → 加入扫描位置；\n也可以从资源管理器把文件夹拖入扫描列表。"));
    m_arrow->setToolTip(Text::tr("将选中的文件夹加入扫描位置"));
    m_arrow->setAccessibleName(m_arrow->toolTip());
}

} // namespace Mirrix
