#pragma once

#include "actions/cleaning/keeprule.h"
#include "actions/records/cleaningmethod.h"
#include "core/model/scanresult.h"
#include "core/platform/filestatus.h"

#include <QList>
#include <QString>

namespace Mirrix {

/// What the scan recorded of a file, as far as its removal needs it.
struct ScannedFile
{
    QString path;
    qint64 sizeBytes = 0;
    qint64 modifiedMs = 0;             ///< milliseconds since the Unix epoch
    MirrixCore::FileIdentity identity; ///< unknown where the scan did not read it
    qint64 allocatedBytes = -1;        ///< on the volume; below 0 = unknown
};

[[nodiscard]] ScannedFile scannedFile(const MirrixCore::FileEntry &file);

/// One surplus copy and the copy that stays for it.
struct CleaningItem
{
    ScannedFile file;
    ScannedFile kept;            ///< with an empty path: the user wants no copy to stay
    QString linkTarget;          ///< where a link is to lead, other than to the kept copy; usually empty
    QString digest;              ///< of the content as the scan knew it, "md5:HEX" or "blake3:HEX"; empty = unknown
    bool isEqualContent = false; ///< both are to hold the same bytes, which is checked before anything is done

    [[nodiscard]] bool hasKept() const { return !kept.path.isEmpty(); }
};

/// The item for a file of a group; `kept` is its index or -1.
[[nodiscard]] CleaningItem cleaningItem(const MirrixCore::DuplicateGroup &group, qsizetype file, qsizetype kept);

/// What a run is to do. A plain value: nothing has been done yet.
struct CleaningPlan
{
    CleaningMethod method = CleaningMethod::Recycle;
    QString targetFolder;               ///< of Move
    QString backupFolder;               ///< absolute; its index also lists what is set aside during the run
    bool comparesWholeContents = false; ///< before moving, too, not only before destroying
    QString rule;                       ///< what chose the files, for the record; may be empty
    bool isBackupBeforeRemoval = false; ///< backed up because the user asked for that in the removal dialog
    QString undoOf = {};                ///< id of the run that this one takes back, for the record; usually empty
    QList<CleaningItem> items;
};

/// The folder into which a plan moves files; empty when it moves none.
[[nodiscard]] QString takingFolder(const CleaningPlan &plan);

/// "newest", "oldest", "shallowest" or "deepest".
[[nodiscard]] QString ruleName(KeepRule rule);

/// Which file of a group a rule keeps, and which ones it removes. Files in bins, backup folders and snapshots are
/// neither kept nor removed by a rule.
struct GroupChoice
{
    qsizetype kept = -1; ///< -1: no file of the group may be kept
    QList<qsizetype> surplus;
};

/// Pure; thread-safe, as all of this header.
[[nodiscard]] GroupChoice chooseInGroup(const QList<MirrixCore::FileEntry> &files, KeepRule rule);

/// The same, keeping the first file that may be kept.
[[nodiscard]] GroupChoice chooseFirstInGroup(const QList<MirrixCore::FileEntry> &files);

/// All files of the groups that may go without any copy staying for them: empty ones.
[[nodiscard]] QList<CleaningItem> itemsWithoutKept(const QList<MirrixCore::DuplicateGroup> &groups);

/// The surplus files of all groups by a rule, in the groups' order.
[[nodiscard]] QList<CleaningItem> surplusByRule(const QList<MirrixCore::DuplicateGroup> &groups, KeepRule rule);

} // namespace Mirrix
