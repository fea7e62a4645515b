#include "ui/results/thumbnailview.h"

#include "app/text.h"
#include "ui/texts/bytetext.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionButton>

namespace Mirrix {

using MirrixCore::FileEntry;

namespace {

constexpr int pictureSide = 128;
constexpr int margin = 8;
constexpr int cacheKiB = 64 * 1024; // some 1,000 thumbnails

} // namespace

ThumbnailView::ThumbnailView(ResultSet &results, const SuffixIcons &icons, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_results(results)
    , m_icons(icons)
    , m_pictures(cacheKiB)
{
    setObjectName(QStringLiteral("DuplicateThumbnails"));
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::DefaultContextMenu);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    connect(&m_loader, &PictureLoader::loaded, this, &ThumbnailView::store);
}

void ThumbnailView::reload()
{
    m_current = {-1, -1};
    m_selected.clear();
    m_pictures.clear();
    m_loader.request({});
    verticalScrollBar()->setValue(0);
    arrange();
}

void ThumbnailView::arrange()
{
    const int line = fontMetrics().height();
    const QSize cell(pictureSide + 2 * margin, pictureSide + line + 3 * margin);
    m_layout.arrange(m_results.groups, viewport()->width(), cell, line + 2 * margin);
    verticalScrollBar()->setRange(0, std::max(0, m_layout.height() - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(cell.height() / 3);
    requestVisible();
    viewport()->update();
}

void ThumbnailView::requestVisible()
{
    if (!isVisible())
        return;
    QList<PictureRequest> requests;
    const QSize bounds = QSize(pictureSide, pictureSide) * devicePixelRatioF();
    for (const FilePlace place : m_layout.filesBetween(offset(), offset() + viewport()->height())) {
        const FileEntry &file = fileAt(place);
        if (!m_pictures.contains(file.path) && isPicture(file.path))
            requests.append({file, bounds});
    }
    m_loader.request(std::move(requests));
}

void ThumbnailView::store(const LoadedPicture &loaded)
{
    auto *picture = new QPixmap(QPixmap::fromImage(loaded.picture.image));
    m_pictures.insert(loaded.file.path, picture, 1 + picture->width() * picture->height() * 4 / 1024);
    viewport()->update();
}

int ThumbnailView::offset() const
{
    return verticalScrollBar()->value();
}

const FileEntry &ThumbnailView::fileAt(FilePlace place) const
{
    return m_results.groups[place.group].files[place.file];
}

QRect ThumbnailView::cellRect(FilePlace place) const
{
    return m_layout.fileRect(place).translated(0, -offset());
}

QRect ThumbnailView::checkRect(FilePlace place) const
{
    const QSize size(style()->pixelMetric(QStyle::PM_IndicatorWidth), style()->pixelMetric(QStyle::PM_IndicatorHeight));
    return {cellRect(place).topLeft() + QPoint(margin, margin), size};
}

void ThumbnailView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const int top = offset() + event->rect().top();
    const int bottom = offset() + event->rect().bottom();
    if (m_layout.groupCount() == 0)
        return;
    for (qsizetype group = m_layout.groupAt(top);
         group < m_layout.groupCount() && m_layout.headingRect(group).top() <= bottom; ++group)
        paintHeading(&painter, group);
    for (const FilePlace place : m_layout.filesBetween(top, bottom))
        paintFile(&painter, place);
}

void ThumbnailView::paintHeading(QPainter *painter, qsizetype group)
{
    const QRect area = m_layout.headingRect(group).translated(0, -offset()).adjusted(margin, 0, -margin, 0);
    const MirrixCore::DuplicateGroup &found = m_results.groups[group];
    QFont bold = font();
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(palette().color(QPalette::Text));
    const QString count = QStringLiteral("%1 / %2").arg(m_results.marks.markedIn(group)).arg(found.files.size());
    const int countWidth = painter->fontMetrics().horizontalAdvance(count) + margin;
    const QString title = Text::tr("分组 #%1  (%2 个文件, 可回收 %3)")
                              .arg(group + 1)
                              .arg(found.files.size())
                              .arg(formatSize(found.wastedBytes));
    painter->drawText(area.adjusted(0, 0, -countWidth, 0), Qt::AlignLeft | Qt::AlignVCenter,
                      painter->fontMetrics().elidedText(title, Qt::ElideRight, area.width() - countWidth));
    painter->drawText(area, Qt::AlignRight | Qt::AlignVCenter, count);
    painter->setPen(palette().color(QPalette::Mid));
    painter->drawLine(area.bottomLeft(), area.bottomRight());
    painter->setFont(font());
}

void ThumbnailView::paintFile(QPainter *painter, FilePlace place)
{
    const QRect cell = cellRect(place);
    const bool isMarked = m_results.marks.isMarked(place.group, place.file);
    const bool isSelected = m_selected.contains(place);
    if (isMarked || isSelected) {
        QColor tint = palette().color(QPalette::Highlight);
        tint.setAlphaF(isSelected ? 0.35f : 0.13f);
        painter->fillRect(cell.adjusted(2, 2, -2, -2), tint);
    }
    const FileEntry &file = fileAt(place);
    paintPicture(painter, {cell.topLeft() + QPoint(margin, margin), QSize(pictureSide, pictureSide)}, file);
    const QRect label(cell.left() + margin, cell.top() + pictureSide + 2 * margin, pictureSide, fontMetrics().height());
    painter->setPen(palette().color(QPalette::Text));
    const QString name = file.path.mid(file.path.lastIndexOf(QLatin1Char('/')) + 1);
    painter->drawText(label, Qt::AlignCenter, fontMetrics().elidedText(name, Qt::ElideMiddle, label.width()));
    QStyleOptionButton check;
    check.initFrom(this);
    check.rect = checkRect(place);
    check.state = QStyle::State_Enabled | (isMarked ? QStyle::State_On : QStyle::State_Off);
    style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &check, painter, this);
    if (place == m_current && hasFocus()) {
        painter->setPen(palette().color(QPalette::Highlight));
        painter->drawRect(cell.adjusted(2, 2, -3, -3));
    }
}

void ThumbnailView::paintPicture(QPainter *painter, const QRect &area, const FileEntry &file)
{
    const QPixmap *picture = m_pictures.object(file.path);
    if (!picture || picture->isNull()) {
        constexpr int inset = pictureSide / 4;
        m_icons.file(file.path).paint(painter, area.adjusted(inset, inset, -inset, -inset));
        return;
    }
    QRect target({}, (QSizeF(picture->size()) / devicePixelRatioF()).toSize().expandedTo({1, 1}));
    target.moveCenter(area.center());
    painter->drawPixmap(target, *picture);
}

void ThumbnailView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    arrange();
}

