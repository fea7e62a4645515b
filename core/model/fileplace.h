#pragma once

namespace MirrixCore {

/// Where a file lies, as far as it matters for cleaning: copies in a bin, backup or snapshot are listed, but are never
/// the copy to keep, since emptying such a place would lose the last one.
enum class FilePlace
{
    Ordinary,
    RecycleBin,   ///< a recycle bin or trash of any volume
    BackupFolder, ///< a folder that holds a backup index, ours or another program run's
    Snapshot      ///< an earlier state kept by the system (previous versions, read-only snapshots)
};

/// Whether a file there may be the one that stays while its copies are removed.
[[nodiscard]] inline bool mayBeKept(FilePlace place)
{
    return place == FilePlace::Ordinary;
}

} // namespace MirrixCore
