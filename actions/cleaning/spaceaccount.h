#pragma once

#include "actions/cleaning/cleaningplan.h"
#include "core/platform/filestatus.h"

#include <QHash>

#include <utility>

namespace Mirrix {

/// How cleaning changes the space on the disks, in bytes.
struct Space
{
    qint64 freedBytes = 0;        ///< free now
    qint64 heldInBackupBytes = 0; ///< taken until the backup folder is emptied
    qint64 heldInBinBytes = 0;    ///< taken until the recycle bin is emptied

    bool operator==(const Space &) const = default;
    [[nodiscard]] Space operator-(const Space &other) const
    {
        return {freedBytes - other.freedBytes, heldInBackupBytes - other.heldInBackupBytes,
                heldInBinBytes - other.heldInBinBytes};
    }
};

/// Adds up what the files of one run free and hold. A file with further names counts when its last one goes.
class SpaceAccount
{
public:
    SpaceAccount(CleaningMethod method, const QString &targetFolder);

    /// One more file removed; the sizes as of freeableBytes.
    void add(qint64 sizeBytes, qint64 allocatedBytes, const MirrixCore::FileIdentity &identity);

    [[nodiscard]] const Space &total() const { return m_total; }

private:
    [[nodiscard]] bool isLastName(const MirrixCore::FileIdentity &identity);

    CleaningMethod m_method;
    MirrixCore::FileIdentity m_target; ///< of the folder that takes the files, or of its nearest existing ancestor
    QHash<std::pair<quint32, quint64>, quint32> m_namesGone;
    Space m_total;
};

/// What a plan would free and hold, by what the scan noted. Accesses the target folder only.
[[nodiscard]] Space estimatedSpace(const CleaningPlan &plan);

} // namespace Mirrix
