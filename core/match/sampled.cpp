#include "core/match/sampled.h"

#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/match/candidatestage.h"
#include "core/match/contentgroups.h"
#include "core/match/unreadfiles.h"

namespace MirrixCore {

namespace {

/// Three stages, each of which can only shrink the set: equal size, equal samples, equal beginning.
class SampledScan
{
public:
    SampledScan(const QList<FileEntry> &files, const ScanContext &context, qint64 prefixLimitBytes)
        : m_files(files)
        , m_context(context)
        , m_limit(prefixLimitBytes)
    {}

    ScanResult run()
    {
        ScanResult result = resultOn(m_files);
        Candidates candidates = filesOfSharedSize(m_files);
        result.candidates = std::ssize(candidates);
        hashEach(m_context, Phase::SampleHash, m_files, candidates, [this](Candidate &one) { hashSamples(one); });
        if (!m_context.isCancelled()) {
            candidates.resize(static_cast<size_t>(moveSharedToFront(candidates)));
            hashEach(m_context, Phase::PrefixHash, m_files, candidates, [this](Candidate &one) { hashPrefix(one); });
        }
        if (!m_context.isCancelled()) {
            collectGroups(candidates, m_files, Shared::QuickAndFull, m_limit < 1, result);
            finishContentGroups(result, m_context);
        }
        result.unread = m_unread.take();
        return result;
    }

private:
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
        candidate.full =
            Digest(m_unread.accepted(file, prefixHash(file.path, m_limit, m_context.cancelled, &notes), notes));
    }

    /// The digest of the whole file is the one that exact scans cache.
    void hashWhole(Candidate &candidate)
    {
        const FileEntry &file = m_files[candidate.file];
        QByteArray full;
        if (lookupFull(file.path, file.size, file.modifiedMs, full)) {
            candidate.full = Digest(full);
            return;
        }
        HashNotes notes;
        full = m_unread.accepted(file, fullContentHash(file.path, m_context.cancelled, &notes), notes);
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
    const ScanContext &m_context;
    const qint64 m_limit;
    UnreadFiles m_unread;
};

} // namespace

ScanResult matchSampled(const QList<FileEntry> &files, const ScanContext &context, qint64 prefixLimitBytes)
{
    return SampledScan(files, context, prefixLimitBytes).run();
}

} // namespace MirrixCore
