#include "core/match/exact.h"

#include "core/cache/cacheroot.h"
#include "core/cache/digestwriter.h"
#include "core/cache/fingerprintcache.h"
#include "core/hash/contenthash.h"
#include "core/match/candidatestage.h"
#include "core/match/contentgroups.h"
#include "core/match/unreadfiles.h"

namespace MirrixCore {

namespace {

/// Three stages, each of which can only shrink the set: equal size, equal quick digest, equal full digest.
class ExactScan
{
public:
    ExactScan(const QList<FileEntry> &files, const ScanContext &context)
        : m_files(files)
        , m_context(context)
        , m_usesCache(!cacheRoot().isEmpty())
        , m_writer(context.cancelled)
    {}

    ScanResult run()
    {
        ScanResult result = resultOn(m_files);
        Candidates candidates = filesOfSharedSize(m_files);
        result.candidates = std::ssize(candidates);
        hashEach(m_context, Phase::QuickHash, m_files, candidates, [this](Candidate &one) { hashQuick(one); });
        if (!m_context.isCancelled()) {
            candidates.resize(static_cast<size_t>(moveSharedToFront(candidates)));
            hashEach(m_context, Phase::FullHash, m_files, candidates, [this](Candidate &one) { hashWhole(one); });
        }
        if (!m_context.isCancelled()) {
            collectGroups(candidates, m_files, Shared::Full, true, result);
            finishContentGroups(result, m_context);
        }
        m_writer.finish(); // also when cancelled: what was hashed need not be hashed again
        result.unread = m_unread.take();
        return result;
    }

private:
    void hashQuick(Candidate &candidate)
    {
        if (m_usesCache) {
            const FileEntry &file = m_files[candidate.file];
            const Fingerprint known = lookupFingerprint(file.path, file.size, file.modifiedMs);
            candidate.quick = Digest(known.quick);
            candidate.full = Digest(known.full);
        }
        if (candidate.quick.isEmpty())
            hashStart(candidate);
    }

    /// A small file is read only once, for both digests: opening it again costs more than hashing it.
    void hashStart(Candidate &candidate)
    {
        const FileEntry &file = m_files[candidate.file];
        HashNotes notes;
        if (file.size <= quickCoversBytes) {
            const SmallFileDigests digests = smallFileDigests(file.path, file.size, m_usesCache, &notes);
            candidate.full = Digest(m_unread.accepted(file, digests.full, notes));
            candidate.quick = m_usesCache ? Digest(digests.quick) : candidate.full; // it distinguishes as well
        } else {
            candidate.quick = Digest(m_unread.accepted(file, quickHash(file.path, &notes), notes));
        }
        remember(candidate, notes);
    }

    void hashWhole(Candidate &candidate)
    {
        const FileEntry &file = m_files[candidate.file];
        if (!candidate.full.isEmpty())
            return;
        HashNotes notes;
        candidate.full =
            Digest(m_unread.accepted(file, fullContentHash(file.path, m_context.cancelled, &notes), notes));
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

    const QList<FileEntry> &m_files;
    const ScanContext &m_context;
    const bool m_usesCache;
    UnreadFiles m_unread;
    DigestWriter m_writer;
};

} // namespace

ScanResult matchExact(const QList<FileEntry> &files, const ScanContext &context)
{
    return ExactScan(files, context).run();
}

} // namespace MirrixCore
