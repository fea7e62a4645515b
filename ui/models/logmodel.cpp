#include "ui/models/logmodel.h"

#include "ui/texts/timetext.h"

#include "app/text.h"

#include <QDateTime>
#include <QHash>

namespace Mirrix {

void LogModel::setRecords(QList<LogEntry> records)
{
    beginResetModel();
    m_records = std::move(records);
    endResetModel();
}

QString LogModel::line(int row) const
{
    const LogEntry &record = m_records[row];
    return QStringList{secondText(record.timeMs), record.action, record.detail}.join(QLatin1Char('\t'));
}

void LogModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_records.isEmpty())
        emit dataChanged(index(0, Event), index(rowCount() - 1, Event));
}

int LogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int LogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LogModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const LogEntry &record = m_records[index.row()];
    if (role == sortRole && index.column() == Time)
        return record.timeMs;
    const bool isText = role == Qt::DisplayRole || role == sortRole;
    if (!isText && role != Qt::ToolTipRole)
        return {};
    switch (index.column()) {
    case Time:
        return secondText(record.timeMs);
    case Event:
        return isText ? eventText(record.action) : record.action;
    case Detail:
        return record.detail;
    default:
        return {};
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    switch (section) {
    case Time:
        return Text::tr("时间");
    case Event:
        return Text::tr("操作");
    case Detail:
        return Text::tr("详情");
    default:
        return {};
    }
}

QString eventText(const QString &action)
{
    const QHash<QString, QString> texts = {
        {QStringLiteral("app_start"), Text::tr("程序启动")},
        {QStringLiteral("scan_start"), Text::tr("扫描开始")},
        {QStringLiteral("scan_done"), Text::tr("扫描完成")},
        {QStringLiteral("auto_keep"), Text::tr("按规则勾选")},
        {QStringLiteral("backup_batch"), Text::tr("移动到备份")},
        {QStringLiteral("auto_backup_delete_batch"), Text::tr("备份并移除")},
        {QStringLiteral("remove_batch"), Text::tr("移除文件")},
        {QStringLiteral("export"), Text::tr("导出")},
        {QStringLiteral("export_copy"), Text::tr("导出副本")},
        {QStringLiteral("restore"), Text::tr("备份已恢复")},
        {QStringLiteral("empty_folders"), Text::tr("要移除的空文件夹")},
        {QStringLiteral("empty_folders_removed"), Text::tr("空文件夹已移除")},
        {QStringLiteral("app_quit"), Text::tr("程序退出")},
    };
    return texts.value(action, action);
}

} // namespace Mirrix
