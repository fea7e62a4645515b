#include "core/match/unreadfiles.h"

namespace MirrixCore {

QByteArray UnreadFiles::accepted(const FileEntry &file, const QByteArray &digest, const HashNotes &notes)
{
    if (!digest.isEmpty() && !notes.hasChanged)
        return digest;
    note(file, notes);
    return {};
}

void UnreadFiles::note(const FileEntry &file, const HashNotes &notes)
{
    const QString reason = notes.hasChanged ? QStringLiteral("changed while it was read") : notes.failure;
    if (reason.isEmpty())
        return;
    const std::lock_guard lock(m_mutex);
    m_paths.append({file.path, reason});
}

} // namespace MirrixCore
