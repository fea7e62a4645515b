#pragma once

#include "actions/records/runhistory.h"

#include <QHash>
#include <QList>
#include <QString>

#include <atomic>
#include <memory>
#include <vector>

namespace Mirrix {

/// The files of each run that a search found, as ascending indices in the run's list; runs without any are missing.
using RunMatches = QHash<QString, std::vector<quint32>>;

/// A run to search, with its files where they are in memory.
struct SearchedRun
{
    QString id;
    std::shared_ptr<const StoredRun> files;
};

/// The files whose old, new or kept path holds `words` without regard to case. Reads the journals of `dataDirectory`
/// that are not in memory, one at a time. Blocks; ends early, with a part, once `isStopped` is set. Re-entrant.
[[nodiscard]] RunMatches searchRuns(const QString &dataDirectory, const QList<SearchedRun> &runs, const QString &words,
                                    const std::atomic<bool> &isStopped);

} // namespace Mirrix
