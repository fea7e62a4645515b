#include "core/match/rulekeys.h"

#include "core/match/groups.h"
#include "core/match/mediakeys.h"
#include "core/match/rootprefixes.h"
#include "core/match/similarnames.h"
#include "core/platform/pathtext.h"
#include "core/threads/stage.h"

#include <QDateTime>
#include <QDir>
#include <QHash>

#include <algorithm>
#include <numeric>
#include <vector>

namespace MirrixCore {

namespace {

/// Files of one key, in input order.
struct Bucket
{
    QString key;
    QList<FileEntry> files;
};

QString cased(const QString &text, const ScanOptions &options)
{
    return options.caseSensitive ? text : text.toLower();
}

qint64 timeKey(qint64 timeMs, bool isDateOnly)
{
    if (timeMs < 1)
        return -1;
    return isDateOnly ? QDateTime::fromMSecsSinceEpoch(timeMs).date().startOfDay().toMSecsSinceEpoch() : timeMs;
}

/// The first `depth` pieces of a folder's path.
QString leadingPieces(const QString &folder, qint32 depth)
{
    const QStringList pieces = folder.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    return pieces.mid(0, std::max(depth, 1)).join(QLatin1Char('/'));
}

void appendNameParts(QStringList &parts, const FileEntry &entry, const ScanOptions &options)
{
    const QString name = nameOf(entry.path).toString();
    if (options.sameName)
        parts.append(QLatin1String("FN:") + cased(withoutIgnoredCopyWords(name, options), options));
    if (options.sameExtension)
        parts.append(QLatin1String("EXT:") + suffixOf(name));
}

void appendSizeAndDateParts(QStringList &parts, const FileEntry &entry, const ScanOptions &options)
{
    if (options.sameSize) {
        const qint64 tolerance = std::max<qint64>(options.sizeTolerance, 0);
        const qint64 bucket = tolerance == 0 ? entry.size : entry.size / (tolerance + 1);
        parts.append(QLatin1String("SZ:") + QString::number(bucket));
    }
    if (options.sameCreated)
        parts.append(QLatin1String("CD:") + QString::number(timeKey(entry.createdMs, options.createdDateOnly)));
    if (options.sameModified)
        parts.append(QLatin1String("MD:") + QString::number(timeKey(entry.modifiedMs, options.modifiedDateOnly)));
}

void appendPathParts(QStringList &parts, const FileEntry &entry, const ScanOptions &options, const RootPrefixes &roots)
{
    const QString folder = folderOf(entry.path).toString();
    if (options.sameDrive)
        parts.append(QLatin1String("DR:") + QDir::rootPath());
    if (options.sameFolderName)
        parts.append(QLatin1String("FD:") + cased(nameOf(folder).toString(), options));
    if (options.sameFolderPath)
        parts.append(QLatin1String("FP:") + cased(leadingPieces(folder, options.folderPathDepth), options));
    if (options.samePathUnderRoot)
        parts.append(QLatin1String("RP:") + cased(roots.rest(entry.path), options));
}

/// Makes the keys of many files.
class RuleKeys
{
public:
    RuleKeys(const ScanOptions &options, bool includeMedia)
        : m_options(options)
        , m_includeMedia(includeMedia)
        , m_roots(options.samePathUnderRoot ? options.roots : QStringList(),
                  options.caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive)
    {}

