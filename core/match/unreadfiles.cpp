#include "core/match/unreadfiles.h"

namespace MirrixCore {

QByteArray UnreadFiles::accepted(const FileEntry &file, const QByteArray &digest, const HashNotes &notes)
{
    if (!digest.isEmpty() && !notes.hasChanged)
        return digest;
    if (notes.hasChanged)
        noteChanged(file);
    else if (!notes.failure.isEmpty())
        note(file, notes.failure);
    return {};
}

void UnreadFiles::note(const FileEntry &file, const QString &reason)
{
    const std::lock_guard lock(m_mutex);
    m_paths.append({file.path, reason});
}

} // namespace MirrixCore
