#pragma once

#include "core/model/scanoptions.h"
#include "core/model/scanprogress.h"
#include "core/model/scanresult.h"

#include <QString>

namespace MirrixCore {

class StageProgress;

/// `name` without its copy suffix if `ignoreCopyWords`, and then, if `copyWordsInAllLanguages`, without all copy words.
[[nodiscard]] QString withoutIgnoredCopyWords(const QString &name, const ScanOptions &options);

/// The name that similar names are compared by: without folder, last extension and ignored copy words, lower case
/// unless `caseSensitive`.
[[nodiscard]] QString normalizedBaseName(const QString &path, const ScanOptions &options);

/// Groups of two or more members whose names are within `nameTolerance` edits, directly or through others. A pair is
/// only compared when the longer name has the higher index, so the order of `members` counts; on purpose. `keyForm` is
/// "%1|SFN:%2" (bucket key, name of the first member) or "%1|SFN". Groups that lie in one folder are dropped when the
/// options ask for it. Takes quadratic time in the members of similar length at worst; returns no groups when
/// `cancelled` answers true. Counts each member in `progress`, when given.
[[nodiscard]] QList<DuplicateGroup> clusterSimilarNames(const QString &bucketKey, const QList<FileEntry> &members,
                                                        const ScanOptions &options, const QString &keyForm,
                                                        const CancelQuery &cancelled = {},
                                                        StageProgress *progress = nullptr);

} // namespace MirrixCore
