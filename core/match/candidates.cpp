#include "core/match/candidates.h"

#include <QHash>

#include <algorithm>

namespace MirrixCore {

namespace {

/// Sorts short keys and then moves each candidate once: the candidates themselves are too large to be swapped often.
void sortBy(Candidates &candidates, Digest Candidate::*digest)
{
    std::vector<std::pair<quint64, quint32>> order(candidates.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = {(candidates[i].*digest).leadingBits(), static_cast<quint32>(i)};
    std::sort(order.begin(), order.end(), [&](const auto &a, const auto &b) {
        if (a.first != b.first)
            return a.first < b.first;
        const Candidate &left = candidates[a.second];
        const Candidate &right = candidates[b.second];
        const auto byDigest = left.*digest <=> right.*digest;
        return byDigest != 0 ? byDigest < 0 : left.file < right.file;
    });
    Candidates sorted;
    sorted.reserve(candidates.size());
    for (const auto &entry : order)
        sorted.push_back(candidates[entry.second]);
    candidates.swap(sorted);
}

} // namespace

Candidates filesOfSharedSize(const QList<FileEntry> &files)
{
    QHash<qint64, quint32> filesOfSize;
    for (const FileEntry &file : files) {
        if (file.size > 0) // empty files are all equal, and a search of their own
            ++filesOfSize[file.size];
    }
    Candidates candidates;
    candidates.reserve(static_cast<size_t>(files.size() / 4 + 8));
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (filesOfSize.value(files[i].size) >= 2)
            candidates.push_back({static_cast<quint32>(i), {}, {}});
    }
    return candidates;
}

std::vector<Run> runsOf(Candidates &candidates, Digest Candidate::*digest)
{
    sortBy(candidates, digest);
    std::vector<Run> runs;
    for (auto begin = candidates.begin(); begin != candidates.end();) {
        const auto end = std::find_if(
            begin, candidates.end(), [&](const Candidate &candidate) { return candidate.*digest != (*begin).*digest; });
        if (!((*begin).*digest).isEmpty() && end - begin >= 2)
            runs.emplace_back(begin, end);
        begin = end;
    }
    return runs;
}

qsizetype moveSharedToFront(Candidates &candidates)
{
    Candidates ordered;
    std::vector<bool> isShared(candidates.size());
    qsizetype count = 0;
    for (const Run &run : runsOf(candidates, &Candidate::quick)) {
        const auto first = run.data() - candidates.data();
        std::fill_n(isShared.begin() + first, run.size(), true);
        count += std::ssize(run);
    }
    ordered.reserve(candidates.size());
    for (const bool isFront : {true, false}) {
        for (size_t i = 0; i < candidates.size(); ++i) {
            if (isShared[i] == isFront)
                ordered.push_back(candidates[i]);
        }
    }
    for (size_t i = static_cast<size_t>(count); i < ordered.size(); ++i)
        ordered[i].full = {};
    candidates.swap(ordered);
    return count;
}

} // namespace MirrixCore
