#include "ui/results/resultspage.h"

#include "app/text.h"
#include "ui/results/batchpanel.h"
#include "ui/results/duplicatefilestreedelegate.h"
#include "ui/results/previewpane.h"
#include "ui/results/resultmenu.h"
#include "ui/results/resultstree.h"
#include "ui/results/scanfooter.h"
#include "ui/results/thumbnailview.h"
#include "ui/texts/resulttexts.h"
#include "ui/window/emptyhint.h"

#include <QComboBox>
#include <QEvent>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>

namespace Mirrix {

namespace {

constexpr int expandedGroups = 20;
constexpr int expandedFolderGroups = 10;

/// The system's icons by suffix, asked with the name of a file that need not exist.
SuffixIcons systemIcons()
{
    const auto fileIcon = [](const QString &suffix) {
        const QFileIconProvider provider;
        const QIcon icon = provider.icon(QFileInfo(QStringLiteral("file.") + suffix));
        return icon.isNull() ? provider.icon(QAbstractFileIconProvider::File) : icon;
    };
    return SuffixIcons(fileIcon, QFileIconProvider().icon(QAbstractFileIconProvider::Folder));
}

} // namespace

ResultsPage::ResultsPage(ResultSet &results, QWidget *parent)
    : QWidget(parent)
    , m_results(results)
    , m_icons(systemIcons())
    , m_groups(results, m_icons)
    , m_folders(results)
    , m_remaining(results, m_icons)
    , m_summary(new QLabel)
    , m_viewLabel(new QLabel)
    , m_view(new QComboBox)
    , m_filter(new QLineEdit)
    , m_tabs(new QTabWidget)
    , m_duplicates(new QStackedWidget)
    , m_tree(new ResultsTree)
    , m_thumbnails(new ThumbnailView(results, m_icons))
    , m_folderTree(new ResultsTree)
    , m_remainingTree(new ResultsTree)
    , m_splitter(new QSplitter)
    , m_preview(new PreviewPane)
    , m_panel(new BatchPanel)
    , m_footer(new ScanFooter)
{
    setUpTrees();
    layOut();
    connectTree();
    connectFilter();
    connectThumbnails();
    connectPanel();
    connectMenus();
    retranslate();
    showResults();
}

ResultsPage::~ResultsPage() = default;

void ResultsPage::setUpTrees()
{
    m_tree->setObjectName(QStringLiteral("DuplicateFilesTree"));
    m_folderTree->setObjectName(QStringLiteral("DuplicateFoldersTree"));
    m_remainingTree->setObjectName(QStringLiteral("RemainingFilesTree"));
    m_tree->setModel(&m_groups);
    m_tree->setItemDelegate(new DuplicateFilesTreeDelegate(m_tree));
    m_folderTree->setModel(&m_folders);
    m_remainingTree->setModel(&m_remaining);
    m_remainingTree->setRootIsDecorated(false);
    const auto hint = [this](const QString &nothingFound) {
        if (!m_filter->text().isEmpty())
            return Text::tr("没有匹配的文件。");
        return m_results.filesScanned > 0 ? nothingFound : Text::tr("扫描后在这里显示结果。");
    };
    new EmptyHint(m_tree, [hint] { return hint(Text::tr("没有找到重复文件。")); });
    new EmptyHint(m_folderTree, [hint] { return hint(Text::tr("没有找到重复文件夹。")); });
    new EmptyHint(m_remainingTree, [hint] {
        return hint(Text::tr("没有列出其余文件。\n要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。"));
    });
}

void ResultsPage::fitColumns()
{
    const QString size = QStringLiteral("1023.99 MB");
    const QString time = QStringLiteral("0000-00-00 00:00");
    const QString folderGroup = QStringLiteral("M ") + Text::tr("文件夹组 #%1").arg(1000);
    m_tree->fitColumns(ResultsModel::FileColumn, {QStringLiteral("MM 00 / 00"), {}, size, time});
    m_folderTree->fitColumns(FolderGroupsModel::PathColumn, {folderGroup, {}, QStringLiteral("000000"), size});
    m_remainingTree->fitColumns(RemainingModel::FileColumn, {{}, size, time});
}

void ResultsPage::layOut()
{
    m_summary->setObjectName(QStringLiteral("SummaryLabel"));
    m_summary->setWordWrap(true);
    m_view->setObjectName(QStringLiteral("ResultsViewCombo"));
    m_view->addItems({QString(), QString()});
    m_viewLabel->setBuddy(m_view);
    m_tabs->setObjectName(QStringLiteral("ResultsTabs"));
    m_splitter->setObjectName(QStringLiteral("ResultsSplitter"));
    m_filter->setObjectName(QStringLiteral("ResultsFilter"));
    m_filter->setClearButtonEnabled(true);
    auto *top = new QHBoxLayout;
    top->addWidget(m_summary, 1);
    top->addWidget(m_viewLabel);
    top->addWidget(m_view);
    m_duplicates->addWidget(m_tree);
    m_duplicates->addWidget(m_thumbnails);
    m_tabs->addTab(m_duplicates, QString());
    m_tabs->addTab(m_folderTree, QString());
    m_tabs->addTab(m_remainingTree, QString());
    auto *side = new QWidget;
    auto *sideLayout = new QVBoxLayout(side);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->setSpacing(12);
    sideLayout->addWidget(m_preview, 1);
    sideLayout->addWidget(m_panel);
    auto *lists = new QWidget;
    auto *listsLayout = new QVBoxLayout(lists);
    listsLayout->setContentsMargins(0, 0, 0, 0);
    listsLayout->setSpacing(8);
    listsLayout->addWidget(m_filter);
    listsLayout->addWidget(m_tabs, 1);
    m_splitter->addWidget(lists);
    m_splitter->addWidget(side);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setHandleWidth(12);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addLayout(top);
    layout->addWidget(m_splitter, 1);
    layout->addWidget(m_footer);
}

void ResultsPage::connectTree()
{
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &ResultsPage::previewFile);
    connect(m_remainingTree->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ResultsPage::previewFile);
    connect(m_folderTree->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &index) {
                if (const QString path = index.data(ResultsModel::PathRole).toString(); !path.isEmpty())
                    m_preview->showFolder(path);
            });
    connect(m_tree, &ResultsTree::toggleRequested, this, &ResultsPage::toggleSelected);
    connect(m_tree, &ResultsTree::removeRequested, this, &ResultsPage::removeRequested);
    connect(m_tree, &ResultsTree::previewRequested, this, &ResultsPage::previewCurrent);
    connect(m_remainingTree, &ResultsTree::previewRequested, this, &ResultsPage::previewCurrent);
    connect(&m_groups, &ResultsModel::markChanged, this, [this] {
        refreshPanel();
        emit markChanged();
    });
}

