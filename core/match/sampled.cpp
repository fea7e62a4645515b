#include "core/scan/duplicatescanner.h"

#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/match/candidates.h"
#include "core/match/contentgroups.h"
#include "core/match/parallel.h"
#include "core/match/unreadfiles.h"
#include "core/scan/threadpool.h"

namespace MirrixCore {

namespace {

/// Three stages, each of which can only shrink the set: equal size, equal samples, equal beginning.
class SampledScan
{
public:
    SampledScan(const QList<FileEntry> &files, const ScanOptions &options, const ProgressCallback &progress,
                const CancelQuery &cancelled, qint64 prefixLimitBytes)
        : m_files(files)
        , m_options(options)
        , m_progress(progress)
        , m_cancelled(cancelled)
        , m_limit(prefixLimitBytes)
    {}

    ScanResult run()
    {
        ScanResult result = resultOn(m_files);
        Candidates candidates = filesOfSharedSize(m_files);
        result.candidates = std::ssize(candidates);
        sizeThreadPool(m_options);
        hashStage(Phase::SampleHash, candidates, [this](Candidate &candidate) { hashSamples(candidate); });
        if (!isCancelled(m_cancelled)) {
            candidates.resize(static_cast<size_t>(moveSharedToFront(candidates)));
            hashStage(Phase::PrefixHash, candidates, [this](Candidate &candidate) { hashPrefix(candidate); });
        }
        if (!isCancelled(m_cancelled)) {
            collectGroups(candidates, m_files, Shared::QuickAndFull, m_limit < 1, result);
            finishContentGroups(result, m_options, m_cancelled);
        }
        result.unread = m_unread.take();
        return result;
    }

private:
    template <typename Hash>
    void hashStage(const QString &phase, Candidates &candidates, Hash hash)
    {
        StageProgress progress(m_progress, phase, m_files.size(), std::ssize(candidates));
        forEachParallel(std::ssize(candidates), [&](qsizetype i) {
            if (isCancelled(m_cancelled))
                return;
            Candidate &candidate = candidates[static_cast<size_t>(i)];
            hash(candidate);
            progress.step(m_files[candidate.file].path);
        });
    }

    void hashSamples(Candidate &candidate)
    {
        const FileEntry &file = m_files[candidate.file];
        HashNotes notes;
        candidate.quick = Digest(m_unread.accepted(file, sampleHash(file.path, &notes), notes));
    }

    void hashPrefix(Candidate &candidate)
    {
        const FileEntry &file = m_files[candidate.file];
        if (m_limit < 1) {
            hashWhole(candidate);
            return;
        }
        HashNotes notes;
        candidate.full = Digest(m_unread.accepted(file, prefixHash(file.path, m_limit, m_cancelled, &notes), notes));
    }

    /// The digest of the whole file is the one that exact scans remember.
    void hashWhole(Candidate &candidate)
    {
        const FileEntry &file = m_files[candidate.file];
        QByteArray full;
        if (lookupFull(file.path, file.size, file.modifiedMs, full)) {
            candidate.full = Digest(full);
            return;
        }
        HashNotes notes;
        full = m_unread.accepted(file, fullContentHash(file.path, m_cancelled, &notes), notes);
        candidate.full = Digest(full);
        if (!full.isEmpty() && notes.sizeBytes == file.size && notes.modifiedMs == file.modifiedMs)
            remember(file, full);
    }

    /// An entry holds both digests of an exact scan. Its quick one costs little now, so shortly after reading it all.
    static void remember(const FileEntry &file, const QByteArray &full)
    {
        if (cachePathFor(file.path).isEmpty())
            return;
        HashNotes notes;
        const QByteArray quick = quickHash(file.path, &notes);
        if (!notes.hasChanged && notes.sizeBytes == file.size && notes.modifiedMs == file.modifiedMs)
            storeQuickAndFull(file.path, file.size, file.modifiedMs, quick, full);
    }

    const QList<FileEntry> &m_files;
    const ScanOptions &m_options;
    const ProgressCallback &m_progress;
    const CancelQuery &m_cancelled;
    const qint64 m_limit;
    UnreadFiles m_unread;
};

} // namespace

ScanResult DuplicateScanner::scanSampledContent(QList<FileEntry> files, const ScanOptions &options,
                                                const ProgressCallback &progress, const CancelQuery &cancelled,
                                                qint64 prefixLimitBytes)
{
    return SampledScan(files, options, progress, cancelled, prefixLimitBytes).run();
}

} // namespace MirrixCore
