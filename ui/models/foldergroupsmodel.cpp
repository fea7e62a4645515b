#include "ui/models/foldergroupsmodel.h"

#include "app/text.h"
#include "ui/models/resultsmodel.h"
#include "ui/texts/bytetext.h"
#include "ui/texts/columntitle.h"
#include "ui/texts/resulttexts.h"

#include <algorithm>

namespace Mirrix {

using MirrixCore::FolderEntry;
using MirrixCore::FolderGroup;

namespace {

struct ColumnInfo
{
    QString (*title)();
    Qt::Alignment alignment;
    QString (*groupText)(const FolderGroup &, qsizetype number);
    QString (*folderText)(const FolderEntry &);
    SortKey<FolderGroup> sortKey;
};

QString firstPath(const FolderGroup &group)
{
    return group.folders.isEmpty() ? QString() : group.folders.first().path;
}

const std::array<ColumnInfo, FolderGroupsModel::ColumnCount> columns{{
    {[] { return Text::tr("分组"); },
     Qt::AlignLeft,
     [](const FolderGroup &, qsizetype number) { return Text::tr("文件夹组 #%1").arg(number); },
     [](const FolderEntry &) { return QString(); },
     {[](const FolderGroup &group) { return qint64(group.folders.size()); }, nullptr}},
    {[] { return Text::tr("文件夹路径"); },
     Qt::AlignLeft,
     [](const FolderGroup &, qsizetype) { return QString(); },
     [](const FolderEntry &folder) { return shownPath(folder.path); },
     {nullptr, firstPath}},
    {[] { return Text::tr("文件数"); },
     Qt::AlignRight,
     [](const FolderGroup &group, qsizetype) { return QString::number(group.fileCount); },
     [](const FolderEntry &folder) { return QString::number(folder.fileCount); },
     {[](const FolderGroup &group) { return group.fileCount; }, nullptr}},
    {[] { return Text::tr("大小"); },
     Qt::AlignRight,
     [](const FolderGroup &group, qsizetype) { return formatSize(group.size); },
     [](const FolderEntry &folder) { return formatSize(folder.size); },
     {[](const FolderGroup &group) { return group.size; }, nullptr}},
}};

const ColumnInfo &columnInfo(int column)
{
    return columns[static_cast<size_t>(column)];
}

} // namespace

FolderGroupsModel::FolderGroupsModel(const ResultSet &results, QObject *parent)
    : GroupedModel(ColumnCount, parent)
    , m_results(results)
{}

qsizetype FolderGroupsModel::itemCount() const
{
    return m_results.folderGroups.size();
}

int FolderGroupsModel::childCount(qsizetype item) const
{
    return static_cast<int>(m_results.folderGroups[item].folders.size());
}

QString FolderGroupsModel::title(int column) const
{
    return inTwoLines(columnInfo(column).title());
}

Qt::Alignment FolderGroupsModel::alignment(int column) const
{
    return columnInfo(column).alignment;
}

RowOrder::Sort FolderGroupsModel::sortBy(int column, bool descending) const
{
    return sortOf(m_results.folderGroups, columnInfo(column).sortKey, descending);
}

RowOrder::Filter FolderGroupsModel::filterBy(const QString &words) const
{
    return [groups = m_results.folderGroups, words](qsizetype item) {
        const QList<FolderEntry> &folders = groups[item].folders;
        return std::any_of(folders.begin(), folders.end(), [&words](const FolderEntry &folder) {
            return folder.path.contains(words, Qt::CaseInsensitive);
        });
    };
}

QVariant FolderGroupsModel::itemData(qsizetype item, int column, int role) const
{
    return role == Qt::DisplayRole ? columnInfo(column).groupText(m_results.folderGroups[item], item + 1) : QVariant();
}

QVariant FolderGroupsModel::childData(qsizetype item, int child, int column, int role) const
{
    const FolderEntry &folder = m_results.folderGroups[item].folders[child];
    if (role == ResultsModel::PathRole)
        return folder.path;
    const bool isTip = role == Qt::ToolTipRole && column == PathColumn;
    return role == Qt::DisplayRole || isTip ? columnInfo(column).folderText(folder) : QVariant();
}

} // namespace Mirrix
