#include "core/scan/duplicatescanner.h"

#include "core/cache/cacheroot.h"
#include "core/cache/digestwriter.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/match/candidates.h"
#include "core/match/contentgroups.h"
#include "core/match/parallel.h"
#include "core/match/unreadfiles.h"
#include "core/scan/threadpool.h"

namespace MirrixCore {

namespace {

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
        , m_writer(cancelled)
    {}

    ScanResult run()
    {
        m_result = resultOn(m_files);
        Candidates candidates = filesOfSharedSize(m_files);
        m_result.candidates = static_cast<qint64>(candidates.size());
        sizeThreadPool(m_options);

        hashQuick(candidates);
        if (isCancelled(m_cancelled))
            return finished();
        const qsizetype shared = moveSharedToFront(candidates);
        hashFull(candidates, shared);
        if (isCancelled(m_cancelled))
            return finished();
        candidates.resize(static_cast<size_t>(shared));
        collectGroups(candidates, m_files, Shared::Full, true, m_result);
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
        remember(candidate, notes);
    }

    void hashFull(Candidates &candidates, qsizetype count)
    {
        StageProgress progress(m_progress, Phase::FullHash, m_files.size(), count);
        forEachParallel(count, [&](qsizetype i) {
            if (isCancelled(m_cancelled))
                return;
            Candidate &candidate = candidates[static_cast<size_t>(i)];
            hashWhole(candidate);
            progress.step(m_files[candidate.file].path);
        });
    }

    void hashWhole(Candidate &candidate)
    {
        const FileEntry &file = m_files[candidate.file];
        if (!candidate.full.isEmpty())
            return;
        HashNotes notes;
        candidate.full = Digest(m_unread.accepted(file, fullContentHash(file.path, m_cancelled, &notes), notes));
        if (!candidate.full.isEmpty())
            remember(candidate, notes);
    }

    /// Has the digests written down if they were taken from the state of the file that the walk saw.
    void remember(const Candidate &candidate, const HashNotes &notes)
    {
        const FileEntry &file = m_files[candidate.file];
        const bool describes = notes.sizeBytes == file.size && notes.modifiedMs == file.modifiedMs;
        if (m_usesCache && describes && !candidate.quick.isEmpty())
            m_writer.add(file, {candidate.quick.bytes(), candidate.full.bytes()});
    }

    ScanResult finished()
    {
        m_writer.finish();
        m_result.unread = m_unread.take();
        return std::move(m_result);
    }

    const QList<FileEntry> &m_files;
    const ScanOptions &m_options;
    const ProgressCallback &m_progress;
    const CancelQuery &m_cancelled;
    const bool m_usesCache;
    UnreadFiles m_unread;
    DigestWriter m_writer;
    ScanResult m_result;
};

} // namespace

ScanResult DuplicateScanner::scanExact(QList<FileEntry> files, const ScanOptions &options,
                                       const ProgressCallback &progress, const CancelQuery &cancelled)
{
    return ExactScan(files, options, progress, cancelled).run();
}

} // namespace MirrixCore
