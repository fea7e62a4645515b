#include "ui/models/remainingmodel.h"

#include "app/text.h"
#include "ui/models/resultsmodel.h"
#include "ui/texts/bytetext.h"
#include "ui/texts/resulttexts.h"

namespace Mirrix {

using MirrixCore::FileEntry;

namespace {

struct ColumnInfo
{
    QString (*title)();
    Qt::Alignment alignment;
    QString (*text)(const FileEntry &);
    SortKey<FileEntry> sortKey;
};

const std::array<ColumnInfo, RemainingModel::ColumnCount> columns{{
    {[] { return Text::tr("文件"); },
     Qt::AlignLeft,
     [](const FileEntry &file) { return shownPath(file.path); },
     {nullptr, [](const FileEntry &file) { return file.path; }}},
    {[] { return Text::tr("大小"); },
     Qt::AlignRight,
     [](const FileEntry &file) { return formatSize(file.size); },
     {[](const FileEntry &file) { return file.size; }, nullptr}},
    {[] { return Text::tr("修改时间"); },
     Qt::AlignLeft,
     [](const FileEntry &file) { return minuteText(file.modifiedMs); },
     {[](const FileEntry &file) { return file.modifiedMs; }, nullptr}},
}};

const ColumnInfo &columnInfo(int column)
{
    return columns[static_cast<size_t>(column)];
}

} // namespace

RemainingModel::RemainingModel(const ResultSet &results, const SuffixIcons &icons, QObject *parent)
    : GroupedModel(ColumnCount, parent)
    , m_results(results)
    , m_icons(icons)
{}

bool RemainingModel::hasChildren(const QModelIndex &parent) const
{
    return !parent.isValid() && rowCount() > 0;
}

Qt::ItemFlags RemainingModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

qsizetype RemainingModel::itemCount() const
{
    return m_results.remaining.size();
}

int RemainingModel::childCount(qsizetype) const
{
    return 0;
}

QString RemainingModel::title(int column) const
{
    return columnInfo(column).title();
}

Qt::Alignment RemainingModel::alignment(int column) const
{
    return columnInfo(column).alignment;
}

RowOrder::Sort RemainingModel::sortBy(int column, bool descending) const
{
    return sortOf(m_results.remaining, columnInfo(column).sortKey, descending);
}

RowOrder::Filter RemainingModel::filterBy(const QString &words) const
{
    return [files = m_results.remaining, words](qsizetype item) {
        return files[item].path.contains(words, Qt::CaseInsensitive);
    };
}

QVariant RemainingModel::itemData(qsizetype item, int column, int role) const
{
    const FileEntry &file = m_results.remaining[item];
    switch (role) {
    case Qt::DisplayRole:
        return columnInfo(column).text(file);
    case Qt::DecorationRole:
        return column == FileColumn ? QVariant(m_icons.file(file.path)) : QVariant();
    case Qt::ToolTipRole:
        return column == FileColumn ? shownPath(file.path) : QString();
    case ResultsModel::PathRole:
        return file.path;
    default:
        return {};
    }
}

QVariant RemainingModel::childData(qsizetype, int, int, int) const
{
    return {};
}

} // namespace Mirrix
