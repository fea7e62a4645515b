#include "cli/scancommand.h"

#include "app/datalocations.h"
#include "app/settings.h"
#include "cli/colours.h"
#include "cli/grouporder.h"
#include "cli/output.h"
#include "cli/progressline.h"
#include "cli/scanreport.h"
#include "cli/selection.h"
#include "cli/terminal.h"
#include "cli/unread.h"
#include "core/cache/cacheroot.h"
#include "core/match/rulekeys.h"
#include "core/media/mediakinds.h"
#include "core/model/optiontable.h"
#include "core/platform/nativefileio.h"
#include "core/platform/nativepath.h"
#include "core/scan/duplicatescanner.h"
#include "core/walk/emptyfolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

namespace MirrixCli {

namespace {

using namespace MirrixCore;

const QString modeOption = QStringLiteral("mode");
const QString hashOption = QStringLiteral("hash");
const QString optionsOption = QStringLiteral("options");
const QString noCacheOption = QStringLiteral("no-cache");
const QString formatOption = QStringLiteral("format");
const QString outputOption = QStringLiteral("output");
const QString sortOption = QStringLiteral("sort");
const QString quietOption = QStringLiteral("quiet");
const QString emptyFilesOption = QStringLiteral("empty-files");
const QString emptyFoldersOption = QStringLiteral("empty-folders");

void readOptionsFile(const QString &path, ScanOptions &options)
{
    QFile file;
    QString reason;
    if (!openNatively(file, path, QIODevice::ReadOnly, &reason))
        throw UsageError{QStringLiteral("cannot read %1: %2").arg(path, reason)};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        const bool isJson = error.error == QJsonParseError::NoError;
        throw UsageError{
            QStringLiteral("%1: %2").arg(path, isJson ? QStringLiteral("not a JSON object") : error.errorString())};
    }
    const QString problem = scanOptionsFromJson(document.object(), options);
    if (!problem.isEmpty())
        throw UsageError{QStringLiteral("%1: %2").arg(path, problem)};
    makeAbsolute(options, QFileInfo(path).path());
}

struct Mode
{
    QString name;
    SearchMode search;
    ContentMatch content;
};

const QList<Mode> &modes()
{
    static const QList<Mode> table = {
        {QStringLiteral("content"), SearchMode::Files, ContentMatch::Exact},
        {QStringLiteral("similar-content"), SearchMode::Files, ContentMatch::Similar},
        {QStringLiteral("rules"), SearchMode::Files, ContentMatch::Ignore},
        {QStringLiteral("images"), SearchMode::Images, ContentMatch::Exact},
        {QStringLiteral("audio"), SearchMode::Audio, ContentMatch::Exact},
        {QStringLiteral("video"), SearchMode::Video, ContentMatch::Exact},
    };
    return table;
}

void applyMode(const QString &name, ScanOptions &options)
{
    QStringList names;
    for (const Mode &mode : modes()) {
        names.append(mode.name);
        if (mode.name != name)
            continue;
        options.searchMode = static_cast<qint32>(mode.search);
        options.contentMatch = static_cast<qint32>(mode.content);
        return;
    }
    throw UsageError{choiceProblem(modeOption, names, name)};
}

void refuseWildcards(const QStringList &extensions)
{
    for (const QString &extension : extensions) {
        if (extension.contains(QLatin1Char('*')))
            throw UsageError{QStringLiteral("an extension is given as jpg, not as \"%1\"").arg(extension)};
    }
}

/// Whether files are grouped by rules alone.
bool groupsByRules(const ScanOptions &options)
{
    switch (options.mode()) {
    case SearchMode::Files:
        return options.contentMatch == static_cast<qint32>(ContentMatch::Ignore);
    case SearchMode::Images:
        return false;
    case SearchMode::Audio:
        return options.audioDepth() == AudioDepth::IgnoreContent;
    case SearchMode::Video:
        return options.videoDepth() == VideoDepth::IgnoreContent;
    }
    return false;
}

/// Refuses what would be answered with an empty result.
void refuseUnsupported(const ScanOptions &options)
{
    if (const QString problem = scanOptionOutOfRange(options); !problem.isEmpty())
        throw UsageError{problem};
    bool hasLocationRule = false;
    for (const ScanLocation &location : options.locations) {
        if (location.findKind < 0 || location.findKind > static_cast<qint32>(FindKind::EmptyFiles))
            throw UsageError{QStringLiteral("findKind must be from 0 to 2, not %1").arg(location.findKind)};
        hasLocationRule = hasLocationRule || location.kind() != FindKind::ContentDuplicates;
    }
    refuseWildcards(options.includeExtensions + options.excludeExtensions);
    const bool hasRule = hasRefiningRule(options) || hasLocationRule || options.audioMatchDuration ||
                         options.videoMatchDuration || !options.audioTags.isEmpty() || !options.videoTags.isEmpty();
    if (groupsByRules(options) && !hasRule)
        throw UsageError{
            QStringLiteral("without comparing contents a rule is needed, for example --set sameName=true")};
}

void applyHash(const QCommandLineParser &parser, const QString &dataDirectory)
{
    const QString name = parser.value(hashOption);
    if (name.isEmpty()) {
        Mirrix::applyContentHashAlgorithm(Mirrix::readSettings(dataDirectory));
        return;
    }
    if (name != QLatin1String("md5") && name != QLatin1String("blake3"))
        throw UsageError{choiceProblem(hashOption, {QStringLiteral("md5"), QStringLiteral("blake3")}, name)};
    setContentHashAlgorithm(contentHashAlgorithmFrom(name));
}

ReportFormat formatOf(const QString &name)
{
    const QStringList names = {QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("csv"),
                               QStringLiteral("nul")}; // in the order of the formats
    if (!names.contains(name))
        throw UsageError{choiceProblem(formatOption, names, name)};
    return static_cast<ReportFormat>(names.indexOf(name));
}

QString orderOf(const QCommandLineParser &parser)
{
    const QString order = parser.value(sortOption);
    if (!groupOrders().contains(order))
        throw UsageError{choiceProblem(sortOption, groupOrders(), order)};
    return order;
}

/// Finds out before a long scan whether its report can be written. The file is not left open: its temporary name would
/// be found by a scan of its folder.
void refuseUnwritable(const QString &path)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile() && !target.isDir())
        return; // opening a pipe twice would end its reader
    Output probe;
    if (!probe.open(path))
        throw UsageError{QStringLiteral("cannot write %1: %2").arg(path, probe.errorText())};
}

