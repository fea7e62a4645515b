#pragma once

#include <QStyledItemDelegate>

namespace Mirrix {

/// Draws the rows of the duplicates tree: groups as bold headings, in a warning colour when all their files are ticked;
/// paths with their folder greyed and elided in the middle, so that the file name stands out; ticked rows on a soft
/// tint.
class DuplicateFilesTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace Mirrix
