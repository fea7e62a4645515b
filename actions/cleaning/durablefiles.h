#pragma once

#include "actions/files/heldfile.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace Mirrix {

/// Brings the kept files of one run to the disk, each once: a copy that exists only in memory is none after a power
/// cut. One thread at a time.
class DurableFiles
{
public:
    /// Flushes files that will soon be asked for, and each of their folders once. What fails here, or has been written
    /// in the last seconds, is left to ensure. Blocks; `isStopped` ends it.
    void prepare(const QStringList &paths, const StopQuery &isStopped);

    /// Makes sure that the file, which is at `path`, and its name are on the disk. False when they did not get there.
    [[nodiscard]] bool ensure(HeldFile &file, const QString &path);

private:
    QHash<QString, qint64> m_flushed; ///< change time, by path
};

} // namespace Mirrix
