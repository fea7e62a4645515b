#include "actions/cleaning/targetfolder.h"

#include "actions/files/movefile.h"
#include "core/platform/filestatus.h"

namespace Mirrix {

bool TargetFolder::holds(const QString &path)
{
    return isAtOrAbove(folderOf(path));
}

bool TargetFolder::isAtOrAbove(const QString &folder)
{
    if (m_path.isEmpty() || folder.isEmpty())
        return false;
    const auto known = m_known.constFind(folder);
    if (known != m_known.cend())
        return *known;
    const QString parent = folderOf(folder);
    const bool isTarget =
        folder == m_path || MirrixCore::fileStatus(folder).identity.isSameAs(MirrixCore::fileStatus(m_path).identity);
    const bool answer = isTarget || (parent != folder && isAtOrAbove(parent));
    m_known.insert(folder, answer);
    return answer;
}

} // namespace Mirrix