void ResultsPage::connectFilter()
{
    for (GroupedModel *model : {static_cast<GroupedModel *>(&m_groups), static_cast<GroupedModel *>(&m_folders),
                                static_cast<GroupedModel *>(&m_remaining)})
        connect(m_filter, &QLineEdit::textChanged, model, &GroupedModel::setPathFilter);
    connect(&m_groups, &GroupedModel::filtered, m_tree, [this] { m_tree->expandAgain(expandedGroups); });
    connect(&m_folders, &GroupedModel::filtered, m_folderTree,
            [this] { m_folderTree->expandAgain(expandedFolderGroups); });
}

void ResultsPage::connectThumbnails()
{
    connect(m_view, &QComboBox::currentIndexChanged, this, [this](int view) {
        m_duplicates->setCurrentIndex(view);
        m_filter->setEnabled(!showsThumbnails());
    });
    connect(m_thumbnails, &ThumbnailView::currentChanged, this,
            [this](qsizetype group, qsizetype file) { m_preview->showFile(m_results.groups[group].files[file]); });
    connect(m_thumbnails, &ThumbnailView::markChanged, this, [this] {
        marksReplaced();
        emit markChanged();
    });
    connect(m_thumbnails, &ThumbnailView::removeRequested, this, &ResultsPage::removeRequested);
}

void ResultsPage::connectPanel()
{
    connect(m_tabs, &QTabWidget::currentChanged, this, &ResultsPage::refreshPanel);
    connect(m_panel, &BatchPanel::autoSelectRequested, this, &ResultsPage::autoSelectRequested);
    connect(m_panel, &BatchPanel::selectAllRequested, this, &ResultsPage::selectAllRequested);
    connect(m_panel, &BatchPanel::invertRequested, this, &ResultsPage::invertRequested);
    connect(m_panel, &BatchPanel::clearRequested, this, &ResultsPage::clearRequested);
    connect(m_panel, &BatchPanel::backupRequested, this, &ResultsPage::backupRequested);
    connect(m_panel, &BatchPanel::removeRequested, this, &ResultsPage::removeRequested);
    connect(m_panel, &BatchPanel::exportRequested, this, &ResultsPage::exportRequested);
    connect(m_panel, &BatchPanel::backupBeforeDeleteChanged, this, &ResultsPage::backupBeforeDeleteChanged);
}

void ResultsPage::showResults()
{
    m_filter->clear();
    m_groups.reload();
    m_folders.reload();
    m_remaining.reload();
    m_thumbnails->reload();
    m_tree->resetView(expandedGroups);
    m_folderTree->resetView(expandedFolderGroups);
    m_remainingTree->resetView(0);
    m_preview->clear();
    refreshPanel();
}

void ResultsPage::clearResults()
{
    showResults();
    setProgress(0);
}

void ResultsPage::setScanning(bool isScanning)
{
    m_isScanning = isScanning;
    refreshPanel();
}

