#pragma once

#include "actions/records/operationslog.h"

#include <QAbstractTableModel>
#include <QList>

namespace Mirrix {

/// The records of the operations log as a table: local time, event, detail.
class LogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        Event,
        Detail,
        ColumnCount
    };

    /// What rows are sorted by: numbers for times, texts otherwise.
    static constexpr int sortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    void setRecords(QList<LogEntry> records);

    /// One line for the clipboard: time, event name as recorded and detail, between tabs.
    [[nodiscard]] QString line(int row) const;

    /// Says that the language has changed.
    void retranslate();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<LogEntry> m_records;
};

/// An event of the log in the user's language; the name as recorded when it is none of ours.
[[nodiscard]] QString eventText(const QString &action);

} // namespace Mirrix
