#pragma once

#include "core/model/scanresult.h"

namespace MirrixCore {

inline const QString emptyFilesKey = QStringLiteral("empty");

/// One group with the key emptyFilesKey that holds the files of size 0 in list order, one alone included; no group when
/// there is none.
[[nodiscard]] ScanResult groupEmptyFiles(const QList<FileEntry> &files);

} // namespace MirrixCore