void ResultsPage::setSummary(const QString &text)
{
    m_summaryText = text;
    m_summary->setText(text);
}

void ResultsPage::setProgress(int percent)
{
    m_footer->setProgress(percent);
}

void ResultsPage::setStatusText(const QString &text)
{
    constexpr int enough = 80;
    constexpr int margin = 16;
    constexpr int least = 160;
    m_statusText = text;
    const int width = m_tabs->width() >= enough ? m_tabs->width() : m_splitter->widget(0)->width();
    m_footer->setStatusText(text, std::max(width - margin, least));
}

void ResultsPage::marksReplaced()
{
    m_tree->viewport()->update();
    m_thumbnails->viewport()->update();
    refreshPanel();
}

bool ResultsPage::showsThumbnails() const
{
    return m_duplicates->currentWidget() == m_thumbnails;
}

QList<QPair<qsizetype, qsizetype>> ResultsPage::selectedFiles() const
{
    QList<QPair<qsizetype, qsizetype>> files;
    if (showsThumbnails()) {
        for (const FilePlace place : m_thumbnails->selected())
            files.append({place.group, place.file});
        return files;
    }
    const QModelIndexList rows = m_tree->selectionModel()->selectedRows();
    for (const QModelIndex &index : rows) {
        if (GroupedModel::isChild(index))
            files.append({m_groups.itemOf(index), index.row()});
    }
    return files;
}

bool ResultsPage::backupBeforeDelete() const
{
    return m_panel->backupBeforeDelete();
}

void ResultsPage::setBackupBeforeDelete(bool on)
{
    m_panel->setBackupBeforeDelete(on);
}

void ResultsPage::setPictureReader(const PictureReader &reader)
{
    m_preview->loader().setPictureReader(reader);
    m_thumbnails->loader().setPictureReader(reader);
}

void ResultsPage::setFactsReader(const FactsReader &reader)
{
    m_preview->loader().setFactsReader(reader);
}

void ResultsPage::refreshPanel()
{
    const BatchState state{static_cast<ResultsTab>(m_tabs->currentIndex()), m_isScanning, !m_results.groups.isEmpty(),
                           m_results.marks.markedInAll()};
    m_panel->setState(state, state.hasGroups || !m_results.folderGroups.isEmpty() || !m_results.remaining.isEmpty());
}

void ResultsPage::previewFile(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    if (index.model() == &m_remaining)
        m_preview->showFile(m_results.remaining[m_remaining.itemOf(index)]);
    else if (GroupedModel::isChild(index))
        m_preview->showFile(m_results.groups[m_groups.itemOf(index)].files[index.row()]);
}

void ResultsPage::previewCurrent()
{
    const ResultsTree *tree = m_tabs->currentWidget() == m_remainingTree ? m_remainingTree : m_tree;
    previewFile(tree->currentIndex());
}

void ResultsPage::toggleSelected()
{
    const QModelIndex current = m_tree->currentIndex().siblingAtColumn(ResultsModel::SelectColumn);
    if (!current.isValid() || !GroupedModel::isChild(current))
        return;
    const bool isMarked = m_results.marks.isMarked(m_groups.itemOf(current), current.row());
    QModelIndexList rows = m_tree->selectionModel()->selectedRows();
    if (rows.size() < 2) {
        m_groups.setData(current, isMarked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return;
    }
    for (const QModelIndex &row : rows) {
        if (GroupedModel::isChild(row))
            m_results.marks.setMarked(m_groups.itemOf(row), row.row(), !isMarked);
    }
    marksReplaced();
    emit markChanged();
}

void ResultsPage::retranslate()
{
    m_summary->setText(m_summaryText.value_or(Text::tr("尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。")));
    m_viewLabel->setText(Text::tr("视图："));
    m_filter->setPlaceholderText(Text::tr("按路径筛选"));
    m_filter->setAccessibleName(m_filter->placeholderText());
    m_filter->setToolTip(Text::tr("筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。"));
    m_view->setItemText(0, Text::tr("列表"));
    m_view->setItemText(1, Text::tr("缩略图"));
    m_tabs->setTabText(0, Text::tr("重复文件"));
    m_tabs->setTabText(1, Text::tr("重复文件夹"));
    m_tabs->setTabText(2, Text::tr("其余 / 唯一文件"));
    m_tree->setAccessibleName(m_tabs->tabText(0));
    m_thumbnails->setAccessibleName(m_tabs->tabText(0));
    m_folderTree->setAccessibleName(m_tabs->tabText(1));
    m_remainingTree->setAccessibleName(m_tabs->tabText(2));
    if (!m_statusText)
        m_footer->setStatusText(Text::tr("就绪"), width());
    m_groups.retranslate();
    m_folders.retranslate();
    m_remaining.retranslate();
    fitColumns();
}

void ResultsPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void ResultsPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_statusText)
        setStatusText(QString(*m_statusText));
}

} // namespace Mirrix
