#pragma once

#include <QString>

namespace Mirrix {

// Why a file cannot be restored. Texts are translated and name the file's old path; `where` is the other path.

[[nodiscard]] QString notBackText(const QString &path);
[[nodiscard]] QString occupiedText(const QString &path);
[[nodiscard]] QString notComparedText(const QString &path);
[[nodiscard]] QString keptCopyGoneText(const QString &path, const QString &where);
[[nodiscard]] QString notInBinText(const QString &path);

/// It is back, but without its old time or permissions.
[[nodiscard]] QString unmarkedText(const QString &path);

/// The file is not at `where` or is another one; or, where that is so, the folder or volume is not there.
[[nodiscard]] QString notThereText(const QString &path, const QString &where);

} // namespace Mirrix
