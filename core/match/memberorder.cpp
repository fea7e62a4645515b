#include "core/match/memberorder.h"

#include "core/match/copywords.h"
#include "core/match/emptyfiles.h"
#include "core/match/groups.h"
#include "core/platform/pathtext.h"

#include <algorithm>
#include <vector>

namespace MirrixCore {

namespace {

/// What a file is sorted by.
struct OrderKey
{
    bool isCopy;
    QStringView path;
    qsizetype index;
};

bool isBefore(const OrderKey &a, const OrderKey &b)
{
    if (a.isCopy != b.isCopy)
        return b.isCopy;
    if (a.path.size() != b.path.size())
        return a.path.size() < b.path.size();
    return compareCodePoints(a.path, b.path) < 0;
}

void orderFiles(QList<FileEntry> &files)
{
    std::vector<OrderKey> keys;
    keys.reserve(static_cast<size_t>(files.size()));
    for (const FileEntry &file : std::as_const(files))
        keys.push_back({hasCopyWord(nameOf(file.path).toString()), file.path, std::ssize(keys)});
    if (std::is_sorted(keys.begin(), keys.end(), isBefore))
        return;
    std::stable_sort(keys.begin(), keys.end(), isBefore);
    QList<FileEntry> sorted;
    sorted.reserve(files.size());
    for (const OrderKey &key : keys)
        sorted.append(std::as_const(files)[key.index]);
    files.swap(sorted);
}

} // namespace

void orderMembers(QList<DuplicateGroup> &groups)
{
    for (DuplicateGroup &group : groups) {
        if (group.key != emptyFilesKey)
            orderFiles(group.files);
    }
    std::sort(groups.begin(), groups.end(), [](const DuplicateGroup &a, const DuplicateGroup &b) {
        if (a.wastedBytes != b.wastedBytes)
            return a.wastedBytes > b.wastedBytes;
        return compareCodePoints(a.files.constFirst().path, b.files.constFirst().path) < 0;
    });
}

} // namespace MirrixCore
