#pragma once

#include "actions/heldfile.h"

#include <QHash>
#include <QString>

namespace Mirrix {

/// Brings the kept files of one run to the disk, each once: a copy that exists only in memory is none after a power
/// cut. One thread at a time.
class DurableFiles
{
public:
    /// Makes sure that the file, which is at `path`, and its name are on the disk. False when they did not get there.
    [[nodiscard]] bool ensure(HeldFile &file, const QString &path);

private:
    QHash<QString, qint64> m_flushed; ///< change time, by path
};

} // namespace Mirrix
