#include "actions/cleaning/durablefiles.h"

#include "actions/files/movefile.h"

#include <QDateTime>

#include <cstdlib>

namespace Mirrix {

void DurableFiles::prepare(const QStringList &paths, const StopQuery &isStopped)
{
    // Some file systems count times in steps of two seconds: within one step a further write would not show.
    constexpr qint64 settledMs = 3000;
    QHash<QString, QHash<QString, qint64>> byFolder;
    for (const QString &path : paths) {
        if (isStopped && isStopped())
            return;
        HeldFile file;
        if (m_flushed.contains(path) || !file.open(path, HeldFile::Purpose::Keep))
            continue;
        const PathState &state = file.state();
        const bool isSettled = std::abs(QDateTime::currentMSecsSinceEpoch() - state.modifiedMs) > settledMs;
        if (isSettled && state.changedExact != 0 && file.flush())
            byFolder[folderOf(path)].insert(path, state.changedExact);
    }
    for (auto folder = byFolder.cbegin(); folder != byFolder.cend(); ++folder) {
        if (flushFolder(folder.key()))
            m_flushed.insert(*folder);
    }
}

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
