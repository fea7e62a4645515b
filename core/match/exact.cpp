#include "core/scan/duplicatescanner.h"

#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/match/digest.h"
#include "core/match/hardlinks.h"
#include "core/match/parallel.h"
#include "core/match/rulekeys.h"
#include "core/scan/threadpool.h"

#include <QElapsedTimer>
#include <QHash>

#include <algorithm>
#include <span>
#include <vector>

namespace MirrixCore {

namespace {

/// A file of a size that occurs more than once, and what is known of its content.
struct Candidate
{
    quint32 file = 0; ///< index into the input list
    Digest quick;     ///< of a small file, with the cache off: the full one, which tells the same
    Digest full;
    bool mustStore = false; ///< holds a digest that the cache has not
};

using Candidates = std::vector<Candidate>;

/// Candidates next to each other that have a digest in common.
using Run = std::span<Candidate>;

/// How long a cancelled scan may go on writing down the digests it has gained.
constexpr qint64 cancelledStoreMs = 100;

/// Three stages, each of which can only shrink the set: equal size, equal quick digest, equal full digest.
class ExactScan
{
public:
    ExactScan(const QList<FileEntry> &files, const ScanOptions &options, const ProgressCallback &progress,
              const CancelQuery &cancelled)
        : m_files(files)
        , m_options(options)
        , m_progress(progress)
        , m_cancelled(cancelled)
        , m_usesCache(!cacheRoot().isEmpty())
    {}

    ScanResult run()
    {
        m_result.filesScanned = m_files.size();
        for (const FileEntry &file : m_files)
            m_result.totalBytes += file.size;
        Candidates candidates = filesOfSharedSize();
        m_result.candidates = static_cast<qint64>(candidates.size());
        sizeThreadPool(m_options);

        hashQuick(candidates);
        if (isCancelled(m_cancelled))
            return abandoned(candidates);
        const qsizetype shared = moveSharedToFront(candidates);
        hashFull(candidates, shared);
        if (isCancelled(m_cancelled))
            return abandoned(candidates);
        candidates.resize(static_cast<size_t>(shared));
        collectGroups(candidates);
        return std::move(m_result);
    }

private:
    Candidates filesOfSharedSize() const
    {
        QHash<qint64, quint32> filesOfSize;
        for (const FileEntry &file : m_files) {
            if (file.size > 0)
                ++filesOfSize[file.size];
        }
        Candidates candidates;
        candidates.reserve(static_cast<size_t>(m_files.size() / 4 + 8));
        for (qsizetype i = 0; i < m_files.size(); ++i) {
            if (filesOfSize.value(m_files[i].size) >= 2)
                candidates.push_back({static_cast<quint32>(i), {}, {}, false});
        }
        return candidates;
    }

    void hashQuick(Candidates &candidates)
    {
        StageProgress progress(m_progress, Phase::QuickHash, m_files.size(), std::ssize(candidates));
        forEachParallel(std::ssize(candidates), [&](qsizetype i) {
            if (isCancelled(m_cancelled))
                return;
            Candidate &candidate = candidates[static_cast<size_t>(i)];
            const FileEntry &file = m_files[candidate.file];
            if (m_usesCache) {
                const Fingerprint known = lookupFingerprint(file.path, file.size, file.modifiedMs);
                candidate.quick = Digest(known.quick);
                candidate.full = Digest(known.full);
            }
            if (candidate.quick.isEmpty())
                hashStart(candidate);
            progress.step(file.path);
        });
    }

    /// A small file is read only once, for both digests: opening it again costs more than hashing it.
    void hashStart(Candidate &candidate)
    {
        const FileEntry &file = m_files[candidate.file];
        HashNotes notes;
        if (file.size <= quickCoversBytes) {
            const SmallFileDigests digests = smallFileDigests(file.path, file.size, m_usesCache, &notes);
            candidate.full = Digest(accepted(file, digests.full, notes));
            candidate.quick = m_usesCache ? Digest(digests.quick) : candidate.full;
        } else {
            candidate.quick = Digest(accepted(file, quickHash(file.path, &notes), notes));
        }
        candidate.mustStore = describes(notes, file);
    }

    /// Hashes the first `count` candidates whole. Meanwhile this thread writes down what is known of the others: the
    /// cache takes one entry at a time, so several threads would only wait for each other.
    void hashFull(Candidates &candidates, qsizetype count)
    {
        std::vector<Candidate *> known;
        std::vector<Candidate *> unknown;
        for (Candidate &candidate : candidates) {
            const bool isShared = &candidate - candidates.data() < count;
            (isShared && candidate.full.isEmpty() ? unknown : known).push_back(&candidate);
        }
        StageProgress progress(m_progress, Phase::FullHash, m_files.size(), count);
        const auto hash = [&](qsizetype i) {
            if (isCancelled(m_cancelled))
                return;
            Candidate &candidate = candidates[static_cast<size_t>(i)];
            hashWhole(candidate);
            progress.step(m_files[candidate.file].path);
        };
        forEachParallel(count, hash, [&] { storeAll(known); });
        storeAll(unknown);
    }

    void storeAll(const std::vector<Candidate *> &candidates) const
    {
        for (Candidate *candidate : candidates) {
            if (isCancelled(m_cancelled))
                return;
            store(*candidate);
        }
    }

