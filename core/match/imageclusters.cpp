#include "core/match/imageclusters.h"

#include "core/match/mediakeys.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <span>
#include <vector>

namespace MirrixCore {

namespace {

/// Width and height, with `anyOrientation` the longer one first.
struct Sides
{
    qint64 first;
    qint64 second;

    Sides(const FileEntry &file, bool anyOrientation)
        : first(file.width)
        , second(file.height)
    {
        if (anyOrientation && first < second)
            std::swap(first, second);
    }

    [[nodiscard]] double ratio() const { return double(first) / double(second); }
};

bool sizesAllow(const FileEntry &a, const FileEntry &b, const ScanOptions &options)
{
    constexpr double mostRatioDifference = 0.02;
    const bool isKnown = a.width >= 1 && a.height >= 1 && b.width >= 1 && b.height >= 1;
    if (!isKnown || (!options.imageSameDimensions && !options.imageSameAspect))
        return true;
    const Sides first(a, options.imageFindRotated);
    const Sides second(b, options.imageFindRotated);
    if (std::abs(first.ratio() - second.ratio()) > mostRatioDifference)
        return false;
    const qint64 tolerance = std::max(options.imageDimensionTolerance, 0);
    return !options.imageSameDimensions ||
           (std::abs(first.first - second.first) <= tolerance && std::abs(first.second - second.second) <= tolerance);
}

bool timesAllow(const FileEntry &a, const FileEntry &b, const ScanOptions &options)
{
    if (!options.imageSameShotTime || a.shotMs <= 0 || b.shotMs <= 0)
        return true;
    return std::abs(a.shotMs - b.shotMs) <= qint64(std::max(options.imageShotTimeTolerance, 1)) * 1000;
}

/// Takes the earth for flat between the two: good for the distances that are asked for, up to some kilometres.
bool positionsAllow(const FileEntry &a, const FileEntry &b, const ScanOptions &options)
{
    constexpr double metresPerDegree = 111000;
    if (!options.imageGroupByGps || !a.hasGps || !b.hasGps)
        return true;
    const double middle = (a.latitude + b.latitude) * 0.5 * std::numbers::pi / 180;
    const double dy = (a.latitude - b.latitude) * metresPerDegree;
    const double dx = (a.longitude - b.longitude) * metresPerDegree * std::cos(middle);
    return std::sqrt(dx * dx + dy * dy) <= std::max(options.imageGpsPrecision, 1);
}

class Clustering
{
public:
    Clustering(const QList<FileEntry> &files, const std::vector<ImageFeature> &features, const ScanOptions &options)
        : m_files(files)
        , m_features(features)
        , m_options(options)
        , m_isPlaced(features.size())
    {
        m_firstHash.push_back(0);
        for (size_t i = 0; i < features.size(); ++i) {
            if (features[i].isValid)
                add(i);
            m_firstHash.push_back(m_hashes.size());
        }
    }

    QList<DuplicateGroup> run(const CancelQuery &cancelled)
    {
        QList<DuplicateGroup> groups;
        for (size_t seed = 0; seed < m_features.size(); ++seed) {
            if (!m_features[seed].isValid || m_isPlaced[seed])
                continue;
            std::vector<size_t> members = componentOf(seed, cancelled);
            if (isCancelled(cancelled))
                return {};
            if (members.size() >= 2)
                groups.append(groupOf(members));
        }
        return groups;
    }

private:
    using Bucket = std::vector<size_t>;  // in list order; those in a component already are taken out when met
    using Buckets = std::vector<Bucket>; // by key

    static constexpr size_t keyCount = 1 << 16;

    static size_t keyOf(quint64 hash) { return static_cast<size_t>(hash >> 48); }

    /// Also under the key of each variant: the hash of a turned copy as it is has nothing in common with the
    /// original's.
    void add(size_t image)
    {
        const ImageFeature &feature = m_features[image];
        m_hashes.insert(m_hashes.end(), feature.variants.begin(), feature.variants.end());
        m_byPrimary[keyOf(feature.primary)].push_back(image);
        addByVariant(feature.primary, image);
        for (const quint64 variant : feature.variants)
            addByVariant(variant, image);
    }

