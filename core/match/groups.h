#pragma once

#include "core/scan/scanoptions.h"
#include "core/scan/scanresult.h"

#include <QStringView>

namespace MirrixCore {

/// The folder part of a file's path, with its slash only at a root ("C:/", "/").
[[nodiscard]] QStringView folderOf(QStringView path);

/// The last piece of a path; empty for a root.
[[nodiscard]] QStringView nameOf(QStringView path);

/// Drops groups of fewer than two members and, with `ignoreSameFolderGroups`, those whose members all lie in one folder
/// (by exact text); counts the waste of the others as the sum of the sizes less the largest one.
void finishGroups(QList<DuplicateGroup> &groups, const ScanOptions &options);

} // namespace MirrixCore
