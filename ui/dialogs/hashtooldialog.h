#pragma once

#include "ui/state/hashrows.h"

#include <QDialog>
#include <QSet>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace Mirrix {

class Prompts;

/// Computes digests of files that the user picks or drops and marks those that are equal.
class HashToolDialog : public QDialog
{
    Q_OBJECT

public:
    /// Keeps a reference to `prompts`.
    explicit HashToolDialog(Prompts &prompts, QWidget *parent = nullptr);

    /// Adds files, and what the folders among `paths` hold, then computes the digests that are missing. Returns when
    /// that is over; does nothing while a computation runs.
    void addPaths(const QStringList &paths);

    /// Computes the digests of all rows, or of those without one, under a progress dialog; returns when that is over.
    /// When it is cancelled, rows not yet done stay as they were.
    void computeRows(bool onlyMissing);

    void done(int result) override;

signals:
    /// Asks the computation that runs to stop.
    void stopRequested();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Task;

    QHBoxLayout *buildControls();
    void buildTable();
    void retranslate();

    void chooseFiles();
    void chooseFolder();
    void clearList();
    void addRows(const QList<MirrixCore::FileEntry> &files);
    [[nodiscard]] QList<Task> pendingTasks(bool onlyMissing) const;
    [[nodiscard]] bool runTasks(QList<Task> &tasks, HashChoice choice);
    void markEqualRows();
    void showMenu(const QPoint &position);
    void copySelected(int column) const;

    Prompts &m_prompts;
    QPushButton *m_addFiles;
    QPushButton *m_addFolder;
    QPushButton *m_recalculate;
    QPushButton *m_clear;
    QLabel *m_algorithmLabel;
    QComboBox *m_algorithm;
    QCheckBox *m_subfolders;
    QTreeWidget *m_table;
    QLabel *m_summary;
    QLabel *m_dropHint;
    QSet<QString> m_paths; ///< of the rows, comparable
    qint64 m_elapsedMs = -1;
    bool m_isBusy = false;
};

} // namespace Mirrix
