#pragma once

#include "core/hash/contenthash.h"
#include "core/scan/scanresult.h"

#include <mutex>

namespace MirrixCore {

/// Collects the files that drop out of a matcher because they could not be read. Thread-safe but for take().
class UnreadFiles
{
public:
    /// `digest`, or an empty one when the file could not be read or changed meanwhile; notes why.
    [[nodiscard]] QByteArray accepted(const FileEntry &file, const QByteArray &digest, const HashNotes &notes);

    void note(const FileEntry &file, const QString &reason);
    void noteChanged(const FileEntry &file) { note(file, QStringLiteral("changed while it was read")); }

    /// The list so far, which is then empty.
    [[nodiscard]] QList<UnreadPath> take() { return std::exchange(m_paths, {}); }

private:
    std::mutex m_mutex;
    QList<UnreadPath> m_paths;
};

} // namespace MirrixCore
