#include "ui/models/resultsmodel.h"

#include "actions/cleaning/cleaningplan.h"
#include "app/text.h"
#include "ui/texts/bytetext.h"
#include "ui/texts/resulttexts.h"

#include <algorithm>

namespace Mirrix {

using MirrixCore::DuplicateGroup;
using MirrixCore::FileEntry;

namespace {

QString firstPath(const DuplicateGroup &group)
{
    return group.files.isEmpty() ? QString() : group.files.first().path;
}

qint64 latestTime(const DuplicateGroup &group)
{
    qint64 latest = 0;
    for (const FileEntry &file : group.files)
        latest = std::max(latest, file.modifiedMs);
    return latest;
}

struct ColumnInfo
{
    QString (*title)();
    Qt::Alignment alignment;
    QString (*fileText)(const FileEntry &);
    SortKey<DuplicateGroup> sortKey;
};

const std::array<ColumnInfo, ResultsModel::ColumnCount> columns{{
    {[] { return Text::tr("选择"); },
     Qt::AlignLeft,
     [](const FileEntry &) { return QString(); },
     {[](const DuplicateGroup &group) { return qint64(group.files.size()); }, nullptr}},
    {[] { return Text::tr("文件 / 分组"); },
     Qt::AlignLeft,
     [](const FileEntry &file) { return shownPath(file.path); },
     {nullptr, firstPath}},
    {[] { return Text::tr("大小"); },
     Qt::AlignRight,
     [](const FileEntry &file) { return formatSize(file.size); },
     {[](const DuplicateGroup &group) { return group.wastedBytes; }, nullptr}},
    {[] { return Text::tr("修改时间"); },
     Qt::AlignLeft,
     [](const FileEntry &file) { return minuteText(file.modifiedMs); },
     {latestTime, nullptr}},
}};

/// The path, and below it where the file lies if that is no ordinary place.
QString pathToolTip(const FileEntry &file)
{
    const QString place = placeText(file.place);
    return place.isEmpty() ? shownPath(file.path) : shownPath(file.path) + QLatin1Char('\n') + place;
}

const ColumnInfo &columnInfo(int column)
{
    return columns[static_cast<size_t>(column)];
}

} // namespace

ResultsModel::ResultsModel(ResultSet &results, const SuffixIcons &icons, QObject *parent)
    : GroupedModel(ColumnCount, parent)
    , m_results(results)
    , m_icons(icons)
{}

void ResultsModel::markDuplicatesOf(qsizetype group)
{
    m_results.marks.markOnly(group, chooseFirstInGroup(m_results.groups[group].files).surplus);
    const QModelIndex top = itemIndex(group);
    emit dataChanged(top, top.siblingAtColumn(ColumnCount - 1), {Qt::DisplayRole, MarkedCountRole});
    if (const int files = rowCount(top); files > 0)
        emit dataChanged(index(0, 0, top), index(files - 1, ColumnCount - 1, top), {Qt::CheckStateRole});
    emit markChanged();
}

Qt::ItemFlags ResultsModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = GroupedModel::flags(index);
    const bool checkable = index.isValid() && isChild(index) && index.column() == SelectColumn;
    return checkable ? flags | Qt::ItemIsUserCheckable : flags;
}

bool ResultsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    m_results.marks.setMarked(itemOf(index), index.row(), value.toInt() == Qt::Checked);
    const QModelIndex top = index.parent();
    emit dataChanged(index, index.siblingAtColumn(ColumnCount - 1), {Qt::CheckStateRole, MarkedCountRole});
    emit dataChanged(top, top.siblingAtColumn(ColumnCount - 1), {Qt::DisplayRole, MarkedCountRole});
    emit markChanged();
    return true;
}

qsizetype ResultsModel::itemCount() const
{
    return m_results.groups.size();
}

int ResultsModel::childCount(qsizetype item) const
{
    return static_cast<int>(m_results.groups[item].files.size());
}

QString ResultsModel::title(int column) const
{
    return columnInfo(column).title();
}

Qt::Alignment ResultsModel::alignment(int column) const
{
    return columnInfo(column).alignment;
}

RowOrder::Sort ResultsModel::sortBy(int column, bool descending) const
{
    return sortOf(m_results.groups, columnInfo(column).sortKey, descending);
}

RowOrder::Filter ResultsModel::filterBy(const QString &words) const
{
    return [groups = m_results.groups, words](qsizetype item) {
        const QList<FileEntry> &files = groups[item].files;
        return std::any_of(files.begin(), files.end(),
                           [&words](const FileEntry &file) { return file.path.contains(words, Qt::CaseInsensitive); });
    };
}

QString ResultsModel::groupText(qsizetype group, int column) const
{
    const DuplicateGroup &found = m_results.groups[group];
    switch (column) {
    case SelectColumn:
        return QStringLiteral("%1 / %2").arg(m_results.marks.markedIn(group)).arg(found.files.size());
    case FileColumn:
        return Text::tr("分组 #%1  (%2 个文件, 可回收 %3)")
            .arg(group + 1)
            .arg(found.files.size())
            .arg(formatSize(found.wastedBytes));
    case SizeColumn:
        return formatSize(found.wastedBytes);
    default:
        return {};
    }
}

QVariant ResultsModel::itemData(qsizetype item, int column, int role) const
{
    const qsizetype files = m_results.groups[item].files.size();
    const qsizetype marked = m_results.marks.markedIn(item);
    switch (role) {
    case Qt::DisplayRole:
        return groupText(item, column);
    case Qt::DecorationRole:
        return column == FileColumn ? QVariant(m_icons.folder()) : QVariant();
    case Qt::ToolTipRole:
        return marked > 0 && marked == files ? Text::tr("本组所有文件均已勾选，处理后将不保留任何副本。") : QString();
    case MarkedCountRole:
        return static_cast<int>(marked);
    case FileCountRole:
        return static_cast<int>(files);
    default:
        return {};
    }
}

QVariant ResultsModel::childData(qsizetype item, int child, int column, int role) const
{
    const FileEntry &file = m_results.groups[item].files[child];
    const bool marked = m_results.marks.isMarked(item, child);
    switch (role) {
    case Qt::DisplayRole:
        return columnInfo(column).fileText(file);
    case Qt::CheckStateRole:
        return column == SelectColumn ? QVariant(marked ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::DecorationRole:
        return column == FileColumn ? QVariant(m_icons.file(file.path)) : QVariant();
    case Qt::ToolTipRole:
        return column == FileColumn ? pathToolTip(file) : QString();
    case Qt::AccessibleTextRole:
        return column == SelectColumn ? shownPath(file.path) : columnInfo(column).fileText(file);
    case PathRole:
        return file.path;
    case MarkedCountRole:
        return marked ? 1 : 0;
    case FileCountRole:
        return childCount(item);
    default:
        return {};
    }
}

} // namespace Mirrix
