#pragma once

#include "ui/models/roworder.h"

#include <QAbstractItemModel>

namespace Mirrix {

/// The arithmetic of the result lists: top rows (one per item of a list, by RowOrder) and, below each, child rows in
/// fixed order. No node objects: an index's internal id is the item's number, with the highest bit set below, so
/// children stay valid when the top rows move. (The numbers also spread Qt's hash of persistent indexes, which takes
/// its low bits from the id alone: with one id for all, a tree with a few hundred expanded rows lays out for seconds.)
/// Interface thread only.
class GroupedModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// To call when the list has been replaced, before anything else happens: all rows again, unsorted and unfiltered.
    /// O(1).
    void reload();

    /// To call when the language changed. The rows need no signal: views repaint then anyway.
    void retranslate();

    [[nodiscard]] static bool isChild(const QModelIndex &index) { return (index.internalId() & childBit) != 0; }

    /// The number of the list's item that the row shows or lies below.
    [[nodiscard]] qsizetype itemOf(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex itemIndex(qsizetype item) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Orders the top rows by the column's values; -1 restores the list's order. The rows move later, when a pool
    /// thread has sorted a shared copy of the list; the latest call wins.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    /// Shows only the top rows whose path, or a path below them, holds `words` without regard to case; with empty words
    /// all. Happens later, like a sort; `filtered` follows.
    void setPathFilter(const QString &words);

signals:
    /// Other rows are shown than before, after a reset.
    void filtered();

protected:
    GroupedModel(int columns, QObject *parent);

    virtual qsizetype itemCount() const = 0;
    virtual int childCount(qsizetype item) const = 0;
    virtual QString title(int column) const = 0;
    virtual Qt::Alignment alignment(int column) const = 0;
    virtual QVariant itemData(qsizetype item, int column, int role) const = 0;
    virtual QVariant childData(qsizetype item, int child, int column, int role) const = 0;
    virtual RowOrder::Sort sortBy(int column, bool descending) const = 0;

    /// Admits an item by its paths; called on other threads, so it must own what it reads.
    virtual RowOrder::Filter filterBy(const QString &words) const = 0;

private:
    static constexpr quintptr childBit = quintptr(1) << (8 * sizeof(quintptr) - 1);

    void apply(const Arrangement &arrangement);
    void applyOrder(const Arrangement &arrangement);

    const int m_columns;
    RowOrder m_order;
};

} // namespace Mirrix
