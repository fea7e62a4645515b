#include "core/match/similarcontent.h"

#include "core/hash/samples.h"
#include "core/match/candidates.h"
#include "core/match/contentgroups.h"
#include "core/match/sampletiles.h"
#include "core/match/unreadfiles.h"
#include "core/threads/stage.h"

#include <map>

namespace MirrixCore {

namespace {

/// Squares of pairs that wait for the threads at once.
constexpr size_t mostBlocks = 4096;

Digest digestOf(QByteArrayView bytes)
{
    ContentHasher hasher(ContentHashAlgorithm::Blake3);
    hasher.addData(bytes);
    return Digest(hasher.result());
}

/// Compares the samples of all files of a size with each other, each read once. Only when a class is too large for the
/// memory allowed, its samples are read again for each further part of it.
class SimilarScan
{
public:
    SimilarScan(const QList<FileEntry> &files, const ScanContext &context, qint64 memoryBytes)
        : m_files(files)
        , m_context(context)
        , m_tileBytes(memoryBytes / 2) // one tile, or one and another of the same class
        , m_classes(classesOf(files, std::clamp(context.options.similarPercent, 1, 100)))
        , m_progress(context.progress, Phase::SimilarContent, files.size(), stepsOf(m_classes))
    {}

    ScanResult run()
    {
        ScanResult result = resultOn(m_files);
        for (const SizeClass &files : m_classes)
            result.candidates += std::ssize(files.files);
        sizeThreadPool(m_context.options);
        compareAll();
        if (!m_context.isCancelled()) {
            for (SizeClass &files : m_classes)
                addGroups(files, result.groups);
            finishContentGroups(result, m_context);
        }
        result.unread = m_unread.take();
        return result;
    }

private:
    static std::vector<SizeClass> classesOf(const QList<FileEntry> &files, int leastPercent)
    {
        std::map<qint64, std::vector<quint32>> filesOfSize;
        for (const Candidate &candidate : filesOfSharedSize(files))
            filesOfSize[files[candidate.file].size].push_back(candidate.file);
        std::vector<SizeClass> classes;
        classes.reserve(filesOfSize.size());
        for (auto &[size, members] : filesOfSize)
            classes.emplace_back(size, std::move(members), leastPercent);
        return classes;
    }

    /// How many files of a class make a tile.
    qint64 tileLength(const SizeClass &files) const { return std::max<qint64>(m_tileBytes / files.sampledBytes, 1); }

    /// A step for each file to read and for each square of pairs to compare.
    qint64 stepsOf(const std::vector<SizeClass> &classes) const
    {
        qint64 steps = 0;
        for (const SizeClass &files : classes) {
            const qint64 length = tileLength(files);
            const qint64 count = std::ssize(files.files);
            for (qint64 from = 0; from < count; from += length)
                steps += stepsOfTile(from, std::min(length, count - from), length);
        }
        return steps;
    }

    /// The steps of the tile of `count` files before which there are `from`, in tiles of `length`.
    static qint64 stepsOfTile(qint64 from, qint64 count, qint64 length)
    {
        return count + pairBlockCount(count, count, true) + from / length * pairBlockCount(length, count, false);
    }

    /// Takes small classes together, so that all threads have work, and a large one by itself.
    void compareAll()
    {
        std::vector<Tile> batch;
        qint64 batchBytes = 0;
        for (SizeClass &files : m_classes) {
            const qint64 bytes = std::ssize(files.files) * files.sampledBytes;
            if (batchBytes + bytes > m_tileBytes) {
                compareEach(batch);
                batch.clear();
                batchBytes = 0;
                m_known.clear();
            }
            std::vector<Tile> tiles = tilesOf(files);
            if (tiles.size() > 1) {
                compareLarge(tiles);
            } else {
                batch.push_back(std::move(tiles.front()));
                batchBytes += bytes;
            }
        }
        compareEach(batch);
    }

    std::vector<Tile> tilesOf(SizeClass &files) const
    {
        std::vector<Tile> tiles;
        const auto length = static_cast<size_t>(tileLength(files));
        for (size_t position = 0; position < files.files.size(); ++position) {
            if (position % length == 0)
                tiles.push_back({&files, {}, {}});
            tiles.back().members.push_back({static_cast<qint32>(position), 0, {}});
        }
        return tiles;
    }

    /// Compares the files within each tile of `batch`.
    void compareEach(std::span<Tile> batch)
    {
        qint64 steps = 0;
        for (const Tile &tile : batch)
            steps += pairBlockCount(std::ssize(tile.members), std::ssize(tile.members), true);
        read(batch, true);
        for (Tile &tile : batch)
            collapseEqual(tile);
        for (const Tile &tile : batch)
            steps -= queuePairs(tile, tile);
        compareQueued();
        skip(steps);
    }

    /// Compares all files of one class.
    void compareLarge(std::vector<Tile> &tiles)
    {
        for (size_t i = 0; i < tiles.size() && !m_context.isCancelled(); ++i) {
            qint64 steps = 0;
            for (size_t k = 0; k < i; ++k)
                steps += pairBlockCount(tileLength(*tiles[k].sizeClass), std::ssize(tiles[i].members), false);
            compareEach(std::span(&tiles[i], 1));
            for (size_t k = 0; k < i && !m_context.isCancelled(); ++k) {
                read(std::span(&tiles[k], 1), false);
                steps -= queuePairs(tiles[k], tiles[i]);
                compareQueued();
                tiles[k].samples.clear();
            }
            tiles[i].samples.clear();
            skip(steps);
        }
    }

