#pragma once

#include "ui/state/locationsstate.h"
#include "ui/texts/locationtext.h"

#include <QSet>
#include <QTableWidget>

class QPushButton;

namespace Mirrix {

/// The scan locations, one row each with its own switches. A folder is listed once; folders dropped from a file manager
/// become rows.
class LocationTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        StatusColumn,
        ProtectedColumn,
        SubfoldersColumn,
        FindColumn,
        RemainingColumn,
        ColumnTotal,
    };

    explicit LocationTable(QWidget *parent = nullptr);

    [[nodiscard]] const QList<LocationRow> &rows() const { return m_rows; }
    [[nodiscard]] QStringList paths() const;

    /// Replaces all rows; emits nothing.
    void setRows(const QList<LocationRow> &rows);

    /// Adds rows with the default switches, but for empty paths and those already here.
    void addFolders(const QStringList &folders);

    void removeSelected();
    void clearRows();

    void setVolumeLabels(const VolumeLabels &labels);

    /// The rows with these paths are shown as not found.
    void setMissing(const QSet<QString> &paths);

signals:
    void rowsChanged();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    [[nodiscard]] int indexOf(const QString &path) const;
    bool append(LocationRow row);
    void addToggle(int row, Column column, bool LocationRow::*member);
    void addFindCombo(int row);
    void showRow(int row);
    void showToggle(int row, Column column, bool isOn);
    void retranslate();

    QList<LocationRow> m_rows;
    VolumeLabels m_labels;
    QSet<QString> m_missing;
};

} // namespace Mirrix
