#pragma once

#include <QByteArray>
#include <QString>

class QFileDevice;

namespace Mirrix {

/// Replaces the file `path` by `content` so that a crash or a full disk leaves the old file or the new one, never a
/// part. False, with the old file as it was, when the content could not be written whole. Re-entrant.
[[nodiscard]] bool replaceFile(const QString &path, const QByteArray &content);

/// Waits until what was written into an open, unbuffered file is on its disk. False when it did not get there, which
/// QSaveFile would pass over. Re-entrant.
[[nodiscard]] bool flushToDisk(QFileDevice &file);

} // namespace Mirrix
