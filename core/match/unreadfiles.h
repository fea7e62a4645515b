#pragma once

#include "core/hash/contenthash.h"
#include "core/model/scanresult.h"

#include <mutex>
#include <utility>

namespace MirrixCore {

/// Collects the files that drop out of a matcher because they could not be read. Thread-safe but for take().
class UnreadFiles
{
public:
    /// `digest`, or an empty one when the file could not be read or changed during reading, which is noted.
    [[nodiscard]] QByteArray accepted(const FileEntry &file, const QByteArray &digest, const HashNotes &notes);

    /// Notes why `file` could not be used; nothing when its reading was cancelled.
    void note(const FileEntry &file, const HashNotes &notes);

    /// The list so far, which is then empty.
    [[nodiscard]] QList<UnreadPath> take() { return std::exchange(m_paths, {}); }

private:
    std::mutex m_mutex;
    QList<UnreadPath> m_paths;
};

} // namespace MirrixCore
