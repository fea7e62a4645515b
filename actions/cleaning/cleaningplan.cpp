#include "actions/cleaning/cleaningplan.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace Mirrix {

using MirrixCore::DuplicateGroup;
using MirrixCore::FileEntry;

namespace {

/// `choose` is handed the files that may be kept and answers with an index into them.
template <typename Choose>
GroupChoice choice(const QList<FileEntry> &files, Choose choose)
{
    QList<qsizetype> places;
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (MirrixCore::mayBeKept(files[i].place))
            places.append(i);
    }
    GroupChoice result;
    if (places.isEmpty())
        return result;
    if (places.size() == files.size()) {
        result.kept = places.takeAt(choose(files));
    } else {
        QList<FileEntry> candidates;
        for (const qsizetype place : std::as_const(places))
            candidates.append(files[place]);
        result.kept = places.takeAt(choose(candidates));
    }
    result.surplus = places;
    return result;
}

/// The digest that the key of a group of equal contents begins with; rules may have added more behind a bar.
QString digestIn(const DuplicateGroup &group)
{
    constexpr qsizetype md5Length = 32;
    constexpr qsizetype blake3Length = 64;
    const QString hex = group.key.section(QLatin1Char('|'), 0, 0);
    static const QRegularExpression digits(QStringLiteral("^[0-9a-f]+$"));
    if (!group.isEqualContent || !digits.match(hex).hasMatch())
        return {};
    return hex.size() == md5Length      ? QLatin1String("md5:") + hex
           : hex.size() == blake3Length ? QLatin1String("blake3:") + hex
                                        : QString();
}

} // namespace

ScannedFile scannedFile(const FileEntry &file)
{
    const MirrixCore::FileIdentity identity = {file.volumeSerial, file.fileIndex, file.linkCount, file.hasFileId};
    return {file.path, file.size, file.modifiedMs, identity, file.allocatedBytes};
}

CleaningItem cleaningItem(const DuplicateGroup &group, qsizetype file, qsizetype kept)
{
    return {scannedFile(group.files[file]),
            kept < 0 ? ScannedFile() : scannedFile(group.files[kept]),
            {},
            digestIn(group),
            group.isEqualContent};
}

QString takingFolder(const CleaningPlan &plan)
{
    if (plan.method == CleaningMethod::Move)
        return plan.targetFolder;
    return isBackingUp(plan.method) ? plan.backupFolder : QString();
}

QString ruleName(KeepRule rule)
{
    static const std::array<QString, 4> names = {QStringLiteral("newest"), QStringLiteral("oldest"),
                                                 QStringLiteral("shallowest"), QStringLiteral("deepest")};
    return names[static_cast<size_t>(rule)];
}

GroupChoice chooseInGroup(const QList<FileEntry> &files, KeepRule rule)
{
    return choice(files, [rule](const QList<FileEntry> &candidates) { return chooseKeeper(candidates, rule); });
}

GroupChoice chooseFirstInGroup(const QList<FileEntry> &files)
{
    return choice(files, [](const QList<FileEntry> &) { return qsizetype(0); });
}

QList<CleaningItem> surplusByRule(const QList<DuplicateGroup> &groups, KeepRule rule)
{
    QList<CleaningItem> items;
    for (const DuplicateGroup &group : groups) {
        const GroupChoice choice = chooseInGroup(group.files, rule);
        for (const qsizetype file : choice.surplus)
            items.append(cleaningItem(group, file, choice.kept));
    }
    return items;
}

QList<CleaningItem> itemsWithoutKept(const QList<DuplicateGroup> &groups)
{
    QList<CleaningItem> items;
    for (const DuplicateGroup &group : groups) {
        for (qsizetype file = 0; file < group.files.size(); ++file) {
            if (MirrixCore::mayBeKept(group.files[file].place))
                items.append(cleaningItem(group, file, -1));
        }
    }
    return items;
}

} // namespace Mirrix