    void addByVariant(quint64 hash, size_t image)
    {
        Bucket &bucket = m_byVariant[keyOf(hash)];
        if (bucket.empty() || bucket.back() != image)
            bucket.push_back(image);
    }

    /// The seed, which is the first of its component in list order, and all that are reached from it.
    std::vector<size_t> componentOf(size_t seed, const CancelQuery &cancelled)
    {
        std::vector<size_t> members{seed};
        m_isPlaced[seed] = true;
        for (size_t next = 0; next < members.size() && !isCancelled(cancelled); ++next)
            moveAllMatches(members[next], members);
        return members;
    }

    /// The primary hash meets the variants of others, and the variants the others' primary hashes: whether two pictures
    /// are compared must not depend on which one comes first.
    void moveAllMatches(size_t image, std::vector<size_t> &members)
    {
        const quint64 primary = m_features[image].primary;
        moveMatches(image, m_byVariant, keyOf(primary), members);
        for (const quint64 variant : variantsOf(image)) {
            if (variant != primary)
                moveMatches(image, m_byPrimary, keyOf(variant), members);
        }
    }

    /// Moves what matches `image` from the bucket of a key and from the one beside it to the members.
    void moveMatches(size_t image, Buckets &buckets, size_t key, std::vector<size_t> &members)
    {
        for (Bucket *const bucket : {&buckets[key], &buckets[key ^ 1]}) {
            std::erase_if(*bucket, [&](size_t candidate) {
                if (m_isPlaced[candidate])
                    return true;
                const bool isMatch = matches(image, candidate);
                if (isMatch) {
                    m_isPlaced[candidate] = true;
                    members.push_back(candidate);
                }
                return isMatch;
            });
        }
    }

    [[nodiscard]] std::span<const quint64> variantsOf(size_t image) const
    {
        return {m_hashes.data() + m_firstHash[image], m_hashes.data() + m_firstHash[image + 1]};
    }

    /// All checks must hold; the hashes lie close together in memory and refuse nearly every pair, so they come first.
    [[nodiscard]] bool matches(size_t a, size_t b) const
    {
        return variantsMatch(variantsOf(a), variantsOf(b), m_options.imageMaxDistance) &&
               factsAllowPair(m_files[static_cast<qsizetype>(a)], m_files[static_cast<qsizetype>(b)], m_options) &&
               (!m_options.imageMatchHistogram ||
                histogramsMatch(m_features[a].histogram, m_features[b].histogram, leastHistogramCosine));
    }

    [[nodiscard]] DuplicateGroup groupOf(std::vector<size_t> &members) const
    {
        DuplicateGroup group;
        group.key = QStringLiteral("img-") +
                    QStringLiteral("%1").arg(m_features[members.front()].primary, 16, 16, QLatin1Char('0'));
        std::sort(members.begin(), members.end());
        for (const size_t member : members)
            group.files.append(m_files[static_cast<qsizetype>(member)]);
        group.wastedBytes = wasteOf(group.files);
        return group;
    }

    const QList<FileEntry> &m_files;
    const std::vector<ImageFeature> &m_features;
    const ScanOptions &m_options;
    std::vector<quint64> m_hashes;   // the variants of all pictures, one after the other
    std::vector<size_t> m_firstHash; // of each picture, and the end
    Buckets m_byPrimary = Buckets(keyCount);
    Buckets m_byVariant = Buckets(keyCount);
    std::vector<bool> m_isPlaced; // in a component
};

} // namespace

bool factsAllowPair(const FileEntry &a, const FileEntry &b, const ScanOptions &options)
{
    return sizesAllow(a, b, options) && timesAllow(a, b, options) && positionsAllow(a, b, options) &&
           !imageTagsDiffer(a, b, options);
}

QList<DuplicateGroup> groupSimilarImages(const QList<FileEntry> &files, const std::vector<ImageFeature> &features,
                                         const ScanOptions &options, const CancelQuery &cancelled)
{
    return Clustering(files, features, options).run(cancelled);
}

} // namespace MirrixCore
