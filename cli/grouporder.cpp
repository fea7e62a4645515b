#include "cli/grouporder.h"

#include "core/match/memberorder.h"
#include "core/platform/pathtext.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

/// Groups with greater ranks come first.
qint64 rankOf(const DuplicateGroup &group, const QString &order)
{
    if (order == QLatin1String("waste"))
        return group.wastedBytes;
    qint64 rank = 0;
    for (const FileEntry &file : group.files) {
        if (order == QLatin1String("size"))
            rank = std::max(rank, file.size);
        else if (order == QLatin1String("modified"))
            rank = std::max(rank, file.modifiedMs);
    }
    return rank;
}

} // namespace

QStringList groupOrders()
{
    return {QStringLiteral("waste"), QStringLiteral("path"), QStringLiteral("size"), QStringLiteral("modified")};
}

void sortGroups(QList<DuplicateGroup> &groups, const QString &order)
{
    if (order == groupOrders().constFirst())
        return;
    std::vector<std::pair<qint64, DuplicateGroup>> ranked;
    ranked.reserve(static_cast<size_t>(groups.size()));
    for (DuplicateGroup &group : groups) {
        const qint64 rank = rankOf(group, order);
        ranked.emplace_back(rank, std::move(group));
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto &a, const auto &b) {
        if (a.first != b.first)
            return a.first > b.first;
        return compareCodePoints(a.second.files.constFirst().path, b.second.files.constFirst().path) < 0;
    });
    std::transform(ranked.begin(), ranked.end(), groups.begin(), [](auto &each) { return std::move(each.second); });
}

} // namespace MirrixCli
