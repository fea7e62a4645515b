#pragma once

#include <QIODevice>
#include <QString>

class QFile;

namespace MirrixCore {

// For files that the user names: Qt's own calls do not find every name that a file can have. Thread-safe.

/// Whether Qt's own calls would find what `path` names.
[[nodiscard]] bool isQtPath(const QString &path);

/// Opens `path` as QFile::open would: ReadOnly, or WriteOnly, which makes or empties the file, with NewOnly only makes
/// it. False on failure; `reason`, when given, says why.
[[nodiscard]] bool openNatively(QFile &file, const QString &path, QIODevice::OpenMode mode, QString *reason = nullptr);

} // namespace MirrixCore