    void hashWhole(Candidate &candidate)
    {
        const FileEntry &file = m_files[candidate.file];
        if (!candidate.full.isEmpty())
            return;
        HashNotes notes;
        const Digest full(accepted(file, fullContentHash(file.path, m_cancelled, &notes), notes));
        if (full.isEmpty())
            return;
        if (describes(notes, file))
            candidate.mustStore = true;
        else
            store(candidate); // the quick digest was taken earlier and may still fit
        candidate.full = full;
    }

    /// `digest`, or an empty one when the file could not be read or changed meanwhile; notes why.
    QByteArray accepted(const FileEntry &file, const QByteArray &digest, const HashNotes &notes)
    {
        if (!digest.isEmpty() && !notes.hasChanged)
            return digest;
        if (notes.hasChanged)
            noteUnread(file, QStringLiteral("changed while it was read"));
        else if (!notes.failure.isEmpty())
            noteUnread(file, notes.failure);
        return {};
    }

    /// Whether the digest was taken from the state of the file that the walk saw, so that the cache may remember it.
    static bool describes(const HashNotes &notes, const FileEntry &file)
    {
        return notes.sizeBytes == file.size && notes.modifiedMs == file.modifiedMs;
    }

    void store(Candidate &candidate) const
    {
        if (!candidate.mustStore || candidate.quick.isEmpty())
            return;
        const FileEntry &file = m_files[candidate.file];
        if (candidate.full.isEmpty())
            storeQuick(file.path, file.size, file.modifiedMs, candidate.quick.bytes());
        else
            storeQuickAndFull(file.path, file.size, file.modifiedMs, candidate.quick.bytes(), candidate.full.bytes());
        candidate.mustStore = false;
    }

    /// The result of a cancelled scan. What was hashed so far is kept for the next one as far as the time allows.
    ScanResult abandoned(Candidates &candidates)
    {
        QElapsedTimer timer;
        timer.start();
        for (Candidate &candidate : candidates) {
            if (timer.hasExpired(cancelledStoreMs))
                break;
            store(candidate);
        }
        return std::move(m_result);
    }

    void noteUnread(const FileEntry &file, const QString &reason)
    {
        const std::lock_guard lock(m_unreadMutex);
        m_result.unread.append({file.path, reason});
    }

    /// Sorts by `digest`, input order within, and returns each run of two or more equal, non-empty ones.
    static std::vector<Run> runsOf(Candidates &candidates, Digest Candidate::*digest)
    {
        sortBy(candidates, digest);
        std::vector<Run> runs;
        for (auto begin = candidates.begin(); begin != candidates.end();) {
            const auto end = std::find_if(begin, candidates.end(), [&](const Candidate &candidate) {
                return candidate.*digest != (*begin).*digest;
            });
            if (!((*begin).*digest).isEmpty() && end - begin >= 2)
                runs.emplace_back(begin, end);
            begin = end;
        }
        return runs;
    }

    /// Sorts short keys and then moves each candidate once: the candidates themselves are too long to be swapped about.
    static void sortBy(Candidates &candidates, Digest Candidate::*digest)
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

    /// Brings the candidates that share a quick digest with another to the front, runs together, and takes the others'
    /// full digests from them, which nobody needs; returns how many are in front.
    static qsizetype moveSharedToFront(Candidates &candidates)
    {
        Candidates ordered;
        std::vector<bool> isShared(candidates.size());
        qsizetype count = 0;
        for (const Run &run : runsOf(candidates, &Candidate::quick)) {
            const auto first = static_cast<size_t>(run.data() - candidates.data());
            std::fill_n(isShared.begin() + static_cast<std::ptrdiff_t>(first), run.size(), true);
            count += std::ssize(run);
        }
        ordered.reserve(candidates.size());
        for (const bool wanted : {true, false}) {
            for (size_t i = 0; i < candidates.size(); ++i) {
                if (isShared[i] == wanted)
                    ordered.push_back(candidates[i]);
            }
        }
        for (size_t i = static_cast<size_t>(count); i < ordered.size(); ++i)
            ordered[i].full = {};
        candidates.swap(ordered);
        return count;
    }

    void collectGroups(Candidates &candidates)
    {
        for (const Run &run : runsOf(candidates, &Candidate::full)) {
            DuplicateGroup group;
            group.key = QString::fromLatin1(run.front().full.bytes().toHex());
            group.files.reserve(std::ssize(run));
            for (const Candidate &candidate : run)
                group.files.append(m_files[candidate.file]);
            group.wastedBytes = wasteOf(group.files);
            m_result.groups.append(group);
        }
        m_result.groups = refineGroupsByRuleKeys(m_result.groups, m_options, m_cancelled);
        if (m_options.collapseHardLinks)
            collapseHardLinks(m_result.groups);
        m_result.wastedBytes = totalWaste(m_result.groups);
        sortByWaste(m_result.groups);
    }

    const QList<FileEntry> &m_files;
    const ScanOptions &m_options;
    const ProgressCallback &m_progress;
    const CancelQuery &m_cancelled;
    const bool m_usesCache;
    std::mutex m_unreadMutex;
    ScanResult m_result;
};

} // namespace

ScanResult DuplicateScanner::scanExact(QList<FileEntry> files, const ScanOptions &options,
                                       const ProgressCallback &progress, const CancelQuery &cancelled)
{
    return ExactScan(files, options, progress, cancelled).run();
}

} // namespace MirrixCore
