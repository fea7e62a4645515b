#pragma once

#include <QStringList>

namespace MirrixCli {

/// The paths in a list: the file `path`, or standard input for "-". One path a line; separated by NUL bytes when
/// `isNulSeparated` or when the list holds one. Empty entries are dropped. Throws UsageError when it cannot be read.
[[nodiscard]] QStringList readFileList(const QString &path, bool isNulSeparated);

} // namespace MirrixCli
