#include "actions/cleaning/spaceaccount.h"

#include "actions/files/movefile.h"

namespace Mirrix {

namespace {

using MirrixCore::FileIdentity;
using MirrixCore::FileStatus;

FileIdentity nearestFolder(QString path)
{
    FileStatus status = MirrixCore::fileStatus(path);
    while (status.kind == FileStatus::Kind::Missing && !path.isEmpty() && folderOf(path) != path) {
        path = folderOf(path);
        status = MirrixCore::fileStatus(path);
    }
    return status.identity;
}

} // namespace

SpaceAccount::SpaceAccount(CleaningMethod method, const QString &targetFolder)
    : m_method(method)
{
    if (!targetFolder.isEmpty())
        m_target = nearestFolder(targetFolder);
}

void SpaceAccount::add(qint64 sizeBytes, qint64 allocatedBytes, const FileIdentity &identity)
{
    if (!isLastName(identity))
        return;
    const qint64 bytes = MirrixCore::freeableBytes(sizeBytes, allocatedBytes);
    const bool leavesVolume = m_target.isKnown && identity.isKnown && m_target.volume != identity.volume;
    if (isDestroying(m_method) || leavesVolume)
        m_total.freedBytes += bytes;
    if (m_method == CleaningMethod::Recycle)
        m_total.heldInBinBytes += bytes;
    if (isBackingUp(m_method))
        m_total.heldInBackupBytes += bytes;
}

bool SpaceAccount::isLastName(const FileIdentity &identity)
{
    if (!identity.isKnown || identity.links < 2)
        return true;
    return ++m_namesGone[{identity.volume, identity.index}] == identity.links;
}

Space estimatedSpace(const CleaningPlan &plan)
{
    SpaceAccount account(plan.method, takingFolder(plan));
    for (const CleaningItem &item : plan.items)
        account.add(item.file.sizeBytes, item.file.allocatedBytes, item.file.identity);
    return account.total();
}

} // namespace Mirrix
