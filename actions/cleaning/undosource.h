#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "actions/files/binlookup.h"
#include "actions/records/runhistory.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace Mirrix {

/// Where one file of a run can be restored from.
struct UndoSource
{
    enum class Way
    {
        None,   ///< the run did nothing with it, or it was undone
        Home,   ///< it is in its place again, which the record does not say
        Backup, ///< from the backup folder
        Folder, ///< from where it was moved
        Aside,  ///< from the name it was set aside under
        Bin,
        Copy,      ///< made again from the kept copy
        EmptyFile, ///< made again, since there is nothing in it
        EmptyFolder
    };

    Way way = Way::None;
    QString from;
    QString problem = {}; ///< why it cannot be restored, translated; empty when it can
    QString digest = {};  ///< of its content, as BackupEntry::digest; may be empty
    BinEntry bin = {};
};

/// Looks where the files of one run are. What the record leaves open, the disk decides. No contents are read. One
/// thread at a time.
class UndoSources
{
public:
    /// `run` must outlive this; `backupFolder` as of planUndo.
    UndoSources(const StoredRun &run, const QString &backupFolder);

    [[nodiscard]] UndoSource of(qsizetype item);

private:
    [[nodiscard]] UndoSource asFolder(qsizetype item) const;
    [[nodiscard]] UndoSource whereIs(qsizetype item);
    [[nodiscard]] UndoSource whereInterrupted(qsizetype item);
    [[nodiscard]] UndoSource inStore(qsizetype item, const QString &backup) const;
    [[nodiscard]] UndoSource inFolder(qsizetype item, const QString &path) const;
    [[nodiscard]] UndoSource inBin(qsizetype item);
    [[nodiscard]] UndoSource asCopy(qsizetype item) const;
    [[nodiscard]] QString digestOf(qsizetype item) const;

    const StoredRun &m_run;
    std::optional<CleaningMethod> m_method;
    QString m_backupFolder;
    BinContents m_bins;
};

/// Whether a plain file of the recorded size and time is there. File systems that know whole seconds only may have
/// rounded the time.
[[nodiscard]] bool isAsRecorded(const PathState &state, const RunItem &item);

} // namespace Mirrix