/// Turns the cache on, and reports when nothing new can be stored in it.
void useCache(const QString &dataDirectory)
{
    setCacheRoot(dataDirectory);
    const QString folder = dataDirectory + QLatin1Char('/') + fingerprintCacheName;
    const QString probePath = QStringLiteral("%1/probe%2").arg(folder).arg(QCoreApplication::applicationPid());
    QFile probe;
    if (!makeFolders(folder) || !openNatively(probe, probePath, QIODevice::WriteOnly))
        printError(QStringLiteral("cannot write to %1; digests will not be cached").arg(folder));
    probe.close(); // Windows removes no open file
    std::error_code failure;
    std::filesystem::remove(filesystemPath(probePath), failure);
}

/// The folders in the order in which people read them.
void addEmptyFolders(ScanReport &report, const ScanOptions &options)
{
    QList<UnreadPath> unread;
    report.emptyFolders = findEmptyFolders(options, isInterrupted, unread);
    std::reverse(report.emptyFolders.begin(), report.emptyFolders.end());
    if (report.hasFiles)
        return; // the same was named before
    printUnread(unread);
    report.result.unread = unread;
}

/// False, with the reason printed, when the report could not be written.
bool writeTo(const QString &path, const ScanReport &report, const ReportStyle &style)
{
    Output output;
    const bool isOpen = output.open(path);
    if (isOpen)
        writeReport(report, style, output);
    if (isOpen && output.finish())
        return true;
    printError(QStringLiteral("cannot write the report: %1").arg(output.errorText()));
    return false;
}

ScanResult scanWithProgress(const ScanOptions &options, bool isQuiet)
{
    ProgressLine line(!isQuiet);
    return DuplicateScanner::scan(
        options, [&line](const ScanProgress &progress) { line.show(progress); }, isInterrupted);
}

} // namespace

void addPreparationOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {hashOption, QStringLiteral("Digest used for comparing: md5 or blake3 (default: from the settings)."),
         QStringLiteral("NAME")},
        {noCacheOption, QStringLiteral("Do not read or write the digest cache.")},
    });
}

void prepareScan(const QCommandLineParser &parser)
{
    const QString dataDirectory = dataDirectoryOf(parser);
    applyHash(parser, dataDirectory);
    setOwnFiles(Mirrix::ownFilesIn(dataDirectory));
    if (parser.isSet(noCacheOption))
        setCacheRoot({});
    else
        useCache(dataDirectory);
    catchInterrupts();
}

