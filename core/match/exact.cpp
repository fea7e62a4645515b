#include "core/scan/duplicatescanner.h"

#include "core/cache/cacheroot.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/match/candidates.h"
#include "core/match/contentgroups.h"
#include "core/match/parallel.h"
#include "core/match/unreadfiles.h"
#include "core/scan/threadpool.h"

#include <QElapsedTimer>

#include <vector>

namespace MirrixCore {

namespace {

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
        m_result = resultOn(m_files);
        Candidates candidates = filesOfSharedSize(m_files);
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
        collectGroups(candidates, m_files, true, m_result);
        finishContentGroups(m_result, m_options, m_cancelled);
        return finished();
    }

private:
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
            candidate.full = Digest(m_unread.accepted(file, digests.full, notes));
            candidate.quick = m_usesCache ? Digest(digests.quick) : candidate.full; // which tells the same
        } else {
            candidate.quick = Digest(m_unread.accepted(file, quickHash(file.path, &notes), notes));
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
        const Digest full(m_unread.accepted(file, fullContentHash(file.path, m_cancelled, &notes), notes));
        if (full.isEmpty())
            return;
        if (describes(notes, file))
            candidate.mustStore = true;
        else
            store(candidate); // the quick digest was taken earlier and may still fit
        candidate.full = full;
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
        return finished();
    }

    ScanResult finished()
    {
        m_result.unread = m_unread.take();
        return std::move(m_result);
    }

    const QList<FileEntry> &m_files;
    const ScanOptions &m_options;
    const ProgressCallback &m_progress;
    const CancelQuery &m_cancelled;
    const bool m_usesCache;
    UnreadFiles m_unread;
    ScanResult m_result;
};

} // namespace

ScanResult DuplicateScanner::scanExact(QList<FileEntry> files, const ScanOptions &options,
                                       const ProgressCallback &progress, const CancelQuery &cancelled)
{
    return ExactScan(files, options, progress, cancelled).run();
}

} // namespace MirrixCore
