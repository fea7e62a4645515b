#include "ui/results/duplicatefilestreedelegate.h"

#include "resources/colours.h"
#include "ui/models/resultsmodel.h"

#include <QApplication>
#include <QPainter>

namespace Mirrix {

namespace {

QColor warningColor(const QPalette &palette)
{
    return QColor(palette.base().color().lightness() > 127 ? lightColours.warning : darkColours.warning);
}

/// A folder and a file name; the name keeps its room as long as there is any.
void drawPath(QPainter *painter, const QRect &area, const QString &path, const QColor &faint, const QColor &clear)
{
    const qsizetype cut = std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\'))) + 1;
    const QFontMetrics metrics = painter->fontMetrics();
    const QString name = metrics.elidedText(path.mid(cut), Qt::ElideMiddle, area.width());
    const int nameWidth = metrics.horizontalAdvance(name);
    const QString folder = metrics.elidedText(path.left(cut), Qt::ElideMiddle, area.width() - nameWidth);
    const int folderWidth = metrics.horizontalAdvance(folder);
    painter->setPen(faint);
    painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, folder);
    painter->setPen(clear);
    painter->drawText(area.adjusted(folderWidth, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
}

} // namespace

void DuplicateFilesTreeDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const int marked = index.data(ResultsModel::MarkedCountRole).toInt();
    if (!ResultsModel::isChild(index)) {
        option->font.setBold(true);
        option->fontMetrics = QFontMetrics(option->font);
        if (marked > 0 && marked == index.data(ResultsModel::FileCountRole).toInt())
            option->palette.setColor(QPalette::Text, warningColor(option->palette));
    } else if (marked > 0) {
        QColor tint = option->palette.color(QPalette::Highlight);
        tint.setAlphaF(0.13f);
        option->backgroundBrush = tint;
    }
}

void DuplicateFilesTreeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    if (!ResultsModel::isChild(index) || index.column() != ResultsModel::FileColumn) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QString path = row.text;
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    const QRect text = style->subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget);
    row.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    const auto group = row.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const QColor clear = row.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor faint = isSelected ? clear : row.palette.color(group, QPalette::PlaceholderText);
    painter->save();
    painter->setFont(row.font);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &row, row.widget) + 1;
    drawPath(painter, text.adjusted(margin, 0, -margin, 0), path, faint, clear);
    painter->restore();
}

QSize DuplicateFilesTreeDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    constexpr int air = 6;
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), std::max(size.height(), option.fontMetrics.height() + air)};
}

} // namespace Mirrix