    /// Reads the samples of all members and drops those that could not be read.
    void read(std::span<Tile> tiles, bool isFirstTime)
    {
        struct Job
        {
            Tile *tile;
            Tile::Member *member;
        };
        std::vector<Job> jobs;
        for (Tile &tile : tiles) {
            tile.samples.resize(std::ssize(tile.members) * tile.sizeClass->sampledBytes);
            for (Tile::Member &member : tile.members) {
                member.slot = static_cast<qint32>(&member - tile.members.data());
                jobs.push_back({&tile, &member});
            }
        }
        forEachParallel(std::ssize(jobs), [&](qsizetype i) {
            if (m_context.isCancelled())
                return;
            const Job &job = jobs[static_cast<size_t>(i)];
            readMember(*job.tile, *job.member);
            if (isFirstTime)
                m_progress.step(fileOf(*job.tile, *job.member).path);
        });
        for (Tile &tile : tiles)
            std::erase_if(tile.members, [](const Tile::Member &member) { return member.digest.isEmpty(); });
    }

    const FileEntry &fileOf(const Tile &tile, const Tile::Member &member) const
    {
        return m_files[tile.sizeClass->files[static_cast<size_t>(member.position)]];
    }

    void readMember(Tile &tile, Tile::Member &member)
    {
        const FileEntry &file = fileOf(tile, member);
        char *samples = tile.samplesIn(member.slot);
        HashNotes notes;
        const Digest before = std::exchange(member.digest, {});
        if (readSamples(file.path, file.size, samples, notes))
            member.digest = digestOf({samples, tile.sizeClass->sampledBytes});
        // Read again for another tile: other samples mean that the file has changed during the scan.
        if (!before.isEmpty() && !member.digest.isEmpty() && member.digest != before) {
            notes.hasChanged = true;
            member.digest = {};
        }
        if (member.digest.isEmpty())
            m_unread.note(file, notes);
    }

    /// Joins files of equal samples and leaves only the first of them to be compared further.
    void collapseEqual(Tile &tile)
    {
        std::map<Digest, qint32> &known = m_known[tile.sizeClass];
        std::erase_if(tile.members, [&](const Tile::Member &member) {
            const auto [first, isNew] = known.try_emplace(member.digest, member.position);
            if (!isNew)
                tile.sizeClass->join(first->second, member.position, 100);
            return !isNew;
        });
    }

    /// Compares all pairs of a tile, or of two, in portions of bounded size; the last one waits for compareQueued.
    /// Returns the steps they count as.
    qint64 queuePairs(const Tile &a, const Tile &b)
    {
        forEachPairBlock(a, b, [this](const PairBlock &block) {
            m_queue.push_back(block);
            if (m_queue.size() < mostBlocks)
                return true;
            compareQueued();
            return !m_context.isCancelled();
        });
        return pairBlockCount(std::ssize(a.members), std::ssize(b.members), &a == &b);
    }

    void compareQueued()
    {
        std::mutex mutex;
        forEachParallel(std::ssize(m_queue), [&](qsizetype i) {
            if (m_context.isCancelled())
                return;
            const PairBlock &block = m_queue[static_cast<size_t>(i)];
            const std::vector<SimilarPair> pairs = similarPairs(block);
            {
                const std::lock_guard lock(mutex);
                for (const SimilarPair &pair : pairs)
                    block.a->sizeClass->join(pair.a, pair.b, pair.percent);
            }
            m_progress.step(fileOf(*block.a, block.a->members[block.fromA]).path);
        });
        m_queue.clear();
    }

    /// Counts steps that need not be done, since files were equal or could not be read.
    void skip(qint64 steps)
    {
        if (steps > 0 && !m_context.isCancelled())
            m_progress.step({}, steps);
    }

    /// Groups in the order of their first members, members in list order.
    void addGroups(SizeClass &files, QList<DuplicateGroup> &groups) const
    {
        std::map<qint32, QList<FileEntry>> members;
        for (size_t i = 0; i < files.files.size(); ++i)
            members[files.sets.find(static_cast<qint32>(i))].append(m_files[files.files[i]]);
        for (const auto &[root, similar] : members) {
            const int percent = files.percent[static_cast<size_t>(root)];
            if (similar.size() >= 2)
                groups.append({QStringLiteral("SIM:%1%").arg(percent), similar, wasteOf(similar)});
        }
    }

    const QList<FileEntry> &m_files;
    const ScanContext &m_context;
    const qint64 m_tileBytes;
    std::vector<SizeClass> m_classes;
    std::map<const SizeClass *, std::map<Digest, qint32>> m_known; ///< the first file of each sample set
    std::vector<PairBlock> m_queue;
    StageProgress m_progress;
    UnreadFiles m_unread;
};

} // namespace

ScanResult matchSimilarContent(const QList<FileEntry> &files, const ScanContext &context, qint64 memoryBytes)
{
    return SimilarScan(files, context, memoryBytes).run();
}

} // namespace MirrixCore
