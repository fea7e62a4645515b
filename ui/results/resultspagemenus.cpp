#include "ui/results/resultspage.h"

#include "app/text.h"
#include "ui/results/resultmenu.h"
#include "ui/results/resultstree.h"
#include "ui/results/thumbnailview.h"
#include "ui/texts/resulttexts.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Mirrix {

void ResultsPage::connectMenus()
{
    connect(m_tree, &QWidget::customContextMenuRequested, this, [this](const QPoint &point) {
        const QModelIndex index = m_tree->indexAt(point);
        const std::optional<qsizetype> group = index.isValid() ? std::optional(m_groups.itemOf(index)) : std::nullopt;
        showDuplicatesMenu(m_tree->viewport()->mapToGlobal(point), group,
                           index.data(ResultsModel::PathRole).toString());
    });
    connect(m_thumbnails, &QWidget::customContextMenuRequested, this, [this](const QPoint &point) {
        const std::vector<FilePlace> files = m_thumbnails->selected();
        const std::optional<qsizetype> group = files.empty() ? std::nullopt : std::optional(files.front().group);
        const QString path = group ? m_results.groups[*group].files[files.front().file].path : QString();
        showDuplicatesMenu(m_thumbnails->viewport()->mapToGlobal(point), group, path);
    });
    connect(m_thumbnails, &ThumbnailView::copyRequested, this, [this] {
        QStringList paths;
        for (const FilePlace place : m_thumbnails->selected())
            paths.append(shownPath(m_results.groups[place.group].files[place.file].path));
        QGuiApplication::clipboard()->setText(paths.join(QLatin1Char('\n')));
    });
    connect(m_folderTree, &QWidget::customContextMenuRequested, this, [this](const QPoint &point) {
        auto *menu = new ResultMenu(m_folderTree);
        menu->addFolderEntries(m_folderTree->indexAt(point).data(ResultsModel::PathRole).toString());
        addExpandEntries(menu, m_folderTree);
        menu->popup(m_folderTree->viewport()->mapToGlobal(point));
    });
    connect(m_remainingTree, &QWidget::customContextMenuRequested, this, [this](const QPoint &point) {
        auto *menu = new ResultMenu(m_remainingTree);
        menu->addFileEntries(m_remainingTree->indexAt(point).data(ResultsModel::PathRole).toString());
        menu->popup(m_remainingTree->viewport()->mapToGlobal(point));
    });
}

void ResultsPage::addExpandEntries(ResultMenu *menu, ResultsTree *tree)
{
    menu->addSeparator();
    menu->addEntry(Text::tr("全部展开"), true, [tree] { tree->expandEverything(); });
    menu->addEntry(Text::tr("全部折叠"), true, [tree] { tree->collapseEverything(); });
}

void ResultsPage::showDuplicatesMenu(const QPoint &place, std::optional<qsizetype> group, const QString &path)
{
    auto *menu = new ResultMenu(this);
    const bool isActive = !m_isScanning && !m_results.groups.isEmpty();
    menu->addFileEntries(path);
    menu->addSeparator();
    menu->addEntry(Text::tr("对比图片 (选 2 个)"), isActive, [this] { emit compareRequested(); });
    menu->addSeparator();
    menu->addEntry(Text::tr("全选本组重复项"), isActive && group.has_value(), [this, group] {
        m_groups.markDuplicatesOf(*group);
        m_thumbnails->viewport()->update();
    });
    menu->addEntry(Text::tr("按规则自动勾选"), isActive, [this] { emit autoSelectRequested(); });
    if (!showsThumbnails())
        addExpandEntries(menu, m_tree);
    menu->popup(place);
}

} // namespace Mirrix
