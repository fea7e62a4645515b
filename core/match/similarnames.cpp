#include "core/match/similarnames.h"

#include "core/match/editdistance.h"
#include "core/match/groups.h"
#include "core/match/unionfind.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

namespace MirrixCore {

namespace {

struct Name
{
    QString text;
    NameSignature signature;
};

using IndexList = std::vector<qint32>;

std::vector<Name> namesOf(const QList<FileEntry> &members, const ScanOptions &options)
{
    std::vector<Name> names;
    names.reserve(static_cast<size_t>(members.size()));
    for (const FileEntry &member : members) {
        const QString text = normalizedBaseName(member.path, options);
        names.push_back({text, nameSignature(text)});
    }
    return names;
}

/// Joins member `i` with each later one of `others` that is near enough.
void joinNear(qint32 i, const IndexList &others, const std::vector<Name> &names, qint32 tolerance,
              const EditMatcher &matcher, UnionFind &sets)
{
    const NameSignature &signature = names[static_cast<size_t>(i)].signature;
    for (auto j = std::upper_bound(others.begin(), others.end(), i); j != others.end(); ++j) {
        const Name &other = names[static_cast<size_t>(*j)];
        if (mayBeWithin(signature, other.signature, tolerance) && sets.find(i) != sets.find(*j) &&
            matcher.isWithin(other.text, tolerance)) {
            sets.join(i, *j);
        }
    }
}

/// False when cancelled.
bool joinAll(const std::vector<Name> &names, qint32 tolerance, UnionFind &sets, const CancelQuery &cancelled)
{
    QHash<qsizetype, IndexList> indicesOfLength;
    for (size_t i = 0; i < names.size(); ++i)
        indicesOfLength[names[i].text.size()].push_back(static_cast<qint32>(i));
    for (auto it = indicesOfLength.cbegin(); it != indicesOfLength.cend(); ++it) {
        for (const qint32 i : it.value()) {
            if (isCancelled(cancelled))
                return false;
            const EditMatcher matcher(names[static_cast<size_t>(i)].text);
            for (qint32 longer = 0; longer <= tolerance; ++longer) {
                const auto others = indicesOfLength.constFind(it.key() + longer);
                if (others != indicesOfLength.cend())
                    joinNear(i, *others, names, tolerance, matcher, sets);
            }
        }
    }
    return true;
}

} // namespace

QString stripCopySuffix(const QString &text)
{
    static const QRegularExpression suffix(
        QStringLiteral("\\s*(?:-\\s*(?:副本|拷贝|Copy)|[\\(\\[\\{]\\d+[\\)\\]\\}]|副本\\d*|Copy\\d*)$"),
        QRegularExpression::CaseInsensitiveOption);
    return QString(text).remove(suffix).trimmed();
}

QString normalizedBaseName(const QString &path, const ScanOptions &options)
{
    QString name = nameOf(path).toString();
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    if (dot >= 0)
        name.truncate(dot);
    if (options.ignoreCopyWords)
        name = stripCopySuffix(name);
    return options.caseSensitive ? name : name.toLower();
}

QList<DuplicateGroup> clusterSimilarNames(const QString &bucketKey, const QList<FileEntry> &members,
                                          const ScanOptions &options, const QString &keyForm,
                                          const CancelQuery &cancelled)
{
    const std::vector<Name> names = namesOf(members, options);
    UnionFind sets(members.size());
    if (!joinAll(names, std::max(options.nameTolerance, 0), sets, cancelled))
        return {};
    QList<DuplicateGroup> clusters;
    QHash<qint32, qsizetype> clusterOfRoot;
    for (qint32 i = 0; i < static_cast<qint32>(names.size()); ++i) {
        const qint32 root = sets.find(i);
        if (!clusterOfRoot.contains(root)) {
            clusterOfRoot.insert(root, clusters.size());
            QString key = keyForm;
            // %2 first: the bucket key may itself hold such a mark.
            key.replace(QLatin1String("%2"), names[static_cast<size_t>(i)].text);
            if (key.startsWith(QLatin1String("%1")))
                key.replace(0, 2, bucketKey);
            clusters.append({key, {}, 0});
        }
        clusters[clusterOfRoot.value(root)].files.append(members[i]);
    }
    finishGroups(clusters, options);
    return clusters;
}

} // namespace MirrixCore
