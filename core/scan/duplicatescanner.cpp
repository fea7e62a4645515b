#include "core/scan/duplicatescanner.h"

#include "core/match/emptyfiles.h"
#include "core/match/exact.h"
#include "core/match/folders.h"
#include "core/match/images.h"
#include "core/match/locationkinds.h"
#include "core/match/memberorder.h"
#include "core/match/rulekeys.h"
#include "core/match/sampled.h"
#include "core/match/similarcontent.h"
#include "core/media/metadata.h"
#include "core/walk/enumeration.h"

#include <QElapsedTimer>

#include <map>

namespace MirrixCore {

namespace {

constexpr qint64 filesPerReport = 256;

QList<FileEntry> enumerate(const ScanContext &context, QList<UnreadPath> &unread, FolderNotes &folders)
{
    const auto report = [&](const QString &path, qint64 count) {
        if (context.progress)
            context.progress({count, count, 0, path, Phase::Enumerating});
    };
    report(context.options.roots.value(0), 0);
    const auto onFile = [&](const FileEntry &file, qint64 count) {
        if (count % filesPerReport == 0)
            report(file.path, count);
    };
    const QList<FileEntry> files = enumerateFiles(context.options, onFile, context.cancelled, &unread, &folders);
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

constexpr qint64 kib = 1024;

ScanResult matchRules(const QList<FileEntry> &files, const ScanContext &context, bool includeMedia)
{
    return groupByRuleKeys(files, context.options, includeMedia, context.cancelled, context.progress);
}

ScanResult matchAudio(const QList<FileEntry> &files, const ScanContext &context)
{
    switch (context.options.audioDepth()) {
    case AudioDepth::Whole:
        return matchSampled(files, context, 0);
    case AudioDepth::First2MiB:
        return matchSampled(files, context, 2048 * kib);
    case AudioDepth::First512KiB:
        return matchSampled(files, context, 512 * kib);
    case AudioDepth::Exact:
        return matchExact(files, context);
    case AudioDepth::IgnoreContent:
        return matchRules(files, context, true);
    }
    return {};
}

ScanResult matchVideo(const QList<FileEntry> &files, const ScanContext &context)
{
    switch (context.options.videoDepth()) {
    case VideoDepth::First1MiB:
        return matchSampled(files, context, 1024 * kib);
    case VideoDepth::Whole:
        return matchSampled(files, context, 0);
    case VideoDepth::IgnoreContent:
        return matchRules(files, context, true);
    }
    return {};
}

ScanResult matchFiles(const QList<FileEntry> &files, const ScanContext &context)
{
    switch (context.options.contentMatching()) {
    case ContentMatch::Exact:
        return matchExact(files, context);
    case ContentMatch::Similar:
        return matchSimilarContent(files, context);
    case ContentMatch::Ignore:
        return matchRules(files, context, false);
    }
    return {};
}

ScanResult matchContent(const QList<FileEntry> &files, const ScanContext &context)
{
    switch (context.options.mode()) {
    case SearchMode::Files:
        return matchFiles(files, context);
    case SearchMode::Images:
        return matchImages(files, context);
    case SearchMode::Audio:
        return matchAudio(files, context);
    case SearchMode::Video:
        return matchVideo(files, context);
    }
    return {};
}

ScanResult matchKind(FindKind kind, const QList<FileEntry> &files, const ScanContext &context)
{
    switch (kind) {
    case FindKind::ContentDuplicates:
        return matchContent(files, context);
    case FindKind::NameDuplicates: {
        const ScanOptions options = nameOptions(context.options);
        return matchRules(files, {options, context.progress, context.cancelled}, false);
    }
    case FindKind::EmptyFiles:
        return groupEmptyFiles(files);
    }
    return {};
}

ScanResult matchLocations(const QList<FileEntry> &files, const ScanContext &context)
{
    const LocationKinds kinds(context.options);
    if (kinds.isUniform())
        return matchKind(kinds.uniformKind(), files, context);
    std::map<FindKind, QList<FileEntry>> parts;
    for (const FileEntry &file : files)
        parts[kinds.kindOf(file.path)].append(file);
    ScanResult result;
    for (const auto &[kind, part] : parts)
        append(result, matchKind(kind, part, context));
    sortByWaste(result.groups);
    return result;
}

void addFolders(ScanResult &result, const QList<FileEntry> &files, const FolderNotes &folders,
                const ScanOptions &options)
{
    if (options.files.isEmpty()) // else folders contain only some of their files here
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
    const ScanContext context{options, progress, cancelled};
    QElapsedTimer timer;
    timer.start();
    QList<UnreadPath> unread;
    FolderNotes folders;
    QList<FileEntry> files = enumerate(context, unread, folders);
    if (context.isCancelled())
        return {};
    if (MediaMetadata::isNeeded(options))
        MediaMetadata::enrich(files, options, progress, cancelled);
    if (context.isCancelled())
        return {};

    ScanResult result = matchLocations(files, context);
    result.unread = unread + result.unread;
    result.leftOut = folders.leftOut;
    result.filesScanned = files.size();
    if (result.totalBytes == 0)
        result.totalBytes = totalSize(files);
    if (!context.isCancelled())
        addFolders(result, files, folders, options);
    orderMembers(result.groups);
    result.elapsedMs = timer.elapsed();
    return result;
}

ScanResult DuplicateScanner::scanExact(QList<FileEntry> files, const ScanOptions &options,
                                       const ProgressCallback &progress, const CancelQuery &cancelled)
{
    return matchExact(files, {options, progress, cancelled});
}

ScanResult DuplicateScanner::scanSampledContent(QList<FileEntry> files, const ScanOptions &options,
                                                const ProgressCallback &progress, const CancelQuery &cancelled,
                                                qint64 prefixLimitBytes)
{
    return matchSampled(files, {options, progress, cancelled}, prefixLimitBytes);
}

ScanResult DuplicateScanner::scanSimilarImages(QList<FileEntry> files, const ScanOptions &options,
                                               const ProgressCallback &progress, const CancelQuery &cancelled)
{
    return matchImages(std::move(files), {options, progress, cancelled});
}

} // namespace MirrixCore
