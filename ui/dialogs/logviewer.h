#pragma once

#include "actions/records/operationslog.h"

#include <QDialog>
#include <QFutureWatcher>

class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

namespace Mirrix {

class LogModel;

/// Shows the operations log: newest first, sortable by each column, filtered by words; selected rows can be copied.
/// Changes nothing. Reads the log off the interface thread.
class LogViewer : public QDialog
{
    Q_OBJECT

public:
    /// Starts reading the log file at `logPath`.
    explicit LogViewer(const QString &logPath, QWidget *parent = nullptr);

signals:
    /// The log has been read and is shown.
    void loaded();

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildTable();
    void buildLayout();
    void reload();
    void showRecords(const QList<LogEntry> &records);
    void copyRows();
    void updateNote();
    void retranslate();

    QString m_logPath;
    LogModel *m_model;
    QSortFilterProxyModel *m_rows;
    QLineEdit *m_filter;
    QTableView *m_table;
    QLabel *m_note;
    QPushButton *m_copy;
    QPushButton *m_reload;
    QPushButton *m_close;
    QFutureWatcher<QList<LogEntry>> m_reading;
};

} // namespace Mirrix
