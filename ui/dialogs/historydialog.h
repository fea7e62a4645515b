#pragma once

#include "ui/dialogs/historycommands.h"

#include <QDialog>

#include <atomic>
#include <memory>

class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTimer;
class QTreeView;

namespace Mirrix {

class HistoryModel;

/// Lists the recorded cleaning runs, latest first, each with its files, and lets the user undo them, empty their
/// backups and remove their records. Journals are read off the interface thread, the files of a run when it is opened.
class HistoryDialog : public QDialog
{
    Q_OBJECT

public:
    /// Starts reading. Keeps references to everything; changes one setting, for how long records are kept.
    HistoryDialog(Settings &settings, Prompts &prompts, OperationsLog &log, QWidget *parent = nullptr);
    ~HistoryDialog() override;

    /// Opens this run as soon as the runs are known.
    void showRun(const QString &runId);

signals:
    /// The runs have been read and are shown.
    void loaded();

    /// The files of a run have been read and are shown.
    void filesLoaded();

    /// What the filter finds is shown.
    void filtered();

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildTree();
    void buildLayout();
    void connectParts();
    void reload();
    void showRuns(const QList<RunSummary> &runs);
    void readFiles(const QString &runId);
    void search();
    void updateControls();
    void openMenu(const QPoint &place);
    void copyPaths();
    void undoSelected();
    void removeOlder();
    void afterCommand(bool hasChanged);
    [[nodiscard]] const RunSummary *currentRun() const;
    [[nodiscard]] QList<qsizetype> selectedItems() const;
    void fitColumns();
    void retranslate();

    Settings &m_settings;
    HistoryCommands m_commands;
    HistoryModel *m_model;
    QLineEdit *m_filter;
    QTreeView *m_tree;
    QLabel *m_note;
    QPushButton *m_undoRun;
    QPushButton *m_undoSelected;
    QPushButton *m_free;
    QPushButton *m_remove;
    QLabel *m_keepLabel;
    QSpinBox *m_keepDays;
    QPushButton *m_removeOlder;
    QPushButton *m_close;
    QTimer *m_searchDelay;
    std::shared_ptr<std::atomic<bool>> m_isSearchStopped;
    QString m_wantedRun;
    bool m_isReading = true;
};

} // namespace Mirrix
