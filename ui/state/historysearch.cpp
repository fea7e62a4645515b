#include "ui/state/historysearch.h"

#include "actions/records/runjournal.h"

#include <QDir>

namespace Mirrix {

namespace {

std::vector<quint32> matchesIn(const StoredRun &run, const QString &words, const std::atomic<bool> &isStopped)
{
    std::vector<quint32> found;
    const auto holds = [&words](const QString &path) { return path.contains(words, Qt::CaseInsensitive); };
    for (qsizetype i = 0; i < run.items.size() && !isStopped; ++i) {
        if (holds(run.items[i].original) || holds(run.items[i].kept) || holds(run.outcomes[i].now))
            found.push_back(static_cast<quint32>(i));
    }
    return found;
}

} // namespace

RunMatches searchRuns(const QString &dataDirectory, const QList<SearchedRun> &runs, const QString &words,
                      const std::atomic<bool> &isStopped)
{
    RunMatches matches;
    const QString part = QDir::fromNativeSeparators(words);
    for (const SearchedRun &run : runs) {
        if (isStopped)
            break;
        std::vector<quint32> found = run.files
                                         ? matchesIn(*run.files, part, isStopped)
                                         : matchesIn(readRun(runJournalPath(dataDirectory, run.id)), part, isStopped);
        if (!found.empty())
            matches.insert(run.id, std::move(found));
    }
    return matches;
}

} // namespace Mirrix