void ThumbnailView::showEvent(QShowEvent *event)
{
    QAbstractScrollArea::showEvent(event);
    requestVisible();
}

void ThumbnailView::scrollContentsBy(int, int dy)
{
    viewport()->scroll(0, dy);
    requestVisible();
}

void ThumbnailView::select(FilePlace place, bool adds)
{
    if (!adds)
        m_selected.clear();
    if (adds && m_selected.contains(place))
        m_selected.erase(place);
    else
        m_selected.insert(place);
    m_current = place;
    const QRect cell = m_layout.fileRect(place);
    if (cell.top() < offset())
        verticalScrollBar()->setValue(cell.top());
    else if (cell.bottom() >= offset() + viewport()->height())
        verticalScrollBar()->setValue(cell.bottom() + 1 - viewport()->height());
    viewport()->update();
    emit currentChanged(place.group, place.file);
}

void ThumbnailView::toggle(FilePlace place)
{
    m_results.marks.setMarked(place.group, place.file, !m_results.marks.isMarked(place.group, place.file));
    viewport()->update();
    emit markChanged();
}

void ThumbnailView::mousePressEvent(QMouseEvent *event)
{
    const std::optional<FilePlace> place = m_layout.placeAt(event->pos() + QPoint(0, offset()));
    if (!place || place->file < 0)
        return;
    if (event->button() == Qt::LeftButton && checkRect(*place).adjusted(-4, -4, 4, 4).contains(event->pos()))
        toggle(*place);
    else if (event->button() == Qt::LeftButton || !m_selected.contains(*place))
        select(*place, event->modifiers().testFlag(Qt::ControlModifier));
}

void ThumbnailView::contextMenuEvent(QContextMenuEvent *event)
{
    emit customContextMenuRequested(event->pos());
}

void ThumbnailView::moveBy(int columns, int rows)
{
    if (m_layout.groupCount() > 0)
        select(m_current.file < 0 ? FilePlace{0, 0} : m_layout.moved(m_current, columns, rows), false);
}

void ThumbnailView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        emit copyRequested();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
        return moveBy(-1, 0);
    case Qt::Key_Right:
        return moveBy(1, 0);
    case Qt::Key_Up:
        return moveBy(0, -1);
    case Qt::Key_Down:
        return moveBy(0, 1);
    case Qt::Key_Space:
        if (m_current.file >= 0)
            toggle(m_current);
        return;
    case Qt::Key_Delete:
        emit removeRequested();
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void ThumbnailView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrange();
}

} // namespace Mirrix
