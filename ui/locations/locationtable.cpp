#include "ui/locations/locationtable.h"

#include "app/text.h"
#include "ui/texts/columntitle.h"
#include "ui/window/emptyhint.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPushButton>
#include <QSignalBlocker>
#include <QUrl>

#include <algorithm>

namespace Mirrix {

namespace {

const QColor offColor(138, 151, 163);
const QColor missingTint(255, 170, 0, 48);

/// Yes and no alone stay as they are in every language.
const QString yes = QStringLiteral("是");
const QString no = QStringLiteral("否");

QString toggleText(LocationTable::Column column, bool isOn)
{
    switch (column) {
    case LocationTable::StatusColumn:
        return isOn ? Text::tr("已包含") : no;
    case LocationTable::ProtectedColumn:
        return isOn ? Text::tr("🔒 已保护") : Text::tr("锁 否");
    case LocationTable::SubfoldersColumn:
        return isOn ? Text::tr("📂 是") : Text::tr("📂 否");
    default:
        return isOn ? yes : no;
    }
}

QStringList columnTitles()
{
    return {Text::tr("文件夹名称"), Text::tr("状态"),     Text::tr("已保护"),
            Text::tr("扫描子目录"), Text::tr("查找重复"), Text::tr("显示其余文件")};
}

QStringList findTexts()
{
    return {Text::tr("🔍 查找重复"), Text::tr("📄 相同文件名"), Text::tr("🗑 空文件")};
}

/// The folders among copied or dragged files, or of a text with one path a line.
QStringList foldersOf(const QMimeData *data)
{
    QStringList paths;
    for (const QUrl &url : data->urls())
        paths.append(url.toLocalFile());
    if (!data->hasUrls())
        paths = data->text().split(u'\n', Qt::SkipEmptyParts);
    QStringList folders;
    for (const QString &path : paths) {
        const QString folder = path.trimmed();
        if (QDir::isAbsolutePath(folder) && QFileInfo(folder).isDir())
            folders.append(folder);
    }
    return folders;
}

} // namespace

LocationTable::LocationTable(QWidget *parent)
    : QTableWidget(0, ColumnTotal, parent)
{
    setObjectName(QStringLiteral("LocationTable"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle);
    setWordWrap(false);
    setShowGrid(false);
    setTabKeyNavigation(false); // Tab moves to the switches and out of the table
    setDragDropMode(DropOnly);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    QHeaderView *header = horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    header->setMinimumSectionSize(fontMetrics().averageCharWidth() * 12);
    header->setHighlightSections(false);
    new EmptyHint(this,
                  [] { return Text::tr("还没有扫描位置。\n点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。"); });
    retranslate();
}

QStringList LocationTable::paths() const
{
    QStringList paths;
    for (const LocationRow &row : m_rows)
        paths.append(row.path);
    return paths;
}

void LocationTable::setRows(const QList<LocationRow> &rows)
{
    m_rows.clear();
    setRowCount(0);
    for (const LocationRow &row : rows)
        append(row);
}

void LocationTable::addFolders(const QStringList &folders)
{
    bool isAnyNew = false;
    for (const QString &folder : folders) {
        LocationRow row;
        row.path = folder;
        isAnyNew = append(row) || isAnyNew;
    }
    if (isAnyNew)
        emit rowsChanged();
}

void LocationTable::removeSelected()
{
    QList<int> selected;
    for (const QModelIndex &index : selectionModel()->selectedRows())
        selected.append(index.row());
    if (selected.isEmpty())
        return;
    std::sort(selected.rbegin(), selected.rend());
    for (int row : selected) {
        m_rows.removeAt(row);
        removeRow(row);
    }
    emit rowsChanged();
}

void LocationTable::clearRows()
{
    if (m_rows.isEmpty())
        return;
    setRows({});
    emit rowsChanged();
}

void LocationTable::setVolumeLabels(const VolumeLabels &labels)
{
    m_labels = labels;
    retranslate();
}

void LocationTable::setMissing(const QSet<QString> &paths)
{
    m_missing = paths;
    retranslate();
}

int LocationTable::indexOf(const QString &path) const
{
    const auto it = std::find_if(m_rows.begin(), m_rows.end(),
                                 [&](const LocationRow &row) { return isSameLocation(row.path, path); });
    return it == m_rows.end() ? -1 : int(it - m_rows.begin());
}

bool LocationTable::append(LocationRow row)
{
    row.path = locationPath(row.path);
    if (row.path.isEmpty() || indexOf(row.path) >= 0)
        return false;
    const int index = rowCount();
    m_rows.append(row);
    insertRow(index);
    setItem(index, NameColumn, new QTableWidgetItem);
    addToggle(index, StatusColumn, &LocationRow::enabled);
    addToggle(index, ProtectedColumn, &LocationRow::isProtected);
    addToggle(index, SubfoldersColumn, &LocationRow::includeSubfolders);
    addFindCombo(index);
    addToggle(index, RemainingColumn, &LocationRow::showRemaining);
    showRow(index);
    return true;
}

void LocationTable::addToggle(int row, Column column, bool LocationRow::*member)
{
    auto *button = new QPushButton;
    button->setObjectName(QStringLiteral("LocationToggle"));
    button->setCheckable(true);
    button->setFlat(true);
    button->setChecked(m_rows[row].*member);
    const QString path = m_rows[row].path; // not the row, which changes when others are removed
    connect(button, &QPushButton::toggled, this, [this, path, member](bool isOn) {
        const int index = indexOf(path);
        m_rows[index].*member = isOn;
        showRow(index);
        emit rowsChanged();
    });
    setCellWidget(row, column, button);
}

void LocationTable::addFindCombo(int row)
{
    auto *combo = new QComboBox;
    combo->setObjectName(QStringLiteral("LocationFindCombo"));
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents); // other languages, other widths
    combo->setMinimumContentsLength(10); // the style takes pictures among letters for narrower than they are
    combo->addItems(findTexts());
    // Values from elsewhere that name no item show, and mean, the first.
    if (m_rows[row].findKind < 1 || m_rows[row].findKind >= combo->count())
        m_rows[row].findKind = 0;
    combo->setCurrentIndex(m_rows[row].findKind);
    const QString path = m_rows[row].path;
    connect(combo, &QComboBox::currentIndexChanged, this, [this, path](int kind) {
        m_rows[indexOf(path)].findKind = kind;
        emit rowsChanged();
    });
    setCellWidget(row, FindColumn, combo);
}

void LocationTable::showRow(int row)
{
    const LocationRow &location = m_rows[row];
    const bool isMissing = m_missing.contains(location.path);
    const QString fullPath = QDir::toNativeSeparators(location.path);
    QTableWidgetItem *name = item(row, NameColumn);
    name->setText(locationName(location.path, m_labels));
    name->setToolTip(isMissing ? Text::tr("%1\n现在找不到这个文件夹。").arg(fullPath) : fullPath);
    name->setForeground(location.enabled ? QBrush() : QBrush(offColor));
    name->setBackground(isMissing ? QBrush(missingTint) : QBrush());
    showToggle(row, StatusColumn, location.enabled);
    showToggle(row, ProtectedColumn, location.isProtected);
    showToggle(row, SubfoldersColumn, location.includeSubfolders);
    showToggle(row, RemainingColumn, location.showRemaining);
    auto *combo = qobject_cast<QComboBox *>(cellWidget(row, FindColumn));
    combo->setAccessibleName(columnTitles()[FindColumn]);
    const QStringList texts = findTexts();
    for (int kind = 0; kind < texts.size(); ++kind)
        combo->setItemText(kind, texts[kind]);
}

void LocationTable::showToggle(int row, Column column, bool isOn)
{
    auto *button = qobject_cast<QPushButton *>(cellWidget(row, column));
    button->setText(toggleText(column, isOn));
    button->setAccessibleName(columnTitles()[column] + QStringLiteral(": ") + button->text());
}

void LocationTable::retranslate()
{
    setAccessibleName(Text::tr("扫描位置"));
    QStringList titles = columnTitles();
    std::transform(titles.begin(), titles.end(), titles.begin(), inTwoLines);
    setHorizontalHeaderLabels(titles);
    horizontalHeaderItem(NameColumn)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int row = 0; row < rowCount(); ++row)
        showRow(row);
}

void LocationTable::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QTableWidget::changeEvent(event);
}

void LocationTable::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Delete))
        removeSelected();
    else if (event->matches(QKeySequence::Paste))
        addFolders(foldersOf(QGuiApplication::clipboard()->mimeData()));
    else
        QTableWidget::keyPressEvent(event);
}

void LocationTable::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void LocationTable::dragMoveEvent(QDragMoveEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void LocationTable::dropEvent(QDropEvent *event)
{
    const QStringList folders = foldersOf(event->mimeData());
    // A move would let the file manager remove its folders after the drop.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    addFolders(folders);
}

} // namespace Mirrix
