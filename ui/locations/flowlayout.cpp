#include "ui/locations/flowlayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace Mirrix {

FlowLayout::FlowLayout(QWidget *parent)
    : QLayout(parent)
{}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.emplace_back(item);
}

int FlowLayout::count() const
{
    return int(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[size_t(index)].get() : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    if (!itemAt(index))
        return nullptr;
    QLayoutItem *item = m_items[size_t(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const auto &item : m_items)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), false);
}

void FlowLayout::setGeometry(const QRect &area)
{
    QLayout::setGeometry(area);
    arrange(area, true);
}

int FlowLayout::arrange(const QRect &area, bool isPlacing) const
{
    const QMargins margins = contentsMargins();
    const QRect inner = area.marginsRemoved(margins);
    const bool isMirrored = parentWidget() && parentWidget()->isRightToLeft();
    const Qt::LayoutDirection direction = isMirrored ? Qt::RightToLeft : Qt::LeftToRight;
    QPoint next = inner.topLeft();
    int lineHeight = 0;
    for (const auto &item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (next.x() > inner.left() && next.x() + size.width() > inner.right() + 1) {
            next = QPoint(inner.left(), next.y() + lineHeight + spacing());
            lineHeight = 0;
        }
        if (isPlacing)
            item->setGeometry(QStyle::visualRect(direction, inner, QRect(next, size)));
        next.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return next.y() + lineHeight - area.top() + margins.bottom();
}

} // namespace Mirrix
