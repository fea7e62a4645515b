#include "actions/cleaning/durablefiles.h"

#include "actions/movefile.h"

namespace Mirrix {

bool DurableFiles::ensure(HeldFile &file, const QString &path)
{
    const auto known = m_flushed.constFind(path);
    if (known != m_flushed.cend() && *known == file.state().changedExact)
        return true;
    if (!file.flush() || !flushFolder(folderOf(path)))
        return false;
    m_flushed.insert(path, file.state().changedExact);
    return true;
}

} // namespace Mirrix
