#include "ui/models/groupedmodel.h"

#include <QDir>

namespace Mirrix {

GroupedModel::GroupedModel(int columns, QObject *parent)
    : QAbstractItemModel(parent)
    , m_columns(columns)
{
    connect(&m_order, &RowOrder::arranged, this, &GroupedModel::apply);
}

void GroupedModel::reload()
{
    beginResetModel();
    m_order.reset(itemCount());
    endResetModel();
}

void GroupedModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, m_columns - 1);
}

qsizetype GroupedModel::itemOf(const QModelIndex &index) const
{
    return static_cast<qsizetype>(index.internalId() & ~childBit);
}

QModelIndex GroupedModel::itemIndex(qsizetype item) const
{
    const int row = m_order.rowOf(item);
    return row < 0 ? QModelIndex() : createIndex(row, 0, quintptr(item));
}

QModelIndex GroupedModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column < 0 || column >= m_columns || row >= rowCount(parent))
        return {};
    const quintptr id = parent.isValid() ? quintptr(itemOf(parent)) | childBit : quintptr(m_order.itemAt(row));
    return createIndex(row, column, id);
}

QModelIndex GroupedModel::parent(const QModelIndex &child) const
{
    return child.isValid() && isChild(child) ? itemIndex(itemOf(child)) : QModelIndex();
}

int GroupedModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return m_order.count();
    return isChild(parent) || parent.column() != 0 ? 0 : childCount(m_order.itemAt(parent.row()));
}

int GroupedModel::columnCount(const QModelIndex &) const
{
    return m_columns;
}

bool GroupedModel::hasChildren(const QModelIndex &parent) const
{
    // Without reading the list: views ask for each of 300,000 rows, and sorted ones lie scattered in memory.
    return parent.isValid() ? !isChild(parent) && parent.column() == 0 : m_order.count() > 0;
}

Qt::ItemFlags GroupedModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return isChild(index) ? common | Qt::ItemNeverHasChildren : common;
}

QVariant GroupedModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignment(index.column()) | Qt::AlignVCenter);
    return isChild(index) ? childData(itemOf(index), index.row(), index.column(), role)
                          : itemData(itemOf(index), index.column(), role);
}

QVariant GroupedModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_columns)
        return {};
    if (role == Qt::DisplayRole)
        return title(section);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignment(section) | Qt::AlignVCenter);
    return {};
}

void GroupedModel::sort(int column, Qt::SortOrder order)
{
    if (column >= 0 && column < m_columns)
        m_order.start(sortBy(column, order == Qt::DescendingOrder));
    else
        m_order.start([] { return Permutation(); });
}

void GroupedModel::setPathFilter(const QString &words)
{
    m_order.setFilter(words.isEmpty() ? RowOrder::Filter() : filterBy(QDir::fromNativeSeparators(words)));
}

void GroupedModel::apply(const Arrangement &arrangement)
{
    if (!m_order.isFiltered() && !arrangement.isFiltered) {
        applyOrder(arrangement);
        return;
    }
    beginResetModel();
    m_order.apply(arrangement);
    endResetModel();
    emit filtered();
}

void GroupedModel::applyOrder(const Arrangement &arrangement)
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QList<qsizetype> numbers;
    numbers.reserve(before.size());
    for (const QModelIndex &index : before)
        numbers.append(itemOf(index));
    m_order.apply(arrangement);
    QModelIndexList after = before;
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (!isChild(before[i]))
            after[i] = itemIndex(numbers[i]).siblingAtColumn(before[i].column());
    }
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

} // namespace Mirrix
