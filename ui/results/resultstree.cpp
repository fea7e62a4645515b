#include "ui/results/resultstree.h"

#include "ui/models/resultsmodel.h"
#include "ui/texts/resulttexts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace Mirrix {

ResultsTree::ResultsTree(QWidget *parent)
    : QTreeView(parent)
{
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideMiddle);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(true);
    header()->setStretchLastSection(false);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    header()->setSortIndicatorShown(true);
    connect(header(), &QHeaderView::sortIndicatorChanged, this, &ResultsTree::sortByHeader);
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &index) {
        if (m_expandsAll && !m_isExpanding)
            m_closed.insert(index);
    });
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex &index) { m_closed.remove(index); });
}

void ResultsTree::setModel(QAbstractItemModel *model)
{
    QTreeView::setModel(model);
    // Queued: the view must have laid the new order out first.
    connect(model, &QAbstractItemModel::layoutChanged, this, &ResultsTree::expandVisibleGroups, Qt::QueuedConnection);
}

void ResultsTree::fitColumns(int stretched, const QStringList &samples)
{
    const int padding = fontMetrics().horizontalAdvance(QStringLiteral("MM"));
    const bool isFitted = std::exchange(m_isFitted, true);
    for (int column = 0; column < samples.size(); ++column) {
        const int text = fontMetrics().horizontalAdvance(samples[column]) + padding;
        const int needed = std::max(header()->sectionSizeHint(column), text);
        header()->setSectionResizeMode(column, column == stretched ? QHeaderView::Stretch : QHeaderView::Interactive);
        header()->resizeSection(column, std::max(needed, isFitted ? header()->sectionSize(column) : 0));
    }
}

void ResultsTree::resetView(int count)
{
    {
        const QSignalBlocker quiet(header());
        header()->setSortIndicator(-1, Qt::AscendingOrder);
    }
    m_expandsAll = false;
    expandAgain(count);
}

void ResultsTree::expandAgain(int count)
{
    m_closed.clear();
    m_opened.clear();
    if (m_expandsAll)
        expandVisibleGroups();
    const int rows = m_expandsAll ? 0 : std::min(count, model()->rowCount());
    for (int row = 0; row < rows; ++row)
        expand(model()->index(row, 0));
}

void ResultsTree::expandEverything()
{
    m_expandsAll = true;
    m_closed.clear();
    m_opened.clear();
    expandVisibleGroups();
}

void ResultsTree::collapseEverything()
{
    m_expandsAll = false;
    m_closed.clear();
    m_opened.clear();
    collapseAll();
}

void ResultsTree::sortByHeader(int column, Qt::SortOrder order)
{
    // Every selected row is followed through the sort, which takes seconds for a million of them.
    constexpr qsizetype followed = 1000;
    qsizetype selected = 0;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        selected += range.height();
    if (selected > followed)
        clearSelection();
    model()->sort(column, order);
}

void ResultsTree::expandVisibleGroups()
{
    const QModelIndex top = m_expandsAll && !m_isExpanding ? indexAt({0, 0}) : QModelIndex();
    if (!top.isValid())
        return;
    const int page = viewport()->height() / std::max(1, rowHeight(top)) + 1;
    const int row = top.parent().isValid() ? top.parent().row() : top.row();
    const int last = std::min(row + page, model()->rowCount() - 1);
    for (int i = std::max(0, row - page); i <= last; ++i) {
        const QModelIndex index = model()->index(i, 0);
        if (!isExpanded(index) && !m_closed.contains(index)) {
            expandOnly(row - 2 * page, row + 2 * page);
            scrollTo(top, PositionAtTop);
            return;
        }
    }
}

void ResultsTree::expandOnly(int first, int last)
{
    const QScopedValueRollback expanding(m_isExpanding, true);
    scheduleDelayedItemsLayout(); // one layout for all of them
    for (const QPersistentModelIndex &index : std::exchange(m_opened, {})) {
        if (index.row() < first || index.row() > last)
            collapse(index);
        else
            m_opened.append(index);
    }
    for (int row = std::max(0, first); row <= std::min(last, model()->rowCount() - 1); ++row) {
        const QModelIndex index = model()->index(row, 0);
        if (isExpanded(index) || m_closed.contains(index))
            continue;
        expand(index);
        m_opened.append(index);
    }
    executeDelayedItemsLayout();
}

void ResultsTree::verticalScrollbarValueChanged(int value)
{
    QTreeView::verticalScrollbarValueChanged(value);
    expandVisibleGroups();
}

void ResultsTree::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    expandVisibleGroups();
}

QStringList ResultsTree::selectedPaths() const
{
    QStringList paths;
    const QModelIndexList rows = selectionModel()->selectedRows();
    for (const QModelIndex &index : rows) {
        if (const QString path = index.data(ResultsModel::PathRole).toString(); !path.isEmpty())
            paths.append(shownPath(path));
    }
    return paths;
}

void ResultsTree::copySelectedPaths() const
{
    if (const QStringList paths = selectedPaths(); !paths.isEmpty())
        QGuiApplication::clipboard()->setText(paths.join(QLatin1Char('\n')));
}

void ResultsTree::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copySelectedPaths();
    else if (event->key() == Qt::Key_Space)
        emit toggleRequested();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit previewRequested();
    else if (event->key() == Qt::Key_Delete)
        emit removeRequested();
    else
        QTreeView::keyPressEvent(event);
}

} // namespace Mirrix
