#pragma once

#include "actions/cleaning/cleaningrun.h"
#include "actions/records/runhistory.h"

#include <QList>
#include <QStringList>

class QWidget;

namespace Mirrix {

class OperationsLog;
class Prompts;
struct Settings;

/// What the cleaning history offers, with the questions before and the summary after. Each command returns when it is
/// over, and whether records may have changed; work on files runs off the interface thread.
class HistoryCommands
{
public:
    /// Keeps references to everything; `window` is the parent of all boxes.
    HistoryCommands(const Settings &settings, Prompts &prompts, OperationsLog &log, QWidget *window);

    /// Restores files of a run, or removes again those that an undo has restored: those with these indices in its list,
    /// or all.
    bool undo(const RunHeader &run, const QList<qsizetype> &items = {});

    /// Deletes what a run has left in the backup folder.
    bool freeBackups(const RunSummary &run);

    /// Deletes the records of these runs.
    bool removeRecords(const QStringList &runIds);

private:
    [[nodiscard]] CleaningServices services() const;

    const Settings &m_settings;
    Prompts &m_prompts;
    OperationsLog &m_log;
    QWidget *m_window;
};

} // namespace Mirrix
