#pragma once

#include <QByteArray>
#include <QString>

namespace Mirrix {

/// Replaces the file `path` by `content` so that a crash or a full disk leaves the old file or the new one, never a
/// part. False, with the old file as it was, when the content could not be written whole. Re-entrant.
[[nodiscard]] bool replaceFile(const QString &path, const QByteArray &content);

} // namespace Mirrix
