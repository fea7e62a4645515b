#include "core/scan/duplicatescanner.h"

#include "core/match/emptyfiles.h"
#include "core/match/folders.h"
#include "core/match/memberorder.h"
#include "core/match/rulekeys.h"
#include "core/media/metadata.h"
#include "core/scan/locationkinds.h"
#include "core/walk/enumeration.h"

#include <QElapsedTimer>

#include <map>

namespace MirrixCore {

namespace {

constexpr qint64 filesPerReport = 256;

QList<FileEntry> enumerate(const ScanOptions &options, const ProgressCallback &progress, const CancelQuery &cancelled,
                           QList<UnreadPath> &unread, FolderNotes &folders)
{
    const auto report = [&](const QString &path, qint64 count) {
        if (progress)
            progress({count, count, 0, path, Phase::Enumerating});
    };
    report(options.roots.value(0), 0);
    const auto onFile = [&](const FileEntry &file, qint64 count) {
        if (count % filesPerReport == 0)
            report(file.path, count);
    };
    const QList<FileEntry> files = enumerateFiles(options, onFile, cancelled, &unread, &folders);
    report(files.isEmpty() ? QString() : files.constLast().path, files.size());
    return files;
}

void append(ScanResult &result, const ScanResult &part)
{
    result.groups += part.groups;
    result.unread += part.unread;
    result.filesScanned += part.filesScanned;
    result.totalBytes += part.totalBytes;
    result.wastedBytes += part.wastedBytes;
    result.candidates += part.candidates;
}

/// The options of a location that looks for names: always by file name, with whatever other rules are on.
ScanOptions nameOptions(ScanOptions options)
{
    options.searchMode = static_cast<qint32>(SearchMode::Files);
    options.contentMatch = static_cast<qint32>(ContentMatch::Ignore);
    options.sameName = true;
    return options;
}

void addFolders(ScanResult &result, const QList<FileEntry> &files, const FolderNotes &folders,
                const ScanOptions &options)
{
    if (options.files.isEmpty()) // else folders stand for some of their files only
        result.folderGroups = findDuplicateFolders(files, folders, result, options);
    if (options.duplicateFoldersOnly) {
        keepGroupsOfDuplicateFolders(result.groups, result.folderGroups);
        result.wastedBytes = totalWaste(result.groups);
    }
    result.folderSummaries = remainingFiles(files, result.groups, options);
}

} // namespace

ScanResult DuplicateScanner::scan(const ScanOptions &options, const ProgressCallback &progress,
                                  const CancelQuery &cancelled)
{
    QElapsedTimer timer;
    timer.start();
    QList<UnreadPath> unread;
    FolderNotes folders;
    QList<FileEntry> files = enumerate(options, progress, cancelled, unread, folders);
    if (isCancelled(cancelled))
        return {};
    if (MediaMetadata::isNeeded(options))
        MediaMetadata::enrich(files, options, progress, cancelled);
    if (isCancelled(cancelled))
        return {};

    ScanResult result = matchLocations(files, options, progress, cancelled);
    result.unread = unread + result.unread;
    result.leftOut = folders.leftOut;
    result.filesScanned = files.size();
    if (result.totalBytes == 0)
        result.totalBytes = totalSize(files);
    if (!isCancelled(cancelled))
        addFolders(result, files, folders, options);
    orderMembers(result.groups);
    result.elapsedMs = timer.elapsed();
    return result;
}

ScanResult DuplicateScanner::matchLocations(const QList<FileEntry> &files, const ScanOptions &options,
                                            const ProgressCallback &progress, const CancelQuery &cancelled)
{
    const LocationKinds kinds(options);
    if (kinds.isUniform())
        return matchKind(kinds.uniformKind(), files, options, progress, cancelled);
    std::map<FindKind, QList<FileEntry>> parts;
    for (const FileEntry &file : files)
        parts[kinds.kindOf(file.path)].append(file);
    ScanResult result;
    for (const auto &[kind, part] : parts)
        append(result, matchKind(kind, part, options, progress, cancelled));
    sortByWaste(result.groups);
    return result;
}

ScanResult DuplicateScanner::matchKind(FindKind kind, const QList<FileEntry> &files, const ScanOptions &options,
                                       const ProgressCallback &progress, const CancelQuery &cancelled)
{
    switch (kind) {
    case FindKind::ContentDuplicates:
        return matchContent(files, options, progress, cancelled);
    case FindKind::NameDuplicates:
        return groupByRuleKeys(files, nameOptions(options), false, cancelled, progress);
    case FindKind::EmptyFiles:
        return groupEmptyFiles(files);
    }
    return {};
}

ScanResult DuplicateScanner::matchContent(const QList<FileEntry> &files, const ScanOptions &options,
                                          const ProgressCallback &progress, const CancelQuery &cancelled)
{
    constexpr qint64 kib = 1024;
    const auto exact = [&] { return scanExact(files, options, progress, cancelled); };
    const auto sampled = [&](qint64 limit) { return scanSampledContent(files, options, progress, cancelled, limit); };
    switch (static_cast<SearchMode>(options.searchMode)) {
    case SearchMode::Files:
        switch (static_cast<ContentMatch>(options.contentMatch)) {
        case ContentMatch::Exact:
            return exact();
        case ContentMatch::Similar:
            return scanSimilarContent(files, options, progress, cancelled);
        case ContentMatch::Ignore:
            return groupByRuleKeys(files, options, false, cancelled, progress);
        }
        return {};
    case SearchMode::Images:
        return scanSimilarImages(files, options, progress, cancelled);
    case SearchMode::Audio:
        switch (options.mediaCompareDepth) {
        case 0:
            return sampled(0);
        case 1:
            return sampled(2048 * kib);
        case 2:
            return sampled(512 * kib);
        case 3:
            return exact();
        case 4:
            return groupByRuleKeys(files, options, true, cancelled, progress);
        }
        return {};
    case SearchMode::Video:
        // Not the order of audio: here the default is the cheap comparison.
        switch (options.mediaCompareDepthAlt) {
        case 0:
            return sampled(1024 * kib);
        case 1:
            return sampled(0);
        case 2:
            return groupByRuleKeys(files, options, true, cancelled, progress);
        }
        return {};
    }
    return {};
}

} // namespace MirrixCore