    [[nodiscard]] QString keyOf(const FileEntry &entry) const
    {
        QStringList parts;
        appendNameParts(parts, entry, m_options);
        appendSizeAndDateParts(parts, entry, m_options);
        appendPathParts(parts, entry, m_options, m_roots);
        if (m_includeMedia)
            parts += mediaKeyParts(entry, m_options);
        return parts.join(QLatin1Char('|'));
    }

private:
    const ScanOptions &m_options;
    const bool m_includeMedia;
    const RootPrefixes m_roots;
};

/// Buckets of two or more files, in the order of their first ones; none when cancelled. Most keys occur once: files are
/// copied only when theirs does not.
QList<Bucket> sharedBuckets(const QList<FileEntry> &files, const RuleKeys &keys, bool takesKeyless,
                            const CancelQuery &cancelled, const ProgressCallback &callback)
{
    StageProgress progress(callback, Phase::Metadata, files.size(), files.size());
    QHash<QString, qint32> numberOfKey; // from 1; 0 = no bucket
    std::vector<qint32> sizes = {0};    // by number
    std::vector<qint32> numberOfFile;
    numberOfFile.reserve(static_cast<size_t>(files.size()));
    for (const FileEntry &file : files) {
        if (isCancelled(cancelled))
            return {};
        const QString key = keys.keyOf(file);
        progress.step(file.path);
        qint32 number = 0;
        if (takesKeyless || !key.isEmpty()) {
            qint32 &known = numberOfKey[key];
            if (known == 0) {
                known = static_cast<qint32>(sizes.size());
                sizes.push_back(0);
            }
            number = known;
            ++sizes[static_cast<size_t>(number)];
        }
        numberOfFile.push_back(number);
    }

    QList<Bucket> buckets;
    std::vector<qsizetype> bucketOfNumber(sizes.size(), -1);
    for (qsizetype i = 0; i < files.size(); ++i) {
        const auto number = static_cast<size_t>(numberOfFile[static_cast<size_t>(i)]);
        if (sizes[number] < 2)
            continue;
        if (bucketOfNumber[number] < 0) {
            bucketOfNumber[number] = buckets.size();
            buckets.append({keys.keyOf(files[i]), {}});
            buckets.last().files.reserve(sizes[number]);
        }
        buckets[bucketOfNumber[number]].files.append(files[i]);
    }
    return buckets;
}

/// The groups that buckets become, under keys that begin with `keyPrefix`.
QList<DuplicateGroup> groupsOf(const QList<Bucket> &buckets, const QString &keyPrefix, const QString &clusterKeyForm,
                               const ScanOptions &options, const CancelQuery &cancelled,
                               const ProgressCallback &callback)
{
    const qint64 members = std::accumulate(buckets.begin(), buckets.end(), qint64(0),
                                           [](qint64 sum, const Bucket &one) { return sum + one.files.size(); });
    StageProgress progress(callback, Phase::Metadata, members, members);
    QList<DuplicateGroup> groups;
    for (const Bucket &bucket : buckets) {
        if (isCancelled(cancelled))
            return {};
        const bool needsBar = !keyPrefix.isEmpty() && !bucket.key.isEmpty();
        const QString key = keyPrefix + (needsBar ? QStringLiteral("|") : QString()) + bucket.key;
        if (options.similarNames)
            groups += clusterSimilarNames(key, bucket.files, options, clusterKeyForm, cancelled, &progress);
        else
            groups.append({key, bucket.files, 0});
    }
    finishGroups(groups, options);
    return groups;
}

} // namespace

QString buildRuleKey(const FileEntry &entry, const ScanOptions &options, bool includeMedia)
{
    return RuleKeys(options, includeMedia).keyOf(entry);
}

ScanResult groupByRuleKeys(const QList<FileEntry> &files, const ScanOptions &options, bool includeMedia,
                           const CancelQuery &cancelled, const ProgressCallback &progress)
{
    ScanResult result = resultOn(files);
    const RuleKeys keys(options, includeMedia);
    const QList<Bucket> buckets = sharedBuckets(files, keys, options.similarNames, cancelled, progress);
    result.groups = groupsOf(buckets, {}, QStringLiteral("%1|SFN:%2"), options, cancelled, progress);
    finishResult(result, options);
    return result;
}

bool hasRefiningRule(const ScanOptions &options)
{
    return options.sameName || options.sameExtension || options.similarNames || options.sameSize ||
           options.sameCreated || options.sameModified || options.sameDrive || options.sameFolderName ||
           options.sameFolderPath || options.samePathUnderRoot || options.ignoreSameFolderGroups;
}

QList<DuplicateGroup> refineGroupsByRuleKeys(const QList<DuplicateGroup> &groups, const ScanOptions &options,
                                             const CancelQuery &cancelled)
{
    if (!hasRefiningRule(options))
        return groups;
    const RuleKeys keys(options, false);
    QList<DuplicateGroup> refined;
    for (const DuplicateGroup &group : groups) {
        if (isCancelled(cancelled))
            return {};
        const QList<Bucket> buckets = sharedBuckets(group.files, keys, true, cancelled, {});
        QList<DuplicateGroup> parts = groupsOf(buckets, group.key, QStringLiteral("%1|SFN"), options, cancelled, {});
        for (DuplicateGroup &part : parts)
            part.isEqualContent = group.isEqualContent;
        refined += parts;
    }
    return refined;
}

} // namespace MirrixCore
