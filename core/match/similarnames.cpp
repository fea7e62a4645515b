#include "core/match/similarnames.h"

#include "core/match/copywords.h"
#include "core/match/editdistance.h"
#include "core/match/groups.h"
#include "core/match/segmentindex.h"
#include "core/platform/pathtext.h"
#include "core/threads/stage.h"

#include <algorithm>
#include <vector>

namespace MirrixCore {

namespace {

/// Finds the clusters of a bucket. Each takes what it reaches out of the index, so that names of one cluster are hardly
/// ever compared with each other; comparing every pair would give the same clusters.
class NameClusters
{
public:
    NameClusters(const QList<FileEntry> &members, const ScanOptions &options, const CancelQuery &cancelled,
                 StageProgress *progress)
        : m_cancelled(cancelled)
        , m_progress(progress)
    {
        qsizetype longest = 0;
        m_names.reserve(static_cast<size_t>(members.size()));
        for (const FileEntry &member : members) {
            if (isCancelled(cancelled))
                return; // and find returns at once
            m_names.push_back(normalizedBaseName(member.path, options));
            longest = std::max(longest, m_names.back().size());
        }
        m_tolerance = static_cast<qint32>(std::clamp<qsizetype>(options.nameTolerance, 0, longest));
        m_index = SegmentIndex(m_names, m_tolerance);
        if (longest >= manyUnits) {
            for (const QString &name : m_names)
                m_counts.push_back(unitCounts(name));
        }
        m_cluster.assign(m_names.size(), unassigned);
    }

    /// The number of each member's cluster, numbered in the order of their first members; empty when cancelled.
    std::vector<qint32> find()
    {
        qint32 count = 0;
        for (size_t i = 0; i < m_cluster.size(); ++i) {
            if (m_cluster[i] != unassigned)
                continue;
            m_cluster[i] = count;
            std::vector<qint32> reached = {static_cast<qint32>(i)};
            for (size_t next = 0; next < reached.size(); ++next) { // which grows in the loop
                if (isCancelled(m_cancelled))
                    return {};
                takeNear(reached[next], reached);
                if (m_progress)
                    m_progress->step({});
            }
            ++count;
        }
        return isCancelled(m_cancelled) ? std::vector<qint32>() : std::move(m_cluster);
    }

    [[nodiscard]] const QString &name(size_t member) const { return m_names[member]; }

private:
    static constexpr qint32 unassigned = -1;
    static constexpr qsizetype manyUnits = 65; ///< from here on comparing two names costs more than their counts

    /// Brings all that is in no cluster yet and belongs together with `member` directly into its cluster.
    void takeNear(qint32 member, std::vector<qint32> &reached)
    {
        const auto index = static_cast<size_t>(member);
        const EditMatcher matcher(m_names[index]);
        m_index.visitNear(m_names[index], [&](qint32 found) {
            const auto other = static_cast<size_t>(found);
            if (m_cluster[other] != unassigned)
                return true;
            if (!areCompared(index, other) || !mayBeNear(index, other) ||
                !matcher.isWithin(m_names[other], m_tolerance))
                return false;
            m_cluster[other] = m_cluster[index];
            reached.push_back(found);
            return true;
        });
    }

    [[nodiscard]] bool mayBeNear(size_t a, size_t b) const
    {
        return m_counts.empty() || mayBeWithin(m_counts[a], m_counts[b], m_tolerance);
    }

    /// Of names of different lengths only those count whose longer one comes later.
    [[nodiscard]] bool areCompared(size_t a, size_t b) const
    {
        const qsizetype lengthA = m_names[a].size();
        const qsizetype lengthB = m_names[b].size();
        return lengthA == lengthB || (lengthA < lengthB) == (a < b);
    }

    const CancelQuery &m_cancelled;
    StageProgress *m_progress;
    std::vector<QString> m_names;     ///< by member, as all below
    std::vector<UnitCounts> m_counts; ///< only with long names
    std::vector<qint32> m_cluster;
    SegmentIndex m_index;
    qint32 m_tolerance = 0;
};

} // namespace

QString withoutIgnoredCopyWords(const QString &name, const ScanOptions &options)
{
    if (!options.ignoreCopyWords)
        return name;
    const QString stripped = stripCopySuffix(name);
    return options.copyWordsInAllLanguages ? stripCopyWords(stripped) : stripped;
}

QString normalizedBaseName(const QString &path, const ScanOptions &options)
{
    QString name = nameOf(path).toString();
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    if (dot >= 0)
        name.truncate(dot);
    name = withoutIgnoredCopyWords(name, options);
    return options.caseSensitive ? name : name.toLower();
}

QList<DuplicateGroup> clusterSimilarNames(const QString &bucketKey, const QList<FileEntry> &members,
                                          const ScanOptions &options, const QString &keyForm,
                                          const CancelQuery &cancelled, StageProgress *progress)
{
    NameClusters names(members, options, cancelled, progress);
    const std::vector<qint32> clusterOf = names.find();
    QList<DuplicateGroup> clusters;
    for (size_t i = 0; i < clusterOf.size(); ++i) {
        if (clusterOf[i] == clusters.size()) {
            QString key = keyForm;
            // %2 first: the bucket key may itself hold such a mark.
            key.replace(QLatin1String("%2"), names.name(i));
            if (key.startsWith(QLatin1String("%1")))
                key.replace(0, 2, bucketKey);
            clusters.append({key, {}, 0});
        }
        clusters[clusterOf[i]].files.append(members[static_cast<qsizetype>(i)]);
    }
    finishGroups(clusters, options);
    return clusters;
}

} // namespace MirrixCore