ScanResult scanAndReportUnread(const ScanOptions &options, bool isQuiet)
{
    const ScanResult result = scanWithProgress(options, isQuiet);
    printUnread(result.unread);
    return result;
}

void seekEmptyFiles(ScanOptions &options)
{
    const QStringList places = options.roots + options.files.mid(0, options.roots.isEmpty() ? 1 : 0);
    for (const QString &place : places) {
        const auto isOf = [&](const ScanLocation &location) { return location.path == place; };
        if (std::none_of(options.locations.begin(), options.locations.end(), isOf))
            options.locations.append({place, true, 0, false});
    }
    for (ScanLocation &location : options.locations)
        location.findKind = static_cast<qint32>(FindKind::EmptyFiles);
}

void addOutputOptions(QCommandLineParser &parser)
{
    parser.addOption({{QStringLiteral("q"), quietOption},
                      QStringLiteral("Print the result only: no progress, no summary. Errors are still printed.")});
    addColourOption(parser);
}

bool isQuiet(const QCommandLineParser &parser)
{
    return parser.isSet(quietOption);
}

void addScanOptions(QCommandLineParser &parser)
{
    addSelectionOptions(parser);
    addPreparationOptions(parser);
    parser.addOptions({
        {modeOption,
         QStringLiteral("How files are compared: content (default; identical bytes), similar-content (at least "
                        "similarPercent of samples agree), rules (names, sizes, dates and paths only), images (visual "
                        "similarity, within imageMaxDistance), audio or video (content samples, then the beginning or "
                        "the whole file, depending on mediaCompareDepth for audio, mediaCompareDepthAlt for video)."),
         QStringLiteral("MODE")},
        {optionsOption, QStringLiteral("Read scan options from a JSON file."), QStringLiteral("FILE")},
        {emptyFilesOption, QStringLiteral("List empty files instead of duplicates.")},
        {emptyFoldersOption,
         QStringLiteral("List folders that are empty or contain only empty folders, instead of duplicates. May be used "
                        "with --empty-files.")},
        {formatOption,
         QStringLiteral("Report format: text (default), json, csv (groups only) or nul (each path ends with a NUL "
                        "byte, and an empty path stands between groups)."),
         QStringLiteral("FORMAT"), QStringLiteral("text")},
        {sortOption,
         QStringLiteral("Order of the groups: waste (default; most first), path (of the first file), size (of the "
                        "largest file, largest first) or modified (latest change first)."),
         QStringLiteral("ORDER"), groupOrders().constFirst()},
        {outputOption, QStringLiteral("Write the report to a file."), QStringLiteral("FILE")},
    });
    addOutputOptions(parser);
}

ScanOptions scanOptionsOf(const QCommandLineParser &parser)
{
    ScanOptions options;
    options.collapseHardLinks = true; // further names of one file waste nothing
    if (parser.isSet(optionsOption))
        readOptionsFile(parser.value(optionsOption), options);
    readSelection(parser, options);
    if (parser.isSet(modeOption))
        applyMode(parser.value(modeOption), options);
    refuseUnsupported(options);
    if (options.includeExtensions.isEmpty())
        options.includeExtensions = extensionsOf(options.mode());
    return options;
}

ExitStatus runScan(const QCommandLineParser &parser)
{
    ScanOptions options = scanOptionsOf(parser);
    const ReportStyle style = {formatOf(parser.value(formatOption)), colourChoiceOf(parser), isQuiet(parser)};
    const QString order = orderOf(parser);
    refuseUnwritable(parser.value(outputOption));
    prepareScan(parser);
    ScanReport report;
    report.hasFolders = parser.isSet(emptyFoldersOption);
    report.hasFiles = parser.isSet(emptyFilesOption) || !report.hasFolders;
    if (parser.isSet(emptyFilesOption))
        seekEmptyFiles(options);
    if (report.hasFiles)
        report.result = scanAndReportUnread(options, style.isQuiet);
    if (report.hasFolders)
        addEmptyFolders(report, options);
    if (isInterrupted()) {
        printError(QStringLiteral("cancelled"));
        return ExitStatus::Cancelled;
    }
    sortGroups(report.result.groups, order);
    const bool isWritten = writeTo(parser.value(outputOption), report, style);
    return isWritten && !isAnyWanted(report.result.unread, options) ? ExitStatus::Done : ExitStatus::SomeFailed;
}

} // namespace MirrixCli
