#pragma once

#include "actions/cleaning/cleaningrun.h"
#include "actions/files/batch.h"
#include "actions/records/backupindex.h"
#include "ui/state/checkedfiles.h"

#include <QObject>

#include <functional>
#include <optional>

class QWidget;

namespace Mirrix {

class OperationsLog;
class Prompts;
struct RemovalChoice;
struct Settings;

/// What is done to all results at once: setting marks, and removing, backing up and restoring files with the questions
/// before and the summary after. Each command returns when it is over; until then the user can do nothing else in the
/// window, and a further command is ignored. Work on many files runs off the interface thread.
class BatchCommands : public QObject
{
    Q_OBJECT

public:
    /// Keeps references to everything; `window`, which owns it, is the parent of all boxes.
    BatchCommands(ResultSet &results, const Settings &settings, Prompts &prompts, OperationsLog &log, QWidget *window);

    /// The backup folder in effect since the last scan's start.
    void setBackupFolder(const QString &folder) { m_backupFolder = folder; }

    /// Ticks all files of each group but the one to keep.
    void applyKeepRule(KeepRule rule);

    /// Ticks all files of each group but the first.
    void selectAllDuplicates();

    void invertSelection();

    /// Moves the ticked files into the backup folder.
    void moveCheckedToBackup();

    /// Removes the ticked files in the way that the user chooses.
    void removeChecked();

    /// Puts files back that the user chooses from the backup folder of the settings.
    void restoreBackup();

    /// Whether a command is running, its boxes included.
    [[nodiscard]] bool isBusy() const { return m_isBusy; }

    /// Asks the running batch, if any, to stop after the current file.
    void stop() { emit stopRequested(); }

signals:
    /// Many marks have changed; what shows them must be repainted.
    void marksReplaced();

    /// A text for the status label, in the source language.
    void statusText(const QString &source);

    /// A command is over.
    void finished();

    void stopRequested();

    /// The user wants to see this run among the earlier ones. Comes after `finished`.
    void historyRequested(const QString &runId);

private:
    using MarkChange = std::function<void(SelectionMarks &, const QList<MirrixCore::DuplicateGroup> &)>;
    using Batch = std::function<BatchResult(const BatchControl &)>;

    void perform(const std::function<void()> &command);
    void backUpChecked();
    void removeByChoice();
    void restoreByChoice();

    bool changeMarks(const char *status, const MarkChange &change);
    [[nodiscard]] BatchResult run(const QString &label, const Batch &batch);

    /// Carries out `plan`, whose items `makeItems` makes off the interface thread. It may add refusals.
    using ItemMaker = std::function<QList<CleaningItem>(QStringList &refusals)>;
    [[nodiscard]] CleaningResult clean(const QString &label, CleaningPlan plan, const ItemMaker &makeItems);
    [[nodiscard]] CleaningPlan planFor(CleaningMethod method) const;

    /// The box at the end of a run.
    void showDone(const QString &text, const CleaningResult &result);

    /// The ticked files once the user has said what is to happen to groups of which no copy would stay. No value when
    /// there are none, in which case the user sees `noneText`, or when the user cancels.
    [[nodiscard]] std::optional<CheckedFiles> filesToClean(const QString &noneText);

    void backUpAndRemove(const CheckedFiles &files, const RemovalChoice &choice);
    void removeDirectly(const CheckedFiles &files, const RemovalChoice &choice);
    [[nodiscard]] BatchResult linkAtFreePaths(const CheckedFiles &files, const RemovalChoice &choice);
    /// The files that may be restored, and those that the user chose. Large, so made and freed off the interface
    /// thread.
    struct RestoreList
    {
        QList<BackupEntry> entries;
        QStringList lines; ///< of each
        QList<BackupEntry> chosen;
        QString question;
    };

    /// False when nothing is to be put back.
    [[nodiscard]] bool chooseBackups(RestoreList &list);

    void restore(const QString &folder, const QList<BackupEntry> &chosen);

    ResultSet &m_results;
    const Settings &m_settings;
    Prompts &m_prompts;
    OperationsLog &m_log;
    QWidget *m_window;
    QString m_backupFolder;
    QString m_runToShow; ///< once the command is over
    bool m_isBusy = false;
};

} // namespace Mirrix
